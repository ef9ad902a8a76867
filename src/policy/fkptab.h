#pragma once

#include "pages/base/tab.h"
#include "policy/policyreply.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class bcurl;

/// The page "Fleet Keeper": logs the user in at a print-policy server and lays its restrictions on
/// the options.
///
/// An answer counts for the latest login alone, and only as long as the fields hold its server,
/// port and user, the switch was not turned off and the printer is still selected. Any other is
/// stale and passes unnoticed, a failure too.
///
/// The restrictions are synthetic options; what they forbid is for the constraint engine. The page
/// sets them after each answer. While it is switched on it has a mark, and so holds back OK and
/// Apply, until the server has accepted exactly what the fields hold. Each reload logs in again by
/// itself with what the printer's settings file holds.
class FKPTab : public Tab
{
    Q_OBJECT

public:
    explicit FKPTab(PanelDialog *dialog);

    void createWidgets() override;
    void reload() override;
    QHash<QString, QString> collectSettings() override;
    bool hasMarks() override { return marked; }
    void markConstraintWidgets() override;
    void explain(const OptionLabels &labels) override;

    virtual void connectSignals();

signals:
    /// A policy forbids colour.
    void colorchanged();

public slots:
    /// Logs in with what the fields hold.
    void verify();
    /// Marks the switch with what is missing before the settings can be saved.
    void markCustomConstraints();
    /// Brings page and model in line with the switch.
    void toggleFKP();
    void toggleNotifications();
    /// Notes whether the fields differ from what was verified last.
    void checkForChanges();
    void verifySuccess(const QString &message);
    void verifyFailure(const QString &message);
    void emit_colorchanged();

private:
    /// What a login is made with.
    struct Login
    {
        QString server;
        QString port;
        QString user;
        QString password;

        bool operator!=(const Login &other) const;
        bool isIncomplete() const;
    };

    QLabel *addField(const char *labelName, const QString &labelText, QLineEdit **edit,
                     const char *editName, const char *pattern);
    void createLayout();
    bool isOn() const;
    void enableFields();
    void explainFields();
    void switchOptions();
    Login fields() const;
    static QString incompleteText();
    QString fault() const;
    void loadPolicySettings();
    void silentVerify();
    void startLogin(const Login &login);
    void applyPolicies();
    void reportVerifyResult(const QString &body);
    bool isStaleReply(const QString &message) const;
    void recordVerified(const Login &login);
    void showMessage(const QString &text);

    BixButtonGroup *fkpButtons;
    QLabel *serverLabel;
    QLineEdit *serverEdit;
    QLabel *portLabel;
    QLineEdit *portEdit;
    QLabel *userLabel;
    QLineEdit *userEdit;
    QLabel *passwordLabel;
    QLineEdit *passwordEdit;
    QCheckBox *notificationBox;
    QRadioButton *continueRadio;
    QRadioButton *cancelRadio;
    QPushButton *verifyButton;

    bcurl *client;
    bool credentialsChanged = false; ///< the fields differ from the last verified state
    Login requested;                 ///< what the latest request was made with
    Login verified;                  ///< what was accepted last, or what was loaded
    bool verifiedEnabled = false;    ///< the switch at that time
    Policies policies = PolicyReply::noRestrictions();
    bool interactive = false;    ///< the user started the running request
    bool verifySucceeded = true; ///< the last answer held policies
    bool serverReached = false;  ///< the last request was answered at all
};
