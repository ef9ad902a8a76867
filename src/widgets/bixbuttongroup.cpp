#include "widgets/bixbuttongroup.h"

#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

QIcon selectedIcon(const QString &iconPath)
{
    return Icons::icon(iconPath + QStringLiteral("-selected"));
}

} // namespace

BixButtonGroup::BixButtonGroup(QWidget *parent, const QString &title)
    : QFrame(parent)
    , layout_(new QGridLayout(this))
    , group(new QButtonGroup(this))
    , label(new QLabel(this))
    , title_(title)
    , labelColor(parent->palette().color(QPalette::Current, QPalette::WindowText))
{
    setStyleSheet(QStringLiteral("QPushButton{ border: none; outline: none; }"));
    setFocusPolicy(Qt::StrongFocus);
    layout_->setSpacing(3);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(label, 0, 0, 1, 4, Qt::AlignLeft);
    ConstraintMark::setPlainText(label, title_);

    // The pictures change before anybody hears of the click.
    const auto clicked = qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked);
    connect(group, clicked, this, qOverload<QAbstractButton *>(&BixButtonGroup::setButton),
            Qt::UniqueConnection);
    connect(group, clicked, this, &BixButtonGroup::emit_buttonClicked);
}

void BixButtonGroup::setGroupEnabled(bool on)
{
    setEnabled(on);
    setLabelEnabled(on);
}

void BixButtonGroup::addButton(const QString &name, const QString &iconPath,
                               const QString &untranslatedName, const QStringList &keys)
{
    auto *button = new QPushButton(this);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setIcon(Icons::icon(iconPath));
    selectedIcon(iconPath); // so that no click has to read it
    button->setIconSize(QSize(50, 50));
    button->setCheckable(true);
    button->setAutoDefault(false); // Return elsewhere in the window is no click here
    button->setFocusPolicy(Qt::StrongFocus);
    button->installEventFilter(this);
    buttons.append(button);
    imagePaths.append(iconPath);
    untranslatedNames_.append(untranslatedName);
    choiceKeys.append(keys);
    group->addButton(button);
    layout_->addWidget(button, 1, nextColumn++, Qt::AlignLeft);
}

void BixButtonGroup::clearButtons()
{
    for (QPushButton *button : qAsConst(buttons)) {
        layout_->removeWidget(button);
        group->removeButton(button);
        button->hide();
    }
    buttons.clear();
    imagePaths.clear();
    untranslatedNames_.clear();
    choiceKeys.clear();
    nextColumn = 0;
}

void BixButtonGroup::setButtonByValue(const QString &text)
{
    const auto select = [this](int i) {
        buttons[i]->setIcon(selectedIcon(imagePaths[i]));
        buttons[i]->setChecked(true);
    };
    bool found = false;
    for (int i = 0; i < buttons.size(); ++i) {
        if (buttons[i]->accessibleName() != text) {
            buttons[i]->setIcon(Icons::icon(imagePaths[i]));
        } else {
            select(i);
            found = true;
        }
    }
    if (!found && !buttons.isEmpty())
        select(0);

    if (group->checkedButton())
        constructLabel();
    else
        ConstraintMark::setPlainText(label, title_);
}

QString BixButtonGroup::currentText() const
{
    const QAbstractButton *checked = group->checkedButton();
    return checked ? checked->accessibleName() : QString();
}

int BixButtonGroup::currentIndex() const
{
    const auto checked = std::find(buttons.cbegin(), buttons.cend(), group->checkedButton());
    return checked == buttons.cend() ? -1 : int(checked - buttons.cbegin());
}

QStringList BixButtonGroup::buttonNames() const
{
    QStringList names;
    for (const QPushButton *button : buttons)
        names.append(button->accessibleName());
    return names;
}

QPushButton *BixButtonGroup::button(int index) const
{
    return qobject_cast<QPushButton *>(group->button(index));
}

void BixButtonGroup::setLabelEnabled(bool on)
{
    QPalette palette = label->palette();
    palette.setColor(label->foregroundRole(), on ? labelColor : QColor(0x9f, 0x9e, 0x9e));
    label->setPalette(palette);
}

void BixButtonGroup::markConstrained(bool on)
{
    ConstraintMark::removeImage(label);
    if (on)
        ConstraintMark::append(label);
}

void BixButtonGroup::markWithToolTip(const QString &text)
{
    ConstraintMark::remove(label);
    ConstraintMark::append(label);
    ConstraintMark::explain(label, text);
}

void BixButtonGroup::clearMark()
{
    ConstraintMark::remove(label);
    ConstraintMark::explain(label, QString());
}

bool BixButtonGroup::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    auto *button = qobject_cast<QPushButton *>(watched);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        moveFocus(button, -1);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        moveFocus(button, 1);
        return true;
    default:
        return false;
    }
}

void BixButtonGroup::moveFocus(QPushButton *from, int step)
{
    int to = buttons.indexOf(from) + step;
    while (buttonAt(to) && !buttonAt(to)->isEnabled())
        to += step;
    if (QPushButton *button = buttonAt(to))
        button->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void BixButtonGroup::setButton(int button_index)
{
    setButton(buttonAt(button_index));
}

void BixButtonGroup::setButton(QAbstractButton *button)
{
    setButtonByValue(button ? button->accessibleName() : QString());
}

void BixButtonGroup::enableButton(QAbstractButton *button, bool enabled)
{
    if (button && isEnabled())
        button->setEnabled(enabled);
}

void BixButtonGroup::enableButton(int index, bool enabled)
{
    enableButton(buttonAt(index), enabled);
}

void BixButtonGroup::constructLabel()
{
    ConstraintMark::setPlainText(label, title_ + QLatin1Char(' ') + currentText());
}

void BixButtonGroup::emit_buttonClicked(QAbstractButton *button)
{
    const int index = buttons.indexOf(qobject_cast<QPushButton *>(button));
    emit buttonClicked(button);
    emit buttonClicked(index);
}
