#include "pages/base/pagewidgets.h"
#include "pages/imaging/adjustmentdialog.h"
#include "pages/imaging/adjustmentrows.h"
#include "pages/imaging/adjustmentwidgets.h"
#include "widgets/comboboxex.h"
#include "widgets/icons.h"
#include "widgets/mnemonics.h"
#include "widgets/spoken.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

// How the colour adjustment looks.

using namespace AdjustmentRows;
using AdjustmentWidgets::Limits;
using PageWidgets::withColon;

namespace {

// Degrees of the colour circle.
constexpr Limits masterLimits{180, 7, "-?(([0-9]|[0-9][0-9]|1[0-7][0-9])?)|180|-180"};
// Ten steps to either side, in hundredths.
constexpr Limits valueLimits{1000, 6, "-?([0-9])?(\\.([0-9]|[0-9][0-9]))?|10|-10"};

} // namespace

void adjustmentDialog::createRows()
{
    auto *modifyLabel = new QLabel(withColon(tr("Modify")), hueGroup);
    modifyLabel->setBuddy(hueBox);
    auto *hueGrid = new QGridLayout(hueGroup);
    hueGrid->addWidget(modifyLabel, 0, 0);
    hueGrid->addWidget(hueBox, 1, 0, 1, 3);
    auto *levelGrid = new QGridLayout(levelGroup);

    for (const ValueRow &row : valueRows) {
        const bool isLevel = row.kind == Level;
        QGroupBox *group = isLevel ? levelGroup : hueGroup;
        QGridLayout *grid = isLevel ? levelGrid : hueGrid;
        const QString text = tr(row.text);
        const QString name = isLevel ? text + QStringLiteral(" - ") + tr(row.rightText) : text;
        const AdjustmentWidgets::Row widgets = AdjustmentWidgets::makeRow(
            group, name, row.kind == Master ? masterLimits : valueLimits);
        auto *label = new QLabel(isLevel ? text : withColon(text), group);
        AdjustmentWidgets::place(grid, row.gridRow, label, widgets);
        QList<QWidget *> names{label};
        if (isLevel) {
            names.append(new QLabel(tr(row.rightText), group));
            grid->addWidget(names.last(), row.gridRow, 2, Qt::AlignRight);
        } else {
            labels.insert(keyOf(row), label);
        }
        Spoken::setLabels(widgets.slider, names);
        Spoken::setLabels(widgets.edit, names);
        sliders.insert(keyOf(row), widgets.slider);
        lineEdits.insert(keyOf(row), widgets.edit);
    }
}

void adjustmentDialog::createLayout()
{
    auto *picture = new QLabel(this);
    picture->setPixmap(Icons::icon(QStringLiteral(":/icons/adjustment")).pixmap(50, 50));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    const QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    connect(ok, &QPushButton::clicked, this, &adjustmentDialog::saveSettings);
    connect(ok, &QPushButton::clicked, this, &adjustmentDialog::close);
    connect(buttons->button(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
            &adjustmentDialog::close);
    // The texts of the other two are the printer's.
    Mnemonics::give(buttons->buttons() + QList<QAbstractButton *>{customBox});

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(customBox, 0, 0, 1, 2);
    grid->addWidget(picture, 1, 0, 2, 1);
    grid->addWidget(hslButton, 1, 1);
    grid->addWidget(balanceButton, 2, 1);
    grid->addWidget(hueGroup, 3, 1);
    grid->addWidget(levelGroup, 3, 1);
    grid->addWidget(buttons, 4, 1);
}
