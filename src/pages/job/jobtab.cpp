#include "pages/job/jobtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagewidgets.h"
#include "pages/job/accountlistdialog.h"
#include "pages/job/jobaccounting.h"
#include "pages/job/jobemail.h"
#include "pages/job/joblogin.h"
#include "pages/job/jobname.h"
#include "pages/job/jobstorage.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace {

// In pixels.
constexpr int pictureSize = 50;
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
    setPictures();
    for (BixCheckBoxButton *button :
         {storage->button, accounting->button, login->button, email->button})
        button->setContentsMargins(0, 0, gap, 0);
    storage->showInputs(StorageKind::Other);
    registerWidgets();
}

std::array<JobGroup *, 5> JobTab::groups() const
{
    return {email.get(), name.get(), storage.get(), accounting.get(), login.get()};
}

void JobTab::setPictures()
{
    const auto set = [](QLabel *label, const char *path) {
        label->setPixmap(Icons::icon(QLatin1String(path)).pixmap(pictureSize));
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

void JobTab::retranslate()
{
    for (JobGroup *group : groups())
        group->setTexts();
}

// Loading

void JobTab::reload()
{
    setBoundSignalsBlocked(true);
    {
        const QSignalBlocker silentMode(accounting->modeBox);
        const QSignalBlocker silentId(accounting->idBox);
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
        accounting->load();
        login->load();
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
    verify(*storage);
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
    verify(*accounting);
}

void JobTab::showCustomAccountIDDialog()
{
    accountList->showFor(accounting->accounts, accounting->idBox->currentText());
}

void JobTab::refreshAccountCombo()
{
    accounting->refreshAccountCombo(accounting->idBox->currentText());
}

void JobTab::saveTempAccountIDs()
{
    accounting->accounts = accountList->accounts();
    accountList->hide();
    accounting->refreshAccountCombo(accountList->chargedId());
}

// User login

void JobTab::toggleUserLogin()
{
    if (!login->button->isChecked())
        login->clear();
}

void JobTab::verifyUserLogin()
{
    verify(*login);
}

// Job name

void JobTab::enableCustomJobNameSettings(int choice)
{
    name->setMode(choice);
}

void JobTab::verifyjobName()
{
    verify(*name);
}

// E-mail notification

void JobTab::jobEMailNotificationToggle(bool checked)
{
    email->setOn(checked);
}

void JobTab::verifyJobEmail()
{
    const bool isQuote = email->check() == EmailFault::DoubleQuote;
    email->showQuoteError(isQuote);
    if (!isQuote)
        verify(*email);
}

// Marks

void JobTab::verify(const JobGroup &group)
{
    const QString message = group.fault();
    setWidgetMark(group.label, message, !message.isEmpty());
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
    const auto all = groups();
    marked = marked || std::any_of(all.begin(), all.end(),
                                   [](const JobGroup *group) { return group->holdsBack(); });
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
    for (const JobGroup *group : groups())
        group->save(&settings);
    return settings;
}
