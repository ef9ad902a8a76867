#pragma once

#include "pages/job/accountlines.h"
#include "storage/settingsfile.h"

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
class JobAccounting
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

    /// Refills the mode silently; it falls back to the typed ID.
    void setTexts();
    static QString noIdText() { return tr("Account ID must be 1 to 8 numbers in length"); }

    Mode mode() const;
    /// Shows the widgets of the mode. A typed ID goes with its field.
    void showMode();
    /// Puts the list into its box. The selection stays if it is still there.
    void refreshAccountCombo();

    /// The message for what is wrong; empty if nothing is.
    QString fault() const;
    /// True for a fault that holds back OK.
    bool holdsBack() const;

    /// From the printer's settings file, the list included.
    void loadAccountSettings();
    void save(Settings *settings) const;

    QLabel *label;
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
