#include "widgets/spokencombobox.h"

#include "widgets/spokenwords.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTimer>

namespace {

constexpr char knownProperty[] = "spokenValue"; ///< of a box, the text that readers know of

void tellValue(QComboBox *box)
{
    if (!box->hasFocus() || box->property(knownProperty) == box->currentText())
        return;
    box->setProperty(knownProperty, box->currentText());
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(box->view());
    QAccessibleTableInterface *items = list ? list->tableInterface() : nullptr;
    QAccessibleInterface *item = items ? items->cellAt(box->currentIndex(), 0) : nullptr;
    if (!item)
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace

SpokenComboBox::SpokenComboBox(QComboBox *box, QAccessibleInterface *qt)
    : SpokenInterface(box, qt)
{
}

void SpokenComboBox::noteValue(QComboBox *box)
{
    // A list is often filled anew around its value; what counts is the end of it.
    if (box->hasFocus())
        QTimer::singleShot(0, box, [box] { tellValue(box); });
    else
        box->setProperty(knownProperty, box->currentText());
}

QString SpokenComboBox::text(QAccessible::Text t) const
{
    const auto *box = qobject_cast<QComboBox *>(object());
    const bool goesByValue =
        box && t == QAccessible::Name && !value().isEmpty() && !Spoken::labelsOf(box).isEmpty();
    return goesByValue ? value() : SpokenInterface::text(t);
}

void *SpokenComboBox::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : SpokenInterface::interface_cast(type);
}

void SpokenComboBox::selection(int, int *start, int *end) const
{
    *start = 0;
    *end = 0;
}

QString SpokenComboBox::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return QString();
}

QString SpokenComboBox::value() const
{
    const auto *box = qobject_cast<QComboBox *>(object());
    return box ? box->currentText() : QString();
}
