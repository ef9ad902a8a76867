#pragma once

#include "pages/job/accountlines.h"
#include "pages/job/jobgroup.h"

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class ComboBoxEx;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

/// The job accounting of the page "Job": whom a job is charged to, by an ID that is typed in or
/// picked from a personal list. The page owns the widgets and connects them.
class JobAccounting : public JobGroup
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    /// The entries of `modeBox`.
    enum Mode
    {
        SpecificId,
        ListedId,
    };

    explicit JobAccounting(QWidget *page);

    /// The mode falls back to the typed ID.
    void setTexts() override;
    static QString noIdText() { return tr("Account ID must be 1 to 8 numbers in length"); }

    Mode mode() const;
    /// Shows the widgets of the mode. A typed ID goes with its field.
    void showMode();
    /// Silently puts the list into its box and selects the account. One that the list doesn't have
    /// leaves none selected; only a box that was empty begins with its first account.
    void refreshAccountCombo(const QString &selected);

    QString fault() const override;
    bool holdsBack() const override;
    void load() override { loadAccountSettings(); }
    /// The list included.
    void loadAccountSettings();
    void save(Settings *settings) const override;

    QLabel *picture; ///< of the group, but in no layout
    BixCheckBoxButton *button;
    ComboBoxEx *modeBox;
    QLineEdit *idEdit;
    QLabel *error;
    QLabel *selectLabel; ///< of the group, but in no layout
    ComboBoxEx *idBox;
    QPushButton *listButton;

    Accounts accounts; ///< the list in force

private:
    /// The ID that jobs are charged to; empty if there is none yet.
    QString currentId() const;
    void loadId(const QString &defaultId);
};
