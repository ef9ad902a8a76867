// The prompt for the root password: what it runs, and how it goes on. Recording stand-ins take the
// place of sudo and su; the tool is the one of the demo, with a scheduler of its own.

#include "app/bixdialog.h"
#include "model/optionstore.h"
#include "pages/printertab.h"
#include "privileged/passwordprompt.h"
#include "privileged/ppdwriter.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "widgets/comboboxex.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <sys/prctl.h>

namespace {

const QString failure = QStringLiteral("Error: Could not authorize.");
const QString success = QStringLiteral("Success: Settings applied.");

/// A row of test data; texts may be literals.
template <typename... Cells>
void addRow(const char *name, const Cells &...cells)
{
    (QTest::newRow(name) << ... << cells);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
                                "printf ' [%s]' \"$@\" >>calls\n";
        write("sudo", note +
                          "[ \"$1\" != -k ] || { echo >>calls; exit 0; }\n"
                          "IFS= read -r password\n"
                          "printf ' <%s\\n' \"$password\" >>calls\n"
                          "shift 3\n" +
                          act);
        write("su", note +
                        "IFS= read -r password\n"
                        "printf ' <%s\\n' \"$password\" >>calls\n"
                        "eval \"set -- $2\"\n" +
                        act);
        qputenv("PATH", folder.path().toLocal8Bit() + ':' + outerPath);
    }
    ~StandIns() { qputenv("PATH", outerPath); }

    QString filePath(const char *name) const { return folder.filePath(QLatin1String(name)); }
    void write(const char *name, const QByteArray &text)
    {
        QFile file(filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("can't write %s", name);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// What has been run since the last call, a line each.
    QStringList takeCalls()
    {
        const QString file = filePath("calls");
        const QString text = QString::fromUtf8(contents(file));
        QFile::remove(file);
        return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir folder;
    const QByteArray outerPath = qgetenv("PATH");
};

/// Answers the prompt and every message box, and keeps what the boxes said.
class User : public QObject
{
public:
    QString method = QStringLiteral("sudo");
    QString password = QStringLiteral("secret");
    bool closes = false;             ///< instead of OK
    int dumpable = -1;               ///< of the process while the prompt is open
    QStringList texts;               ///< title and text of the boxes
    QStringList names;               ///< accessible names in the prompt
    std::function<void()> meanwhile; ///< runs before the prompt is answered

    User()
    {
        connect(&timer, &QTimer::timeout, this, &User::act);
        timer.start(5);
    }

private:
    void act()
    {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            texts.append(box->windowTitle() + QStringLiteral(": ") + box->text());
            box->accept();
        } else if (auto *prompt = qobject_cast<PasswordPrompt *>(modal)) {
            timer.stop(); // a nested loop asks for nothing more than boxes
            answer(prompt);
            timer.start(5);
        }
    }

    void answer(PasswordPrompt *prompt)
    {
        dumpable = prctl(PR_GET_DUMPABLE);
        auto *edit = prompt->findChild<QLineEdit *>();
        auto *box = prompt->findChild<ComboBoxEx *>();
        for (const QWidget *widget :
             std::initializer_list<const QWidget *>{edit, box, prompt->findChild<QPushButton *>()})
            names.append(widget->accessibleName());
        if (meanwhile)
            meanwhile();
        if (closes) {
            prompt->close();
            return;
        }
        box->setCurrentText(method);
        edit->setText(password);
        // Once back in the event loop, since the timer has to go on for the boxes.
        QTimer::singleShot(0, prompt, [edit] { QTest::keyClick(edit, Qt::Key_Return); });
    }

    QTimer timer;
};

/// A prompt for one printer, and what becomes of it.
struct Attempt
{
    explicit Attempt(const QString &printer = QStringLiteral("Queue1"))
    {
        dialog.selectPrinter(QString());
        currentStore->setPrinterName(printer);
        dialog.closeAfterApply = true;
    }
    /// The messages of the prompt.
    QStringList run(const QString &arguments = QStringLiteral("Option17=True "))
    {
        PasswordPrompt prompt(&dialog, arguments);
        prompt.exec();
        hidden = !prompt.isVisible();
        keptPassword = !prompt.findChild<QLineEdit *>()->text().isEmpty();
        return std::exchange(user.texts, {});
    }

    RecordingDialog dialog;
    User user;
    bool hidden = false;
    bool keptPassword = false;
};

const QStringList afterSuccess{QStringLiteral("recordInstalledValues"),
                               QStringLiteral("writeTolpoptions"), QStringLiteral("showApplied")};
const QStringList forgets{QStringLiteral("sudo [-k]")};

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
    void judgedByOutput_data();
    void judgedByOutput();

    void attempts_data();
    void attempts();
    void nothingForTheShell_data();
    void nothingForTheShell();
    void closedUnanswered();
    void printerVanishes();
    void untraceableWhileOpen_data();
    void untraceableWhileOpen();

    void standInTool_data();
    void standInTool();
    void applyToTheEnd_data();
    void applyToTheEnd();

private:
    bool laidOut();

    PrintServer server; // one for all, since libcups stays with the first
};

/// A scheduler with one queue, whose PPD is as it came.
bool TestPasswordPrompt::laidOut()
{
    return (server.isRunning() || server.start()) &&
           server.addQueue(QStringLiteral("Office_C3"), QStringLiteral("demo/ppd/px4500.ppd"));
}

// The command

void TestPasswordPrompt::commandLines_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QByteArray>("line");
    const char *sudo = "sudo -S -p \"\"";
    const auto row = [](const char *name, const char *password, const char *prefix,
                        const QByteArray &line) {
        addRow(name, QString::fromUtf8(password), QString::fromLatin1(prefix), line);
    };
    row("sudo", "SECRET", sudo,
        " echo \"SECRET\" | sudo -S -p \"\" bixPPDWrite_F 'Queue1' Option17=True  2>&1 >/dev/null");
    row("su", "SECRET", "su -c",
        " echo \"SECRET\" | su -c \" bixPPDWrite_F 'Queue1' Option17=True \"");
    row("nothing typed", "", sudo,
        " echo \"\" | sudo -S -p \"\" bixPPDWrite_F 'Queue1' Option17=True  2>&1 >/dev/null");
    row("what the shell acts on", "a\"b$HOME`id`'\\", "su -c",
        " echo \"a\"b$HOME`id`'\\\" | su -c \" bixPPDWrite_F 'Queue1' Option17=True \"");
    row("other alphabets", "Zoë€", "su -c",
        " echo \"Zoë€\" | su -c \" bixPPDWrite_F 'Queue1' Option17=True \"");
}

void TestPasswordPrompt::commandLines()
{
    QFETCH(QString, password);
    QFETCH(QString, prefix);
    QTEST(PpdWriter::commandLine(password, prefix, QStringLiteral("Queue1"),
                                 QStringLiteral("Option17=True ")),
          "line");
}

void TestPasswordPrompt::harmlessWords_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("harmless");
    const auto row = [](const char *name, const QString &printer, const QString &arguments,
                        bool harmless) { addRow(name, printer, arguments, harmless); };
    const QString queue = QStringLiteral("Queue1");
    const QString pair = QStringLiteral("Option17=True ");
    row("two pairs", queue, pair + QStringLiteral("Option18=HardDisk "), true);
    row("every sign allowed", QStringLiteral("a_-.+@:,/%=9"), QStringLiteral("b_-.+@:,/%=c "),
        true);
    row("other alphabets", QString::fromUtf8("Büro_Ω"), QString::fromUtf8("Größe=Ωß "), true);
    row("no pair", queue, QString(), true);
    row("pair without a value", queue, QStringLiteral("Option17= "), true);
    row("no printer", QString(), pair, false);
    row("no equals sign", queue, QStringLiteral("Option17 "), false);
    row("no keyword", queue, QStringLiteral("=True "), false);
    row("blank in a value", queue, QStringLiteral("Option17=Two words "), false);
    row("two blanks", queue, QStringLiteral("Option17=True  "), false);
    row("not ended", queue, QStringLiteral("Option17=True"), false);
    const QString dangerous =
        QString::fromUtf8("'\"`$\\;&|<>()[]{}*?!#~^\n\r\t \u00a0\u2028") + QChar(0) + QChar(0xd83d);
    for (const QChar sign : dangerous) {
        const QByteArray name = "U+" + QByteArray::number(sign.unicode(), 16);
        row(("printer with " + name).constData(), QStringLiteral("Queue") + sign, pair, false);
        row(("value with " + name).constData(), queue, QStringLiteral("Option17=T") + sign + " ",
            false);
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
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, const char *command, int status) {
        addRow(name, QByteArray(command), status);
    };
    row("success", "true", 0);
    row("failure", "exit 3", 3);
    row("complaint and success", "echo no >&2; echo no; exit 0", 0);
    row("no such tool", "bixNoSuchTool 2>/dev/null", 127);
    row("tool killed", "sh -c 'kill -9 $$' 2>/dev/null", 137);
    row("its shell killed", "kill -9 $$", 1);
    row("a megabyte in one line", "head -c 1048576 /dev/zero", 0);
    // After three lines nobody listens any more; what the tool makes of that is its affair.
    row("a megabyte of lines, tool minds", "yes 2>/dev/null | head -c 1048576 2>/dev/null; exit 4",
        4);
    row("a megabyte of lines, tool does not mind",
        "yes 2>/dev/null | head -c 1048576 2>/dev/null; exit 0", 0);
    row("hangs for 10 seconds", "sleep 10", 0);
}

void TestPasswordPrompt::statusOfCommands()
{
    QFETCH(QByteArray, command);
    QTEST(PpdWriter::run(command.constData()), "status");
}

void TestPasswordPrompt::judgedByOutput_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("passed");
    addRow("sudo is silent", "sudo", "", true);
    addRow("sudo says something else", "sudo", "sudo: command not found", false);
    addRow("sudo asks", "sudo", "[sudo] password for ann:", true);
    addRow("sudo asks again", "sudo", "[sudo] password for ann: 1 incorrect attempt", false);
    addRow("su is silent", "su", "", false);
    addRow("su says something", "su", "Password:", true);
    addRow("neither", "doas", "", false);
    addRow("neither, with words", "", "password for", false);
}

void TestPasswordPrompt::judgedByOutput()
{
    QFETCH(QString, root);
    QFETCH(QString, message);
    RecordingDialog dialog;
    PasswordPrompt prompt(&dialog, QString());
    bool passed = false;
    QVERIFY(QMetaObject::invokeMethod(&prompt, "authenticationPassed", Q_RETURN_ARG(bool, passed),
                                      Q_ARG(QString, message), Q_ARG(QString, root)));
    QTEST(passed, "passed");
}

// The prompt

void TestPasswordPrompt::attempts_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("act");
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("succeeds");
    const auto row = [](const char *name, const char *method, const char *password, const char *act,
                        const char *call, bool succeeds) {
        addRow(name, QString::fromLatin1(method), QString::fromLatin1(password), QByteArray(act),
               QString::fromLatin1(call), succeeds);
    };
    const char *bySudo = "sudo [-S] [-p] [] [bixPPDWrite_F] [Queue1] [Option17=True] <%1";
    const char *bySu = "su [-c] [ bixPPDWrite_F 'Queue1' Option17=True ] <%1";
    row("sudo", "sudo", "secret", "exit 0", bySudo, true);
    row("su", "su", "secret", "exit 0", bySu, true);
    row("wrong password, sudo", "sudo", "wrong", "exit 1", bySudo, false);
    row("wrong password, su", "su", "wrong", "exit 1", bySu, false);
    row("nothing typed", "sudo", "", "exit 1", bySudo, false);
    row("complaints but success", "sudo", "secret", "echo incorrect password attempt >&2; exit 0",
        bySudo, true);
    row("tool dies by a signal", "su", "secret", "kill -9 $$", bySu, false);
    row("blanks and apostrophes", "sudo", "a  b'c", "exit 0", bySudo, true);
}

void TestPasswordPrompt::attempts()
{
    QFETCH(QString, method);
    QFETCH(QString, password);
    QFETCH(QByteArray, act);
    QFETCH(QString, call);
    QFETCH(bool, succeeds);
    StandIns standIns(act);
    Attempt attempt;
    attempt.user.method = method;
    attempt.user.password = password;
    QCOMPARE(attempt.run(), succeeds ? QStringList() : QStringList{failure});
    QCOMPARE(standIns.takeCalls(), forgets + QStringList{call.arg(password)} + forgets);
    QCOMPARE(attempt.dialog.takeCalls(), succeeds ? afterSuccess : QStringList());
    QCOMPARE(attempt.dialog.closeAfterApply, succeeds);
    QVERIFY(attempt.hidden && !attempt.keptPassword);
    for (const QString &name : qAsConst(attempt.user.names))
        QVERIFY(!name.isEmpty());
}

void TestPasswordPrompt::nothingForTheShell_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("arguments");
    addRow("printer that ends its quotes", "Queue1'; touch /tmp/owned; '", "Option17=True ");
    addRow("value that starts a command", "Queue1", "Option17=$(id) ");
    addRow("value in two words", "Queue1", "Option17=a b ");
}

void TestPasswordPrompt::nothingForTheShell()
{
    QFETCH(QString, printer);
    QFETCH(QString, arguments);
    StandIns standIns("exit 0");
    Attempt attempt(printer);
    QCOMPARE(attempt.run(arguments), QStringList{failure});
    QCOMPARE(standIns.takeCalls(), QStringList());
    QCOMPARE(attempt.dialog.takeCalls(), QStringList());
    QVERIFY(attempt.hidden && !attempt.dialog.closeAfterApply);
}

void TestPasswordPrompt::closedUnanswered()
{
    StandIns standIns("exit 0");
    Attempt attempt;
    attempt.user.closes = true;
    QCOMPARE(attempt.run(), QStringList());
    QCOMPARE(standIns.takeCalls(), QStringList());
    QCOMPARE(attempt.dialog.takeCalls(), QStringList());
    QVERIFY(attempt.hidden && !attempt.dialog.closeAfterApply);
}

void TestPasswordPrompt::printerVanishes()
{
    StandIns standIns("exit 0");
    Attempt attempt;
    attempt.user.meanwhile = [] { currentStore = nullptr; };
    QCOMPARE(attempt.run(), QStringList{failure});
    QCOMPARE(standIns.takeCalls(), QStringList());
    QVERIFY(attempt.hidden && !attempt.dialog.closeAfterApply);
}

void TestPasswordPrompt::untraceableWhileOpen_data()
{
    QTest::addColumn<int>("before");
    addRow("ordinary", 1);
    addRow("already protected", 0);
}

void TestPasswordPrompt::untraceableWhileOpen()
{
    QFETCH(int, before);
    const int outer = prctl(PR_GET_DUMPABLE);
    QCOMPARE(prctl(PR_SET_DUMPABLE, before), 0);
    StandIns standIns("exit 0");
    Attempt attempt;
    attempt.run();
    const int after = prctl(PR_GET_DUMPABLE);
    prctl(PR_SET_DUMPABLE, outer);
    QCOMPARE(attempt.user.dumpable, 0);
    QCOMPARE(after, before);
}

// With the tool

void TestPasswordPrompt::standInTool_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArrayList>("defaults");
    const QByteArrayList before{"*DefaultOption17: None", "*DefaultOption18: None"};
    const auto row = [](const char *name, const QStringList &arguments, int status,
                        const QByteArrayList &defaults) {
        addRow(name, arguments, status, defaults);
    };
    const QString queue = QStringLiteral("Office_C3");
    row("two options",
        {queue, QStringLiteral("Option18=HardDisk"), QStringLiteral("Option17=Finisher2")}, 0,
        {"*DefaultOption17: Finisher2", "*DefaultOption18: HardDisk"});
    row("no option", {queue}, 0, before);
    row("unknown option",
        {queue, QStringLiteral("Option17=Finisher2"), QStringLiteral("Nonsense=1")}, 1, before);
    row("unknown choice", {queue, QStringLiteral("Option17=Fin")}, 1, before);
    row("no pair", {queue, QStringLiteral("Option17")}, 1, before);
    row("unknown printer", {QStringLiteral("Nobody"), QStringLiteral("Option17=Finisher2")}, 1,
        before);
    row("nothing", {}, 1, before);
}

void TestPasswordPrompt::standInTool()
{
    QFETCH(QStringList, arguments);
    QVERIFY2(laidOut(), qPrintable(server.error()));
    QProcess tool;
    tool.start(PrintServer::sourceFile(QStringLiteral("demo/bixPPDWrite_F")), arguments);
    QVERIFY(tool.waitForFinished());
    QTEST(tool.exitCode(), "status");
    QCOMPARE(tool.readAllStandardError().isEmpty(), tool.exitCode() == 0);
    const QByteArrayList lines =
        contents(QStringLiteral("/etc/cups/ppd/Office_C3.ppd")).split('\n');
    QFETCH(QByteArrayList, defaults);
    for (const QByteArray &line : qAsConst(defaults))
        QVERIFY2(lines.contains(line), line.constData());
}

void TestPasswordPrompt::applyToTheEnd_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<bool>("byOk");
    QTest::addColumn<QByteArray>("expected"); // password
    QTest::addColumn<bool>("succeeds");
    const QByteArray right = "secret";
    const QByteArray wrong = "other";
    addRow("Apply with sudo", "sudo", false, right, true);
    addRow("OK with su", "su", true, right, true);
    addRow("Apply with a wrong password", "sudo", false, wrong, false);
    addRow("OK with a wrong password", "su", true, wrong, false);
}

void TestPasswordPrompt::applyToTheEnd()
{
    QFETCH(QString, method);
    QFETCH(bool, byOk);
    QFETCH(QByteArray, expected);
    QFETCH(bool, succeeds);
    QVERIFY2(laidOut(), qPrintable(server.error()));
    const QDir folder(QStringLiteral("/usr/share/brixola/tester"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QFile answer(folder.filePath(QStringLiteral("Settings")));
    QVERIFY(answer.open(QIODevice::WriteOnly)); // nobody asks about data collection
    StandIns standIns("[ \"$password\" = " + expected + " ] || exit 1\nexec \"$@\"\n");
    QVERIFY(QFile::link(PrintServer::sourceFile(QStringLiteral("demo/bixPPDWrite_F")),
                        standIns.filePath("bixPPDWrite_F")));

    User user;
    user.method = method;
    BixDialog dialog;
    dialog.show();
    QTableWidget *table = dialog.findChild<PrinterTab *>()->table();
    table->setCurrentItem(table->findItems(QStringLiteral("Office_C3"), Qt::MatchExactly).value(0));
    QLabel *warning = nullptr;
    ComboBoxEx *finisher = nullptr;
    for (auto *label : dialog.findChildren<QLabel *>())
        if (label->accessibleName() == QLatin1String("lblRootWarning"))
            warning = label;
    for (auto *box : dialog.findChildren<ComboBoxEx *>())
        if (box->accessibleName() == QLatin1String("cmbBxOption17"))
            finisher = box;
    QVERIFY(warning && finisher);
    finisher->setCurrentText(QStringLiteral("Booklet finisher"));
    QVERIFY(!warning->isHidden());
    const QString cfg = folder.filePath(QStringLiteral("Office_C3.cfg"));
    QVERIFY(QFile::remove(cfg)); // written at first contact

    dialog.findChild<QDialogButtonBox *>()
        ->button(byOk ? QDialogButtonBox::Ok : QDialogButtonBox::Apply)
        ->click();
    QCOMPARE(user.texts, QStringList{succeeds ? success : failure});
    QCOMPARE(warning->isHidden(), succeeds);
    QCOMPARE(QFile::exists(cfg), succeeds);
    QCOMPARE(dialog.isVisible(), !(succeeds && byOk));
    QCOMPARE(contents(QStringLiteral("/etc/cups/ppd/Office_C3.ppd"))
                 .contains("*DefaultOption17: Finisher2\n"),
             succeeds);
    QCOMPARE(standIns.takeCalls().size(), 3);

    // Once written an Apply is an ordinary one; else it asks again.
    user.closes = true;
    user.texts.clear();
    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply)->click();
    QCOMPARE(user.texts, succeeds ? QStringList{success} : QStringList());
    QCOMPARE(standIns.takeCalls(), QStringList());
    QFile::remove(cfg);
}

QTEST_MAIN(TestPasswordPrompt)

#include "tst_passwordprompt.moc"
