#include "pages/login/userlogintab.h"

#include "model/sentinels.h"
#include "pages/base/errorlabel.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "storage/passwordcipher.h"
#include "storage/settingsfile.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

using PageWidgets::withColon;

namespace {

const QLatin1String nameKey("UserLoginName");
const QLatin1String passwordKey("UserLoginPass");

constexpr int longestText = 64; // characters

QString decrypted(const QString &saved)
{
    return QString::fromUtf8(decryptText(saved));
}

} // namespace

UserLoginTab::UserLoginTab(PanelDialog *dialog)
    : Tab(dialog,
          {QT_TRANSLATE_NOOP("UserLoginTab", "User Login"), ":/icons/tab-basic", PageHead::Never})
{
    Tab::setTabName();
    UserLoginTab::createWidgets();
    createConnections();
    createLayout();
}

// Widgets

void UserLoginTab::createWidgets()
{
    titleLabel = new QLabel(this);
    loginButton =
        new BixCheckBoxButton(this, QString(), Icons::icon(QStringLiteral(":/icons/userlogin")));
    nameLabel = new QLabel(this);
    nameEdit = new QLineEdit(this);
    nameEdit->setMaxLength(longestText);
    nameLabel->setBuddy(nameEdit);
    passwordLabel = new QLabel(this);
    passwordEdit = new QLineEdit(this);
    passwordEdit->setEchoMode(QLineEdit::Password);
    passwordEdit->setMaxLength(longestText);
    passwordLabel->setBuddy(passwordEdit);
    for (QLineEdit *edit : {nameEdit, passwordEdit})
        edit->setValidator(new OneLineValidator(QStringLiteral(".*"), edit));
    errorLabel = makeErrorLabel(this);
    for (QWidget *widget :
         {static_cast<QWidget *>(nameLabel), static_cast<QWidget *>(nameEdit),
          static_cast<QWidget *>(passwordLabel), static_cast<QWidget *>(passwordEdit),
          static_cast<QWidget *>(errorLabel)})
        loginButton->addDependent(widget, Sentinel::noDefault);
    UserLoginTab::retranslate();
}

void UserLoginTab::createConnections()
{
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    for (QWidget *widget :
         {static_cast<QWidget *>(nameLabel), static_cast<QWidget *>(nameEdit),
          static_cast<QWidget *>(passwordLabel), static_cast<QWidget *>(passwordEdit)})
        connect(loginButton, toggled, widget, &QWidget::setEnabled);
    connect(loginButton, toggled, this, qOverload<bool>(&UserLoginTab::verifyPJL));
    for (const QLineEdit *edit : {nameEdit, passwordEdit}) {
        connect(edit, &QLineEdit::textEdited, this,
                qOverload<const QString &>(&UserLoginTab::verifyPJL));
        connect(edit, &QLineEdit::textEdited, dialog, &PanelDialog::setConstraints,
                Qt::UniqueConnection);
    }

    // Disables the fields, before any constraint pass hears of it.
    loginButton->setChecked(true);
    loginButton->setChecked(false);
    connect(loginButton, toggled, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
}

void UserLoginTab::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->addWidget(titleLabel, 0, 0, Qt::AlignVCenter);
    grid->addWidget(loginButton, 1, 0, 2, 1);
    grid->addWidget(nameLabel, 1, 1);
    grid->addWidget(nameEdit, 2, 1);
    grid->addWidget(passwordLabel, 3, 1);
    grid->addWidget(passwordEdit, 4, 1);
    grid->addWidget(errorLabel, 5, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(6, 1);
}

void UserLoginTab::retranslate()
{
    titleLabel->setText(tr("User login"));
    loginButton->findChild<QCheckBox *>()->setText(tr("User login"));
    nameLabel->setText(withColon(tr("Name")));
    passwordLabel->setText(withColon(tr("Password")));
}

// Loading

void UserLoginTab::reload()
{
    setBoundSignalsBlocked(true);
    setTabName();
    savedSettings.clear();
    clearMarks();
    applyLabels();
    loadOptions();
    loadLogin();
    applyAllWidgets();
    setBoundSignalsBlocked(false);
}

void UserLoginTab::loadLogin()
{
    const QString name = readSetting(nameKey);
    {
        // The fields are judged once they are complete.
        const QSignalBlocker silent(loginButton);
        loginButton->setChecked(!name.isEmpty());
    }
    nameEdit->setText(decrypted(name));
    passwordEdit->setText(decrypted(readSetting(passwordKey)));
    verifyPJL(loginButton->isChecked());
}

// Errors

QString UserLoginTab::loginError() const
{
    const QLatin1Char quote('"');
    if (!loginButton->isChecked())
        return QString();
    if (nameEdit->text().contains(quote) || passwordEdit->text().contains(quote))
        return tr("Value cannot contain the double quote (\") character.");
    if (nameEdit->text().isEmpty())
        return tr("User name must be at least one character long.");
    return QString();
}

void UserLoginTab::verifyPJL(const QString &)
{
    const QString error = loginError();
    errorLabel->setText(error);
    errorLabel->setHidden(error.isEmpty());
}

void UserLoginTab::verifyPJL(bool)
{
    verifyPJL(QString());
}

bool UserLoginTab::hasMarks()
{
    // Not isVisible(): an error counts also while another page is in front.
    marked =
        !errorLabel->isHidden() || (loginButton->isChecked() && passwordEdit->text().isEmpty());
    return marked;
}

// Settings

Settings UserLoginTab::extraSettings()
{
    Settings settings;
    if (!loginButton->isChecked())
        return settings;
    const auto store = [&settings](const QString &key, const QString &text) {
        if (!text.isEmpty())
            settings.insert(key, toHex(encryptText(text.toUtf8())));
    };
    store(nameKey, nameEdit->text());
    store(passwordKey, passwordEdit->text());
    return settings;
}
