#pragma once

#include <QStringList>

/// What a profile may be called, and how its description goes into a line of its file.
///
/// A profile's name is a file name beside the printers' own settings files, and part of a command
/// line.

/// True for the name of the factory entry in any of the panel's languages, whatever its case and
/// its blanks.
bool isReservedProfileName(const QString &name);

/// Why a profile can't be saved.
enum class ProfileFault
{
    None,
    NoName,
    Reserved,   ///< the name, or it is, in any case, one of the print queues
    Characters, ///< begins with ".", or has a character that would leave the directory or its
                ///< quotes
    TooLong,    ///< more than 251 bytes of UTF-8 in the name, or 1024 characters in the description
};

/// What is wrong with a profile of this name with the description; the first of all faults.
ProfileFault profileFault(const QString &name, const QString &description,
                          const QStringList &queues);

/// A description as a file holds it: line feeds are written as a backslash and "n".
QString storedDescription(QString description);
/// The way back. Backslashes are not escaped, so a typed backslash before an "n" gets lost.
QString shownDescription(QString stored);
