// The prompt for the root password: what it runs, and how it goes on. Recording stand-ins take the
// place of sudo and su; the tool is the one of the demo, with a scheduler of its own.

#include "app/bixdialog.h"
#include "model/optionstore.h"
#include "pages/printer/printertab.h"
#include "privileged/passwordprompt.h"
#include "privileged/ppdwriter.h"
#include "support/dialogs.h"
#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/comboboxex.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include <sys/prctl.h>

namespace {

const QStringList failure{"Error: Could not authorize."};
const QStringList success{"Success: Settings applied."};
const QString pair = "Option17=True ";

/// sudo and su at the front of PATH, for as long as this object lives.
///
/// Each notes its name and arguments and what it is given to read, then acts as asked for. A sudo
/// without a command (-k) only notes.
class StandIns
{
public:
    /// \param act shell text; the password read is in $password, the command to run in "$@"
    explicit StandIns(const QByteArray &act)
    {
        // The arguments in brackets, so that their ends can be seen.
        const QByteArray note = "#!/bin/sh\n"
                                "cd \"${0%/*}\"\n"
                                "printf '%s' \"${0##*/}\" >>calls\n"
                                "printf ' [%s]' \"$@\" >>calls\n"
                                "[ \"$1\" != -k ] || { echo >>calls; exit 0; }\n"
                                "IFS= read -r password\n"
                                "printf ' <%s\\n' \"$password\" >>calls\n";
        write("sudo", note + "shift 3\n" + act);
        write("su", note + "eval \"set -- $2\"\n" + act);
        qputenv("PATH", folder.path().toLocal8Bit() + ':' + outerPath);
    }
    ~StandIns() { qputenv("PATH", outerPath); }

    QString filePath(const char *name) const { return folder.filePath(name); }

    /// What has been run since the last call, a line each.
    QStringList takeCalls()
    {
        const QString text = QString::fromUtf8(fileText(filePath("calls")));
        setFileText(filePath("calls"), {});
        return text.split('\n', Qt::SkipEmptyParts);
    }

private:
    void write(const char *name, const QByteArray &text)
    {
        if (!setFileText(filePath(name), text))
            qFatal("can't write %s", name);
        QFile::setPermissions(filePath(name), QFile::ReadOwner | QFile::ExeOwner);
    }

    QTemporaryDir folder;
    const QByteArray outerPath = qgetenv("PATH");
};

/// Gives the prompt a password and presses Return.
/// \return whether prompt and password have gone then
bool answer(PasswordPrompt *prompt, const QString &method = "sudo",
            const QString &password = "secret")
{
    auto *edit = findNamed<QLineEdit>(prompt, "lnEditRootPassword");
    findNamed<ComboBoxEx>(prompt, "cmbBxMethod")->setCurrentText(method);
    edit->setText(password);
    QTest::keyClick(edit, Qt::Key_Return);
    return !prompt->isVisible() && edit->text().isEmpty();
}

/// The prompt for one printer, under a main dialog that only notes what comes of it.
struct Attempt
{
    explicit Attempt(const QString &printer = "Queue1")
    {
        dialog.selectPrinter(QString());
        currentStore->setPrinterName(printer);
        dialog.closeAfterApply = true;
    }
    /// Opens the prompt and does something with it.
    /// \return the messages that come up
    QStringList run(const std::function<void(PasswordPrompt *)> &act, const QString &pairs = pair)
    {
        PasswordPrompt prompt(&dialog, pairs);
        const bool opened = whileOpen<PasswordPrompt>([&prompt] { prompt.exec(); }, act);
        return opened ? boxes.take() : QStringList("no prompt");
    }

    RecordingDialog dialog;
    MessageBoxes boxes;
};

} // namespace

class TestPasswordPrompt : public QObject
{
    Q_OBJECT

private slots:
    void commandLines_data();
    void commandLines();
    void harmlessWords_data();
    void harmlessWords();
    void statusOfCommands_data();
    void statusOfCommands();
    void judgedByOutput();

    void attempts_data();
    void attempts();
    void nothingRuns();
    void untraceableWhileOpen();

    void applyToTheEnd_data();
    void applyToTheEnd();

private:
    PrintServer server; // one for all, since libcups stays with the first
};

// The command

void TestPasswordPrompt::commandLines_data()
{
    addColumns<QString, QString, QString>("password", "prefix", "line");
    const char *sudo = "sudo -S -p \"\"";
    addRow("sudo", "SECRET", sudo,
           " echo \"SECRET\" | sudo -S -p \"\" bixPPDWrite_F 'Queue1' Option17=True  "
           "2>&1 >/dev/null");
    addRow("nothing typed", "", sudo,
           " echo \"\" | sudo -S -p \"\" bixPPDWrite_F 'Queue1' Option17=True  2>&1 >/dev/null");
    addRow("su, with what the shell acts on", "a\"b$HOME`id`'\\", "su -c",
           " echo \"a\"b$HOME`id`'\\\" | su -c \" bixPPDWrite_F 'Queue1' Option17=True \"");
    addRow("other alphabets", "Zoë€", "su -c",
           " echo \"Zoë€\" | su -c \" bixPPDWrite_F 'Queue1' Option17=True \"");
}

void TestPasswordPrompt::commandLines()
{
    QFETCH(QString, password);
    QFETCH(QString, prefix);
    QTEST(QString::fromUtf8(PpdWriter::commandLine(password, prefix, "Queue1", pair)), "line");
}

void TestPasswordPrompt::harmlessWords_data()
{
    addColumns<QString, QString, bool>("printer", "arguments", "harmless");
    addRow("two pairs", "Queue1", "Option17=True Option18=HardDisk ", true);
    addRow("every sign allowed", "a_-.+@:,/%=9", "b_-.+@:,/%=c ", true);
    addRow("other alphabets", "Büro_Ω", "Größe=Ωß ", true);
    addRow("no pair", "Queue1", "", true);
    addRow("pair without a value", "Queue1", "Option17= ", true);
    addRow("no printer", "", pair, false);
    addRow("no equals sign", "Queue1", "Option17 ", false);
    addRow("no keyword", "Queue1", "=True ", false);
    addRow("blank in a value", "Queue1", "Option17=Two words ", false);
    addRow("two blanks", "Queue1", "Option17=True  ", false);
    addRow("not ended", "Queue1", "Option17=True", false);
    const QString dangerous =
        QString("'\"`$\\;&|<>()[]{}*?!#~^\n\r\t \u00a0\u2028") + QChar(0) + QChar(0xd83d);
    for (const QChar sign : dangerous) {
        const QByteArray name = "U+" + QByteArray::number(sign.unicode(), 16);
        addRow("printer with " + name, QString("Queue") + sign, pair, false);
        addRow("value with " + name, "Queue1", QString("Option17=T") + sign + ' ', false);
    }
}

void TestPasswordPrompt::harmlessWords()
{
    QFETCH(QString, printer);
    QFETCH(QString, arguments);
    QTEST(PpdWriter::areHarmless(printer, arguments), "harmless");
}

void TestPasswordPrompt::statusOfCommands_data()
{
    addColumns<QString, int>("command", "status");
    addRow("success in spite of complaints", "echo no >&2; echo no; exit 0", 0);
    addRow("failure", "exit 3", 3);
    addRow("no such tool", "bixNoSuchTool 2>/dev/null", 127);
    addRow("tool killed", "sh -c 'kill -9 $$' 2>/dev/null", 137);
    addRow("its shell killed", "kill -9 $$", 1);
    addRow("a megabyte in one line", "head -c 1048576 /dev/zero", 0);
    // After three lines nobody listens any more; what the tool makes of that is its affair.
    addRow("a megabyte of lines, tool minds",
           "yes 2>/dev/null | head -c 1048576 2>/dev/null; exit 4", 4);
    addRow("a megabyte of lines, tool does not mind",
           "yes 2>/dev/null | head -c 1048576 2>/dev/null; exit 0", 0);
    addRow("hangs for 10 seconds", "sleep 10", 0);
}

void TestPasswordPrompt::statusOfCommands()
{
    QFETCH(QString, command);
    QTEST(PpdWriter::run(qPrintable(command)), "status");
}

void TestPasswordPrompt::judgedByOutput()
{
    RecordingDialog dialog;
    PasswordPrompt prompt(&dialog, QString());
    QVERIFY(prompt.authenticationPassed("", "sudo"));
    QVERIFY(!prompt.authenticationPassed("sudo: command not found", "sudo"));
    QVERIFY(prompt.authenticationPassed("[sudo] password for ann:", "sudo"));
    QVERIFY(!prompt.authenticationPassed("[sudo] password for ann: 1 bad attempt", "sudo"));
    QVERIFY(!prompt.authenticationPassed("", "su"));
    QVERIFY(prompt.authenticationPassed("Password:", "su"));
    QVERIFY(!prompt.authenticationPassed("password for", ""));
}

// The prompt

void TestPasswordPrompt::attempts_data()
{
    addColumns<QString, QString, QString, bool>("method", "password", "act", "succeeds");
    addRow("sudo", "sudo", "a  b'c", "exit 0", true);
    addRow("su", "su", "secret", "exit 0", true);
    addRow("wrong password, sudo", "sudo", "wrong", "exit 1", false);
    addRow("wrong password, su", "su", "wrong", "exit 1", false);
    addRow("nothing typed", "sudo", "", "exit 1", false);
    addRow("complaints but success", "sudo", "secret", "echo incorrect attempt >&2; exit 0", true);
    addRow("tool dies by a signal", "su", "secret", "kill -9 $$", false);
}

void TestPasswordPrompt::attempts()
{
    QFETCH(QString, method);
    QFETCH(QString, password);
    QFETCH(QString, act);
    QFETCH(bool, succeeds);
    StandIns standIns(act.toUtf8());
    Attempt attempt;
    bool gone = false;
    const QStringList messages =
        attempt.run([&](PasswordPrompt *prompt) { gone = answer(prompt, method, password); });
    QVERIFY(gone);
    QCOMPARE(messages, succeeds ? QStringList() : failure);
    const QString call = method == "su"
                             ? "su [-c] [ bixPPDWrite_F 'Queue1' Option17=True ] <"
                             : "sudo [-S] [-p] [] [bixPPDWrite_F] [Queue1] [Option17=True] <";
    QCOMPARE(standIns.takeCalls(), QStringList({"sudo [-k]", call + password, "sudo [-k]"}));
    const QStringList applying{"recordInstalledValues", "writeTolpoptions", "showApplied"};
    QCOMPARE(attempt.dialog.takeCalls(), succeeds ? applying : QStringList());
    QCOMPARE(attempt.dialog.closeAfterApply, succeeds);
}

void TestPasswordPrompt::nothingRuns()
{
    StandIns standIns("exit 0");
    const auto outcome = [&](const QString &printer, const QString &pairs,
                             const std::function<void(PasswordPrompt *)> &act) {
        Attempt attempt(printer);
        const QStringList messages = attempt.run(act, pairs);
        const QString closes = attempt.dialog.closeAfterApply ? "the main dialog closes" : "";
        return messages + attempt.dialog.takeCalls() + standIns.takeCalls() +
               closes.split('\n', Qt::SkipEmptyParts);
    };
    const auto ok = [](PasswordPrompt *prompt) { answer(prompt); };
    const auto okWithoutPrinter = [](PasswordPrompt *prompt) {
        currentStore = nullptr;
        answer(prompt);
    };
    QCOMPARE(outcome("Queue1'; touch /tmp/owned; '", pair, ok), failure);
    QCOMPARE(outcome("Queue1", "Option17=$(id) ", ok), failure);
    QCOMPARE(outcome("Queue1", "Option17=a b ", ok), failure);
    QCOMPARE(outcome("Queue1", pair, okWithoutPrinter), failure);
    QCOMPARE(outcome("Queue1", pair, &QWidget::close), QStringList());
}

void TestPasswordPrompt::untraceableWhileOpen()
{
    const int outer = prctl(PR_GET_DUMPABLE);
    StandIns standIns("exit 0");
    for (const int before : {1, 0}) {
        QCOMPARE(prctl(PR_SET_DUMPABLE, before), 0);
        int meanwhile = -1;
        Attempt().run([&meanwhile](PasswordPrompt *prompt) {
            meanwhile = prctl(PR_GET_DUMPABLE);
            answer(prompt);
        });
        const int after = prctl(PR_GET_DUMPABLE);
        prctl(PR_SET_DUMPABLE, outer);
        QCOMPARE(meanwhile, 0);
        QCOMPARE(after, before);
    }
}

void TestPasswordPrompt::applyToTheEnd_data()
{
    addColumns<QString, bool, bool>("method", "byOk", "succeeds");
    addRow("Apply with sudo", "sudo", false, true);
    addRow("OK with su", "su", true, true);
    addRow("Apply with a wrong password", "sudo", false, false);
    addRow("OK with a wrong password", "su", true, false);
}

void TestPasswordPrompt::applyToTheEnd()
{
    QFETCH(QString, method);
    QFETCH(bool, byOk);
    QFETCH(bool, succeeds);
    // The queue's PPD is as it came, each time.
    QVERIFY2((server.isRunning() || server.start()) &&
                 server.addQueue("Office_C3", "demo/ppd/px4500.ppd"),
             qPrintable(server.error()));
    QVERIFY(makeUserFolder());
    StandIns standIns("[ \"$password\" = right ] || exit 1\nexec \"$@\"\n");
    QVERIFY(QFile::link(PrintServer::sourceFile("demo/bixPPDWrite_F"),
                        standIns.filePath("bixPPDWrite_F")));
    MessageBoxes boxes;
    BixDialog dialog;
    dialog.show();
    QTableWidget *table = dialog.findChild<PrinterTab *>()->table();
    table->setCurrentItem(table->findItems("Office_C3", Qt::MatchExactly).value(0));
    QTRY_VERIFY(findNamed<ComboBoxEx>(&dialog, "cmbBxOption17"));
    findNamed<ComboBoxEx>(&dialog, "cmbBxOption17")->setCurrentText("Booklet finisher");
    const auto *warning = findNamed<QLabel>(&dialog, "lblRootWarning");
    QVERIFY(warning); // it shows
    const QString cfg = cfgFile("Office_C3");
    QVERIFY(QFile::remove(cfg)); // written at first contact

    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QPushButton *apply = buttons->button(QDialogButtonBox::Apply);
    QPushButton *first = byOk ? buttons->button(QDialogButtonBox::Ok) : apply;
    QVERIFY(whileOpen<PasswordPrompt>(
        [first] { first->click(); },
        [&](PasswordPrompt *prompt) { answer(prompt, method, succeeds ? "right" : "wrong"); }));
    QCOMPARE(boxes.take(), succeeds ? success : failure);
    QCOMPARE(warning->isHidden(), succeeds);
    QCOMPARE(QFile::exists(cfg), succeeds);
    QCOMPARE(dialog.isVisible(), !(succeeds && byOk));
    QCOMPARE(fileText("/etc/cups/ppd/Office_C3.ppd").contains("*DefaultOption17: Finisher2\n"),
             succeeds);
    QCOMPARE(standIns.takeCalls().size(), 3);

    // Once written an Apply is an ordinary one; else it asks again.
    QCOMPARE(whileOpen<PasswordPrompt>([apply] { apply->click(); }, [](PasswordPrompt *) {}),
             !succeeds);
    QCOMPARE(boxes.take(), succeeds ? success : QStringList());
    QCOMPARE(standIns.takeCalls(), QStringList());
}

QTEST_MAIN(TestPasswordPrompt)

#include "tst_passwordprompt.moc"
