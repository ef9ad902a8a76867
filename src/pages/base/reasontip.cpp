#include "pages/base/reasontip.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QTextDocument>
#include <QVariant>

namespace {

constexpr char ownToolTip[] = "ownToolTip";

QString plain(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

/// The widget's own tool tip with the reason below it.
QString joined(const QString &own, const QString &reason)
{
    if (own.isEmpty() || reason.isEmpty())
        return own + plain(reason);
    return plain(own + QLatin1Char('\n') + reason);
}

bool isInput(const QWidget *widget)
{
    for (const char *name :
         {"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractSlider", "QGroupBox"}) {
        if (widget->inherits(name))
            return true;
    }
    return false;
}

} // namespace

namespace ReasonTip {

void set(QWidget *widget, const QString &reason)
{
    const QString before = of(widget);
    QString own = widget->property(ownToolTip).toString();
    if (widget->toolTip() != joined(own, before))
        own = widget->toolTip(); // it has got another one since
    const QString toolTip = joined(own, reason);
    if (before == reason && widget->toolTip() == toolTip)
        return;
    widget->setProperty(ownToolTip, own);
    widget->setToolTip(toolTip);
    widget->setAccessibleDescription(reason);
}

void setIfGrey(QWidget *widget, const QString &reason)
{
    set(widget, widget->isEnabled() ? QString() : reason);
}

void setIfGreyBelow(QWidget *widget, const QString &reason)
{
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (isInput(child) && child->window() == widget->window())
            setIfGrey(child, reason);
    }
}

QString of(const QWidget *widget)
{
    return widget->accessibleDescription();
}

void setItem(QComboBox *box, int index, const QString &reason)
{
    if (ofItem(box, index) == reason)
        return;
    // A null text would stay as one: only no data at all leaves the item as it was.
    const auto valueOf = [](const QString &text) { return text.isEmpty() ? QVariant() : text; };
    box->setItemData(index, valueOf(plain(reason)), Qt::ToolTipRole);
    box->setItemData(index, valueOf(reason), Qt::AccessibleDescriptionRole);
}

QString ofItem(const QComboBox *box, int index)
{
    // By the tool tip, since the description of a separator says what it is.
    return box->itemData(index, Qt::ToolTipRole).isNull()
               ? QString()
               : box->itemData(index, Qt::AccessibleDescriptionRole).toString();
}

} // namespace ReasonTip
