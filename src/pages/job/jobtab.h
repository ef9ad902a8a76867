#pragma once

#include "pages/base/tab.h"

#include <array>
#include <memory>

class AccountListDialog;
class JobAccounting;
class JobEmail;
class JobGroup;
class JobLogin;
class JobName;
class JobStorage;
class QGridLayout;
class QLabel;

/// The page "Job": what a printer does with a job apart from marking paper. Job storage, job
/// accounting with a personal list of account IDs, user login, job name, e-mail notification.
///
/// Each group keeps its widgets and rules in a class of its own; the page registers and connects
/// them. Most of its values are no PPD options and exist as keys of the settings file only. Input
/// is never refused with a message: a mark on the group's label tells what is wrong, and while it
/// is there OK and Apply are held back.
class JobTab : public Tab
{
    Q_OBJECT

public:
    explicit JobTab(PanelDialog *dialog);
    ~JobTab() override;

    void createWidgets() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    Settings extraSettings() override;
    void clearMarks() override;
    void beforeConstraints() override;
    bool hasMarks() override;
    void retranslate() override;
    void markConstraintWidgets() override;
    void explain(const OptionLabels &labels) override;

protected:
    QString greyReason(const QWidget *widget) const override;

private slots:
    void verifyJobEmail();
    void verifyjobName();
    void verifyJobStorage();
    void verifySpecificJobAccountID();
    void verifyUserLogin();
    void enableCustomJobNameSettings(int choice);
    void toggleJobSettingsInput(const QString &text);
    void toggleJobSettingsCheckBox(bool toggled);
    void toggleUserLogin();
    void jobEMailNotificationToggle(bool checked);
    void showCustomAccountIDDialog();
    void refreshAccountCombo();
    /// Takes over what the list dialog has made of the list.
    void saveTempAccountIDs();
    void selectJobAccount();
    void verifyJobStoragePasswordLineEdit();

private:
    void registerWidgets();
    void createConnections();
    void connectAccountList();
    void createLayout();
    static QGridLayout *createGrid();
    QGridLayout *createStorageGrid();
    QGridLayout *createNameGrid();
    void addLine(QGridLayout *grid, int row, int columns);
    void setPictures();
    void loadJobSettings();
    void hideErrors();
    /// Marks a group's label with what is wrong, or takes the mark away.
    void verify(const JobGroup &group);
    std::array<JobGroup *, 5> groups() const;

    std::unique_ptr<JobStorage> storage;
    std::unique_ptr<JobAccounting> accounting;
    std::unique_ptr<JobLogin> login;
    std::unique_ptr<JobName> name;
    std::unique_ptr<JobEmail> email;

    AccountListDialog *accountList;
};
