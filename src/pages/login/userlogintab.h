#pragma once

#include "pages/base/tab.h"

class QLabel;
class QLineEdit;

/// The page "User Login": a login name and password for print jobs.
///
/// It is complete, but no printer shows it (isAvailable()), since the page "Job" edits the same
/// settings. In contrast to that one it demands a password.
class UserLoginTab : public Tab
{
    Q_OBJECT

public:
    explicit UserLoginTab(PanelDialog *dialog);

    void createWidgets() override;
    void reload() override;
    Settings extraSettings() override;
    bool hasMarks() override;
    void retranslate() override;

public slots:
    /// Shows or hides the error for what stands in the fields; the argument counts for nothing.
    void verifyPJL(const QString &string);
    void verifyPJL(bool on);

private:
    void createConnections();
    void createLayout();
    void loadLogin();
    QString loginError() const;

    QLabel *titleLabel;
    BixCheckBoxButton *loginButton;
    QLabel *nameLabel;
    QLineEdit *nameEdit;
    QLabel *passwordLabel;
    QLineEdit *passwordEdit;
    QLabel *errorLabel;
};
