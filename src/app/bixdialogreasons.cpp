// Why the buttons below the pages are greyed.

#include "app/bixdialog.h"
#include "model/optionstore.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"

#include <QDialogButtonBox>
#include <QPushButton>

void BixDialog::explainButtons()
{
    QStringList marked;
    for (Tab *page : qAsConst(pages)) {
        if (page->hasMarks())
            marked.append(page->tabName());
    }
    const QString reason =
        currentStore ? tr("See %1", "pages with marks").arg(marked.join(QStringLiteral(", ")))
                     : tr("Select a printer.");
    for (QPushButton *button :
         {buttonBox->button(QDialogButtonBox::Ok), buttonBox->button(QDialogButtonBox::Apply),
          saveAsButton, profilesButton})
        ReasonTip::setIfGrey(button, reason);
}
