// The panel among what may go wrong around it: queue names that would do harm, a print scheduler
// that stops or stalls, commands and folders that are not as they should be. Nothing here may crash
// or hang it, run anything, or touch files that are none of its business.

#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

#include <QDirIterator>
#include <QElapsedTimer>

#include <csignal>
#include <functional>
#include <memory>

namespace {

constexpr char pageSize[] = "cmbBxPageSize";
constexpr char monoPpd[] = "demo/ppd/mx210.ppd";
const QString printer = "Office_C3";
const QString ownFile = "Office_C3.cfg";
const QString systemFolder = "/usr/share/brixola/";

/// Path below a folder to content; a folder has none.
using Files = QMap<QString, QByteArray>;

Files filesBelow(const QString &folder, const QString &leftOut = QString())
{
    Files files;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files.insert(QDir(folder).relativeFilePath(path), fileText(path));
    }
    files.remove(leftOut);
    return files;
}

Files userFiles(const QString &leftOut = QString())
{
    return filesBelow(userFolder().path(), leftOut);
}

/// Starts the panel with the page "Basic" of the printer.
bool startOnBasic(Panel *panel)
{
    return panel->startWith(printer) && panel->clickTab("Basic");
}

/// Chooses a paper size on the page "Basic" and presses Apply.
bool applyPaper(Panel *panel, const char *size)
{
    return panel->clickTab("Basic") && panel->choose(pageSize, size) && panel->apply();
}

/// The commands that the panel runs, with some of them replaced.
class Commands
{
public:
    Commands()
    {
        for (const QString name : {"lpstat", "lpoptions", "find", "cp", "rm"})
            QFile::link("/usr/bin/" + name, path(name));
    }

    /// Lets a shell script stand in for a command; without one the command is missing.
    bool replace(const QString &name, const QByteArray &script)
    {
        const QString file = path(name);
        return QFile::remove(file) &&
               (script.isEmpty() ||
                (setFileText(file, "#!/bin/sh\n" + script + '\n') &&
                 QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner)));
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    void giveTo(Panel *panel) const { panel->setEnvironment("PATH", folder.path()); }

private:
    QTemporaryDir folder;
};

} // namespace

class TestHostile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void queueName_data();
    void queueName();
    void queueNameIsNoText();

    void schedulerStops_data();
    void schedulerStops();
    void schedulerStalls();

    void lpoptionsHangs();
    void brokenCommand_data();
    void brokenCommand();

    void folderOfSettings_data();
    void folderOfSettings();
    void neitherUserNorHome();

private:
    std::unique_ptr<PrintServer> server;
    QStringList commandsSay; // on the panel's error output; each line once, sorted
};

void TestHostile::init()
{
    Panel::complaints.clear();
    commandsSay.clear();
    // A test may have taken its own rights.
    QFile::setPermissions(userFolder().path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(makeUserFolder());
    server = std::make_unique<PrintServer>();
    QVERIFY2(server->start() && server->addQueue(printer, "demo/ppd/px4500.ppd"),
             qPrintable(server->error()));
}

void TestHostile::cleanup()
{
    server.reset();
    // Nothing that a developer would have to look into.
    QStringList said = Panel::complaints.split('\n', Qt::SkipEmptyParts);
    said.removeDuplicates();
    said.sort();
    QCOMPARE(said, commandsSay);
}

// Queue names

void TestHostile::queueName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("complaint"); // of lpstat

    // The scheduler takes neither blanks nor slashes.
    const char names[] = R"(
$(touch${IFS}canary)   `touch${IFS}canary`        \$(touch${IFS}canary)
a;touch${IFS}canary;b  a|touch${IFS}canary        a&touch${IFS}canary&b
";touch${IFS}canary;"  \";touch${IFS}canary;\"    ';touch${IFS}canary;'
a>canary  a"b  "Desk"  C:\new\  -o  ..  %1%s%n  <h1>Big  Büro_€
)";
    for (const QByteArray &name : QByteArray(names).simplified().split(' '))
        addRow(name, name, QString());
    addRow("as long as can be", QByteArray(127, 'W'), QString());
    // lpstat takes it for two names, and knows neither.
    addRow("a comma", QByteArray("Copy,Print"), "lpstat: Unknown destination \"Copy\".");
}

void TestHostile::queueName()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, complaint);
    if (!complaint.isEmpty())
        commandsSay.append(complaint);
    const QString hostile = QString::fromUtf8(name);
    QVERIFY2(server->addQueueByRequest(name, monoPpd), qPrintable(server->error()));
    QVERIFY(setFileText(cfgFile(printer), "Untouched=1\n"));
    const Files files = userFiles();
    // Where a command in the name would leave its trace.
    QTemporaryDir folder;
    const QString outer = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    Panel panel;
    const bool started = panel.start();
    QVERIFY(QDir::setCurrent(outer));
    QVERIFY(started);
    QCOMPARE(filesBelow(folder.path()), Files());
    const QVector<QStringList> rows = panel.table("tblPrinters").rows;
    QCOMPARE(rows.size(), 2);
    QVERIFY(rows.contains({hostile, "file:///dev/null", complaint.isEmpty() ? "Idle" : ""}));

    QVERIFY(panel.select(hostile));
    QCOMPARE(panel.message(), noMessage);
    QVERIFY(applyPaper(&panel, "A5"));
    QCOMPARE(filesBelow(folder.path()), Files());
    QCOMPARE(panel.message(), applied);
    QVERIFY(panel.answer());

    QVERIFY(savedLines(hostile).contains("PageSize=A5"));
    QCOMPARE(userFiles(hostile + ".cfg"), files);
    // With double quotes lpoptions is told another name.
    QCOMPARE(publishedOptions(hostile).contains("PageSize=A5"), !name.contains('"'));
    QCOMPARE(panel.table("tblPrinters").rows, rows);
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + hostile);
}

void TestHostile::queueNameIsNoText()
{
    // Nobody can name it, so it can't have a row.
    QVERIFY2(server->addQueueByRequest("caf\xe9", monoPpd), qPrintable(server->error()));
    Panel panel;
    QVERIFY(panel.start());
    QCOMPARE(panel.rowsOf(0), QStringList(printer));
    QVERIFY(panel.select(printer) && panel.clickTab("Basic") && panel.apply());
    QCOMPARE(panel.message(), applied);

    // Qt can't name the scheduler's files of that queue, and so not remove them.
    QVERIFY2(server->stop(), qPrintable(server->error()));
    QCOMPARE(QProcess::execute("rm", {"-r", server->directory() + "/cache"}), 0);
}

// The scheduler

void TestHostile::schedulerStops_data()
{
    QTest::addColumn<bool>("atApply");
    QTest::addColumn<QStringList>("message");
    QTest::addColumn<QStringList>("whenBack"); // at Apply
    addRow("noticed at a change", false, printersChanged, nothingSelected);
    // The printer stays the selected one, though without a row.
    addRow("noticed at Apply", true, notPublished, applied);
}

void TestHostile::schedulerStops()
{
    QFETCH(bool, atApply);
    QFETCH(QStringList, message);
    QFETCH(QStringList, whenBack);
    Panel panel;
    QVERIFY(startOnBasic(&panel));
    const Files files = userFiles();

    QVERIFY2(server->stop(), qPrintable(server->error()));
    QVERIFY(atApply ? panel.apply() : panel.choose(pageSize, "A5"));
    QCOMPARE(panel.message(), message);
    QVERIFY(panel.answer());
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.rowsOf(0), QStringList());
    QVERIFY(panel.tabs().value(0).current);
    QCOMPARE(userFiles(), files);

    QVERIFY2(server->start() && panel.apply(), qPrintable(server->error() + panel.error()));
    QCOMPARE(panel.message(), whenBack);
    QVERIFY(panel.answer());
    QCOMPARE(panel.rowsOf(2), QStringList("Idle"));
    QVERIFY(panel.select(printer) && applyPaper(&panel, "A3"));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(printer).contains("PageSize=A3"));
}

void TestHostile::schedulerStalls()
{
    const QString other = "Warehouse_M1";
    QVERIFY2(server->addQueue(other, monoPpd), qPrintable(server->error()));
    Panel panel;
    QVERIFY(panel.startWith(printer));
    const std::function<bool()> actions[] = {
        [&] { return panel.select(other); },
        [&] { return panel.clickTab("Basic") && panel.choose(pageSize, "A5"); },
        [&] { return panel.apply(); },
    };
    const QString process = fileText(server->directory() + "/cupsd.pid").trimmed();
    QVERIFY(process.toInt() > 0);
    for (const auto &action : actions) {
        QCOMPARE(kill(process.toInt(), SIGSTOP), 0);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(QProcess::startDetached("sh", {"-c", "sleep 1.5; kill -CONT " + process}));
        QVERIFY(action());
        QVERIFY(clock.elapsed() >= 1500); // it was needed, and waited for
    }
    QCOMPARE(panel.message(), applied);
    QCOMPARE(panel.windowTitle(), "Brixola Press Desk - " + other);
    QCOMPARE(panel.rowsOf(2), QStringList({"Idle", "Idle"}));
    QCOMPARE(panel.currentText(pageSize), QString("A5"));
    QVERIFY(savedLines(other).contains("PageSize=A5"));
    QVERIFY(publishedOptions(other).contains("PageSize=A5"));
}

// Commands

void TestHostile::lpoptionsHangs()
{
    Commands commands;
    const QString process = commands.path("process");
    QVERIFY(
        commands.replace("lpoptions", "echo $$ >" + process.toLatin1() + "; exec /bin/sleep 90"));
    QVERIFY(setFileText(cfgFile(printer), "PageSize=A4\n")); // so that it is no first contact
    Panel panel;
    commands.giveTo(&panel);
    QVERIFY(startOnBasic(&panel) && panel.choose(pageSize, "A5"));

    QElapsedTimer clock;
    clock.start();
    QVERIFY(panel.apply());
    QVERIFY(clock.elapsed() >= 30000); // it may be slow, and is given that time
    QCOMPARE(panel.message(), notPublished);
    QVERIFY(panel.answer());
    const int pid = fileText(process).trimmed().toInt();
    QVERIFY(pid > 0);
    QVERIFY(kill(pid, 0) != 0); // not left behind
    QVERIFY(savedLines(printer).contains("PageSize=A5"));
    QVERIFY(panel.tabs().value(0).current);

    // It goes on with the same printer, as soon as the command is well.
    QVERIFY(commands.replace("lpoptions", "exec /usr/bin/lpoptions \"$@\""));
    QVERIFY(panel.clickTab("Basic") && panel.apply());
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(printer).contains("PageSize=A5"));
}

void TestHostile::brokenCommand_data()
{
    // A command without a script is missing. What lpoptions makes of the options is its own affair.
    addRows({"command", "script", "complaint"}, R"(
lpstat missing     | lpstat    |                     | sh: 1: lpstat: not found
lpstat fails       | lpstat    | echo down >&2; exit 1 | down
lpstat crashes     | lpstat    | kill -SEGV $$       | Segmentation fault
find missing       | find      |                     |
find fails         | find      | echo down >&2; exit 1 |
lpoptions missing  | lpoptions |                     |
lpoptions refuses  | lpoptions | echo down >&2; exit 1 |
)");
}

void TestHostile::brokenCommand()
{
    QFETCH(QString, command);
    QFETCH(QString, script);
    QFETCH(QString, complaint);
    if (!complaint.isEmpty())
        commandsSay.append(complaint);
    Commands commands;
    QVERIFY(commands.replace(command, script.toLatin1()));
    const bool canPublish = command != "lpoptions" || !script.isEmpty();
    Panel panel;
    commands.giveTo(&panel);
    QVERIFY(panel.startWith(printer));
    QCOMPARE(panel.message(), canPublish ? noMessage : notPublished); // at first contact
    QVERIFY(canPublish || panel.answer());
    QVERIFY(savedLines(printer).contains("PageSize=A4"));
    QVERIFY(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.ok());
    QCOMPARE(panel.message(), canPublish ? applied : notPublished);
    QCOMPARE(panel.rowsOf(2), QStringList(command == "lpstat" ? "" : "Idle"));
    QVERIFY(savedLines(printer).contains("PageSize=A5"));
    QCOMPARE(publishedOptions(printer).contains("PageSize=A5"), command != "lpoptions");
    QVERIFY(panel.answer() && panel.waitForEnd());
    QCOMPARE(panel.exitStatus(), 0);
}

// Folders and the environment

void TestHostile::folderOfSettings_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QByteArray>("before"); // the printer's file, null for none
    QTest::addColumn<bool>("isFolder");     // in place of that file
    QTest::addColumn<QString>("atNextStart");
    const QByteArray longFile = "PageSize=A3\nOld=" + QByteArray(20000, 'x') + "\nStale=1\n";
    addRow("can't be written to", true, QByteArray(), false, "A4");
    addRow("can't be written to, but its file can", true, longFile, false, "A5");
    addRow("the settings file is a folder", false, QByteArray(), true, "A4");
}

void TestHostile::folderOfSettings()
{
    QFETCH(bool, readOnly);
    QFETCH(QByteArray, before);
    QFETCH(bool, isFolder);
    const QString cfg = cfgFile(printer);
    QVERIFY(setFileText(cfg, before));
    if (isFolder)
        QVERIFY(QDir().mkpath(cfg) && setFileText(cfg + "/inside", "1"));
    const Files others = userFiles(ownFile);
    if (readOnly)
        QFile::setPermissions(userFolder().path(), QFile::ReadOwner | QFile::ExeOwner);

    Panel panel;
    QVERIFY(panel.startWith(printer));
    QCOMPARE(panel.message(), noMessage);
    QVERIFY(applyPaper(&panel, "A5"));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(printer).contains("PageSize=A5"));
    QVERIFY(panel.answer() && panel.cancel() && startOnBasic(&panel));
    QTEST(panel.currentText(pageSize), "atNextStart");

    QCOMPARE(userFiles(ownFile), others);
    QVERIFY(!savedLines(printer).contains("Stale=1"));
}

void TestHostile::neitherUserNorHome()
{
    const QString settings = systemFolder + "Settings";
    QVERIFY(setFileText(settings, "Telemetry=False\n"));
    const Files files = filesBelow(systemFolder);
    // The paper settings are carried over to the home of the password database.
    const QDir folder(QDir::home().filePath(".config/gedit"));
    const QString paper = folder.filePath("gedit-page-setup");
    QVERIFY(folder.mkpath(".") && setFileText(paper, "old\n"));
    Panel panel;
    panel.unsetEnvironment("USER");
    panel.unsetEnvironment("HOME");
    // Fontconfig complains without a home when the machine's own font cache is out of date.
    panel.setEnvironment("XDG_CACHE_HOME", QDir::tempPath());
    QVERIFY(panel.startWith(printer) && applyPaper(&panel, "A5"));
    QCOMPARE(panel.message(), applied);
    QVERIFY(fileText(systemFolder + ownFile).contains("PageSize=A5\n"));
    QCOMPARE(filesBelow(systemFolder, ownFile), files);
    QVERIFY(fileText(paper).contains("PPDName=A5\n"));
    QVERIFY(QFile::remove(settings) && QFile::remove(systemFolder + ownFile));
    QVERIFY(QDir(folder).removeRecursively());
}

QTEST_GUILESS_MAIN(TestHostile)
#include "tst_hostile.moc"
