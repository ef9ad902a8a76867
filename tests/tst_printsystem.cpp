// The library's view of the print system: queues, their PPDs and their status, with a scheduler of
// its own and the real lp commands.

#include "app/publication.h"
#include "model/optionstore.h"
#include "model/printerstatus.h"
#include "model/printqueues.h"
#include "model/queueppd.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

#include <QDir>

namespace {

const QString failure = "Error: Printer does not exist or lpstat failed.";
const QString colorPpd = "demo/ppd/px4500.ppd";

/// A stand-in for lpstat at the front of PATH, for as long as this object lives.
///
/// It notes the name in the file "calls" and then does what the text says, with the name in $name.
class FakeLpstat
{
public:
    explicit FakeLpstat(const QByteArray &text)
    {
        const QByteArray head = "#!/bin/sh\nname=$2\ncd \"${0%/*}\"\necho \"$name\" >> calls\n";
        QVERIFY(setFileText(file("lpstat"), head + text));
        QFile::setPermissions(file("lpstat"), QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", directory.path().toLocal8Bit() + ':' + outerPath);
    }
    ~FakeLpstat() { qputenv("PATH", outerPath); }

    QString file(const QString &name) const { return directory.filePath(name); }
    QByteArrayList lines(const QString &name) const { return fileText(file(name)).split('\n'); }

private:
    const QByteArray outerPath = qgetenv("PATH");
    QTemporaryDir directory;
};

} // namespace

class TestPrintSystem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void queuesAreThoseOfThePrintSystem();
    void rowsByPpd_data();
    void rowsByPpd();
    void temporaryFiles();
    void publishedSettings();

    void statusWords();
    void realStatus();
    void manyQueues();
    void queueThatNeverAnswers();
    void strangeAnswers();

private:
    PrintServer server;
    QTemporaryDir temporary; // where libcups puts its temporary files
};

void TestPrintSystem::initTestCase()
{
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    QVERIFY2(server.start() && server.addSampleQueues(), qPrintable(server.error()));
}

// Queues

void TestPrintSystem::queuesAreThoseOfThePrintSystem()
{
    const QStringList added = {"annex", "Annex_2", "ZONE-5", "_desk", "3rd_floor"};
    for (const QString &name : added)
        QVERIFY2(server.addQueue(name, colorPpd, "file:///dev/full"), qPrintable(server.error()));
    // A class of printers is a destination too, with the PPD of one of its printers.
    QCOMPARE(QProcess::execute("/usr/sbin/lpadmin", {"-p", "annex", "-c", "Everybody"}), 0);
    // Defaults that a user has kept for a queue that is gone are no queue.
    QDir::home().mkpath(".cups");
    const QString options = QDir::home().filePath(".cups/lpoptions");
    QVERIFY(setFileText(options, "Dest Long_Gone PageSize=A5\nDest Office_C3 PageSize=A5\n"));

    QProcess lpstat;
    lpstat.start("lpstat", {"-e"});
    QVERIFY(lpstat.waitForFinished());
    const QString expected = QString::fromUtf8(lpstat.readAll());
    QCOMPARE(expected.count('\n'), 11);
    QString names;
    QHash<QString, QString> devices;
    for (const PrintQueue &queue : printQueues()) {
        names += queue.name + '\n';
        devices.insert(queue.name, queue.deviceUri);
    }
    QCOMPARE(names, expected);
    QCOMPARE(devices.value("annex"), QString("file:///dev/full"));
    QCOMPARE(devices.value("Office_C3"), QString("file:///dev/null"));
    QCOMPARE(makerRowCount("Everybody"), 1);

    QVERIFY(QFile::remove(options));
    for (const QString &name : QStringList("Everybody") + added)
        QVERIFY2(server.removeQueue(name), qPrintable(server.error()));
    QCOMPARE(queueNames().size(), 5);
}

// PPDs

void TestPrintSystem::rowsByPpd_data()
{
    // A line of the sample's PPD, up to some point, and what takes its place; "; " parts lines.
    addRows({"line", "replacement", "rows"}, R"(
maker in another spelling   | *Manufacturer: "Brixola"     | *Manufacturer: "BRIXOLA"     | 0
longer name of the maker    | *Manufacturer: "Brixola"     | *Manufacturer: "Brixola Ltd" | 0
no maker                    | *Manufacturer: "Brixola"     |                              | 0
device of another maker     | *1284DeviceID: "MFG:Brixola; | *1284DeviceID: "MFG:Other;   | 0
no device                   | *1284DeviceID: "MFG:Brixola; | *NoDeviceID: "MFG:Brixola;   | 0
short name in the device    | *1284DeviceID: "MFG:Brixola; | *1284DeviceID: "MFG:Brix;    | 1
no filter                   | *cupsFilter:                 | *NoFilter:                   | 0
)");
    addRow("three of four filters", QString("*cupsFilter:"),
           QString("*cupsFilter: \"image/png 0 otherfilter\"; "
                   "*cupsFilter: \"image/gif 0 /opt/x/bixfilter_ras_F.2\"; "
                   "*cupsFilter: \"image/tiff 0 bixfilter_pdf_F\"; *cupsFilter:"),
           QString("3"));
}

void TestPrintSystem::rowsByPpd()
{
    QFETCH(QString, line);
    QFETCH(QString, replacement);
    QFETCH(QString, rows);
    QByteArray text = fileText(PrintServer::sourceFile(colorPpd));
    QCOMPARE(text.count(line.toLatin1()), 1);
    QTemporaryDir folder;
    const QString file = folder.filePath("changed.ppd");
    text.replace(line.toLatin1(), replacement.replace("; ", "\n").toLatin1());
    QVERIFY(setFileText(file, text));
    QVERIFY2(server.addQueue("Changed", file), qPrintable(server.error()));
    QCOMPARE(makerRowCount("Changed"), rows.toInt());
    QVERIFY2(server.removeQueue("Changed"), qPrintable(server.error()));
}

void TestPrintSystem::temporaryFiles()
{
    const auto left = [this] {
        const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System;
        return QDir(temporary.path()).entryList(everything | QDir::NoDotAndDotDot);
    };
    // The scheduler refuses a broken PPD, but a disk or an administrator may break it later.
    const QString stored = "/etc/cups/ppd/Office_C3.ppd";
    const QByteArray sound = fileText(stored);
    const QByteArray noPpd = "\x7f\x45LF Brixola \xff\xfe\n*Manufacturer";
    for (const QByteArray &ppd : {noPpd, QByteArray(""), sound.left(4000), sound}) {
        const bool usable = ppd.size() >= 4000;
        QVERIFY(setFileText(stored, ppd));
        {
            const QueuePpd opened("Office_C3");
            QCOMPARE(opened.isOpen(), usable);
            QCOMPARE(opened.makeStore() != nullptr, usable);
            QCOMPARE(opened.optionKeywords().isEmpty(), !usable);
        }
        QCOMPARE(makerRowCount("Office_C3"), int(usable));
        QCOMPARE(makerRowCount("Long_Gone") + makerRowCount(QString()), 0);
        QCOMPARE(left(), QStringList());

        QueuePpd("Office_C3").leaveFile();
        QCOMPARE(left().size(), 1);
        const QString file = temporary.filePath(left().first());
        QCOMPARE(fileText(file), ppd);
        QVERIFY(QFile::remove(file));
    }
}

void TestPrintSystem::publishedSettings()
{
    Settings settings{{"PageSize", "A4"}, {"Duplex", ""}, {"JobName", "x"}};
    settings.insert("PageSize", "A5"); // the later one counts
    const QStringList keywords{"Duplex", "PageSize", "Coll"};
    QCOMPARE(Publication::command("P", keywords, settings),
             QString("lpoptions -p P -o PageSize=A5"));
    QCOMPARE(Publication::command("P", {}, settings), QString("lpoptions -p P"));
}

// Status

void TestPrintSystem::statusWords()
{
    const QString table = R"(
Idle     printer P1 is idle.  enabled since Tue Nov 24 10:00:00 2026
Idle     Drucker P1 ist im Leerlauf.  Aktiviert seit Di 24 Nov 2026 10:00:00
Idle     l'imprimante P1 est inactive.  activée depuis mar. 24 nov. 2026
Idle     la stampante P1 è inattiva.  è stata abilitata da mar 24 nov 2026
Idle     impressora P1 está inativa; habilitada desde ter 24 nov 2026
Idle     la impresora P1 está inactiva.  activada desde mar 24 nov 2026
Paused   printer P1 disabled since Tue Nov 24 10:00:00 2026 - Paused
Paused   Drucker P1 ist deaktiviert seit Di 24 Nov 2026 10:00:00 - angehalten
Paused   imprimante P1 désactivée depuis mar. 24 nov. 2026 - En pause
Paused   la stampante P1 è stata disabilitata da mar 24 nov 2026 In pausa
Paused   a impressora P1 foi desativada desde ter 24 nov 2026 - Em pausa
Paused   la impresora P1 está deshabilitada desde mar 24 nov 2026 - Paused
Printing printer P1 now printing P1-12.  enabled since Tue Nov 24 10:00:00 2026
Printing Drucker P1 druckt jetzt P1-12.  Aktiviert seit Di 24 Nov 2026 10:00:00
Printing imprimante P1 : impression de P1-12 en cours.  activée depuis mar.
Printing la stampante P1 sta stampando P1-12. è stata abilitata da mar 24 nov
Printing impressora P1 está imprimindo P1-12; habilitada desde ter 24 nov
Printing la impresora P1 está ahora imprimiendo P1-12.  activada desde mar
Idle     printer P1 now printing P1-12. Sleeps when idle)";
    for (const QString &line : table.split('\n', Qt::SkipEmptyParts))
        QVERIFY2(statusFromOutput(line.mid(9)) == line.left(9).trimmed(), qUtf8Printable(line));
    // No word of any language, or not as a whole word: shown as it is.
    for (const QString other : {"printer P1 IS IDLE", "stampando", "プリンター P1 は待機中です"})
        QCOMPARE(statusFromOutput(other), other);
}

void TestPrintSystem::realStatus()
{
    for (const char *locale : {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT", "pt_BR"}) {
        qputenv("LC_ALL", QByteArray(locale) + ".UTF-8");
        const QString idle = printerStatus("Office_C3");
        QProcess::execute("/usr/sbin/cupsdisable", {"Office_C3"});
        const QString paused = printerStatus("Office_C3");
        QProcess::execute("/usr/sbin/cupsenable", {"Office_C3"});
        qunsetenv("LC_ALL");
        QVERIFY2(idle == "Idle" && paused == "Paused", locale);
    }
}

void TestPrintSystem::manyQueues()
{
    // The first is the slowest; each notes how many are at work with it.
    const FakeLpstat lpstat(": > working.$$; echo working.* | wc -w >> counts\n"
                            "[ \"$name\" = q0 ] && sleep 0.3; sleep 0.03; rm working.$$\n"
                            "echo \"status of $name\"\n");
    QStringList queues, expected;
    for (int i = 0; i <= 40; ++i) { // the last a second row of the first
        queues.append(QStringLiteral("q%1").arg(i % 40));
        expected.append("status of " + queues.last());
    }
    QCOMPARE(PrinterStatusReader().statuses(queues), expected);
    int most = 0;
    const QByteArrayList counts = lpstat.lines("counts");
    QCOMPARE(counts.size(), 40 + 1);
    for (const QByteArray &count : counts)
        most = qMax(most, count.toInt());
    QVERIFY(most > 1);  // side by side
    QVERIFY(most <= 8); // the scheduler would refuse some of the connections
}

void TestPrintSystem::queueThatNeverAnswers()
{
    const FakeLpstat lpstat("case $name in\n"
                            "stuck*) if [ ! -e well ]; then sleep 60; touch woke; fi ;;\n"
                            "esac\n"
                            "echo \"printer $name is idle.\"\n");
    const QStringList queues{"stuck1", "fine", "stuck2"};
    PrinterStatusReader reader;
    for (int i = 0; i < 2; ++i)
        QCOMPARE(reader.statuses(queues), QStringList({failure, "Idle", failure}));
    QVERIFY(!QFile::exists(lpstat.file("woke"))); // nobody has waited for it
    // Not asked again, or every click would take as long.
    const QByteArrayList calls = lpstat.lines("calls");
    QCOMPARE(calls.count("stuck1"), 1);
    QCOMPARE(calls.count("stuck2"), 1);
    QCOMPARE(calls.count("fine"), 2);

    QVERIFY(setFileText(lpstat.file("well"), ""));
    reader.startOver();
    QCOMPARE(reader.statuses(queues), QStringList({"Idle", "Idle", "Idle"}));
}

void TestPrintSystem::strangeAnswers()
{
    const FakeLpstat lpstat("case $name in\n"
                            "chatty) head -c 1000000 /dev/zero | tr '\\0' x ;;\n"
                            "late) head -c 2000 /dev/zero | tr '\\0' x; echo idle ;;\n"
                            "lines) printf 'one\\ntwo\\n' ;;\n"
                            "binary) printf '\\377\\376 is idle' ;;\n"
                            "fails) exit 1 ;;\n"
                            "closes) exec >&-; sleep 0.2 ;;\n"
                            "*) echo \"printer $name is idle.\" ;;\n"
                            "esac\n");
    const QString cut(1023, 'x');
    QCOMPARE(PrinterStatusReader().statuses(
                 {"chatty", "late", "lines", "binary", "fails", "closes", "fine"}),
             QStringList({cut, cut, "onetwo", "Idle", QString(), QString(), "Idle"}));
}

QTEST_GUILESS_MAIN(TestPrintSystem)
#include "tst_printsystem.moc"
