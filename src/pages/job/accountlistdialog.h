#pragma once

#include "pages/job/accountlines.h"

#include <QDialog>

class AccountEditDialog;
class QDialogButtonBox;
class QPushButton;
class QTableWidget;

/// The personal list of account IDs, with the dialog for one of them. It edits a copy: the list in
/// force is the page's, which takes the copy over when accepted.
class AccountListDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AccountListDialog(QWidget *page);

    /// Opens with a copy of the list. `chargedId` is the account that is selected on the page;
    /// empty for none.
    void showFor(const Accounts &accounts, const QString &chargedId);
    /// The copy as it stands.
    const Accounts &accounts() const { return tempAccounts; }
    /// The ID that the selected account has in the copy; empty once it is deleted.
    const QString &chargedId() const { return tempChargedId; }
    /// OK and Cancel, whose signals are the page's to connect.
    const QDialogButtonBox *buttons() const { return buttonBox; }

public slots:
    /// Fills the table anew, in the order that the user chose by its header.
    void loadCustomIDTable();
    /// Edit and Delete need a highlighted row.
    void checkCustomIDButtonStates();

signals:
    void accountDeleted();

private slots:
    void showNewCustomAccountIDDialog();
    void editCustomAccountID();
    void customAccountIDDoubleClicked(int row, int column);
    void deleteCustomAccountID();
    /// OK of the dialog for one account, new or known.
    void createNewCustomAccountID();

private:
    enum Column
    {
        IdColumn,
        DescriptionColumn,
        ColumnCount,
    };

    void createTable();
    void createLayout();
    void createConnections();
    /// Empty without a highlighted row. Keyboard and Ctrl make a row the current one without that.
    QString highlightedText(Column column) const;
    void showError(const QString &text);

    // Made in this order: the first gets the focus.
    QTableWidget *table;
    QPushButton *newButton;
    QPushButton *editButton;
    QPushButton *deleteButton;
    QDialogButtonBox *buttonBox;
    AccountEditDialog *editDialog;

    Accounts tempAccounts;
    QString tempChargedId;
    bool isNewAccount = true; ///< the edit dialog was opened with New
    QString editedAccountId;  ///< what the edit dialog started with; empty for New
};
