#pragma once

#include "pages/job/jobgroup.h"
#include "pages/job/storagerules.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class ComboBoxEx;
class QLabel;
class QLineEdit;
class QWidget;

/// The job storage of the page "Job": where the printer keeps the job, with the inputs that the
/// place needs. The page owns the widgets and connects them.
///
/// The list shows the choices of the option "BXCollate1" and, if the printer can, two items that
/// are no choices: private print and custom box. Those two are written under keys of their own.
class JobStorage : public JobGroup
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    explicit JobStorage(QWidget *page);

    void setTexts() override;

    /// What the current item stands for, by its text.
    StorageKind kind(Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;
    StorageKind kindOf(const QString &text,
                       Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const;
    /// True if the current item's value is written by save() and not as the option's.
    bool isWrittenApart() const;

    /// Adds and removes the two items. Nothing is announced, and so no input is cleared, while the
    /// current text stays the same.
    void updateStorageChoices();
    /// Shows the inputs that an item needs and hides the others.
    void showInputs(StorageKind kind);
    /// The same, with the shown inputs empty.
    void showEmptyInputs(StorageKind kind);
    /// What the list shows while the button is off.
    void selectOffState();
    /// Takes out of the access code what is no digit.
    void stripAccessCode();

    QString fault() const override;
    /// A message holds back while it stands on the label.
    bool holdsBack() const override;
    void load() override;
    /// Pads the box number, on the page too.
    void save(Settings *settings) const override;

    BixCheckBoxButton *button;
    ComboBoxEx *box;
    QLabel *codeLabel;
    QLineEdit *codeEdit;
    QLabel *numberLabel;
    QLineEdit *numberEdit;
    QLabel *passwordLabel;
    QLineEdit *passwordEdit;
    QLabel *error;

private:
    static QString privatePrintText() { return tr("Private print"); }
    static QString customBoxText() { return tr("Custom box"); }
    /// The text of the choice "JobStorage"; empty if the printer has no such choice.
    static QString jobStorageText();
    bool isNamedPlace(Qt::CaseSensitivity sensitivity) const;
    int indexOf(const QString &text) const;
    bool select(const QString &text);
    void change(const QString &item, StorageOffer offer);
    void remove(const QString &item);
    void syncStorageState();
};
