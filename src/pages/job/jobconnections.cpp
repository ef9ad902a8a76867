// What the widgets of the page "Job" set off, in the order in which it has to happen.

#include "pages/job/accountlistdialog.h"
#include "pages/job/jobaccounting.h"
#include "pages/job/jobemail.h"
#include "pages/job/joblogin.h"
#include "pages/job/jobname.h"
#include "pages/job/jobstorage.h"
#include "pages/job/jobtab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

void JobTab::createConnections()
{
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    const auto toDialog = &PanelDialog::setConstraints;

    connect(name->modeBox, changed, dialog, toDialog);
    connect(name->modeBox, changed, this, &JobTab::enableCustomJobNameSettings);
    connect(name->modeBox, changed, this, &JobTab::verifyjobName);

    connect(accounting->button, toggled, dialog, toDialog, Qt::UniqueConnection);
    // Once more, on purpose: this switch runs one pass more than the others do.
    connect(accounting->button, toggled, dialog, toDialog);
    connect(accounting->button, toggled, this, &JobTab::verifySpecificJobAccountID);
    connect(accounting->idEdit, &QLineEdit::textEdited, dialog, toDialog, Qt::UniqueConnection);
    connect(accounting->idEdit, &QLineEdit::textEdited, this, &JobTab::verifySpecificJobAccountID);
    connect(accounting->modeBox, changed, this, &JobTab::selectJobAccount, Qt::UniqueConnection);
    connect(accounting->modeBox, changed, dialog, toDialog, Qt::UniqueConnection);
    connect(accounting->modeBox, changed, this, &JobTab::verifySpecificJobAccountID,
            Qt::UniqueConnection);
    connect(accounting->idBox, changed, dialog, toDialog);

    connect(login->button, toggled, dialog, toDialog);
    connect(login->button, toggled, this, &JobTab::toggleUserLogin);
    for (const QLineEdit *edit : {login->nameEdit, login->passwordEdit}) {
        connect(edit, &QLineEdit::textChanged, dialog, toDialog);
        connect(edit, &QLineEdit::textChanged, this, &JobTab::verifyUserLogin);
    }

    connect(storage->button, toggled, this, &JobTab::toggleJobSettingsCheckBox,
            Qt::UniqueConnection);
    connect(storage->button, toggled, dialog, toDialog, Qt::UniqueConnection);
    for (const QLineEdit *edit : {storage->codeEdit, storage->numberEdit, storage->passwordEdit})
        connect(edit, &QLineEdit::textEdited, dialog, toDialog, Qt::UniqueConnection);

    connect(name->edit, &QLineEdit::textEdited, dialog, toDialog, Qt::UniqueConnection);
    connect(name->edit, &QLineEdit::textEdited, this, &JobTab::verifyjobName);

    // The inputs have to be right before the constraint pass looks at them. Qt marks this signal
    // deprecated, so it is named by text.
    disconnect(storage->box, changed, dialog, toDialog);
    connect(storage->box, SIGNAL(currentIndexChanged(QString)), this,
            SLOT(toggleJobSettingsInput(QString)));
    connect(storage->box, SIGNAL(currentIndexChanged(QString)), dialog, SLOT(setConstraints()));

    connect(email->edit, &QLineEdit::textChanged, dialog, toDialog, Qt::UniqueConnection);
    connect(email->edit, &QLineEdit::textChanged, this, &JobTab::verifyJobEmail);
    connect(email->button, toggled, this, &JobTab::jobEMailNotificationToggle);
    connect(email->button, toggled, dialog, toDialog, Qt::UniqueConnection);
    connect(email->button, toggled, this, &JobTab::verifyJobEmail);
}

/// A slot that looks at the list comes after the one that fills it.
void JobTab::connectAccountList()
{
    const QPushButton *open = accounting->listButton;
    connect(open, &QPushButton::clicked, this, &JobTab::showCustomAccountIDDialog);
    connect(open, &QPushButton::clicked, accountList, &AccountListDialog::loadCustomIDTable);
    connect(open, &QPushButton::clicked, accountList,
            &AccountListDialog::checkCustomIDButtonStates);
    connect(accountList, &AccountListDialog::accountDeleted, this, &JobTab::refreshAccountCombo);

    const QDialogButtonBox *buttons = accountList->buttons();
    connect(buttons, &QDialogButtonBox::accepted, this, &JobTab::saveTempAccountIDs);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &PanelDialog::setConstraints,
            Qt::UniqueConnection);
    connect(buttons, &QDialogButtonBox::accepted, this, &JobTab::verifySpecificJobAccountID);
    connect(buttons, &QDialogButtonBox::rejected, accountList, &QWidget::hide);
}
