// The panel among what may go wrong around it: queue names that would do harm, a print scheduler
// that stops or stalls, commands and folders that are not as they should be. Nothing here may crash
// or hang it, run anything, or touch files that are none of its business.

#include "support/panelsteps.h"
#include "support/printserver.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

namespace {

constexpr char pageSize[] = "cmbBxPageSize";
const QString colorPrinter = QStringLiteral("Office_C3");
const QString idle = QStringLiteral("Idle");
const QString systemFolder = QStringLiteral("/usr/share/brixola/");

QString titleOf(const QString &printer)
{
    return QStringLiteral("Brixola Press Desk - ") + printer;
}

/// Path below a folder to content; a folder has none.
using Files = QMap<QString, QByteArray>;

Files filesBelow(const QString &folder)
{
    Files files;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files.insert(QDir(folder).relativeFilePath(path), contents(path));
    }
    return files;
}

Files without(Files files, const QString &name)
{
    files.remove(name);
    return files;
}

/// The commands that the panel runs, with some of them replaced.
class Commands
{
public:
    Commands()
    {
        for (const char *name : {"lpstat", "lpoptions", "find", "cp", "rm"})
            QFile::link(QStringLiteral("/usr/bin/") + QLatin1String(name), path(name));
    }

    /// Lets a shell script stand in for a command; without one the command is missing.
    bool replace(const QByteArray &name, const QByteArray &script)
    {
        const QString file = path(name);
        return QFile::remove(file) &&
               (script.isNull() ||
                (writeFile(file, "#!/bin/sh\n" + script) &&
                 QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner)));
    }

    QString path(const QByteArray &name) const
    {
        return folder.filePath(QString::fromLatin1(name));
    }
    void giveTo(Panel *panel) const
    {
        panel->setEnvironment(QStringLiteral("PATH"), folder.path());
    }

private:
    QTemporaryDir folder;
};

/// Keeps the scheduler from answering for a while.
class StalledScheduler
{
public:
    StalledScheduler(const PrintServer &server, int ms)
        : process(contents(server.directory() + QStringLiteral("/cupsd.pid")).trimmed().toInt())
    {
        if (process <= 0 || kill(process, SIGSTOP) != 0)
            qFatal("no scheduler to stall");
        clock.reset(QThread::create([process = process, ms] {
            QThread::msleep(ms);
            kill(process, SIGCONT);
        }));
        clock->start();
    }
    ~StalledScheduler() { clock->wait(); }

private:
    const pid_t process;
    std::unique_ptr<QThread> clock;
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
    void schedulerStalls_data();
    void schedulerStalls();

    void lpoptionsHangs();
    void brokenCommand_data();
    void brokenCommand();

    void folderOfSettings_data();
    void folderOfSettings();
    void noUser();
    void noHome();

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
    QVERIFY2(server->start() &&
                 server->addQueue(colorPrinter, QStringLiteral("demo/ppd/px4500.ppd")),
             qPrintable(server->error()));
}

void TestHostile::cleanup()
{
    server.reset();
    // Nothing that a developer would have to look into.
    QStringList said = Panel::complaints.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    said.removeDuplicates();
    said.sort();
    QCOMPARE(said.join('\n'), commandsSay.join('\n'));
}

// Queue names

void TestHostile::queueName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("published");    // else lpoptions has been told another name
    QTest::addColumn<QString>("complaint"); // of lpstat

    const auto row = [](const char *what, const QByteArray &name) {
        QTest::newRow(what) << name << idle << !name.contains('"') << QString();
    };
    // The scheduler takes neither blanks nor slashes.
    row("a command in brackets", "$(touch${IFS}canary)");
    row("a command in back-ticks", "`touch${IFS}canary`");
    row("a command behind a semicolon", "a;touch${IFS}canary;b");
    row("a command behind a pipe", "a|touch${IFS}canary");
    row("a command behind an ampersand", "a&touch${IFS}canary&b");
    row("a command behind closed quotes", "\";touch${IFS}canary;\"");
    row("a command behind masked quotes", "\\\";touch${IFS}canary;\\\"");
    row("a command behind apostrophes", "';touch${IFS}canary;'");
    row("a command behind a masked dollar", "\\$(touch${IFS}canary)");
    row("output into a file", "a>canary");
    row("a double quote", "a\"b");
    row("a quoted word", "\"Desk\"");
    row("a backslash at the end", "C:\\new\\");
    row("an option", "-o");
    row("the folder above", "..");
    row("a format", "%1%s%n");
    row("markup", "<h1>Big");
    row("beyond ASCII", "B\xc3\xbcro_\xe2\x82\xac");
    row("as long as can be", QByteArray(127, 'W'));
    // lpstat takes it for two names, and knows neither.
    QTest::newRow("a comma") << QByteArray("Copy,Print") << QString() << true
                             << "lpstat: Unknown destination \"Copy\".";
}

void TestHostile::queueName()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, status);
    QFETCH(bool, published);
    QFETCH(QString, complaint);
    if (!complaint.isEmpty())
        commandsSay.append(complaint);
    const QString printer = QString::fromUtf8(name);
    QVERIFY2(server->addQueueByRequest(name, QStringLiteral("demo/ppd/mx210.ppd")),
             qPrintable(server->error()));
    QVERIFY(writeFile(cfgFile(colorPrinter), "Untouched=1\n"));
    const Files files = filesBelow(userFolder().path());
    // Where a command in the name would leave its trace.
    QTemporaryDir folder;
    const QString outer = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    Panel panel;
    const bool started = panel.start();
    QVERIFY(QDir::setCurrent(outer));
    QVERIFY2(started, qPrintable(panel.error()));
    QCOMPARE(filesBelow(folder.path()), Files());
    const QVector<QStringList> rows = panel.table("tblPrinters").rows;
    QCOMPARE(rows.size(), 2);
    QVERIFY(rows.contains({printer, QStringLiteral("file:///dev/null"), status}));

    QVERIFY2(panel.select(printer), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.windowTitle(), titleOf(printer));
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(filesBelow(folder.path()), Files());
    QCOMPARE(panel.message(), applied);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));

    QVERIFY(savedLines(printer).contains(QStringLiteral("PageSize=A5")));
    QCOMPARE(without(filesBelow(userFolder().path()), printer + QStringLiteral(".cfg")), files);
    QCOMPARE(publishedOptions(printer).contains(QStringLiteral("PageSize=A5")), published);
    QCOMPARE(panel.table("tblPrinters").rows, rows);
    QCOMPARE(panel.windowTitle(), titleOf(printer));
}

void TestHostile::queueNameIsNoText()
{
    // Nobody can name it, so it can't have a row.
    QVERIFY2(server->addQueueByRequest("caf\xe9", QStringLiteral("demo/ppd/mx210.ppd")),
             qPrintable(server->error()));
    Panel panel;
    QVERIFY2(panel.start(), qPrintable(panel.error()));
    QCOMPARE(panel.rowsOf(0), QStringList{colorPrinter});
    QVERIFY2(panel.select(colorPrinter) && panel.clickTab("Basic") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);

    // Qt can't name the scheduler's files of that queue, and so not remove them.
    QVERIFY2(server->stop(), qPrintable(server->error()));
    QCOMPARE(QProcess::execute(QStringLiteral("rm"),
                               {QStringLiteral("-r"), server->directory() + "/cache"}),
             0);
}

// The scheduler

void TestHostile::schedulerStops_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("message");
    QTest::addColumn<QStringList>("atApply"); // when it is back
    QTest::newRow("noticed at a change")
        << QStringLiteral("change") << printersChanged << nothingSelected;
    // The printer stays the selected one, though without a row.
    QTest::newRow("noticed at Apply") << QStringLiteral("apply") << notPublished << applied;
}

void TestHostile::schedulerStops()
{
    QFETCH(QString, action);
    QFETCH(QStringList, message);
    QFETCH(QStringList, atApply);
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Basic"), qPrintable(panel.error()));
    const Files files = filesBelow(userFolder().path());

    QVERIFY2(server->stop(), qPrintable(server->error()));
    QVERIFY2(action == QLatin1String("apply") ? panel.apply() : panel.choose(pageSize, "A5"),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), message);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.rowsOf(0), QStringList());
    QVERIFY(panel.tabs().value(0).current);
    QCOMPARE(filesBelow(userFolder().path()), files);

    QVERIFY2(server->start() && panel.apply(), qPrintable(server->error() + panel.error()));
    QCOMPARE(panel.message(), atApply);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    QCOMPARE(panel.rowsOf(0), QStringList{colorPrinter});
    QCOMPARE(panel.rowsOf(2), QStringList{idle});
    QVERIFY2(panel.select(colorPrinter) && panel.clickTab("Basic") &&
                 panel.choose(pageSize, "A3") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QCOMPARE(panel.windowTitle(), titleOf(colorPrinter));
    QVERIFY(publishedOptions(colorPrinter).contains(QStringLiteral("PageSize=A3")));
}

void TestHostile::schedulerStalls_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("during a click on a printer") << QStringLiteral("select");
    QTest::newRow("during a change") << QStringLiteral("change");
    QTest::newRow("during Apply") << QStringLiteral("apply");
}

void TestHostile::schedulerStalls()
{
    QFETCH(QString, action);
    const QString other = QStringLiteral("Warehouse_M1");
    QVERIFY2(server->addQueue(other, QStringLiteral("demo/ppd/mx210.ppd")),
             qPrintable(server->error()));
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter), qPrintable(panel.error()));
    if (action != QLatin1String("select"))
        QVERIFY2(panel.clickTab("Basic"), qPrintable(panel.error()));
    if (action == QLatin1String("apply"))
        QVERIFY2(panel.choose(pageSize, "A5"), qPrintable(panel.error()));

    const int stall = 1500; // ms
    QElapsedTimer clock;
    clock.start();
    {
        const StalledScheduler stalled(*server, stall);
        if (action == QLatin1String("select"))
            QVERIFY2(panel.select(other), qPrintable(panel.error()));
        else if (action == QLatin1String("change"))
            QVERIFY2(panel.choose(pageSize, "A5"), qPrintable(panel.error()));
        else
            QVERIFY2(panel.apply(), qPrintable(panel.error()));
        QVERIFY(clock.elapsed() >= stall); // it was needed, and waited for
    }
    QCOMPARE(panel.message(), action == QLatin1String("apply") ? applied : noMessage);
    const QString selected = action == QLatin1String("select") ? other : colorPrinter;
    QCOMPARE(panel.windowTitle(), titleOf(selected));
    QCOMPARE(panel.rowsOf(0), QStringList({colorPrinter, other}));
    QCOMPARE(panel.rowsOf(2), QStringList({idle, idle}));
    if (action != QLatin1String("select"))
        QCOMPARE(panel.currentText(pageSize), QStringLiteral("A5"));
    const QString published = action == QLatin1String("apply") ? QStringLiteral("PageSize=A5")
                                                               : QStringLiteral("PageSize=A4");
    QVERIFY(savedLines(selected).contains(published));
    QVERIFY(publishedOptions(selected).contains(published));
}

// Commands

void TestHostile::lpoptionsHangs()
{
    Commands commands;
    const QString process = commands.path("process");
    QVERIFY(
        commands.replace("lpoptions", "echo $$ >" + process.toLatin1() + "; exec /bin/sleep 90"));
    QVERIFY(writeFile(cfgFile(colorPrinter), "PageSize=A4\n")); // so that it is no first contact
    Panel panel;
    commands.giveTo(&panel);
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Basic") &&
                 panel.choose(pageSize, "A5"),
             qPrintable(panel.error()));

    QElapsedTimer clock;
    clock.start();
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QVERIFY(clock.elapsed() >= 30000); // it may be slow, and is given that time
    QCOMPARE(panel.message(), notPublished);
    QVERIFY2(panel.answer(), qPrintable(panel.error()));
    const int pid = contents(process).trimmed().toInt();
    QVERIFY(pid > 0);
    QVERIFY(kill(pid, 0) != 0); // not left behind
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("PageSize=A5")));
    QVERIFY(panel.tabs().value(0).current);

    // It goes on with the same printer, as soon as the command is well.
    QVERIFY(commands.replace("lpoptions", "exec /usr/bin/lpoptions \"$@\""));
    QCOMPARE(panel.windowTitle(), titleOf(colorPrinter));
    QVERIFY2(panel.clickTab("Basic") && panel.apply(), qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(colorPrinter).contains(QStringLiteral("PageSize=A5")));
}

void TestHostile::brokenCommand_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("script"); // null if it is missing
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("lpstat missing") << QByteArray("lpstat") << QByteArray() << QString()
                                    << QStringLiteral("sh: 1: lpstat: not found");
    QTest::newRow("lpstat fails") << QByteArray("lpstat") << QByteArray("echo down >&2; exit 1\n")
                                  << QString() << QStringLiteral("down");
    QTest::newRow("lpstat crashes") << QByteArray("lpstat") << QByteArray("kill -SEGV $$\n")
                                    << QString() << QStringLiteral("Segmentation fault");
    QTest::newRow("find missing") << QByteArray("find") << QByteArray() << idle << QString();
    QTest::newRow("find fails") << QByteArray("find") << QByteArray("echo down >&2; exit 1\n")
                                << idle << QString();
}

void TestHostile::brokenCommand()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, script);
    QFETCH(QString, status);
    QFETCH(QString, complaint);
    if (!complaint.isEmpty())
        commandsSay.append(complaint);
    Commands commands;
    QVERIFY(commands.replace(command, script));
    Panel panel;
    commands.giveTo(&panel);
    QVERIFY2(panel.startWith(colorPrinter), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QCOMPARE(panel.rowsOf(2), QStringList{status});
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QCOMPARE(panel.rowsOf(2), QStringList{status});
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("PageSize=A5")));
    QVERIFY(publishedOptions(colorPrinter).contains(QStringLiteral("PageSize=A5")));
}

// Folders and the environment

void TestHostile::folderOfSettings_data()
{
    QTest::addColumn<QByteArray>("before");   // the printer's file, null for none
    QTest::addColumn<bool>("folderForFile");  // a folder stands where that file should be
    QTest::addColumn<int>("mode");            // of the user's folder
    QTest::addColumn<QString>("atNextStart"); // the paper size
    const QString fallback = QStringLiteral("A4");
    const QString chosen = QStringLiteral("A5");
    QTest::newRow("can't be written to") << QByteArray() << false << 0555 << fallback;
    // Its file can be, though.
    QTest::newRow("can't be written to, with settings from before")
        << QByteArray("PageSize=A3\nOld=") + QByteArray(20000, 'x') + "\nStale=1\n"
        << false << 0555 << chosen;
    QTest::newRow("the settings file is a folder") << QByteArray() << true << 0755 << fallback;
}

void TestHostile::folderOfSettings()
{
    QFETCH(QByteArray, before);
    QFETCH(bool, folderForFile);
    QFETCH(int, mode);
    QFETCH(QString, atNextStart);
    const QString cfg = cfgFile(colorPrinter);
    if (folderForFile)
        QVERIFY(QDir().mkpath(cfg) && writeFile(cfg + QStringLiteral("/inside"), "1"));
    else if (!before.isNull())
        QVERIFY(writeFile(cfg, before));
    const QString folder = userFolder().path();
    const QString ownFile = colorPrinter + QStringLiteral(".cfg");
    const Files others = without(filesBelow(folder), ownFile);
    QCOMPARE(chmod(folder.toLocal8Bit().constData(), mode_t(mode)), 0);

    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter), qPrintable(panel.error()));
    QCOMPARE(panel.message(), noMessage);
    QVERIFY2(panel.clickTab("Basic") && panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(publishedOptions(colorPrinter).contains(QStringLiteral("PageSize=A5")));
    QVERIFY2(panel.answer() && panel.cancel() && panel.startWith(colorPrinter) &&
                 panel.clickTab("Basic"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText(pageSize), atNextStart);

    QCOMPARE(without(filesBelow(folder), ownFile), others);
    QVERIFY(!savedLines(colorPrinter).contains(QStringLiteral("Stale=1")));
}

void TestHostile::noUser()
{
    const QString settings = systemFolder + QStringLiteral("Settings");
    const QString cfg = systemFolder + colorPrinter + QStringLiteral(".cfg");
    QVERIFY(writeFile(settings, "Telemetry=False\n"));
    const Files files = filesBelow(systemFolder);
    Panel panel;
    panel.unsetEnvironment(QStringLiteral("USER"));
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Basic") &&
                 panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(contents(cfg).contains("PageSize=A5\n"));
    QCOMPARE(without(filesBelow(systemFolder), colorPrinter + QStringLiteral(".cfg")), files);
    QVERIFY(QFile::remove(settings) && QFile::remove(cfg));
}

void TestHostile::noHome()
{
    // The paper settings are carried over to the home of the password database.
    const QString folder = QDir::home().filePath(QStringLiteral(".config/gedit"));
    const QString paper = folder + QStringLiteral("/gedit-page-setup");
    QVERIFY(QDir().mkpath(folder) && writeFile(paper, "old\n"));
    Panel panel;
    panel.unsetEnvironment(QStringLiteral("HOME"));
    // Fontconfig complains without a home when the machine's own font cache is out of date.
    panel.setEnvironment(QStringLiteral("XDG_CACHE_HOME"), QDir::tempPath());
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Basic") &&
                 panel.choose(pageSize, "A5") && panel.apply(),
             qPrintable(panel.error()));
    QCOMPARE(panel.message(), applied);
    QVERIFY(contents(paper).contains("PPDName=A5\n"));
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("PageSize=A5")));
    QVERIFY(QDir(folder).removeRecursively());
}

QTEST_GUILESS_MAIN(TestHostile)
#include "tst_hostile.moc"
