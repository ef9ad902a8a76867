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

/// The file, opened; -1 if it doesn't count.
int openRegular(const QString &path, int flags)
{
    const QByteArray name = QFile::encodeName(path);
    const int slash = name.lastIndexOf('/');
    const int directory = openDirectory(slash < 0 ? QByteArray(".") : name.left(slash + 1));
    if (directory < 0)
        return -1;
    // Not blocking: a pipe would wait for somebody at its other end.
    const int file = openat(directory, name.mid(slash + 1).constData(),
                            flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    close(directory);
    struct stat status;
    if (file < 0 || (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && isOurs(status)))
        return file;
    close(file);
    return -1;
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
    const int opened = openRegular(path, O_RDONLY);
    if (opened < 0 || !file->open(opened, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    if (file->size() <= largest)
        return true;
    file->close();
    return false;
}

bool OwnFile::openToWrite(QFile *file, const QString &path, bool truncate)
{
    const int opened = openRegular(path, O_RDWR | O_CREAT);
    if (opened < 0 || !file->open(opened, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle))
        return false;
    if (!truncate || file->resize(0))
        return true;
    file->close();
    return false;
}
