#include "widgets/spokenevents.h"

#include "widgets/spokencombobox.h"

#include <QAccessible>
#include <QComboBox>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char missedProperty[] = "spokenMissed"; ///< of a widget, an int of these
enum Missed
{
    Name = 1,
    Description = 2,
    Disabled = 4,
    Checked = 8
};

QAccessible::UpdateHandler next = nullptr; ///< null for Qt's own, which has no other name

void tell(QAccessibleEvent *event);

void pass(QAccessibleEvent *event)
{
    QAccessible::installUpdateHandler(next);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(tell);
}

/// What a reader keeps of a widget, and would have wrong without this event.
int keptOf(QAccessibleEvent *event)
{
    switch (event->type()) {
    case QAccessible::NameChanged:
        return Name;
    case QAccessible::DescriptionChanged:
        return Description;
    case QAccessible::StateChanged: {
        const auto states = static_cast<QAccessibleStateChangeEvent *>(event)->changedStates();
        return (states.disabled ? Disabled : 0) | (states.checked ? Checked : 0);
    }
    default:
        return 0;
    }
}

bool isChange(QAccessible::Event type)
{
    switch (type) {
    case QAccessible::StateChanged:
    case QAccessible::NameChanged:
    case QAccessible::DescriptionChanged:
    case QAccessible::ValueChanged:
    case QAccessible::Selection:
    case QAccessible::SelectionAdd:
    case QAccessible::SelectionRemove:
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
        return true;
    default:
        return false;
    }
}

void passMissed(QWidget *widget)
{
    const int missed = widget->property(missedProperty).toInt();
    if (missed == 0)
        return;
    widget->setProperty(missedProperty, QVariant());
    for (const auto &[kept, type] : {qMakePair(Name, QAccessible::NameChanged),
                                     qMakePair(Description, QAccessible::DescriptionChanged)}) {
        QAccessibleEvent event(widget, type);
        if (missed & kept)
            pass(&event);
    }
    // Qt tells of one state an event.
    for (const Missed kept : {Disabled, Checked}) {
        QAccessible::State states;
        states.disabled = kept == Disabled;
        states.checked = kept == Checked;
        QAccessibleStateChangeEvent event(widget, states);
        if (missed & kept)
            pass(&event);
    }
}

void tell(QAccessibleEvent *event)
{
    // A table has taken it in before, and must not do so again; readers on X11 and Wayland never
    // hear of it.
    if (event->type() == QAccessible::TableModelChanged)
        return;
    auto *widget = qobject_cast<QWidget *>(event->object());
    auto *box = qobject_cast<QComboBox *>(widget);
    if (box && event->type() == QAccessible::ValueChanged)
        SpokenComboBox::noteValue(box);
    if (widget && !widget->isVisible() && isChange(event->type())) {
        // Of a window that has never been shown a reader keeps nothing.
        const int missed = widget->property(missedProperty).toInt();
        const int all = missed | keptOf(event);
        if (all != missed && widget->window()->windowHandle())
            widget->setProperty(missedProperty, all);
        return;
    }
    pass(event);
    if (widget && event->type() == QAccessible::ObjectShow)
        passMissed(widget);
}

} // namespace

void Spoken::tellOfWhatShows()
{
    const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(tell);
    if (before != tell)
        next = before;
}
