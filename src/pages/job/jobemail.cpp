#include "pages/job/jobemail.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/errorlabel.h"
#include "pages/base/onelinevalidator.h"
#include "pages/base/pagewidgets.h"
#include "pages/job/jobtexts.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/icons.h"

#include <QLabel>
#include <QLineEdit>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String keyword("cEmail");
const QLatin1String addressKey("EMailNotification"); // in the settings file
const QLatin1String offValue("off");

// From "+" to "@" in ASCII, which has the digits and a few signs in it.
const QLatin1String allowed("[A-Za-z0-9._%+-@]{64}");

bOption *emailOption()
{
    return currentOption(keyword);
}

} // namespace

JobEmail::JobEmail(QWidget *page)
    : JobGroup(named(new QLabel(page), "lblJobEmail"))
    , button(named(
          new BixCheckBoxButton(page, QString(), Icons::icon(QStringLiteral(":/icons/email"))),
          "chkButJobEmail"))
    , edit(named(new QLineEdit(page), "lnEditJobEmail"))
    , error(makeErrorLabel(page))
{
    edit->setValidator(new OneLineValidator(allowed, edit));
    JobEmail::setTexts();
}

void JobEmail::setTexts()
{
    JobTexts::setRichText(label, withColon(tr("Job e-mail notification")));
    //: Short, since it stands below a small picture.
    ButtonCaption::set(button, tr("Job e-mail notification", "caption"));
}

void JobEmail::setOn(bool on)
{
    edit->setEnabled(on);
    edit->clear();
}

QString JobEmail::setting() const
{
    return button->isChecked() ? edit->text() : QString(offValue);
}

// Faults

EmailFault JobEmail::check() const
{
    return button->isChecked() ? checkEmail(edit->text()) : EmailFault::None;
}

QString JobEmail::message(EmailFault fault)
{
    switch (fault) {
    case EmailFault::DoubleQuote:
        return JobTexts::doubleQuoteText();
    case EmailFault::Empty:
        return tr("Enter a valid e-mail address.");
    case EmailFault::Format:
        return tr("Enter the e-mail address in a valid format.\nFor example: %1")
            .arg(QStringLiteral("name@example.com"));
    case EmailFault::Blank:
        return tr("E-mail address cannot contain any spaces.");
    case EmailFault::NotAscii:
        return tr("E-mail address should use only ASCII characters.");
    case EmailFault::None:
        break;
    }
    return QString();
}

void JobEmail::showQuoteError(bool on)
{
    error->setText(on ? message(EmailFault::DoubleQuote) : QString());
    error->setVisible(on);
}

bool JobEmail::holdsBack() const
{
    return button->isChecked() && (!label->toolTip().isEmpty() || edit->text().isEmpty());
}

// The settings file

void JobEmail::updateAvailability()
{
    for (QWidget *widget : std::initializer_list<QWidget *>{button, edit, label})
        widget->setEnabled(emailOption());
}

void JobEmail::show(bool on, const QString &address)
{
    button->setChecked(on);
    edit->setEnabled(on);
    edit->setText(address);
}

void JobEmail::load()
{
    bOption *option = emailOption();
    if (!option) {
        show(false, QString());
        return;
    }
    const bool on = readSetting(keyword) == Keys::yes;
    option->setCurrent(option->findChoice(Keys::yesOrNo(on)));
    const QString choice = option->currentKey();
    const QString saved = readSetting(addressKey);
    if (!option->current())
        show(false, QString());
    else if (!saved.isEmpty() && saved != Keys::no && saved != offValue)
        show(true, saved);
    else if (saved.isEmpty() && choice != offValue && choice != Keys::no)
        show(true, QString(choice).remove(QLatin1String("Custom.")));
    else
        show(false, QString());
}

void JobEmail::save(Settings *settings) const
{
    settings->insert(addressKey, setting());
}
