#include "desktop/desktopsettings.h"
#include "desktop/pagesetuptable.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <memory>
#include <sys/stat.h>

namespace {

/// Path below a folder to content.
using Files = QMap<QString, QByteArray>;

const QString paperFile = ".config/gedit/gedit-page-setup";
const QString registry = ".config/libreoffice/4/user/registrymodifications.xcu";
const QString temporary = registry + ".tmp";
const QStringList rememberedFiles = {
    ".config/gedit/gedit-print-settings", ".config/evince/print-settings",
    ".config/eog/eog-print-settings.ini", "gedit-page-setup/gedit-print-settings-2"};

QByteArray sample(const QString &name)
{
    return fileText(PRESSDESK_SOURCE_DIR "/tests/data/desktop/" + name);
}

Files lay(const QString &directory, const Files &files)
{
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        const QString path = directory + '/' + file.key();
        if (!QDir().mkpath(QFileInfo(path).path()) || !setFileText(path, file.value()))
            qFatal("can't write %s", qPrintable(path));
    }
    return files;
}

Files contents(const QString &directory)
{
    Files files;
    QDirIterator all(directory, QDir::Files | QDir::Hidden | QDir::System,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files.insert(QDir(directory).relativeFilePath(path), fileText(path));
    }
    return files;
}

/// The applications' files as they are before the panel comes by, and some that it must leave.
Files applicationFiles()
{
    return {{rememberedFiles[0], sample("gedit-print-settings")},
            {rememberedFiles[1], sample("evince-print-settings")},
            {rememberedFiles[2], sample("eog-print-settings.ini")},
            {rememberedFiles[3], "in two patterns"},
            {paperFile, sample("gedit-page-setup")},
            {registry, sample("registrymodifications.xcu")},
            {".config/libreoffice/users/registrymodifications.xcu", "name=\"Collate\" false"},
            {".config/gedit/Gedit-page-setup", "[Page Setup]"},
            {".tmpfiles/gedit-page-setup", "[Page Setup]"},
            {".config/evince/print-settings.tmp", "[Print Settings]"},
            {"print-settings", "mine"}};
}

Files without(Files files, const QStringList &names)
{
    for (const QString &name : names)
        files.remove(name);
    return files;
}

Files with(Files files, const QString &name, const QByteArray &content)
{
    files.insert(name, content);
    return files;
}

/// What becomes of the applications' files.
Files exported(const Files &files, const QByteArray &paper)
{
    return with(with(without(files, rememberedFiles), paperFile, paper), registry,
                sample("registrymodifications-collated.xcu"));
}

} // namespace

class tst_DesktopSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void pageSetups();
    void exportedFiles();
    void tools_data();
    void tools();
    void blanksInPaths();
    void manyFiles();
    void oddRegistry();

private:
    /// Puts a script in front of the command; without a script the command can't be found.
    void replaceTool(const QString &name, const QByteArray &script);

    std::unique_ptr<QTemporaryDir> directory;
    QString home;
    const Settings a4{{"PageSize", "A4"}};
    const QByteArray a4Setup = pageSetupTable.value("A4").toUtf8();
};

void tst_DesktopSettings::initTestCase()
{
    QVERIFY2(qEnvironmentVariableIsSet("PRESSDESK_SANDBOX"), "this would change your own settings");
}

void tst_DesktopSettings::init()
{
    QDir::setCurrent(QDir::rootPath());
    directory = std::make_unique<QTemporaryDir>();
    home = directory->filePath("home");
    QVERIFY(QDir().mkpath(home) && QDir().mkpath(directory->filePath("bin")));
    qputenv("HOME", QFile::encodeName(home));
    for (const QString tool : {"find", "cp", "rm"})
        QFile::link("/usr/bin/" + tool, directory->filePath("bin/" + tool));
    qputenv("PATH", QFile::encodeName(directory->filePath("bin")));
}

void tst_DesktopSettings::replaceTool(const QString &name, const QByteArray &script)
{
    const QString path = directory->filePath("bin/" + name);
    QVERIFY(QFile::remove(path));
    if (script.isNull())
        return;
    QVERIFY(setFileText(path, "#!/bin/sh\n" + script));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner));
}

void tst_DesktopSettings::pageSetups()
{
    const QString samples = QString::fromUtf8(sample("page-setups")) + '\n';
    QCOMPARE(pageSetupTable.size(), 28);
    for (auto row = pageSetupTable.cbegin(); row != pageSetupTable.cend(); ++row) {
        QVERIFY2(row->contains("\nPPDName=" + row.key() + '\n'), qPrintable(row.key()));
        QVERIFY2(samples.contains(*row + '\n'), qPrintable(*row));
    }
}

void tst_DesktopSettings::exportedFiles()
{
    const Files before = lay(home, applicationFiles());
    for (int run = 0; run < 2; ++run) { // the second time without the files deleted by the first
        runDesktopExport(a4);
        QCOMPARE(contents(home), exported(before, a4Setup));
    }
    for (const char *other : {"Custom.200x300mm", ""}) {
        runDesktopExport({{"PageSize", other}});
        QCOMPARE(contents(home), exported(before, QByteArray()));
    }
}

void tst_DesktopSettings::tools_data()
{
    addColumns<QString, QByteArray, Files>("tool", "script", "after");
    const auto row = [](const char *name, const char *tool, const QByteArray &script,
                        const Files &after) { addRow(name, tool, script, after); };
    const Files before = applicationFiles();
    const Files after = exported(before, a4Setup);
    const Files uncopied = with(after, registry, before[registry]);
    row("find missing", "find", {}, before);
    row("find fails at the end", "find", "/usr/bin/find \"$@\"; exit 1", after);
    row("find full of errors", "find", "/bin/head -c 300000 /dev/zero >&2; /usr/bin/find \"$@\"",
        after);
    row("find hangs", "find", "/usr/bin/find \"$@\"; exec /bin/sleep 1000", after);
    row("find with pieces of lines", "find",
        "printf \"$1/.config\"; /bin/sleep 0.2; printf '/eog/eog-print-settings.ini\\n'\n"
        "printf \"$1/.config/gedit/gedit-page-setup without its end\"",
        without(before, {rememberedFiles[2]}));
    row("cp missing", "cp", {}, uncopied);
    row("cp fails", "cp", "exit 1", uncopied);
    row("rm missing", "rm", {},
        with(with(with(before, paperFile, a4Setup), registry, after[registry]), temporary,
             after[registry]));
}

void tst_DesktopSettings::tools()
{
    QFETCH(QString, tool);
    QFETCH(QByteArray, script);
    lay(home, applicationFiles());
    replaceTool(tool, script);
    runDesktopExport(a4);
    QTEST(contents(home), "after");
}

void tst_DesktopSettings::blanksInPaths()
{
    // "find A B" looks below A and below B, "rm -f A B" removes A and B.
    lay(directory->path(), {{"my home/gedit-print-settings", "spared"},
                            {"my/gedit-print-settings", "found"},
                            {"home/gedit-page-setup", "found"},
                            {"my/old", "cut off at the blank"},
                            {"my/old files/eog-print-settings.ini", "spared"}});
    QVERIFY(QDir::setCurrent(directory->path()));
    qputenv("HOME", QFile::encodeName(directory->filePath("my home")));
    const Files before = contents(directory->path());
    runDesktopExport(a4);
    QCOMPARE(contents(directory->path()),
             with(without(before, {"my/gedit-print-settings", "my/old"}), "home/gedit-page-setup",
                  a4Setup));
}

void tst_DesktopSettings::manyFiles()
{
    Files files;
    for (int i = 0; i < 50000; ++i)
        files.insert(QString(i % 1000 ? "%1/note %2" : "%1/%2/gedit-page-setup").arg(i % 47).arg(i),
                     "");
    lay(home, files);
    runDesktopExport(a4);
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (file.key().endsWith("setup"))
            QCOMPARE(fileText(home + '/' + file.key()), a4Setup);
    }
}

void tst_DesktopSettings::oddRegistry()
{
    const QByteArray before = "\xff name=\"Collate\" false\r\n\nlast false";
    const QByteArray after = "\xff name=\"Collate\" true\r\n\nlast false\n";
    // A copy is left from an interrupted run.
    lay(home, {{registry, before}, {temporary, "old\n"}});
    runDesktopExport(a4);
    QCOMPARE(contents(home), Files({{registry, "old\n" + after}}));

    // The disk is full. A real copy of this device would never end.
    lay(home, {{registry, before}});
    QVERIFY(QFile::link("/dev/full", home + '/' + temporary));
    replaceTool("cp", "echo copied >\"$2\"");
    runDesktopExport(a4);
    QCOMPARE(contents(home), Files({{registry, before}}));

    // A pipe, on which one would wait for a writer.
    QVERIFY(QFile::remove(home + '/' + registry));
    QCOMPARE(mkfifo(qPrintable(home + '/' + registry), 0600), 0);
    runDesktopExport(a4);
    QVERIFY(!QFile::exists(home + '/' + temporary));
}

QTEST_GUILESS_MAIN(tst_DesktopSettings)

#include "tst_desktopsettings.moc"
