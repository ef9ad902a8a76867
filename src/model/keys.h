#pragma once

#include <QLatin1String>

/// The keys of choices that say yes, no or nothing, as PPDs, the panel's own options and the
/// settings files spell them. Tables spell them out.
namespace Keys {

/// Of PPD options of the type Boolean (PPD 4.3) and of the panel's own switches.
inline const QLatin1String yes("True");
inline const QLatin1String no("False");
/// Of LeanPrint and of what the policy server restricts.
inline const QLatin1String on("On");
inline const QLatin1String off("Off");
/// Of a list of styles or places.
inline const QLatin1String none("None");

inline QLatin1String yesOrNo(bool is)
{
    return is ? yes : no;
}
inline QLatin1String onOrOff(bool is)
{
    return is ? on : off;
}

} // namespace Keys
