// Where the widgets of the page "Job" stand.

#include "pages/base/pagelayout.h"
#include "pages/job/accountlistdialog.h"
#include "pages/job/jobaccounting.h"
#include "pages/job/jobemail.h"
#include "pages/job/joblogin.h"
#include "pages/job/jobname.h"
#include "pages/job/jobstorage.h"
#include "pages/job/jobtab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/spoken.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// In pixels.
constexpr int inputWidth = 180;
constexpr int gap = 6;
constexpr int columnWidth = 291;
constexpr int markWidth = 30;

} // namespace

void JobTab::createLayout()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0); // the page has its own
    layout->setSpacing(gap / 2);
    layout->addLayout(createStorageGrid());
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createNameGrid());
    PageLayout::setTabOrder({storage->button, storage->box, storage->codeEdit, storage->numberEdit,
                             storage->passwordEdit, accounting->button, accounting->modeBox,
                             accounting->idEdit, accounting->idBox, accounting->listButton,
                             login->button, login->nameEdit, login->passwordEdit, name->modeBox,
                             name->edit, name->overwriteBox, email->button, email->edit});
}

void JobTab::addLine(QGridLayout *grid, int row, int columns)
{
    grid->addWidget(PageLayout::horizontalLine(this), row, 0, 1, columns);
}

QGridLayout *JobTab::createGrid()
{
    auto *grid = new QGridLayout;
    // Every column that the lines cross would bring its spacing along, and the page has no room to
    // give away.
    grid->setHorizontalSpacing(0);
    grid->setColumnMinimumWidth(1, inputWidth);
    return grid;
}

QGridLayout *JobTab::createStorageGrid()
{
    QGridLayout *grid = createGrid();
    grid->addWidget(storage->label, 0, 0, 1, 2);
    grid->addWidget(storage->button, 1, 0, 2, 1);
    grid->addWidget(storage->box, 1, 1, 1, 4);
    // One or the other of these shows.
    grid->addWidget(storage->numberLabel, 2, 1, 1, 2, Qt::AlignBottom);
    grid->addWidget(storage->codeLabel, 2, 1, 1, 2, Qt::AlignBottom);
    grid->addWidget(storage->numberEdit, 3, 1, 1, 2);
    grid->addWidget(storage->codeEdit, 3, 1, 1, 2);
    grid->addWidget(storage->passwordLabel, 4, 1, 1, 2);
    grid->addWidget(storage->passwordEdit, 5, 1, 1, 2);
    grid->addWidget(storage->error, 5, 1, 2, 5);
    Spoken::setLabels(storage->button, {storage->label});
    // Each with the heading, which is marked for all of them.
    Spoken::setLabels(storage->numberEdit, {storage->label, storage->numberLabel});
    Spoken::setLabels(storage->codeEdit, {storage->label, storage->codeLabel});
    Spoken::setLabels(storage->passwordEdit, {storage->label, storage->passwordLabel});
    addLine(grid, 8, 6);

    grid->addWidget(accounting->label, 9, 0, 1, 4);
    grid->addWidget(accounting->button, 10, 0, 2, 1);
    grid->addWidget(accounting->modeBox, 10, 1);
    grid->addWidget(accounting->idEdit, 11, 1);
    grid->addWidget(accounting->idBox, 11, 1);
    grid->addWidget(accounting->listButton, 12, 1);
    grid->addWidget(accounting->error, 13, 1);
    Spoken::setLabels(accounting->button, {accounting->label});
    Spoken::setName(accounting->idEdit, accountList->windowTitle());
    Spoken::setLabels(accounting->idEdit, {accounting->label});
    Spoken::setLabels(accounting->idBox, {accounting->selectLabel});
    addLine(grid, 14, 6);

    grid->addWidget(login->label, 15, 0, 1, 2, Qt::AlignVCenter);
    grid->addWidget(login->button, 16, 0, 2, 1);
    grid->addWidget(login->nameLabel, 16, 1, 1, 1, Qt::AlignBottom);
    grid->addWidget(login->nameEdit, 17, 1);
    grid->addWidget(login->passwordLabel, 18, 1);
    grid->addWidget(login->passwordEdit, 19, 1);
    // The page has another password.
    Spoken::setLabels(login->nameEdit, {login->label, login->nameLabel});
    Spoken::setLabels(login->passwordEdit, {login->label, login->passwordLabel});
    Spoken::setLabels(login->button, {login->label});
    grid->setColumnStretch(5, 1);
    grid->setRowStretch(20, 1);
    return grid;
}

QGridLayout *JobTab::createNameGrid()
{
    QGridLayout *grid = createGrid();
    grid->addWidget(name->label, 0, 0, 1, 2);
    // Above the middle of the e-mail's, which leaves as much at its right.
    name->picture->setAlignment(Qt::AlignCenter);
    name->picture->setContentsMargins(0, 0, gap, 0);
    grid->addWidget(name->picture, 1, 0, 2, 1, Qt::AlignVCenter);
    grid->addWidget(name->modeBox, 1, 1);
    grid->addWidget(name->edit, 2, 1);
    // Below the picture there is room for texts that are too long for the second column.
    grid->addWidget(name->overwriteBox, 4, 0, 2, 2, Qt::AlignRight);
    // Both are rich texts, which have no ellipsis.
    const int overwriteWidth = name->overwriteLabel->sizeHint().width();
    name->overwriteLabel->setWordWrap(overwriteWidth > columnWidth);
    email->label->setWordWrap(email->label->sizeHint().width() + markWidth > columnWidth);
    if (email->button->sizeHint().width() + overwriteWidth > columnWidth) {
        name->overwriteLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(name->overwriteLabel, 3, 0, 1, 2);
    } else {
        grid->addWidget(name->overwriteLabel, 3, 1, 1, 5);
    }
    Spoken::setName(name->edit, tr("Custom job name"));
    Spoken::setLabels(name->edit, {name->label});
    addLine(grid, 6, 7);

    grid->addWidget(email->label, 7, 0, 2, 5);
    grid->addWidget(email->button, 9, 0, 2, 1);
    grid->addWidget(email->edit, 9, 1);
    grid->addWidget(email->error, 10, 1);
    Spoken::setLabels(email->button, {email->label});
    grid->setColumnStretch(13, 1);
    grid->setRowStretch(14, 1);
    return grid;
}
