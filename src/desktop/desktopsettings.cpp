#include "desktop/desktopsettings.h"

#include "desktop/pagesetuptable.h"
#include "storage/command.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace {

const QLatin1String geditPageSetup("gedit-page-setup");
const QLatin1String libreOfficeRegistry("/user/registrymodifications.xcu");

QString homeDirectory()
{
    QByteArray home = qgetenv("HOME");
    if (home.isEmpty()) {
        if (const passwd *user = getpwuid(getuid()))
            home = user->pw_dir;
    }
    if (home.isEmpty())
        std::exit(1);
    return QFile::decodeName(home);
}

/// Waits only while no whole line is there, which makes a large home directory several times
/// faster than a wait for each line.
bool waitForLine(QProcess *process)
{
    QDeadlineTimer deadline(longestCommandWait);
    while (!process->canReadLine() && process->state() != QProcess::NotRunning &&
           !deadline.hasExpired())
        waitInLoop(process, Until::Output, int(deadline.remainingTime()));
    return process->canReadLine();
}

/// A line of LibreOffice's registry, with "true" for every "false" if it tells of collation.
QByteArray withCollateOn(const QByteArray &line)
{
    if (!line.contains("name=\"Collate\""))
        return line;
    return QByteArray(line).replace("false", "true");
}

void run(const QString &command)
{
    QProcess process;
    runCommandInLoop(&process, command);
}

} // namespace

DesktopSettingsExporter::DesktopSettingsExporter(const Settings *settings)
    : settings(settings)
    , pageSetups(pageSetupTable)
    , home(homeDirectory())
    , patterns({QStringLiteral("gedit-print-settings"), geditPageSetup,
                QStringLiteral("evince/print-settings"), QStringLiteral("eog-print-settings.ini"),
                libreOfficeRegistry})
{
}

QString DesktopSettingsExporter::patternFor(const QString &path) const
{
    if (path.contains(QLatin1String(".tmp")))
        return QString();
    for (const QString &pattern : patterns) {
        if (path.contains(pattern))
            return pattern;
    }
    return QString();
}

void DesktopSettingsExporter::findFiles()
{
    if (!isOneWord(home))
        return;
    QProcess find;
    startCommand(&find, QStringLiteral("find ") + home);
    while (waitForLine(&find)) {
        QByteArray line = find.readLine();
        line.chop(1);
        const QString path = QFile::decodeName(line);
        const QString pattern = patternFor(path);
        if (!pattern.isNull() && isOneWord(path))
            foundFiles.insert(pattern, path);
    }
    find.close();
}

void DesktopSettingsExporter::applyToFiles()
{
    for (auto file = foundFiles.cbegin(); file != foundFiles.cend(); ++file) {
        if (file.key() == geditPageSetup)
            writePageSetup(file.value());
        else if (file.key() == libreOfficeRegistry)
            patchCollate(file.value());
        else
            run(QStringLiteral("rm -f ") + file.value());
    }
}

/// A paper that gedit has no page setup for leaves the file empty.
void DesktopSettingsExporter::writePageSetup(const QString &path) const
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite | QIODevice::Truncate))
        file.write(pageSetups.value(settings->value(QStringLiteral("PageSize"))).toUtf8());
}

/// Goes by way of a copy, to which a copy that an interrupted run has left contributes too.
void DesktopSettingsExporter::patchCollate(const QString &path) const
{
    const QString temporary = path + QStringLiteral(".tmp");
    QFile in(path);
    QFile out(temporary);
    // A pipe or a device with this name would hold up the panel for ever.
    if (!QFileInfo(path).isFile() || !in.open(QIODevice::ReadOnly) ||
        !out.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    // An empty line ends with its line feed, so nothing at all is the end or an error.
    for (QByteArray line = in.readLine(); !line.isEmpty(); line = in.readLine()) {
        if (line.endsWith('\n'))
            line.chop(1);
        out.write(withCollateOn(line) + '\n');
    }
    out.flush();
    // With a full disk the user's file is worth more than the patch.
    const bool complete = in.error() == QFileDevice::NoError && out.error() == QFileDevice::NoError;
    in.close();
    out.close();
    if (complete)
        run(QStringLiteral("cp ") + temporary + QLatin1Char(' ') + path);
    run(QStringLiteral("rm -f ") + temporary);
}

void runDesktopExport(const Settings &settings)
{
    DesktopSettingsExporter exporter(&settings);
    exporter.findFiles();
    exporter.applyToFiles();
}
