// Where the widgets of the page "Watermark" stand.

#include "pages/base/pagelayout.h"
#include "pages/watermark/watermarktab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/spoken.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

void WatermarkTab::createLayout()
{
    createLookGrid();
    Spoken::setLabels(section, {heading});
    Spoken::setLabels(watermarkButton, {heading});
    Spoken::setLabels(superButton, {superHeading});
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(section);
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createTextGrid());
}

void WatermarkTab::createLookGrid()
{
    auto *grid = new QGridLayout(section);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(heading, 0, 0, 1, 2);
    grid->addWidget(watermarkButton, 1, 0, 2, 1, Qt::AlignLeft);
    int row = 1;
    const auto addList = [&](const PageWidgets::LabeledComboBox &list) {
        grid->addWidget(list.label, row++, 1, Qt::AlignLeft | Qt::AlignBottom);
        grid->addWidget(list.box, row++, 1, Qt::AlignLeft | Qt::AlignTop);
    };
    addList(text);
    for (const PageWidgets::LabeledComboBox &list : features)
        addList(list);
    grid->addWidget(repeatBox, row++, 0, 1, 3); // the longest text of the page
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
}

QGridLayout *WatermarkTab::createTextGrid()
{
    auto *buttonRow = new QHBoxLayout;
    for (QPushButton *button : {newButton, saveButton, deleteButton})
        buttonRow->addWidget(button);

    auto *grid = new QGridLayout;
    grid->addWidget(customLabel, 0, 0, 1, 3);
    grid->addWidget(customEdit, 1, 0, 1, 3);
    grid->addLayout(buttonRow, 2, 0, 1, 3);
    grid->addWidget(PageLayout::horizontalLine(this), 3, 0, 1, 3);
    grid->addWidget(superHeading, 4, 0, 1, 3);
    grid->addWidget(superButton, 5, 0, Qt::AlignLeft);
    grid->addWidget(superBox, 5, 1, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(6, 1);
    return grid;
}
