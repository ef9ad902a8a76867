#pragma once

#include <QFile>

/// Files in a place that others can write to, opened so that nobody else's file is taken for ours.
///
/// "/usr/share/brixola" is writable for all: anybody could lay a directory there by another user's
/// name, or a link in its place. So a file counts only if it is a regular one, in a real directory,
/// and both are this user's or root's. A link is not followed at either step. Pipes and devices,
/// which could hold up the panel for ever, are no files.
namespace OwnFile {

/// Larger settings and profiles are not read, in bytes: no honest one comes near.
constexpr qint64 largestSettings = 4 << 20;

/// Whether files below this directory count; one that is missing does, since it will be ours.
bool isOwnDirectory(const QString &path);

/// Who owns what lies at a path, a link there included: a name, or else a number.
QString ownerName(const QString &path);

/// Whether a file that is there, or its directory, doesn't count.
bool isForeign(const QString &path);

/// Opens a file for reading. False, with `file` closed, for any that doesn't count and for one of
/// more than `largest` bytes.
bool openToRead(QFile *file, const QString &path, qint64 largest = largestSettings);

/// Replaces what a file holds, or makes it, so that it is never seen half written: the content goes
/// into a hidden file beside it (mode 0666 less the umask), onto the disk, and then takes the
/// file's name. In a folder that takes no further file the old one is written over instead. False
/// if the directory doesn't count, if a folder has the name, or if the disk is full; the file is as
/// it was then. A program that is killed may leave the hidden file.
bool replace(const QString &path, const QByteArray &content);

} // namespace OwnFile
