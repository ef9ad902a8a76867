#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The profiles of a user: files beside the printers' settings in `userDir`, told from those by the
/// line "[Profile]". A profile is called like its file without ".cfg". The functions are silent:
/// what can't be read is no profile, what can't be written stays as it is.

/// The settings file of a profile. An empty name stands for the factory settings and gives the
/// directory: no settings can be read from it, so that every option takes its default.
QString profilePath(const QString &name);

/// All profiles, sorted by name.
QStringList profileNames();

/// True when there are as many profiles as a user may have. Every file that contains "[Profile]"
/// anywhere counts.
bool isProfileStoreFull();

/// The beginning of a file, more than any profile takes; empty for what is no file.
QByteArray readProfileText(const QString &path);

/// Removes a profile's file by running `rm`.
void removeProfile(const QString &path);

/// Writes a profile anew under a name, which may be the old one, with another description (see
/// storedDescription()), and moves it into place by running `mv`. A profile of that name is
/// replaced. Every line that contains "ProfileDescription" anywhere is taken for the description.
/// The old name goes last: false if something before that failed, and all is as it was.
bool rewriteProfile(const QString &oldName, const QString &newName, const QString &description);

/// The print queues that have a PPD, by its file name in "/etc/cups/ppd" up to the first dot.
QStringList queuesWithPpd();
