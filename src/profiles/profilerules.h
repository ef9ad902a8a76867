#pragma once

#include <QStringList>

/// What a profile may be called, and how its description goes into a line of its file.
///
/// A profile's name is a file name beside the printers' own settings files, and part of a command
/// line.

/// True for the name of the factory entry in any of the panel's languages, whatever its case and
/// its blanks.
bool isReservedProfileName(const QString &name);

/// True if a profile can be saved under the name with the description: the name is neither empty
/// nor reserved nor, in any case, one of the print queues; it does not begin with "." and has no
/// character that would leave the directory or its quotes; the name is at most 251 bytes long in
/// UTF-8, the description at most 1024 characters.
bool isValidProfile(const QString &name, const QString &description, const QStringList &queues);

/// A description as a file holds it: line feeds are written as a backslash and "n".
QString storedDescription(QString description);
/// The way back. Backslashes are not escaped, so a typed backslash before an "n" gets lost.
QString shownDescription(QString stored);
