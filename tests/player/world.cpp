#include "world.h"

#include "shortppd.h"

#include <QDir>
#include <QDirIterator>
#include <QProcess>

namespace {

const QString sources = QStringLiteral(PRESSDESK_SOURCE_DIR);
const QString systemFolder = "/usr/share/brixola";
const QString userFolder = systemFolder + "/tester";
const QString work = "/tmp/play";
const QString printServer = sources + "/demo/printserver.sh";
const QString serverFolder = "/tmp/cups";

/// The output of a command; its last line tells a failure.
QStringList outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(work);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(90000);
    QStringList lines = QString::fromUtf8(process.readAll()).split('\n', Qt::SkipEmptyParts);
    if (!ended)
        lines.append("status: " + process.errorString());
    else if (process.exitCode() != 0 || process.exitStatus() != QProcess::NormalExit)
        lines.append(QString("status %1").arg(process.exitCode()));
    return lines;
}

/// Empty if the command worked.
QString errorOf(const QString &program, const QStringList &arguments)
{
    const QStringList lines = outputOf(program, arguments);
    return lines.value(lines.size() - 1).startsWith("status") ? lines.join(' ') : QString();
}

QString findPpd(const QString &name)
{
    for (const char *folder : {"demo/ppd", "tests/cases/stores"}) {
        const QString path = QString("%1/%2/%3").arg(sources, folder, name);
        if (QFile::exists(path))
            return path;
    }
    return work + '/' + name;
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
               : QStringList();
}

} // namespace

World::World()
{
    QDir().mkpath(work);
    const QStringList names = outputOf("lpstat", {"-e"});
    for (const QString &name : names)
        present.insert(name, QString());
}

QString World::reset()
{
    wanted.clear();
    missing.clear();
    const QString error = errorOf(
        "sh", {"-c", QString("chmod -R u+rwX /tmp/play %1 $HOME 2>/dev/null;"
                             "rm -rf /tmp/play; mkdir -p /tmp/play/bin &&"
                             "find %1 -mindepth 1 -maxdepth 1 ! -name ppd6 -exec rm -rf {} + &&"
                             "find $HOME -mindepth 1 -delete")
                         .arg(systemFolder)});
    return error.isEmpty() ? writeFile(userFolder + "/Settings", {"Telemetry=False"}) : error;
}

QString World::addQueue(const QStringList &words)
{
    const QString name = words.value(0);
    wanted.insert(name);
    const QString text = words.join(' ');
    if (present.value(name) == text)
        return QString();
    QString uri = "file:///dev/null";
    QStringList options;
    for (const QString &word : words.mid(2)) {
        if (word.contains('='))
            options << "-o" << word;
        else
            uri = word;
    }
    if (present.contains(name))
        errorOf(printServer, {"remove", serverFolder, name});
    QString error = errorOf(printServer, {"add", serverFolder, name, findPpd(words.value(1)), uri});
    if (error.isEmpty() && !options.isEmpty())
        error = errorOf("/usr/sbin/lpadmin", QStringList{"-p", name} + options);
    // A PPD that a case has made may be another one in the next.
    const bool isOfCase = findPpd(words.value(1)).startsWith(work);
    present.insert(name, isOfCase ? QString() : text);
    return error;
}

QString World::addPpd(const QString &name, const QStringList &parts)
{
    return writeFile(work + '/' + name, ppdText(parts).split('\n'));
}

QString World::keepOnlyWantedQueues()
{
    const QStringList names = present.keys();
    for (const QString &name : names) {
        if (wanted.contains(name))
            continue;
        // It may be gone already, by a step of the case.
        errorOf(printServer, {"remove", serverFolder, name});
        present.remove(name);
    }
    return QString();
}

QString World::writeFile(const QString &path, const QStringList &lines)
{
    QFile file(QDir(work).absoluteFilePath(path));
    if (!QFileInfo(file).dir().mkpath(".") || !file.open(QIODevice::WriteOnly))
        return path + ": " + file.errorString();
    for (const QString &line : lines)
        file.write(line.toUtf8() + '\n');
    return QString();
}

QString World::writeSettings(const QString &name, const QStringList &lines)
{
    return writeFile(QString("%1/%2.cfg").arg(userFolder, name), lines);
}

QString World::standIn(const QString &command, const QStringList &lines)
{
    if (lines.isEmpty()) {
        missing.insert(command);
        // All other commands, by links: a search path can't leave one out.
        return errorOf("sh", {"-c", "ln -sf /usr/bin/* bin/ && rm bin/" +
                                        QStringList(missing.values()).join(" bin/")});
    }
    const QString path = work + "/bin/" + command;
    QFile::remove(path);
    const QString error = writeFile(path, QStringList("#!/bin/sh") + lines);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return error;
}

QStringList World::run(const QString &command)
{
    if (command.contains("lpadmin") || command.contains("/ppd") || command.contains("PRINTSERVER"))
        for (QString &how : present)
            how.clear();
    return outputOf("bash", {"-c", "PRINTSERVER=\"" + printServer + "\"; CUPS=" + serverFolder +
                                       "; USERDIR=" + userFolder + "; SOURCES=\"" + sources +
                                       "\"\n" + command});
}

QString World::searchPath() const
{
    return missing.isEmpty() ? work + "/bin:" + qEnvironmentVariable("PATH") : work + "/bin";
}

QString World::folder()
{
    return work;
}

QMap<QString, QStringList> World::files() const
{
    QMap<QString, QStringList> files;
    QDirIterator each(systemFolder, QDir::Files | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        // A case may have made a pipe.
        if (each.fileInfo().isFile() && !path.contains("/ppd6/"))
            files.insert(QDir(userFolder).relativeFilePath(path), linesOf(path));
    }
    for (const QString &line : linesOf(QDir::home().filePath(".cups/lpoptions"))) {
        // "Dest NAME/INSTANCE NAME=VALUE ...", where values may be quoted.
        const QStringList words = QProcess::splitCommand(line);
        files.insert("published " + words.value(1), words.mid(2));
    }
    return files;
}
