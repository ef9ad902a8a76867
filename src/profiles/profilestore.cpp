#include "profiles/profilestore.h"

#include "storage/command.h"
#include "storage/ownfile.h"
#include "storage/settingsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTextStream>

namespace {

constexpr int mostProfiles = 25;

const QLatin1String mark("[Profile]");
const QLatin1String ending(".cfg");

/// True if the mark is an entry of its own: a whole line, or the key of a line with one "=".
bool hasMarkLine(const QByteArray &text)
{
    QTextStream stream(text);
    stream.setCodec("UTF-8");
    QString line;
    while (stream.readLineInto(&line)) {
        if (line == mark || (line.count(QLatin1Char('=')) == 1 &&
                             line.leftRef(line.indexOf(QLatin1Char('='))) == mark))
            return true;
    }
    return false;
}

/// A path as one argument of a command line: in double quotes, where three stand for one.
QString quoted(QString path)
{
    path.replace(QLatin1Char('"'), QLatin1String("\"\"\""));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

/// True if it came to its end with status 0.
bool run(const QString &command)
{
    QProcess process;
    return runCommand(&process, command) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

/// A profile's text with another description; null if the profile can't be read.
QByteArray textWithDescription(const QString &path, const QByteArray &description)
{
    QFile file;
    if (!OwnFile::openToRead(&file, path))
        return QByteArray();
    QByteArray text("");
    // An empty line ends with its line feed, so nothing at all is the end or an error.
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        if (line.endsWith('\n'))
            line.chop(1);
        if (line.contains("ProfileDescription"))
            line = "ProfileDescription=" + description;
        text += line + '\n';
    }
    return file.error() == QFileDevice::NoError ? text : QByteArray();
}

} // namespace

QString profilePath(const QString &name)
{
    return name.isEmpty() ? userDir : cfgPath(name);
}

QStringList profileNames()
{
    QStringList names;
    const QStringList files =
        QDir(userDir).entryList({QLatin1Char('*') + ending}, QDir::Files | QDir::CaseSensitive);
    for (const QString &file : files) {
        if (hasMarkLine(readProfileText(userDir + file)))
            names.append(file.chopped(ending.size()));
    }
    return names;
}

bool isProfileStoreFull()
{
    int count = 0;
    const QStringList files = QDir(userDir).entryList(QDir::Files);
    for (const QString &file : files) {
        if (readProfileText(userDir + file).contains(mark.data()) && ++count >= mostProfiles)
            return true;
    }
    return false;
}

QByteArray readProfileText(const QString &path)
{
    QFile file;
    return OwnFile::openToRead(&file, path) ? file.readAll() : QByteArray();
}

void removeProfile(const QString &path)
{
    run(QStringLiteral("rm -f ") + quoted(path));
}

bool rewriteProfile(const QString &oldName, const QString &newName, const QString &description)
{
    const QString newPath = cfgPath(newName);
    const QString copyPath = userDir + newName + QStringLiteral(".tmp");
    const QByteArray text = textWithDescription(cfgPath(oldName), description.toUtf8());
    // Into a folder the copy would be moved, not into its place.
    if (text.isNull() || QFileInfo(newPath).isDir() || !OwnFile::replace(copyPath, text))
        return false;
    const bool moved =
        run(QStringLiteral("mv ") + quoted(copyPath) + QLatin1Char(' ') + quoted(newPath));
    if (!moved || readProfileText(newPath) != text) {
        QFile::remove(copyPath);
        return false;
    }
    if (newName != oldName)
        QFile::remove(cfgPath(oldName));
    return true;
}

QStringList queuesWithPpd()
{
    QStringList queues;
    const QStringList files =
        QDir(QStringLiteral("/etc/cups/ppd")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &file : files)
        queues.append(QFileInfo(file).baseName());
    return queues;
}
