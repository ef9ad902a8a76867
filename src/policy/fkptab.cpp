#include "policy/fkptab.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "policy/bcurl.h"
#include "storage/secretsetting.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegExpValidator>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

// The name of a product, the same in every language.
constexpr char pageTitle[] = "Fleet Keeper"; // a name, the same in all languages

const QLatin1String toggleOption("FKPToggle");
const QLatin1String colorOption("FKPColorMode");
const QLatin1String leanprintOption("FKPLeanprint");
const QLatin1String duplexOption("FKPDuplex");

// Keys of the settings file.
const QLatin1String enabledKey("FKP_enabled");
const QLatin1String notifyKey("FKP_notify");
const QLatin1String serverKey("FKP_server");
const QLatin1String blockingKey("FKP_blocking");
const QLatin1String portKey("FKP_port");
const QLatin1String userKey("FKP_username");
const QLatin1String passwordKey("FKP_password");

const QLatin1String defaultPort("9094");

// In the order of the options "Off" and "On".
constexpr PageWidgets::ButtonRow switchButtons[] = {
    {QT_TRANSLATE_NOOP("FKPTab", "Off"), ":/icons/fkp-off"},
    {QT_TRANSLATE_NOOP("FKPTab", "On"), ":/icons/fkp-on"},
};

QString settingFor(bool on)
{
    return on ? QStringLiteral("ON") : QStringLiteral("OFF");
}

bool isSetOn(const QString &key)
{
    return readSetting(key) == QLatin1String("ON");
}

QString savedPassword()
{
    return SecretSetting::withSingleBackslashes(SecretSetting::decrypted(readSetting(passwordKey)));
}

} // namespace

FKPTab::FKPTab(PanelDialog *dialog)
    : Tab(dialog, {pageTitle, ":/icons/tab-fkp", PageHead::WithPrinter})
{
    Tab::setTabName();
    FKPTab::createWidgets();
    FKPTab::connectSignals();
    createLayout();
    toggleFKP();
}

// Widgets

void FKPTab::createWidgets()
{
    fkpButtons =
        named(new BixButtonGroup(this, withColon(QLatin1String(pageTitle))), "butGroupFKP");
    PageWidgets::addButtons(fkpButtons, switchButtons, &FKPTab::tr);
    fkpButtons->setButton(0);

    serverLabel =
        addField("lblFKPServer", tr("Server"), &serverEdit, "lnEditFKPServer", R"(\S{,260})");
    portLabel = addField("lblFKPPort", tr("Port"), &portEdit, "lnEditFKPPort", "[0-9]{,16}");
    userLabel = addField("lblFKPUser", tr("Login user name"), &userEdit, "lnEditFKPUser",
                         R"(^[\w][\w ]{63}$)");
    passwordLabel =
        addField("lblFKPPassword", tr("Password"), &passwordEdit, "lnEditFKPPassword", ".{,64}");
    passwordEdit->setEchoMode(QLineEdit::Password);

    notificationBox =
        named(new QCheckBox(withColon(tr("No notifications for policy conflicts")), this),
              "chkBxFKPConflict");
    continueRadio = named(new QRadioButton(tr("Continue printing"), this), "rdButFKPContinue");
    cancelRadio = named(new QRadioButton(tr("Cancel printing"), this), "rdButFKPCancel");
    verifyButton = named(new QPushButton(tr("Verify"), this), "butFKPVerify");
    verifyButton->setAutoDefault(false); // Return in a field is no click here

    boundWidgets.insert(toggleOption, fkpButtons);
    client = new bcurl(this);
}

QLabel *FKPTab::addField(const char *labelName, const QString &labelText, QLineEdit **edit,
                         const char *editName, const char *pattern)
{
    auto *label = named(new QLabel(withColon(labelText), this), labelName);
    *edit = named(new QLineEdit(this), editName);
    (*edit)->setValidator(new QRegExpValidator(QRegExp(QLatin1String(pattern)), *edit));
    label->setBuddy(*edit);
    return label;
}

void FKPTab::connectSignals()
{
    const auto switched = qOverload<int>(&BixButtonGroup::buttonClicked);
    connect(fkpButtons, switched, this, &FKPTab::toggleFKP);
    connect(fkpButtons, switched, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
    connect(verifyButton, &QPushButton::clicked, this, &FKPTab::verify);
    connect(notificationBox, &QCheckBox::clicked, this, &FKPTab::toggleNotifications);
    connect(client, &bcurl::messageReady, this, &FKPTab::verifySuccess, Qt::UniqueConnection);
    connect(client, &bcurl::messageReady, dialog, &PanelDialog::setConstraints,
            Qt::UniqueConnection);
    connect(client, &bcurl::errorReady, this, &FKPTab::verifyFailure, Qt::UniqueConnection);
    connect(client, &bcurl::errorReady, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
    for (const QLineEdit *edit : {serverEdit, portEdit, userEdit, passwordEdit})
        connect(edit, &QLineEdit::textEdited, dialog, &PanelDialog::setConstraints,
                Qt::UniqueConnection);
    connect(this, &FKPTab::colorchanged, dialog, &PanelDialog::toggleColorMode,
            Qt::UniqueConnection);
    connectBoundWidgets();
}

void FKPTab::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->addWidget(fkpButtons, 0, 0, 1, 4);
    grid->addWidget(serverLabel, 1, 0, 1, 6);
    grid->addWidget(serverEdit, 2, 0, 1, 6);
    grid->addWidget(portLabel, 1, 7, 1, 3);
    grid->addWidget(portEdit, 2, 7, 1, 3);
    grid->addWidget(userLabel, 3, 0, 1, 10);
    grid->addWidget(userEdit, 4, 0, 1, 10);
    grid->addWidget(passwordLabel, 5, 0, 1, 10);
    grid->addWidget(passwordEdit, 6, 0, 1, 10);
    grid->addWidget(notificationBox, 7, 0, 1, 5);
    grid->addWidget(continueRadio, 8, 1, 1, 3);
    grid->addWidget(cancelRadio, 9, 1, 1, 3);
    grid->addWidget(verifyButton, 10, 0, 1, 2);
    grid->setColumnStretch(10, 1);
    grid->setRowStretch(15, 1);
}

// The switch and the notification box

bool FKPTab::isOn() const
{
    return fkpButtons->currentIndex() == 1;
}

void FKPTab::toggleFKP()
{
    enableFields();
    notificationBox->setChecked(true);
    continueRadio->setChecked(true);
    switchOptions();
    toggleNotifications();
    if (!isOn())
        client->forgetRequests(); // a server switched off forbids nothing
}

void FKPTab::enableFields()
{
    for (QWidget *widget : std::initializer_list<QWidget *>{
             serverLabel, serverEdit, portLabel, portEdit, userLabel, userEdit, passwordLabel,
             passwordEdit, notificationBox, continueRadio, cancelRadio, verifyButton})
        widget->setEnabled(isOn());
}

void FKPTab::switchOptions()
{
    if (currentStore)
        currentStore->setCurrentByKey(toggleOption, Keys::onOrOff(isOn()));
    if (isOn() && portEdit->text().isEmpty())
        portEdit->setText(defaultPort);
    if (isOn() || !currentStore)
        return;
    for (const QLatin1String &option : {colorOption, leanprintOption, duplexOption})
        currentStore->setCurrentByKey(option, Keys::off);
}

void FKPTab::toggleNotifications()
{
    const bool choice = notificationBox->isChecked() && isOn();
    continueRadio->setEnabled(choice);
    cancelRadio->setEnabled(choice);
    if (!choice)
        continueRadio->setChecked(true);
}

// Logging in

void FKPTab::verify()
{
    interactive = true;
    startLogin(fields());
}

void FKPTab::startLogin(const Login &login)
{
    client->forgetRequests();
    verifySucceeded = false;
    requested = login;
    client->post(QStringLiteral("https://") + login.server + QLatin1Char(':') + login.port,
                 login.user, login.password);
}

bool FKPTab::isStaleReply(const QString &message) const
{
    // Without a store the printer is gone, which no reload has told the page of.
    return !currentStore ||
           PolicyReply::isStale(message, serverEdit->text(), portEdit->text(), userEdit->text());
}

void FKPTab::verifySuccess(const QString &message)
{
    if (isStaleReply(message))
        return;
    const QString body = PolicyReply::withoutTag(message);
    verifySucceeded = PolicyReply::parsePolicies(body, &policies);
    serverReached = true;
    applyPolicies();
    reportVerifyResult(body);
    if (verifySucceeded) {
        recordVerified(requested);
        checkForChanges();
    }
}

void FKPTab::reportVerifyResult(const QString &body)
{
    const QString report = PolicyReply::report(body, interactive);
    if (!report.isEmpty())
        showMessage(report);
}

void FKPTab::verifyFailure(const QString &message)
{
    if (isStaleReply(message))
        return;
    serverReached = false;
    applyPolicies();
    showMessage(tr("Unable to connect to the server."));
}

void FKPTab::showMessage(const QString &text)
{
    QMessageBox box(this);
    box.setWindowTitle(QLatin1String(pageTitle));
    box.setText(text);
    box.exec();
}

void FKPTab::applyPolicies()
{
    if (!currentStore)
        return;
    for (const QLatin1String &option : {colorOption, leanprintOption, duplexOption}) {
        currentStore->setCurrentByKey(option, policies[option]);
        if (option == colorOption && policies[option] == Keys::on)
            emit_colorchanged();
    }
}

void FKPTab::emit_colorchanged()
{
    emit colorchanged();
}

// Marks

FKPTab::Login FKPTab::fields() const
{
    return {serverEdit->text(), portEdit->text(), userEdit->text(), passwordEdit->text()};
}

bool FKPTab::Login::operator!=(const Login &other) const
{
    return server != other.server || port != other.port || user != other.user ||
           password != other.password;
}

bool FKPTab::Login::isIncomplete() const
{
    return server.isEmpty() || port.isEmpty() || user.isEmpty() || password.isEmpty();
}

void FKPTab::checkForChanges()
{
    credentialsChanged = isOn() != verifiedEnabled || fields() != verified;
}

void FKPTab::recordVerified(const Login &login)
{
    verifiedEnabled = isOn();
    verified = login;
}

/// What holds the settings back; empty if nothing does.
QString FKPTab::fault() const
{
    if (!isOn())
        return QString();
    if (fields().isIncomplete())
        return tr("Server, Port, and Login user information must be filled out.");
    if (credentialsChanged)
        return tr("You must click Verify after making changes.");
    if (!serverReached)
        return tr("Unable to connect to the server.");
    if (!verifySucceeded)
        return PolicyReply::loginFailed();
    return QString();
}

void FKPTab::markCustomConstraints()
{
    checkForChanges();
    if (isOn())
        verifyButton->setEnabled(!fields().isIncomplete());
    const QString text = fault();
    marked = !text.isEmpty();
    setWidgetMark(fkpButtons, text, marked);
}

void FKPTab::markConstraintWidgets()
{
    markCustomConstraints();
}

// Loading and saving

void FKPTab::reload()
{
    setBoundSignalsBlocked(true);
    setTabName();
    savedSettings.clear();
    clearMarks();
    applyLabels();
    loadOptions();
    applyAllWidgets();
    afterLoad();
    enableOptions();
    loadPolicySettings();
    serverReached = false;
    silentVerify();
    applyPolicies();
    setBoundSignalsBlocked(false);
}

void FKPTab::loadPolicySettings()
{
    fkpButtons->setButton(isSetOn(enabledKey) ? 1 : 0);
    serverEdit->setText(readSetting(serverKey));
    portEdit->setText(readSetting(portKey));
    userEdit->setText(readSetting(userKey));
    passwordEdit->setText(savedPassword());
    recordVerified(fields());
    notificationBox->setChecked(isSetOn(notifyKey));
    const QString blocking = readSetting(blockingKey);
    if (blocking == settingFor(false))
        continueRadio->setChecked(true);
    else if (blocking == settingFor(true))
        cancelRadio->setChecked(true);
    enableFields();
    switchOptions();
    toggleNotifications();
}

void FKPTab::silentVerify()
{
    client->forgetRequests(); // they were for another printer or profile
    interactive = false;
    if (isSetOn(enabledKey))
        startLogin(
            {readSetting(serverKey), readSetting(portKey), readSetting(userKey), savedPassword()});
    // Until the answer is there; and those of the printer before have no say here.
    policies = PolicyReply::noRestrictions();
}

QHash<QString, QString> FKPTab::collectSettings()
{
    savedSettings = {
        {enabledKey, settingFor(isOn())},
        {notifyKey, settingFor(notificationBox->isChecked())},
        {serverKey, serverEdit->text()},
        {blockingKey, settingFor(notificationBox->isChecked() && cancelRadio->isChecked())},
        {portKey, portEdit->text()},
        {userKey, userEdit->text()},
    };
    const QString secret = SecretSetting::encrypted(passwordEdit->text());
    if (!secret.isEmpty())
        savedSettings.insert(passwordKey, secret);
    return savedSettings;
}
