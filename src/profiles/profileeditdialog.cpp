#include "profiles/profileeditdialog.h"

#include "profiles/profilerules.h"
#include "profiles/profilestore.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTextEdit>

ProfileEditDialog::ProfileEditDialog(QWidget *parent)
    : ProfileFormDialog(tr("Description:"), parent)
{
    setWindowTitle(tr("Edit Profile"));
    connect(buttonBox, &QDialogButtonBox::accepted, this, &ProfileEditDialog::editProfile);
    connect(nameEdit, &QLineEdit::textChanged, this, &ProfileEditDialog::checkProfileName);
    connect(descriptionEdit, &QTextEdit::textChanged, this, &ProfileEditDialog::checkProfileName);
}

void ProfileEditDialog::setProfile(const QString &name, const QString &description)
{
    oldName = name;
    setFields(name, shownDescription(description));
}

void ProfileEditDialog::checkProfileName()
{
    checkFields();
}

void ProfileEditDialog::show()
{
    prepare();
    ProfileFormDialog::show();
}

int ProfileEditDialog::exec()
{
    prepare();
    return ProfileFormDialog::exec();
}

void ProfileEditDialog::prepare()
{
    refreshQueueNames();
    checkFields(); // the fields were filled before
}

void ProfileEditDialog::editProfile()
{
    if (rewriteProfile(oldName, name(), description()))
        close();
    else
        tellUnsaved();
}
