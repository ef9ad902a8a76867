#include "pages/imaging/adjustmentwidgets.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QSlider>

#include <algorithm>

namespace AdjustmentWidgets {

// In pixels.
static constexpr int sliderWidth = 250; // at least
static constexpr int gap = 6;

Row makeRow(QWidget *parent, const QString &name, const Limits &limits)
{
    Row row;
    row.edit = new QLineEdit(parent);
    row.edit->setAccessibleName(name);
    row.edit->setMaximumWidth(45);
    row.edit->setMaxLength(limits.maxLength);
    row.edit->setValidator(
        new QRegExpValidator(QRegExp(QLatin1String(limits.pattern), Qt::CaseSensitive), row.edit));
    row.slider = new QSlider(Qt::Horizontal, parent);
    row.slider->setAccessibleName(name);
    row.slider->setRange(-limits.sliderEnd, limits.sliderEnd);
    return row;
}

void place(QGridLayout *grid, int gridRow, QLabel *label, const Row &row)
{
    // The text stands in the middle of the row; a long label must not reach it.
    const int width = 2 * (label->sizeHint().width() + gap) + row.edit->maximumWidth();
    row.slider->setFixedWidth(std::max(sliderWidth, width));
    grid->addWidget(label, gridRow, 0, Qt::AlignLeft);
    grid->addWidget(row.edit, gridRow, 0, 1, 3, Qt::AlignCenter);
    grid->addWidget(row.slider, gridRow + 1, 0, 1, 3);
}

} // namespace AdjustmentWidgets
