// Why what is greyed on a page is greyed: what all pages have in common.

#include "pages/base/binding.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "widgets/bixcheckboxbutton.h"

void Tab::explain(const OptionLabels &labels)
{
    const Reasons reasons(labels);
    // Switches first, since what follows one says what holds it up.
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons))
        explainControl(button, reasons);
    for (const auto &[keyword, widget] : boundWidgets)
        explainControl(widget, reasons);
    for (const BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        const QList<QWidget *> dependents = button->dependents();
        for (QWidget *dependent : dependents)
            explainControl(dependent, reasons);
    }
}

void Tab::explainControl(QWidget *widget, const Reasons &reasons) const
{
    Binding::of(widget).explain(widget, findOption(boundWidgets.key(widget)), reasons,
                                widget->isEnabled() ? QString() : greyReason(widget));
}

QString Tab::greyReason(const QWidget *widget) const
{
    for (const BixCheckBoxButton *button : checkBoxButtons) {
        if (!button->isChecked() && button->isDependent(widget))
            return switchReason(button);
    }
    return findOption(boundWidgets.key(widget)) ? QString() : Reasons::notOffered();
}

QString Tab::switchReason(const BixCheckBoxButton *button) const
{
    if (!button->isEnabled())
        return ReasonTip::of(button);
    const QString name = label(boundWidgets.key(button));
    return Reasons::switchOnFirst(name.isEmpty() ? PageWidgets::withoutColon(button->label())
                                                 : name);
}
