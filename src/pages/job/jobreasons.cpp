// Why what is greyed on the page "Job" is greyed, as far as the page greys it by itself. Labels
// stay as they are: their tool tips are what holds back OK.

#include "pages/base/reasons.h"
#include "pages/job/jobaccounting.h"
#include "pages/job/jobemail.h"
#include "pages/job/joblogin.h"
#include "pages/job/jobname.h"
#include "pages/job/jobtab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QLineEdit>

void JobTab::explain(const OptionLabels &labels)
{
    Tab::explain(labels);
    const Reasons reasons(labels);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{name->modeBox, name->edit, name->overwriteBox})
        explainControl(widget, reasons);
}

QString JobTab::greyReason(const QWidget *widget) const
{
    if (login->button->isDependent(widget))
        return switchReason(login->button);
    if (widget == email->edit)
        return switchReason(email->button);
    if (widget == name->edit && name->modeBox->isEnabled())
        return Reasons::chooseFirst(name->modeBox->itemText(JobName::Custom));
    return Tab::greyReason(widget);
}
