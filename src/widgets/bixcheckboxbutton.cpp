#include "widgets/bixcheckboxbutton.h"

#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

BixCheckBoxButton::BixCheckBoxButton(QWidget *parent, const QString &text, const QIcon &icon)
    : QFrame(parent)
    , button(new QPushButton(this))
    , checkBox(new QCheckBox(text, this))
    , layout_(new QGridLayout(this))
{
    button->setToolTip(text);
    button->setIcon(icon);
    button->setIconSize(QSize(50, 50));
    button->setAutoDefault(false); // Return elsewhere in the window is no click here
    // Room below the picture, which shares its cell with the check box and its text.
    button->setStyleSheet(
        QStringLiteral("QPushButton { border: none; outline: none; padding-bottom: 18px; }"));
    checkBox->setStyleSheet(QStringLiteral("QCheckBox { margin: 0px }"));
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(button, 0, 0, 0, 0, Qt::AlignBottom);
    layout_->addWidget(checkBox, 0, 0, 0, 0, Qt::AlignBottom | Qt::AlignLeft);

    connect(button, &QPushButton::clicked, checkBox, &QCheckBox::toggle);
    for (QAbstractButton *part :
         {static_cast<QAbstractButton *>(checkBox), static_cast<QAbstractButton *>(button)}) {
        connect(part, &QAbstractButton::toggled, this, &BixCheckBoxButton::set_enabled,
                Qt::UniqueConnection);
        connect(part, &QAbstractButton::toggled, this, &BixCheckBoxButton::emit_toggled,
                Qt::UniqueConnection);
        connect(part, &QAbstractButton::toggled, this, &BixCheckBoxButton::fire_signals,
                Qt::UniqueConnection);
    }
}

QSize BixCheckBoxButton::minimumSizeHint() const
{
    return QFrame::minimumSizeHint().expandedTo(QSize(50, 50));
}

QString BixCheckBoxButton::label() const
{
    const QString name = checkBox->accessibleName();
    return name.isEmpty() ? checkBox->text() : name;
}

void BixCheckBoxButton::setLabel(const QString &name)
{
    checkBox->setAccessibleName(name);
    button->setAccessibleName(name);
}

void BixCheckBoxButton::setPictureToolTip(const QString &text)
{
    button->setToolTip(text);
}

bool BixCheckBoxButton::isChecked() const
{
    return checkBox->isChecked();
}

void BixCheckBoxButton::setChecked(bool on)
{
    checkBox->setChecked(on);
}

void BixCheckBoxButton::addDependent(QWidget *widget, const QString &value)
{
    dependents_.append(widget);
    offValues.append(value);
}

bool BixCheckBoxButton::isDependent(const QWidget *widget) const
{
    return std::find(dependents_.cbegin(), dependents_.cend(), widget) != dependents_.cend();
}

QString BixCheckBoxButton::offValue(QWidget *widget) const
{
    return offValues.value(dependents_.indexOf(widget));
}

void BixCheckBoxButton::refreshDependents()
{
    bool checked = isChecked();
    bool allHaveItems = true;
    for (QWidget *dependent : qAsConst(dependents_)) {
        auto *box = qobject_cast<ComboBoxEx *>(dependent);
        if (!box)
            continue;
        allHaveItems = allHaveItems && box->count() > 0;
        const int off = box->findText(offValue(box), Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (off >= 0)
            box->removeItem(off);
    }
    if (!allHaveItems) {
        setEnabled(false);
        checked = false;
    }
    setChecked(checked);
    if (!isChecked())
        set_enabled(false);
}

void BixCheckBoxButton::emit_toggled()
{
    emit toggled(isChecked());
    emit toggled(int(isChecked()));
}

void BixCheckBoxButton::fire_signals()
{
    for (QWidget *dependent : qAsConst(dependents_)) {
        if (auto *box = qobject_cast<ComboBoxEx *>(dependent))
            box->setCurrentIndex(box->currentIndex());
    }
}

void BixCheckBoxButton::set_enabled(bool toggle)
{
    for (QWidget *dependent : qAsConst(dependents_))
        dependent->setEnabled(toggle);
}
