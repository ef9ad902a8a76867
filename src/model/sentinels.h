#pragma once

#include <QLatin1String>

/// Reserved texts that stand for "nothing here".
namespace Sentinel {

/// Key and text of a default-made option or choice.
inline const QLatin1String empty("BNULL");
/// Follows the option's key in bOption::currentKey() while nothing is selected.
inline const QLatin1String noSelection("NULL");
/// Answer of a reverse look-up for a widget that is bound to no option.
inline const QLatin1String notBound("NOT_IN_HASH");
/// Off-value of a dependent widget that has no value of its own to fall back to.
inline const QLatin1String noDefault("no_default");

} // namespace Sentinel
