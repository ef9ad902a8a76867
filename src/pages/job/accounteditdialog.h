#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLineEdit;

/// One account of the list, new or known. The list decides whether it is accepted.
class AccountEditDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AccountEditDialog(QWidget *list);

    void showNew();
    void showKnown(const QString &id, const QString &description);

    QLineEdit *idEdit;
    QLineEdit *descriptionEdit;
    QDialogButtonBox *buttonBox;

private:
    void showWith(const QString &title, const QString &id, const QString &description);
};
