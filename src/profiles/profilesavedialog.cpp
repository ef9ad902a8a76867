#include "profiles/profilesavedialog.h"

#include "model/optionstore.h"
#include "profiles/profilestore.h"
#include "profiles/settingssource.h"
#include "storage/settingsfile.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextEdit>

ProfileSaveDialog::ProfileSaveDialog(SettingsSource *source, QWidget *parent)
    : ProfileFormDialog(tr("Description") + QLatin1Char(':'), parent)
    , settingsSource(source)
{
    setWindowTitle(tr("Save Profile"));
    connect(buttonBox, &QDialogButtonBox::accepted, this, &ProfileSaveDialog::saveProfile);
    connect(nameEdit, &QLineEdit::textChanged, this,
            &ProfileSaveDialog::checkProfileNameAndDescription);
    connect(descriptionEdit, &QTextEdit::textChanged, this,
            &ProfileSaveDialog::checkProfileNameAndDescription);
}

void ProfileSaveDialog::checkProfileNameAndDescription()
{
    checkFields();
}

void ProfileSaveDialog::show()
{
    if (prepare())
        ProfileFormDialog::show();
}

int ProfileSaveDialog::exec()
{
    return prepare() ? ProfileFormDialog::exec() : int(Rejected);
}

bool ProfileSaveDialog::prepare()
{
    if (isProfileStoreFull()) {
        showMessage(parentWidget(), tr("The profile could not be added. A maximum profile count of "
                                       "25 has been reached."));
        return false;
    }
    setFields(QString(), QString());
    refreshQueueNames();
    return true;
}

void ProfileSaveDialog::saveProfile()
{
    // The printer may have gone while the dialog was open.
    if (!currentStore) {
        showMessage(this, tr("Select a printer."));
        return;
    }
    if (name() == currentStore->printerName()) {
        showMessage(this, tr("This name is reserved"));
        return;
    }
    if (name().isEmpty()) {
        showMessage(this, tr("You must enter a profile name"));
        return;
    }
    const Settings &settings = settingsSource->collect();
    if (writeProfile(profilePath(name()), settings, false, description()))
        close();
    else
        tellUnsaved();
}

void ProfileSaveDialog::showMessage(QWidget *parent, const QString &text)
{
    QMessageBox box(parent);
    box.setWindowTitle(tr("Save Profile"));
    box.setText(text);
    box.exec();
}
