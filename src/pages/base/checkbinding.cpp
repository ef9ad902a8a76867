#include "pages/base/checkbinding.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QRadioButton>

namespace {

BixCheckBoxButton *toButton(QWidget *widget)
{
    return static_cast<BixCheckBoxButton *>(widget);
}

const BixCheckBoxButton *toButton(const QWidget *widget)
{
    return static_cast<const BixCheckBoxButton *>(widget);
}

bool isChecked(const QWidget *widget)
{
    return static_cast<const QAbstractButton *>(widget)->isChecked();
}

/// Check boxes read an ampersand as the mark of a shortcut.
QString captionText(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString withoutCaption(QString text)
{
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

bool isBlocked(const OptionChoice *choice)
{
    return choice && choice->isBlocked();
}

template <typename Checkable>
void loadState(Checkable *box, const bOption *option)
{
    box->setEnabled(option);
    if (!option)
        return;
    const OptionChoice *choice = Tab::savedOrDefaultChoice(option);
    box->setChecked(choice && choice->key() == Keys::yes);
}

/// Switches the box to the state that is left, or frees it. True if it had to be switched.
template <typename Checkable>
bool forceState(Tab &page, Checkable *box, bool offBlocked, bool onBlocked)
{
    if (!offBlocked && !onBlocked) {
        box->setEnabled(true);
        return false;
    }
    const bool state = !onBlocked;
    const bool moved = box->isChecked() != state;
    box->setEnabled(false);
    box->setChecked(state);
    // Slots of its signal may have switched it back.
    if (moved)
        page.applyWidgetValue(box->isChecked(), box);
    return moved;
}

void explainState(QWidget *box, const OptionChoice *off, const OptionChoice *on,
                  const Reasons &reasons, const QString &grey)
{
    if (box->isEnabled())
        ReasonTip::set(box, QString());
    else
        ReasonTip::set(box, grey.isEmpty() ? reasons.ofSwitch(off, on) : grey);
}

} // namespace

// A check box

void CheckBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectCheckBox(static_cast<QCheckBox *>(widget));
}

void CheckBinding::load(Tab &, QWidget *widget, bOption *option) const
{
    loadState(static_cast<QCheckBox *>(widget), option);
}

int CheckBinding::value(const QWidget *widget) const
{
    return isChecked(widget);
}

OptionChoice *CheckBinding::choice(const QWidget *, int value, const bOption *option) const
{
    return option->findChoice(Keys::yesOrNo(value != 0));
}

void CheckBinding::choose(QWidget *widget, const OptionChoice &choice) const
{
    static_cast<QAbstractButton *>(widget)->setChecked(choice.key() == Keys::yes);
}

bool CheckBinding::enable(Tab &page, QWidget *widget, bOption *option) const
{
    return page.enableOptionsForCheckBox(static_cast<QCheckBox *>(widget), option);
}

bool CheckBinding::enableBox(Tab &page, QCheckBox *box, const bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    return forceState(page, box, isBlocked(choices.value(0)), isBlocked(choices.value(1)));
}

void CheckBinding::explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                           const QString &grey) const
{
    const QList<OptionChoice *> choices = option ? option->choiceList() : QList<OptionChoice *>();
    explainState(widget, choices.value(0), choices.value(1), reasons, grey);
}

QString CheckBinding::savedValue(const QWidget *widget, const bOption *) const
{
    return Keys::yesOrNo(isChecked(widget));
}

void CheckBinding::showOption(QWidget *widget, const bOption *option) const
{
    auto *box = static_cast<QCheckBox *>(widget);
    const QString ownText = Binding::ownText(box, box->text());
    box->setText(option ? captionText(option->text()) : ownText);
    if (!option)
        box->setChecked(false);
    box->setEnabled(option);
}

QString CheckBinding::label(const QWidget *widget) const
{
    return withoutCaption(static_cast<const QCheckBox *>(widget)->text());
}

void CheckBinding::mark(QWidget *widget) const
{
    static_cast<QCheckBox *>(widget)->setIcon(Icons::icon(QLatin1String(ConstraintMark::icon)));
}

void CheckBinding::clearMark(QWidget *widget) const
{
    static_cast<QCheckBox *>(widget)->setIcon(QIcon());
}

// A radio button

void RadioBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectChange(static_cast<QRadioButton *>(widget), &QRadioButton::toggled,
                       qOverload<bool>(&Tab::markOption));
}

int RadioBinding::value(const QWidget *widget) const
{
    return isChecked(widget);
}

OptionChoice *RadioBinding::choice(const QWidget *, int value, const bOption *option) const
{
    return option->findChoice(Keys::yesOrNo(value != 0));
}

void RadioBinding::choose(QWidget *widget, const OptionChoice &choice) const
{
    static_cast<QAbstractButton *>(widget)->setChecked(choice.key() == Keys::yes);
}

QString RadioBinding::label(const QWidget *widget) const
{
    return withoutCaption(static_cast<const QRadioButton *>(widget)->text());
}

// A check box with a picture button

void CheckButtonBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectChange(toButton(widget), qOverload<int>(&BixCheckBoxButton::toggled),
                       qOverload<int>(&Tab::markOption));
}

void CheckButtonBinding::load(Tab &, QWidget *widget, bOption *option) const
{
    loadState(toButton(widget), option);
}

int CheckButtonBinding::value(const QWidget *widget) const
{
    return toButton(widget)->isChecked();
}

OptionChoice *CheckButtonBinding::choice(const QWidget *widget, int, const bOption *option) const
{
    return option->findChoice(Keys::yesOrNo(toButton(widget)->isChecked()));
}

void CheckButtonBinding::choose(QWidget *widget, const OptionChoice &choice) const
{
    toButton(widget)->setChecked(choice.key() == Keys::yes);
}

bool CheckButtonBinding::enable(Tab &page, QWidget *widget, bOption *option) const
{
    return page.enableOptionsForCheckBoxButton(toButton(widget), option);
}

bool CheckButtonBinding::enableButton(Tab &page, BixCheckBoxButton *button, const bOption *option)
{
    return forceState(page, button, isBlocked(option->findChoice(Keys::no)),
                      isBlocked(option->findChoice(Keys::yes)));
}

void CheckButtonBinding::explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                                 const QString &grey) const
{
    const OptionChoice *off = option ? option->findChoice(Keys::no) : nullptr;
    const OptionChoice *on = option ? option->findChoice(Keys::yes) : nullptr;
    explainState(widget, off, on, reasons, grey);
    ReasonTip::setIfGreyBelow(widget, ReasonTip::of(widget));
}

QString CheckButtonBinding::savedValue(const QWidget *widget, const bOption *) const
{
    return Keys::yesOrNo(toButton(widget)->isChecked());
}

QString CheckButtonBinding::label(const QWidget *widget) const
{
    return toButton(widget)->label();
}
