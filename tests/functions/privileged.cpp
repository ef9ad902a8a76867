// What runs as root, and what is left of the password.

#include "functiontests.h"
#include "privileged/ppdwriter.h"
#include "privileged/secretmemory.h"
#include "support/testhelpers.h"

#include <sys/prctl.h>

namespace {

// What has been given to OPENSSL_cleanse(), by the thread that wants to know.
thread_local QByteArray *wiped = nullptr;

} // namespace

// Stands in for OpenSSL's, since a text that is wiped is also freed.
extern "C" void OPENSSL_cleanse(void *memory, size_t size)
{
    if (wiped)
        wiped->append(static_cast<const char *>(memory), int(size));
    memset(memory, 0, size);
}

class TestPrivileged : public QObject
{
    Q_OBJECT

private slots:
    void commandLine();
    void harmlessWords();
    void statusOfCommands_data();
    void statusOfCommands();
    void cleansing();
    void untraceable();
};

void TestPrivileged::commandLine()
{
    // The shell acts on what stands between the double quotes.
    const QString password = "a\"b$HOME`id`'\\Zoë€";
    QCOMPARE(PpdWriter::commandLine(password, "sudo -S -p \"\"", "Queue1", "A=1 "),
             QString(" echo \"%1\" | sudo -S -p \"\" bixPPDWrite_F 'Queue1' A=1  2>&1 >/dev/null")
                 .arg(password)
                 .toUtf8());
    QByteArray leftovers;
    wiped = &leftovers;
    QCOMPARE(
        PpdWriter::commandLine(password, "su -c", "Queue1", "A=1 B= "),
        QString(" echo \"%1\" | su -c \" bixPPDWrite_F 'Queue1' A=1 B= \"").arg(password).toUtf8());
    wiped = nullptr;
    QCOMPARE(leftovers, password.toUtf8());
}

void TestPrivileged::harmlessWords()
{
    for (const char *pairs : {"", "A= ", "A=1 B=2 ", "a_-.+@:,/%=9_-.+@:,/%=a ", "Größe=Ωß "})
        QVERIFY2(PpdWriter::areHarmless("a_-.+@:,/%=9Büro", pairs), pairs);
    for (const char *pairs : {"A ", "=1 ", "A=Two words ", "A=1  ", "A=1"})
        QVERIFY2(!PpdWriter::areHarmless("Queue1", pairs), pairs);
    QVERIFY(!PpdWriter::areHarmless("", "A=1 "));
    QVERIFY(!PpdWriter::areHarmless("-o", "A=1 ")); // an option of the tool
    const QString dangerous =
        QString("'\"`$\\;&|<>()[]{}*?!#~^\n\r\t \u00a0\u2028") + QChar(0) + QChar(0xd83d);
    for (const QChar sign : dangerous)
        QVERIFY2(!PpdWriter::areHarmless(QString("Queue") + sign, "A=1 ") &&
                     !PpdWriter::areHarmless("Queue1", QString("A=T") + sign + ' '),
                 qPrintable(QString::number(sign.unicode(), 16)));
}

void TestPrivileged::statusOfCommands_data()
{
    addColumns<QString, int>("command", "status");
    addRow("success in spite of complaints", "echo no >&2; echo no; exit 0", 0);
    addRow("failure", "exit 3", 3);
    addRow("no such tool", "bixNoSuchTool 2>/dev/null", 127);
    addRow("tool killed", "sh -c 'kill -9 $$' 2>/dev/null", 137);
    addRow("its shell killed", "kill -9 $$", 1);
    addRow("a megabyte in one line", "head -c 1048576 /dev/zero", 0);
    // After three lines nobody listens any more; what the tool makes of that is its affair.
    addRow("a megabyte of lines", "yes 2>/dev/null | head -c 1048576 2>/dev/null; exit 4", 4);
    addRow("takes its time", "sleep 1; exit 5", 5);
}

void TestPrivileged::statusOfCommands()
{
    QFETCH(QString, command);
    QTEST(PpdWriter::run(qPrintable(command)), "status");
}

void TestPrivileged::cleansing()
{
    QByteArray leftovers;
    wiped = &leftovers;
    QString text = "sécret";
    text.detach();
    cleanse(&text);
    QByteArray shared("shared");
    const QByteArray other = shared;
    cleanse(&shared);
    wiped = nullptr;
    QVERIFY(text.isNull() && shared.isNull());
    QCOMPARE(other, QByteArray("shared"));
    QCOMPARE(leftovers, QByteArray("s\0\xe9\0c\0r\0e\0t\0", 12));
}

void TestPrivileged::untraceable()
{
    const int outer = prctl(PR_GET_DUMPABLE);
    for (const int before : {1, 0}) {
        prctl(PR_SET_DUMPABLE, before);
        int meanwhile = -1;
        {
            const UntraceableProcess object;
            meanwhile = prctl(PR_GET_DUMPABLE);
        }
        const int after = prctl(PR_GET_DUMPABLE);
        prctl(PR_SET_DUMPABLE, outer);
        QCOMPARE(meanwhile, 0);
        QCOMPARE(after, before);
    }
}

static const FunctionTests::Entry<TestPrivileged> entry;

#include "privileged.moc"
