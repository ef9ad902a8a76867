#include "widgets/spoken.h"
#include "widgets/spokenwords.h"

#include <QAbstractSlider>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTextEdit>
#include <QVariant>

// Which label stands for which control.

namespace {

constexpr char labelsProperty[] = "spokenLabels";
constexpr char nameProperty[] = "spokenName";

bool isField(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QTextEdit *>(widget) ||
           (qobject_cast<const QAbstractSlider *>(widget) &&
            !qobject_cast<const QScrollBar *>(widget));
}

QList<QWidget *> givenLabels(const QWidget *control)
{
    QList<QWidget *> labels;
    const QVariantList given = control->property(labelsProperty).toList();
    for (const QVariant &label : given) {
        if (QWidget *widget = label.value<QPointer<QWidget>>())
            labels.append(widget);
    }
    return labels;
}

/// The layout that a widget lies in, this one or one within it; may be null.
const QLayout *layoutWith(QWidget *widget, const QLayout *layout)
{
    if (!layout || layout->indexOf(widget) >= 0)
        return layout;
    for (int i = 0; i < layout->count(); ++i) {
        const QLayout *part = layout->itemAt(i)->layout();
        if (const QLayout *found = part ? layoutWith(widget, part) : nullptr)
            return found;
    }
    return nullptr;
}

QLabel *labelAt(const QLayout *layout, int index)
{
    QLayoutItem *item = layout->itemAt(index);
    return item ? qobject_cast<QLabel *>(item->widget()) : nullptr;
}

/// A place in a grid.
struct Cells
{
    int row, column, rows, columns;

    Cells(const QGridLayout *grid, int index)
    {
        grid->getItemPosition(index, &row, &column, &rows, &columns);
    }
    bool isRightAbove(const Cells &other) const
    {
        return row + rows == other.row && column < other.column + other.columns &&
               other.column < column + columns;
    }
    bool isBefore(const Cells &other) const { return row == other.row && column <= other.column; }
};

/// Null as well if several labels take turns at the same place.
QLabel *labelInGrid(const QGridLayout *grid, int index, bool (Cells::*isThere)(const Cells &) const)
{
    QLabel *found = nullptr;
    for (int i = 0; i < grid->count(); ++i) {
        QLabel *label = labelAt(grid, i);
        if (!label || !(Cells(grid, i).*isThere)(Cells(grid, index)))
            continue;
        if (found)
            return nullptr;
        found = label;
    }
    return found;
}

QLabel *labelBeside(QWidget *field)
{
    const QLayout *layout = layoutWith(field, field->parentWidget()->layout());
    if (!layout)
        return nullptr;
    const int index = layout->indexOf(field);
    const auto *grid = qobject_cast<const QGridLayout *>(layout);
    if (!grid)
        return labelAt(layout, index - 1);
    QLabel *above = labelInGrid(grid, index, &Cells::isRightAbove);
    return above ? above : labelInGrid(grid, index, &Cells::isBefore);
}

} // namespace

void Spoken::setLabels(QWidget *control, const QList<QWidget *> &labels)
{
    QVariantList given;
    for (QWidget *label : labels)
        given.append(QVariant::fromValue(QPointer<QWidget>(label)));
    control->setProperty(labelsProperty, given);
}

void Spoken::setName(QWidget *control, const QString &name)
{
    control->setProperty(nameProperty, name);
}

QVariant Spoken::givenName(const QWidget *widget)
{
    return widget->property(nameProperty);
}

QList<QWidget *> Spoken::labelsOf(const QWidget *widget)
{
    QList<QWidget *> labels = givenLabels(widget);
    const bool isKnown = !labels.isEmpty() || givenName(widget).isValid();
    if (isKnown || !isField(widget) || !widget->parentWidget())
        return labels;
    if (QLabel *label = labelBeside(const_cast<QWidget *>(widget)))
        labels.append(label);
    return labels;
}
