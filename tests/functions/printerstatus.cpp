// What lpstat says of queues.

#include "model/printerstatus.h"

#include "functiontests.h"
#include "support/testhelpers.h"

namespace {

/// A stand-in for lpstat at the front of PATH, for as long as this object lives: a shell script
/// with the queue's name in $name.
class FakeLpstat
{
public:
    explicit FakeLpstat(const QByteArray &text)
    {
        const QString program = directory.filePath("lpstat");
        QVERIFY(setFileText(program, "#!/bin/sh\nname=$2; cd \"${0%/*}\"\n" + text));
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", directory.path().toLocal8Bit() + ':' + outerPath);
    }
    ~FakeLpstat() { qputenv("PATH", outerPath); }

    QTemporaryDir directory;

private:
    const QByteArray outerPath = qgetenv("PATH");
};

/// The answers by queue, when one for each is there.
QMap<QString, QString> answers(PrinterStatusReader *reader, const QStringList &queues)
{
    QMap<QString, QString> answers;
    QEventLoop loop;
    QObject::connect(reader, &PrinterStatusReader::answered, &loop,
                     [&](const QString &queue, const QString &status) {
                         answers.insert(queue, status);
                         if (answers.size() == queues.size())
                             loop.quit();
                     });
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    reader->ask(queues);
    loop.exec();
    return answers;
}

QStringList status(const QStringList &in)
{
    return {statusFromOutput(in[0])};
}

// With no word of any language, or not as a whole word, it is shown as it is.
const FunctionTests::Table words("TestPrinterStatus", 1, status, R"(
English    | printer P1 is idle.  enabled since Tue Nov 24 10:00:00 2026              | Idle
German     | Drucker P1 ist im Leerlauf.  Aktiviert seit Di 24 Nov 2026 10:00:00      | Idle
French     | l'imprimante P1 est inactive.  activée depuis mar. 24 nov. 2026          | Idle
Italian    | la stampante P1 è inattiva.  è stata abilitata da mar 24 nov 2026        | Idle
Portuguese | impressora P1 está inativa; habilitada desde ter 24 nov 2026             | Idle
Spanish    | la impresora P1 está inactiva.  activada desde mar 24 nov 2026           | Idle
German     | Drucker P1 ist inaktiv.                                                  | Idle
German     | Drucker P1 ist leerlaufend.                                              | Idle
Italian    | la stampante P1 è in attesa.                                             | Idle
Portuguese | a impressora P1 está ociosa.                                             | Idle
English    | printer P1 disabled since Tue Nov 24 10:00:00 2026 - Paused              | Paused
German     | Drucker P1 ist deaktiviert seit Di 24 Nov 2026 10:00:00 - angehalten     | Paused
French     | imprimante P1 désactivée depuis mar. 24 nov. 2026 - En pause             | Paused
Italian    | la stampante P1 è stata disabilitata da mar 24 nov 2026 In pausa         | Paused
Portuguese | a impressora P1 foi desativada desde ter 24 nov 2026 - Em pausa          | Paused
Spanish    | la impresora P1 está deshabilitada desde mar 24 nov 2026 - Paused        | Paused
English    | printer P1 now printing P1-12.  enabled since Tue Nov 24 10:00:00 2026   | Printing
German     | Drucker P1 druckt jetzt P1-12.  Aktiviert seit Di 24 Nov 2026 10:00:00   | Printing
French     | imprimante P1 : impression de P1-12 en cours.  activée depuis mar.       | Printing
Italian    | la stampante P1 sta stampando P1-12. è stata abilitata da mar 24 nov     | Printing
Portuguese | impressora P1 está imprimindo P1-12; habilitada desde ter 24 nov         | Printing
Spanish    | la impresora P1 está ahora imprimiendo P1-12.  activada desde mar        | Printing
English    | printer P1 now printing P1-12. Sleeps when idle                          | Idle
no word    | printer P1 IS IDLE                                                       | printer P1 IS IDLE
no word    | stampando                                                                | stampando
no word    | プリンター P1 は待機中です                                                          | プリンター P1 は待機中です
)");

} // namespace

class TestPrinterStatus : public QObject
{
    Q_OBJECT

private slots:
    void manyQueues();
    void strangeAnswers();
    void answersBeforeStartOver();
    void outOfView();
};

void TestPrinterStatus::manyQueues()
{
    // The first is the slowest; each notes how many are at work with it.
    const FakeLpstat lpstat(": > working.$$; echo working.* | wc -w >> counts\n"
                            "[ \"$name\" = q0 ] && sleep 0.3; sleep 0.03; rm working.$$\n"
                            "echo \"status of $name\"\n");
    QStringList queues;
    QMap<QString, QString> expected;
    for (int i = 0; i < 40; ++i) {
        queues.append(QStringLiteral("q%1").arg(i));
        expected.insert(queues.last(), "status of " + queues.last());
    }
    PrinterStatusReader reader;
    reader.ask(queues); // rows of the same queues wait for the same calls
    QCOMPARE(answers(&reader, queues), expected);
    int most = 0;
    const QByteArrayList counts = fileText(lpstat.directory.filePath("counts")).split('\n');
    QCOMPARE(counts.size(), 40 + 1);
    for (const QByteArray &count : counts)
        most = qMax(most, count.toInt());
    QVERIFY(most > 1);  // side by side
    QVERIFY(most <= 8); // the scheduler would refuse some of the connections
}

void TestPrinterStatus::strangeAnswers()
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
    PrinterStatusReader reader;
    QCOMPARE(answers(&reader, {"chatty", "late", "lines", "binary", "fails", "closes", "fine"}),
             (QMap<QString, QString>{{"chatty", cut},
                                     {"late", cut},
                                     {"lines", "onetwo"},
                                     {"binary", "Idle"},
                                     {"fails", QString()},
                                     {"closes", QString()},
                                     {"fine", "Idle"}}));
}

// An answer from before startOver() may be out of date: the one after it counts.
void TestPrinterStatus::answersBeforeStartOver()
{
    const FakeLpstat lpstat("[ -e second ] || { : > second; sleep 0.3; echo old; exit; }\n"
                            "echo new\n");
    PrinterStatusReader reader;
    QStringList heard;
    connect(&reader, &PrinterStatusReader::answered, this,
            [&heard](const QString &, const QString &status) { heard.append(status); });
    reader.ask({"P1"});
    QTRY_VERIFY(QFile::exists(lpstat.directory.filePath("second")));
    reader.startOver();
    reader.ask({"P1"});
    QTest::qWait(600);
    QCOMPARE(heard, QStringList("new"));
}

// What is in view no more before its turn comes is left out.
void TestPrinterStatus::outOfView()
{
    const FakeLpstat lpstat("echo >> calls; until [ -e go ]; do sleep 0.02; done\n");
    QStringList queues;
    for (int i = 0; i < 40; ++i)
        queues.append(QStringLiteral("q%1").arg(i));
    PrinterStatusReader reader;
    reader.ask(queues);
    reader.ask({"q20", "q30", "q0"});
    QVERIFY(setFileText(lpstat.directory.filePath("go"), ""));
    QSignalSpy told(&reader, &PrinterStatusReader::answered);
    QTRY_COMPARE(told.size(), 10);
    QTest::qWait(50);
    QCOMPARE(told.size(), 10);
    QCOMPARE(fileText(lpstat.directory.filePath("calls")).size(), 10);
}

static const FunctionTests::Entry<TestPrinterStatus> entry;

#include "printerstatus.moc"
