#pragma once

#include "profiles/profileformdialog.h"

class SettingsSource;

/// Saves what all pages hold as a profile. One of the same name is replaced without a question.
class ProfileSaveDialog : public ProfileFormDialog
{
    Q_OBJECT

public:
    /// The source is borrowed.
    ProfileSaveDialog(SettingsSource *source, QWidget *parent);

public slots:
    void saveProfile();
    void checkProfileNameAndDescription();
    /// Shows the dialog with empty fields, or a message instead if there is no room for a profile.
    void show();
    /// The same, and waits until the dialog is closed.
    int exec() override;

private:
    bool prepare();
    static void showMessage(QWidget *parent, const QString &text);

    SettingsSource *settingsSource;
};
