#include "pages/job/joblogin.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "model/sentinels.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "pages/job/jobtexts.h"
#include "storage/secretsetting.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QLabel>
#include <QLineEdit>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

// Keys of the settings file.
const QLatin1String switchKey("UserLogin");
const QLatin1String nameKey("UserLoginName");
const QLatin1String passwordKey("UserLoginPass");

constexpr int longestText = 64; // characters

} // namespace

JobLogin::JobLogin(QWidget *page)
    : JobGroup(named(new QLabel(page), "lblUserLogin"))
    , button(
          named(new BixCheckBoxButton(page, QString(), Icons::icon(QStringLiteral(":/icons/user"))),
                "chkButUserLogin"))
    , nameLabel(named(new QLabel(page), "lblLoginUserName"))
    , nameEdit(named(new QLineEdit(page), "lnEditLoginUserName"))
    , passwordLabel(named(new QLabel(page), "lblLoginPassword"))
    , passwordEdit(named(new QLineEdit(page), "lnEditLoginPassword"))
{
    nameEdit->setMaxLength(longestText);
    nameEdit->setValidator(new OneLineValidator(QLatin1String(JobTexts::nameOfAtMost64), nameEdit));
    passwordEdit->setMaxLength(longestText);
    passwordEdit->setValidator(new OneLineValidator(QStringLiteral(".*"), passwordEdit));
    passwordEdit->setEchoMode(QLineEdit::Password);
    for (QWidget *dependent :
         std::initializer_list<QWidget *>{nameLabel, nameEdit, passwordLabel, passwordEdit})
        button->addDependent(dependent, Sentinel::noDefault);
    JobLogin::setTexts();
}

void JobLogin::setTexts()
{
    ConstraintMark::setPlainText(label, withColon(tr("User Login")));
    //: Short, since it stands below a small picture.
    ButtonCaption::set(button, tr("User login"));
    nameLabel->setText(tr("Name:"));
    passwordLabel->setText(tr("Password:"));
}

void JobLogin::clear()
{
    nameEdit->clear();
    passwordEdit->clear();
}

QString JobLogin::fault() const
{
    const QLatin1Char quote('"');
    if (!button->isChecked())
        return QString();
    if (nameEdit->text().contains(quote) || passwordEdit->text().contains(quote))
        return JobTexts::doubleQuoteText();
    if (nameEdit->text().isEmpty())
        return tr("User name must be at least one character long.");
    return QString();
}

bool JobLogin::holdsBack() const
{
    return button->isChecked() && nameEdit->text().isEmpty();
}

// The settings file

void JobLogin::load()
{
    const bool available = currentOption(QStringLiteral("cUserLogin"));
    const QString name = available ? readSetting(nameKey) : QString();
    const QString password = available ? readSetting(passwordKey) : QString();
    button->setEnabled(available);
    label->setEnabled(available);
    button->setChecked(!name.isEmpty());

    const auto load = [](QLabel *fieldLabel, QLineEdit *edit, const QString &saved) {
        edit->setText(SecretSetting::withSingleBackslashes(SecretSetting::decrypted(saved)));
        fieldLabel->setEnabled(!saved.isEmpty());
        edit->setEnabled(!saved.isEmpty());
    };
    load(nameLabel, nameEdit, name);
    load(passwordLabel, passwordEdit, password);
}

void JobLogin::save(Settings *settings) const
{
    const bool on = button->isChecked();
    settings->insert(switchKey, Keys::yesOrNo(on));
    if (!on)
        return;
    for (const auto &[key, edit] : {std::pair(nameKey, nameEdit), {passwordKey, passwordEdit}}) {
        const QString secret = SecretSetting::encrypted(edit->text());
        if (!secret.isEmpty())
            settings->insert(key, secret);
    }
}
