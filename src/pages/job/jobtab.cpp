#include "pages/job/jobtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagelayout.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "pages/job/accounteditdialog.h"
#include "pages/job/accountlistdialog.h"
#include "pages/job/jobaccounting.h"
#include "pages/job/jobemail.h"
#include "pages/job/joblogin.h"
#include "pages/job/jobname.h"
#include "pages/job/jobstorage.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace {

// In pixels.
constexpr int pictureSize = 50;
constexpr int inputWidth = 180;
constexpr int gap = 6;

} // namespace

JobTab::JobTab(PanelDialog *dialog)
    : Tab(dialog, {QT_TRANSLATE_NOOP("JobTab", "Job"), ":/icons/tab-job", PageHead::WithAnOption})
{
    Tab::setTabName();
    JobTab::createWidgets();
    connectBoundWidgets();
    createConnections();
    connectAccountList();
    createLayout();
    enableCustomJobNameSettings(JobName::ByApplication);
}

JobTab::~JobTab() = default;

// Widgets

void JobTab::createWidgets()
{
    setStyleSheet(
        QStringLiteral("QLineEdit:disabled{background-color: rgba(204, 204, 204, 100) }"));
    storage = std::make_unique<JobStorage>(this);
    accounting = std::make_unique<JobAccounting>(this);
    login = std::make_unique<JobLogin>(this);
    name = std::make_unique<JobName>(this);
    email = std::make_unique<JobEmail>(this);
    accountList = new AccountListDialog(this);
    accountEdit = new AccountEditDialog(accountList);
    setPictures();
    for (BixCheckBoxButton *button :
         {storage->button, accounting->button, login->button, email->button})
        button->setContentsMargins(0, 0, gap, 0);
    storage->showInputs(StorageKind::Other);
    registerWidgets();
}

void JobTab::setPictures()
{
    const auto set = [](QLabel *label, const char *path) {
        label->setPixmap(QIcon(QLatin1String(path)).pixmap(pictureSize));
    };
    set(accounting->picture, ":/icons/jobaccounting");
    set(name->picture, ":/icons/name");
}

void JobTab::registerWidgets()
{
    const QPair<const char *, QWidget *> bound[] = {
        {"BXCollate1", storage->box},
        {"cJobStore", storage->button},
        {"cJobAccount", accounting->button},
        {"cJACLE", accounting->idEdit},
        {"cUserLogin", login->button},
        {"cJULE", login->nameEdit},
        {"cJPLE", login->passwordEdit},
        {"cEmail", email->button},
        {"cJELE", email->edit},
    };
    for (const auto &[keyword, widget] : bound)
        boundWidgets.insert(QLatin1String(keyword), widget);
    markWidgets.insert(QStringLiteral("BXCollate1"), storage->label);
    markWidgets.insert(QStringLiteral("BqManagment"), accounting->label);
    companionWidgets.insert(QStringLiteral("BqManagment"), accounting->picture);
    checkBoxButtons = {storage->button, accounting->button};
}

// Connections

void JobTab::createConnections()
{
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    const auto toDialog = &PanelDialog::setConstraints;

    connect(name->modeBox, changed, dialog, toDialog);
    connect(name->modeBox, changed, this, &JobTab::enableCustomJobNameSettings);
    connect(name->modeBox, changed, this, &JobTab::verifyjobName);

    connect(accounting->button, toggled, dialog, toDialog, Qt::UniqueConnection);
    connect(accounting->button, toggled, dialog, toDialog);
    connect(accounting->button, toggled, this, &JobTab::verifySpecificJobAccountID);
    connect(accounting->idEdit, &QLineEdit::textEdited, dialog, toDialog, Qt::UniqueConnection);
    connect(accounting->idEdit, &QLineEdit::textEdited, this, &JobTab::verifySpecificJobAccountID);
    connect(accounting->modeBox, changed, this, &JobTab::selectJobAccount, Qt::UniqueConnection);
    connect(accounting->modeBox, changed, dialog, toDialog, Qt::UniqueConnection);
    connect(accounting->modeBox, changed, this, &JobTab::verifySpecificJobAccountID,
            Qt::UniqueConnection);

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

void JobTab::connectAccountList()
{
    const QPushButton *open = accounting->listButton;
    connect(open, &QPushButton::clicked, this, &JobTab::showCustomAccountIDDialog);
    connect(open, &QPushButton::clicked, this, &JobTab::loadCustomIDTable);
    connect(open, &QPushButton::clicked, this, &JobTab::checkCustomIDButtonStates);

    const QTableWidget *table = accountList->table;
    connect(table, &QTableWidget::itemSelectionChanged, this, &JobTab::checkCustomIDButtonStates);
    connect(table, &QTableWidget::cellDoubleClicked, this, &JobTab::customAccountIDDoubleClicked);
    for (const QLineEdit *edit : {accountEdit->idEdit, accountEdit->descriptionEdit})
        connect(edit, &QLineEdit::textChanged, this, &JobTab::checkCustomIDButtonStates);
    connect(accountList->newButton, &QPushButton::clicked, this,
            &JobTab::showNewCustomAccountIDDialog);
    connect(accountList->editButton, &QPushButton::clicked, this, &JobTab::editCustomAccountID);
    connect(accountList->deleteButton, &QPushButton::clicked, this, &JobTab::deleteCustomAccountID);
    connect(accountEdit->buttonBox, &QDialogButtonBox::accepted, this,
            &JobTab::createNewCustomAccountID);
    connect(accountEdit->buttonBox, &QDialogButtonBox::rejected, accountEdit, &QWidget::hide);

    const QDialogButtonBox *buttons = accountList->buttonBox;
    connect(buttons, &QDialogButtonBox::accepted, this, &JobTab::saveTempAccountIDs);
    connect(buttons, &QDialogButtonBox::accepted, dialog, &PanelDialog::setConstraints,
            Qt::UniqueConnection);
    connect(buttons, &QDialogButtonBox::accepted, this, &JobTab::verifySpecificJobAccountID);
    connect(buttons, &QDialogButtonBox::rejected, accountList, &QWidget::hide);
}

// Layout

void JobTab::createLayout()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0); // the page has its own
    layout->setSpacing(gap / 2);
    layout->addLayout(createStorageGrid());
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createNameGrid());
    PageLayout::setTabOrder({storage->button, storage->box, storage->codeEdit, storage->numberEdit,
                             storage->passwordEdit, accounting->button, accounting->modeBox,
                             accounting->idEdit, accounting->idBox, accounting->listButton,
                             login->button, login->nameEdit, login->passwordEdit, name->modeBox,
                             name->edit, name->overwriteBox, email->button, email->edit});
}

void JobTab::addLine(QGridLayout *grid, int row, int columns)
{
    grid->addWidget(PageLayout::horizontalLine(this), row, 0, 1, columns);
}

QGridLayout *JobTab::createGrid()
{
    auto *grid = new QGridLayout;
    // Every column that the lines cross would bring its spacing along, and the page has no room to
    // give away.
    grid->setHorizontalSpacing(0);
    grid->setColumnMinimumWidth(1, inputWidth);
    return grid;
}

QGridLayout *JobTab::createStorageGrid()
{
    QGridLayout *grid = createGrid();
    grid->addWidget(storage->label, 0, 0, 1, 2);
    grid->addWidget(storage->button, 1, 0, 2, 1);
    grid->addWidget(storage->box, 1, 1, 1, 4);
    // One or the other of these shows.
    grid->addWidget(storage->numberLabel, 2, 1, 1, 2, Qt::AlignBottom);
    grid->addWidget(storage->codeLabel, 2, 1, 1, 2, Qt::AlignBottom);
    grid->addWidget(storage->numberEdit, 3, 1, 1, 2);
    grid->addWidget(storage->codeEdit, 3, 1, 1, 2);
    grid->addWidget(storage->passwordLabel, 4, 1, 1, 2);
    grid->addWidget(storage->passwordEdit, 5, 1, 1, 2);
    grid->addWidget(storage->error, 5, 1, 2, 5);
    addLine(grid, 8, 6);

    grid->addWidget(accounting->label, 9, 0, 1, 4);
    grid->addWidget(accounting->button, 10, 0, 2, 1);
    grid->addWidget(accounting->modeBox, 10, 1);
    grid->addWidget(accounting->idEdit, 11, 1);
    grid->addWidget(accounting->idBox, 11, 1);
    grid->addWidget(accounting->listButton, 12, 1);
    grid->addWidget(accounting->error, 13, 1);
    addLine(grid, 14, 6);

    grid->addWidget(login->label, 15, 0, 1, 2, Qt::AlignVCenter);
    grid->addWidget(login->button, 16, 0, 2, 1);
    grid->addWidget(login->nameLabel, 16, 1, 1, 1, Qt::AlignBottom);
    grid->addWidget(login->nameEdit, 17, 1);
    grid->addWidget(login->passwordLabel, 18, 1);
    grid->addWidget(login->passwordEdit, 19, 1);
    grid->setColumnStretch(5, 1);
    grid->setRowStretch(20, 1);
    return grid;
}

QGridLayout *JobTab::createNameGrid()
{
    QGridLayout *grid = createGrid();
    grid->addWidget(name->label, 0, 0, 1, 2);
    grid->addWidget(name->picture, 1, 0, 2, 1, Qt::AlignVCenter);
    grid->addWidget(name->modeBox, 1, 1);
    grid->addWidget(name->edit, 2, 1);
    grid->addWidget(name->overwriteLabel, 3, 1, 1, 5);
    // Below the picture there is room for texts that are too long for the second column.
    grid->addWidget(name->overwriteBox, 4, 0, 2, 2, Qt::AlignRight);
    addLine(grid, 6, 7);

    grid->addWidget(email->label, 7, 0, 2, 5);
    grid->addWidget(email->button, 9, 0, 2, 1);
    grid->addWidget(email->edit, 9, 1);
    grid->addWidget(email->error, 10, 1);
    grid->setColumnStretch(13, 1);
    grid->setRowStretch(14, 1);
    return grid;
}

void JobTab::retranslate()
{
    storage->setTexts();
    accounting->setTexts();
    login->setTexts();
    name->setTexts();
    email->setTexts();
}

// Loading

void JobTab::reload()
{
    setBoundSignalsBlocked(true);
    {
        const QSignalBlocker silentMode(accounting->modeBox);
        const QSignalBlocker silentName(name->modeBox);
        hideErrors();
        setTabName();
        savedSettings.clear();
        clearMarks();
        applyLabels();
        loadOptions();
        storage->updateStorageChoices();

        email->updateAvailability();
        name->updateAvailability();
        const bool canAccount = findOption(QStringLiteral("BqManagment"));
        if (!canAccount)
            accounting->button->setChecked(false);
        accounting->button->setEnabled(canAccount);

        loadJobSettings();
        accounting->loadAccountSettings();
        login->loadLoginSettings();
        applyAllWidgets();
        verifyJobEmail();
    }
    setBoundSignalsBlocked(false);
}

void JobTab::loadJobSettings()
{
    email->load();
    verifyJobEmail();
    name->load();
    storage->updateStorageChoices();
    storage->load();
}

void JobTab::hideErrors()
{
    for (QLabel *error : {storage->error, accounting->error, name->error, email->error})
        error->hide();
}

// Job storage

void JobTab::toggleJobSettingsInput(const QString &text)
{
    storage->showEmptyInputs(storage->kindOf(text));
}

void JobTab::toggleJobSettingsCheckBox(bool toggled)
{
    if (toggled || !currentStore)
        return;
    const QSignalBlocker silent(storage->box);
    storage->selectOffState();
    // A keyword of its own, with one "l". The list's option follows by CheckBoxMarkConstraints().
    currentStore->setCurrentByKey(QStringLiteral("BXColate1"), Keys::none);
    toggleJobSettingsInput(storage->box->currentText());
}

void JobTab::beforeConstraints()
{
    storage->updateStorageChoices();
    // The pass may have moved the list silently.
    storage->showInputs(storage->kind());
    verifyjobName();
    verifyJobStoragePasswordLineEdit();
}

void JobTab::verifyJobStoragePasswordLineEdit()
{
    storage->stripAccessCode();
}

void JobTab::verifyJobStorage()
{
    mark(storage->label, storage->fault());
}

// Job accounting and its list

void JobTab::selectJobAccount()
{
    accounting->showMode();
}

void JobTab::verifySpecificJobAccountID()
{
    if (!accounting->button->isChecked())
        accounting->idEdit->clear();
    mark(accounting->label, accounting->fault());
}

void JobTab::showCustomAccountIDDialog()
{
    tempAccounts = accounting->accounts;
    accountList->show();
}

void JobTab::loadCustomIDTable()
{
    accountList->showAccounts(tempAccounts);
}

void JobTab::checkCustomIDButtonStates()
{
    accountList->updateButtons();
}

void JobTab::showNewCustomAccountIDDialog()
{
    accountEdit->showNew();
    isNewAccount = true;
    editedAccountId.clear();
}

void JobTab::customAccountIDDoubleClicked(int, int)
{
    editCustomAccountID();
}

void JobTab::editCustomAccountID()
{
    accountEdit->showKnown(accountList->currentId(), accountList->currentDescription());
    loadCustomIDTable();
    checkCustomIDButtonStates();
    isNewAccount = false;
    editedAccountId = accountEdit->idEdit->text();
}

void JobTab::createNewCustomAccountID()
{
    switch (enterAccount(&tempAccounts,
                         {accountEdit->idEdit->text(), accountEdit->descriptionEdit->text(),
                          isNewAccount, editedAccountId})) {
    case AccountFault::NoId:
        showAccountError(JobAccounting::noIdText());
        return;
    case AccountFault::IdInUse:
        showAccountError(tr("This Account ID already exists."));
        return;
    case AccountFault::None:
        break;
    }
    loadCustomIDTable();
    checkCustomIDButtonStates();
    accountEdit->close();
}

void JobTab::showAccountError(const QString &text)
{
    QMessageBox box(accountEdit);
    box.setWindowFlags(dialog->windowFlags());
    box.setWindowTitle(tr("Account ID Error"));
    box.setText(text);
    box.exec();
}

void JobTab::deleteCustomAccountID()
{
    tempAccounts.remove(accountList->currentId());
    loadCustomIDTable();
    checkCustomIDButtonStates();
    accounting->refreshAccountCombo();
}

void JobTab::saveTempAccountIDs()
{
    accounting->accounts = tempAccounts;
    accountList->hide();
    accounting->refreshAccountCombo();
}

// User login

void JobTab::toggleUserLogin()
{
    if (!login->button->isChecked())
        login->clear();
}

void JobTab::verifyUserLogin()
{
    mark(login->label, login->fault());
}

// Job name

void JobTab::enableCustomJobNameSettings(int choice)
{
    name->setMode(choice);
}

void JobTab::verifyjobName()
{
    mark(name->label, name->fault());
}

// E-mail notification

void JobTab::jobEMailNotificationToggle(bool checked)
{
    email->setOn(checked);
}

void JobTab::verifyJobEmail()
{
    const EmailFault fault = email->fault();
    email->showQuoteError(fault == EmailFault::DoubleQuote);
    if (fault != EmailFault::DoubleQuote)
        mark(email->label, JobEmail::message(fault));
}

// Marks

void JobTab::mark(QLabel *label, const QString &message)
{
    setWidgetMark(label, message, !message.isEmpty());
}

void JobTab::markConstraintWidgets()
{
    Tab::markConstraintWidgets();
    verifyJobStorage();
    verifyJobEmail();
    verifyUserLogin();
    verifySpecificJobAccountID();
    verifyjobName();
}

void JobTab::clearMarks()
{
    Tab::clearMarks();
    for (QLabel *label : {accounting->label, login->label, email->label, name->label})
        ConstraintMark::removeImage(label);
}

bool JobTab::hasMarks()
{
    if (!isAvailable())
        return false;
    if (storage->holdsBack() || email->holdsBack() || login->holdsBack() || name->holdsBack() ||
        accounting->holdsBack())
        marked = true;
    return marked;
}

// Settings

QHash<QString, QString> JobTab::collectSettings()
{
    collectBoundWidgets();
    if (storage->isWrittenApart())
        savedSettings.remove(boundWidgets.key(storage->box));
    for (const BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        if (button->isChecked())
            continue;
        const QList<QWidget *> dependents = button->dependents();
        for (const QWidget *dependent : dependents) {
            const bOption *option = findOption(boundWidgets.key(dependent));
            if (option && option->choiceCount() > 0)
                savedSettings.insert(option->key(), option->choiceList().first()->key());
        }
    }
    savedSettings.insert(QStringLiteral("JobDate"),
                         name->replacesFile() ? QStringLiteral("false") : QStringLiteral("true"));
    savedSettings.insert(QStringLiteral("Email"), email->setting());
    if (!name->isCustom())
        savedSettings.insert(QStringLiteral("JobName"), QStringLiteral("off"));
    return savedSettings;
}

Settings JobTab::extraSettings()
{
    Settings settings;
    email->save(&settings);
    name->save(&settings);
    storage->save(&settings);
    accounting->save(&settings);
    login->save(&settings);
    return settings;
}
