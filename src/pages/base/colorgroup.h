#pragma once

#include <QLatin1String>

class BixButtonGroup;
class bOption;

/// The group "Color", which the pages Basic and Imaging both show.
namespace ColorGroup {

inline const QLatin1String keyword("ColorModel");

enum Button
{
    FullColor,
    BlackAndWhite
};

void addButtons(BixButtonGroup *group);

/// Shows black and white on a printer that leaves no choice: it has one colour mode, or no such
/// option (`option` is null). Without effect on any other.
void showWithoutChoice(BixButtonGroup *group, const bOption *option);

} // namespace ColorGroup
