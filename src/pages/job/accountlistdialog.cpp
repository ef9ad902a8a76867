#include "pages/job/accountlistdialog.h"

#include "pages/base/pagewidgets.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>

using PageWidgets::named;

namespace {

// In pixels.
constexpr int idWidth = 143;
constexpr int descriptionWidth = 142;

} // namespace

AccountListDialog::AccountListDialog(QWidget *page)
    : QDialog(page)
    , table(named(new QTableWidget(this), "tblCustomAccountID"))
    , newButton(named(new QPushButton(tr("New"), this), "butNewCustomAccountID"))
    , editButton(named(new QPushButton(tr("Edit"), this), "butEditCustomAccountID"))
    , deleteButton(named(new QPushButton(tr("Delete"), this), "butDeleteCustomAccountID"))
    , buttonBox(named(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this),
                      "butBoxCustomAccountID"))
{
    setWindowTitle(tr("Account ID"));
    setWindowModality(Qt::WindowModal);
    PageWidgets::simplifyTitleBar(this);
    createTable();
    createLayout();
    setFixedSize(400, 200);
}

void AccountListDialog::createTable()
{
    table->setColumnCount(ColumnCount);
    table->setHorizontalHeaderLabels({tr("Account ID"), tr("Description")});
    table->setColumnWidth(IdColumn, idWidth);
    table->setColumnWidth(DescriptionColumn, descriptionWidth);
    table->setMinimumWidth(idWidth + descriptionWidth + 2 * table->frameWidth());
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setTabKeyNavigation(false);
    table->setStyleSheet(QStringLiteral("QToolTip { color: #ffffff; background-color: #2a82da; "
                                        "border: 1px solid white; }"));
    table->setSortingEnabled(true);
    table->sortByColumn(IdColumn, Qt::AscendingOrder);
    // The keyboard makes a row the current one without selecting it.
    connect(table, &QTableWidget::currentCellChanged, this, &AccountListDialog::updateButtons);
}

void AccountListDialog::createLayout()
{
    auto *grid = new QGridLayout(this);
    grid->addWidget(table, 0, 0, 4, 2);
    grid->addWidget(newButton, 0, 2);
    grid->addWidget(editButton, 1, 2);
    grid->addWidget(deleteButton, 2, 2);
    grid->addWidget(buttonBox, 4, 1, 1, 2);
    grid->setRowStretch(4, 1);
}

void AccountListDialog::showAccounts(const Accounts &accounts)
{
    const int sortColumn = table->horizontalHeader()->sortIndicatorSection();
    const Qt::SortOrder sortOrder = table->horizontalHeader()->sortIndicatorOrder();
    table->setRowCount(0);
    // Rows would move away while they are filled.
    table->setSortingEnabled(false);
    const QStringList ids = sortedAccountIds(accounts);
    table->setRowCount(ids.size());
    for (int row = 0; row < ids.size(); ++row) {
        table->setItem(row, IdColumn, new QTableWidgetItem(ids[row]));
        table->setItem(row, DescriptionColumn, new QTableWidgetItem(accounts.value(ids[row])));
    }
    table->setSortingEnabled(true);
    table->sortByColumn(sortColumn, sortOrder);
}

QString AccountListDialog::currentText(Column column) const
{
    const QTableWidgetItem *item = table->item(table->currentRow(), column);
    return item ? item->text() : QString();
}

void AccountListDialog::updateButtons()
{
    const bool canChange = table->currentRow() >= 0 && table->rowCount() > 0;
    editButton->setEnabled(canChange);
    deleteButton->setEnabled(canChange);
}
