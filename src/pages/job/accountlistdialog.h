#pragma once

#include "pages/job/accountlines.h"

#include <QDialog>

class AccountEditDialog;
class QDialogButtonBox;
class QPushButton;
class QTableWidget;

/// The personal list of account IDs. It only shows what it is given; the page "Job" decides what
/// the buttons do, and owns the list.
class AccountListDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AccountListDialog(QWidget *page);

    /// Fills the table anew, in the order that the user chose by its header.
    void showAccounts(const Accounts &accounts);
    /// The current row as it was shown; empty if there is none.
    QString currentId() const { return currentText(IdColumn); }
    QString currentDescription() const { return currentText(DescriptionColumn); }
    /// Edit and Delete need a row.
    void updateButtons();

    QTableWidget *table;
    QPushButton *newButton;
    QPushButton *editButton;
    QPushButton *deleteButton;
    QDialogButtonBox *buttonBox;

private:
    enum Column
    {
        IdColumn,
        DescriptionColumn,
        ColumnCount,
    };

    void createTable();
    void createLayout();
    QString currentText(Column column) const;
};
