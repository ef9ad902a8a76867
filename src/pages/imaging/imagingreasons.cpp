// Why what is greyed on the page "Imaging" is greyed, as far as the page greys it by itself.

#include "model/boption.h"
#include "model/optionchoice.h"
#include "pages/base/binding.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/imaging/imagingtab.h"
#include "pages/imaging/leanprint.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"

#include <QPushButton>

void ImagingTab::explain(const OptionLabels &labels)
{
    Tab::explain(labels);
    explainLeanPrint(Reasons(labels));
    ReasonTip::setIfGrey(adjustmentButton, Reasons::notOffered());
}

QString ImagingTab::greyReason(const QWidget *widget) const
{
    if (widget == resolutionBox)
        return Reasons::offersNothingElse(); // it shows what the printer does without a choice
    if (widget == leanprintBox && findOption(LeanPrint::keyword))
        return isLeanPrintOn()
                   ? Reasons::offersNothingElse()
                   : Reasons::switchOnFirst(PageWidgets::withoutColon(leanprintGroup->title()));
    return Tab::greyReason(widget);
}

void ImagingTab::explainLeanPrint(const Reasons &reasons)
{
    const bOption *option = findOption(LeanPrint::keyword);
    const QList<OptionChoice *> choices = option ? option->choiceList() : QList<OptionChoice *>();
    QString reason = Reasons::notOffered();
    if (option && leanprintGroup->isEnabled())
        reason = choices.size() > 1 ? reasons.noneOf(choices.mid(1)) : Reasons::offersNothingElse();
    else if (option)
        reason = reasons.alwaysOn(*choices.first());
    ReasonTip::setIfGrey(leanprintGroup, reason);
    ReasonTip::setIfGreyBelow(leanprintGroup, reason);
    Binding::of(leanprintBox).explain(leanprintBox, option, reasons, greyReason(leanprintBox));
}
