#pragma once

#include "profiles/profileformdialog.h"

/// Renames a profile and changes its description. A profile that has the new name is replaced
/// without a question.
class ProfileEditDialog : public ProfileFormDialog
{
    Q_OBJECT

public:
    explicit ProfileEditDialog(QWidget *parent);

    /// Names the profile to edit, before the dialog shows; the description is as in its file.
    void setProfile(const QString &name, const QString &description);

public slots:
    void editProfile();
    void checkProfileName();
    void show();
    int exec() override;

private:
    void prepare();

    QString oldName;
};
