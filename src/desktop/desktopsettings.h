#pragma once

#include "storage/settingsfile.h"

#include <QHash>
#include <QMultiHash>
#include <QString>
#include <QStringList>

/// Carries published settings over to desktop applications whose own print settings would override
/// them: forgets those of gedit, Evince and Eye of GNOME, gives gedit the chosen paper, and turns
/// on collation in LibreOffice.
///
/// Looks through the whole home directory with `find` and works with `cp` and `rm`, one after the
/// other. All commands are put together without quotes, so that a path with a blank comes apart.
/// Nothing is reported: what can't be read or written stays as it is.
class DesktopSettingsExporter
{
public:
    /// Borrows the settings. Takes HOME or, if that is empty, the home directory of the password
    /// database; with neither, the program ends with exit status 1.
    explicit DesktopSettingsExporter(const Settings *settings);
    DesktopSettingsExporter(const DesktopSettingsExporter &) = delete;
    DesktopSettingsExporter &operator=(const DesktopSettingsExporter &) = delete;

    /// Notes the applications' files in the home directory. Takes as long as `find` does, but no
    /// longer than 30 seconds without a path from it.
    void findFiles();
    /// Deletes, replaces or patches what was found.
    void applyToFiles();

private:
    /// The first of the patterns for files of the applications that the path contains; null if
    /// there is none, or if the path contains ".tmp".
    QString patternFor(const QString &path) const;
    void writePageSetup(const QString &path) const;
    void patchCollate(const QString &path) const;

    const Settings *settings;
    QHash<QString, QString> pageSetups;      // PageSize keyword to file content
    QMultiHash<QString, QString> foundFiles; // pattern to path
    QString home;
    QStringList patterns;
};

/// Finds and changes the applications' files for the settings that have just been published. Waits
/// in an event loop: see waitInLoop().
void runDesktopExport(const Settings &settings);
