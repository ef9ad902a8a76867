#include "pages/job/accountlistdialog.h"

#include "pages/base/pagewidgets.h"
#include "pages/base/reasontip.h"
#include "pages/job/accounteditdialog.h"
#include "pages/job/jobaccounting.h"
#include "widgets/mnemonics.h"
#include "widgets/panellook.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

using PageWidgets::named;

namespace {

// In pixels, for type of the usual size.
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
    , editDialog(new AccountEditDialog(this))
{
    setWindowTitle(tr("Account ID"));
    setWindowModality(Qt::WindowModal);
    PageWidgets::simplifyTitleBar(this);
    createTable();
    createLayout();
    createConnections();
    setFixedSize(minimumSizeHint().expandedTo(QSize(400, 200) * PanelLook::typeFactor(font())));
}

void AccountListDialog::createTable()
{
    table->setColumnCount(ColumnCount);
    table->setHorizontalHeaderLabels({tr("Account ID"), tr("Description")});
    const double factor = PanelLook::typeFactor(font());
    table->setColumnWidth(IdColumn, qRound(idWidth * factor));
    table->setColumnWidth(DescriptionColumn, qRound(descriptionWidth * factor));
    table->setMinimumWidth(qRound((idWidth + descriptionWidth) * factor) + 2 * table->frameWidth());
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
    Mnemonics::give({buttonBox->button(QDialogButtonBox::Ok),
                     buttonBox->button(QDialogButtonBox::Cancel), newButton, editButton,
                     deleteButton});
}

void AccountListDialog::createConnections()
{
    const auto check = &AccountListDialog::checkCustomIDButtonStates;
    connect(table, &QTableWidget::itemSelectionChanged, this, check);
    connect(table, &QTableWidget::cellDoubleClicked, this,
            &AccountListDialog::customAccountIDDoubleClicked);
    for (const QLineEdit *edit : {editDialog->idEdit, editDialog->descriptionEdit})
        connect(edit, &QLineEdit::textChanged, this, check);
    connect(newButton, &QPushButton::clicked, this,
            &AccountListDialog::showNewCustomAccountIDDialog);
    connect(editButton, &QPushButton::clicked, this, &AccountListDialog::editCustomAccountID);
    connect(deleteButton, &QPushButton::clicked, this, &AccountListDialog::deleteCustomAccountID);
    connect(editDialog->buttonBox, &QDialogButtonBox::accepted, this,
            &AccountListDialog::createNewCustomAccountID);
    connect(editDialog->buttonBox, &QDialogButtonBox::rejected, editDialog, &QWidget::hide);
}

// The list

void AccountListDialog::showFor(const Accounts &accounts, const QString &chargedId)
{
    tempAccounts = accounts;
    tempChargedId = chargedId;
    show();
}

void AccountListDialog::loadCustomIDTable()
{
    const int sortColumn = table->horizontalHeader()->sortIndicatorSection();
    const Qt::SortOrder sortOrder = table->horizontalHeader()->sortIndicatorOrder();
    table->setRowCount(0);
    // Rows would move away while they are filled.
    table->setSortingEnabled(false);
    const QStringList ids = sortedAccountIds(tempAccounts);
    table->setRowCount(ids.size());
    for (int row = 0; row < ids.size(); ++row) {
        table->setItem(row, IdColumn, new QTableWidgetItem(ids[row]));
        table->setItem(row, DescriptionColumn, new QTableWidgetItem(tempAccounts.value(ids[row])));
    }
    table->setSortingEnabled(true);
    table->sortByColumn(sortColumn, sortOrder);
    // Or the focus would make the first row the current one, unseen, and Down pass it over.
    table->setCurrentIndex(QModelIndex());
}

QString AccountListDialog::highlightedText(Column column) const
{
    const QModelIndexList rows = table->selectionModel()->selectedRows(column);
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

void AccountListDialog::checkCustomIDButtonStates()
{
    const bool canChange = table->selectionModel()->hasSelection();
    for (QPushButton *button : {editButton, deleteButton}) {
        button->setEnabled(canChange);
        ReasonTip::setIfGrey(button, tr("Select an account first."));
    }
}

void AccountListDialog::deleteCustomAccountID()
{
    const QString id = highlightedText(IdColumn);
    tempAccounts.remove(id);
    if (id == tempChargedId)
        tempChargedId.clear();
    loadCustomIDTable();
    checkCustomIDButtonStates();
    emit accountDeleted();
}

// One account

void AccountListDialog::showNewCustomAccountIDDialog()
{
    editDialog->showNew();
    isNewAccount = true;
    editedAccountId.clear();
}

void AccountListDialog::customAccountIDDoubleClicked(int, int)
{
    editCustomAccountID();
}

void AccountListDialog::editCustomAccountID()
{
    if (!table->selectionModel()->hasSelection()) // a double click with Ctrl takes it away
        return;
    editDialog->showKnown(highlightedText(IdColumn), highlightedText(DescriptionColumn));
    loadCustomIDTable();
    checkCustomIDButtonStates();
    isNewAccount = false;
    editedAccountId = editDialog->idEdit->text();
}

void AccountListDialog::createNewCustomAccountID()
{
    const AccountEntry entry = {editDialog->idEdit->text(), editDialog->descriptionEdit->text(),
                                isNewAccount, editedAccountId};
    switch (enterAccount(&tempAccounts, entry)) {
    case AccountFault::NoId:
        showError(JobAccounting::noIdText());
        return;
    case AccountFault::IdInUse:
        showError(QCoreApplication::translate("JobTab", "This Account ID already exists."));
        return;
    case AccountFault::None:
        break;
    }
    if (!entry.isNew && entry.formerId == tempChargedId)
        tempChargedId = entry.id;
    loadCustomIDTable();
    checkCustomIDButtonStates();
    editDialog->close();
}

void AccountListDialog::showError(const QString &text)
{
    QMessageBox box(editDialog);
    box.setWindowFlags(parentWidget()->window()->windowFlags());
    box.setWindowTitle(QCoreApplication::translate("JobTab", "Account ID Error"));
    box.setText(text);
    box.exec();
}
