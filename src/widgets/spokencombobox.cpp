#include "widgets/spokencombobox.h"

#include <QComboBox>

SpokenComboBox::SpokenComboBox(QComboBox *box, QAccessibleInterface *qt)
    : SpokenInterface(box, qt)
{
}

void SpokenComboBox::tellValue(QComboBox *box)
{
    QAccessibleTextInsertEvent event(box, 0, box->currentText());
    QAccessible::updateAccessibility(&event);
}

void *SpokenComboBox::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : SpokenInterface::interface_cast(type);
}

void SpokenComboBox::selection(int index, int *start, int *end) const
{
    *start = 0;
    *end = index == 0 ? characterCount() : 0;
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
