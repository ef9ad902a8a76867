#pragma once

#include <QDialog>
#include <QStringList>

class QDialogButtonBox;
class QLineEdit;
class QTextEdit;
enum class ProfileFault;

/// What the dialogs for a new and for a changed profile have in common: the fields for name and
/// description, and an OK button that is enabled only while both are valid (see profileFault()).
///
/// A dialog fills the fields and refreshes the queues each time before it shows.
class ProfileFormDialog : public QDialog
{
    Q_OBJECT

protected:
    /// `descriptionLabel` stands over the description as it is.
    ProfileFormDialog(const QString &descriptionLabel, QWidget *parent);

    /// Line feeds are as typed.
    void setFields(const QString &name, const QString &description);
    QString name() const;
    /// As a file holds it.
    QString description() const;
    /// Asks for the print queues anew, whose names profiles can't have.
    void refreshQueueNames();
    /// Enables the OK button or disables it.
    void checkFields();
    /// Says that the profile could not be written. The dialog stays, with what was typed.
    void tellUnsaved();

    QLineEdit *nameEdit;
    QTextEdit *descriptionEdit;
    QDialogButtonBox *buttonBox;

private:
    void createLayout(const QString &descriptionLabel);
    static QString faultText(ProfileFault fault);

    QStringList queueNames;
};
