#include "policy/fkptab.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/paneldialog.h"
#include "policy/bcurl.h"
#include "storage/secretsetting.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

// The name of a product, the same in every language.
constexpr char pageTitle[] = "Fleet Keeper";

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
    client = new bcurl(this);
    FKPTab::connectSignals();
    createLayout();
    toggleFKP();
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
    explainFields();
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

QString FKPTab::incompleteText()
{
    return tr("Server, Port, and Login user information must be filled out.");
}

/// What holds the settings back; empty if nothing does.
QString FKPTab::fault() const
{
    if (!isOn())
        return QString();
    if (fields().isIncomplete())
        return incompleteText();
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
