#include "pages/base/colorgroup.h"

#include "model/boption.h"
#include "pages/base/pagewidgets.h"
#include "widgets/bixbuttongroup.h"

#include <QCoreApplication>

namespace {

// In the order of ColorGroup::Button.
constexpr PageWidgets::ButtonRow rows[] = {
    {QT_TRANSLATE_NOOP("ColorGroup", "Full color"), ":/icons/color", "CMYK RGB"},
    {QT_TRANSLATE_NOOP("ColorGroup", "Black & white"), ":/icons/monochrome", "Gray"},
};

} // namespace

void ColorGroup::addButtons(BixButtonGroup *group)
{
    PageWidgets::addButtons(group, rows, [](const char *text, const char *comment, int n) {
        return QCoreApplication::translate("ColorGroup", text, comment, n);
    });
}

void ColorGroup::showWithoutChoice(BixButtonGroup *group, const bOption *option)
{
    if (option && option->choiceCount() != 1)
        return;
    group->setButton(BlackAndWhite);
    if (option)
        group->setGroupEnabled(false);
    group->setLabelEnabled(true);
}
