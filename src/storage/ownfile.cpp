#include "storage/ownfile.h"

#include <cerrno>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isOurs(const struct stat &status)
{
    return status.st_uid == geteuid() || status.st_uid == 0;
}

/// The directory that a path lies in, opened; -1 with `errno` set if it doesn't count.
int openDirectory(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1); // the link in a directory's place would be followed
    const int directory = open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status;
    if (directory < 0)
        return -1;
    if (fstat(directory, &status) == 0 && isOurs(status))
        return directory;
    close(directory);
    errno = EPERM;
    return -1;
}

/// Where a file lies: its directory, open as long as this lives, and its name there.
struct Place
{
    explicit Place(const QString &path)
        : name(QFile::encodeName(path))
    {
        const int slash = name.lastIndexOf('/');
        directory = openDirectory(slash < 0 ? QByteArray(".") : name.left(slash + 1));
        name.remove(0, slash + 1);
    }
    Place(const Place &) = delete;
    Place &operator=(const Place &) = delete;
    ~Place()
    {
        if (directory >= 0)
            close(directory);
    }

    int directory; ///< -1 if it doesn't count
    QByteArray name;
};

/// A file there, opened; -1 with `errno` set if it doesn't count.
int openRegular(const Place &place, const QByteArray &name, int flags)
{
    if (place.directory < 0)
        return -1;
    // Not blocking: a pipe would wait for somebody at its other end.
    const int file = openat(place.directory, name.constData(),
                            flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    struct stat status;
    if (file < 0 || (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && isOurs(status)))
        return file;
    close(file);
    errno = EPERM;
    return -1;
}

/// Writes all of it, onto the disk: some file systems tell only then that they are full.
bool writeAll(int descriptor, const QByteArray &content)
{
    QFile file;
    return file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                     QFileDevice::DontCloseHandle) &&
           file.write(content) == content.size() && fsync(descriptor) == 0;
}

/// Writes the content over that of a file in a folder that takes no other one.
bool overwrite(const Place &place, const QByteArray &content)
{
    const int file = openRegular(place, place.name, O_WRONLY);
    struct stat before = {};
    if (file < 0 || fstat(file, &before) != 0)
        return false;
    // The room is asked for first, so that a full disk spoils nothing.
    const bool hasRoom =
        content.size() <= before.st_size || posix_fallocate(file, 0, content.size()) == 0;
    const bool written = hasRoom && writeAll(file, content);
    const bool cut = ftruncate(file, written ? content.size() : before.st_size) == 0;
    close(file);
    return written && cut;
}

/// Whether a file couldn't be made because of the folder, not of the disk.
bool isRefusedByFolder(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EEXIST;
}

} // namespace

bool OwnFile::isOwnDirectory(const QString &path)
{
    const int directory = openDirectory(QFile::encodeName(path));
    if (directory < 0)
        return errno == ENOENT;
    close(directory);
    return true;
}

QString OwnFile::ownerName(const QString &path)
{
    QByteArray name = QFile::encodeName(path);
    if (name.endsWith('/'))
        name.chop(1);
    struct stat status;
    if (lstat(name.constData(), &status) != 0)
        return QString();
    const passwd *user = getpwuid(status.st_uid);
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(status.st_uid);
}

bool OwnFile::isForeign(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status;
    return !isOwnDirectory(path.left(path.lastIndexOf(QLatin1Char('/')) + 1)) ||
           (lstat(name.constData(), &status) == 0 && (!isOurs(status) || S_ISLNK(status.st_mode)));
}

bool OwnFile::openToRead(QFile *file, const QString &path, qint64 largest)
{
    const Place place(path);
    const int opened = openRegular(place, place.name, O_RDONLY);
    if (opened < 0 || !file->open(opened, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    if (file->size() <= largest)
        return true;
    file->close();
    return false;
}

bool OwnFile::replace(const QString &path, const QByteArray &content)
{
    const Place place(path);
    if (place.directory < 0)
        return false;
    // No other running program has this name. It is short, since a profile's can be as long as
    // names may be, and hidden, so that nobody counts what a killed program left as a profile.
    const QByteArray temporary = ".writing-" + QByteArray::number(getpid());
    unlinkat(place.directory, temporary.constData(), 0);
    const int file = openRegular(place, temporary, O_WRONLY | O_CREAT | O_EXCL);
    if (file < 0)
        return isRefusedByFolder(errno) && overwrite(place, content);
    const bool written = writeAll(file, content);
    close(file);
    if (written && renameat(place.directory, temporary.constData(), place.directory,
                            place.name.constData()) == 0)
        return true;
    unlinkat(place.directory, temporary.constData(), 0);
    return false;
}
