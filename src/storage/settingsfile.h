#pragma once

#include <QMultiHash>
#include <QString>
#include <QStringList>

/// The plain text files that the panel remembers everything in, one directory per user.
///
/// All share one grammar: UTF-8, an entry a line, KEY=VALUE, where the value is all after the first
/// "=". Keys are case-sensitive; there are no comments, quotes or escapes. The first line with a
/// key wins, except for readSettingValues(). A line of more than 1024 characters is read as
/// several. The functions are silent: what can't be read yields nothing, what can't be written
/// stays as is. Files are replaced as a whole, see OwnFile::replace().

/// The per-user directory with a slash at the end. Written by the main dialog as it is made.
extern QString userDir;
/// The file that the readers below look into: that of the selected printer, or a profile while one
/// is loaded; empty with no printer. Written by the Printer page and the profile dialog.
extern QString currentCfgPath;

/// Keyword and value; a keyword may stand more than once, the entry inserted last comes first.
using Settings = QMultiHash<QString, QString>;

/// "/usr/share/brixola/" and the value of the environment variable USER, with a slash at the end.
QString userDirectory();
/// The user's "Settings" file. Makes its directory if that is missing, but no parent of it.
QString settingsPath();
/// Makes `userDir` with all its parents, mode 0775 less the umask.
void ensureUserDir();
/// The settings file of a print queue.
QString cfgPath(const QString &printer);
/// True if the print queue has a settings file.
bool cfgExists(const QString &printer);

/// Replaces the file by the entries in the order of the hash. With `plain` false two lines come
/// first: "[Profile]" and the selected printer's model name in square brackets. False if the file
/// can't be written, and is as it was.
bool writeCfg(const QString &path, const Settings &settings, bool plain);
/// Like writeCfg(), with the line "ProfileDescription=" and the description after the two; line
/// feeds in it have to be escaped by the caller.
bool writeProfile(const QString &path, const Settings &settings, bool plain,
                  const QString &description);

/// The value of the first line with the key in `currentCfgPath`; null if there is none, or if it
/// is empty.
QString readSetting(const QString &key);
/// The values of all lines with the key in `currentCfgPath`, in file order.
QStringList readSettingValues(const QString &key);

/// Sets one key in the user's "Settings" file by way of a temporary copy. Every line that contains
/// the key anywhere is replaced. False if there is no such file or it can't be replaced.
bool updateSetting(const QString &key, const QString &value);
