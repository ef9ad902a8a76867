#pragma once

#include "privileged/secretmemory.h"

#include <QDialog>
#include <QString>

class ComboBoxEx;
class PanelDialog;
class QLabel;
class QLineEdit;

/// Asks for the root password and has `bixPPDWrite_F` write the installed options into the queue's
/// PPD. Made for one attempt, which runs while the dialog is open and closes it either way.
///
/// After a success it goes on with Apply by itself: the printer's settings are published and the
/// main dialog may close. After a failure, or closed unanswered, nothing has changed.
///
/// The password becomes part of a shell command, where the process list of the machine shows it for
/// as long as the command runs. While the prompt lives, nobody can trace this process.
class PasswordPrompt : public QDialog
{
    Q_OBJECT

public:
    /// `owner` has to live longer and is kept from closing until there is a success.
    /// \param ppdArguments the installed options as "keyword=value", a blank after each
    PasswordPrompt(PanelDialog *owner, const QString &ppdArguments);

public slots:
    /// What the output of an attempt says about it. The exit status decides, not this.
    /// \param root "sudo" or "su"
    bool authenticationPassed(const QString &message, const QString &root);
    void okButtonSlot();
    void reject() override;

private:
    void createLayout();
    void explainMethods();
    /// Says below the fields whose password the chosen way wants.
    void showWhosePassword();
    QString takePassword();
    int runPpdWriter(const QString &password, const QString &prefix, const QString &arguments);
    void showFailure(const QString &text);
    void finishApply();

    UntraceableProcess untraceable;
    QLineEdit *passwordEdit;
    ComboBoxEx *methodCombo;
    QLabel *whosePassword;
    PanelDialog *owner;
    QString ppdArguments;
};
