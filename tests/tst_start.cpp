// What happens before the main window is there: the recorded answer about data collection, and
// root's being turned away.

#include "support/paneldriver.h"
#include "support/testhelpers.h"

#include <QDir>

namespace {

const QString systemFolder = "/usr/share/brixola/";
const QString program = PRESSDESK_PROGRAM;
/// Makes the rest of a command line root, of a user namespace of its own.
const QStringList asRoot{"unshare", "--map-root-user"};

/// What a run of the program on no display has come to; "well" for one that ended by itself, with
/// status 0 and without a word. An empty name for no such variable.
QByteArray runWithoutDisplay(QStringList command, const QString &user = "tester")
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "USER"})
        environment.remove(name);
    environment.remove("QT_HASH_SEED"); // Qt remarks on most of its values
    // Qt ends the program here as soon as it is asked for a window.
    environment.insert("QT_QPA_PLATFORM", "xcb");
    if (!user.isEmpty())
        environment.insert("USER", user);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString first = command.takeFirst();
    process.start(first, command);
    const bool well = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
                      process.exitCode() == 0;
    const QByteArray output = process.readAll();
    return well && output.isEmpty() ? "well" : "not well: " + output;
}

} // namespace

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void telemetryAnswer_data();
    void telemetryAnswer();
    void telemetryFolder_data();
    void telemetryFolder();
    void otherArgumentsOpenTheWindow();
    void rootIsTurnedAway();

private:
    const QDir folder{systemFolder + "tester"};
    const QString settings = folder.filePath("Settings");
};

void TestStart::init()
{
    QVERIFY(QDir(folder).removeRecursively());
    QFile::remove(systemFolder + "Settings");
}

void TestStart::telemetryAnswer_data()
{
    // Of the settings file "-" means that it isn't there, "--" neither is its folder, "+" that a
    // folder is in its place; "/" stands for a line's end.
    addRows({"arguments", "before", "after"}, R"(
-t True                              | -t,True                   | --                           | Telemetry=True/
-t false                             | -t,false                  | --                           | Telemetry=False/
--telemetry true                     | --telemetry,true          | --                           | Telemetry=True/
behind another word                  | report.pdf,-t,False       | --                           | Telemetry=False/
the first of two counts              | --telemetry,True,-t,False | --                           | Telemetry=True/
the whole file is replaced           | -t,true                   | Telemetry=False/Language=de/ | Telemetry=True/
without an answer nothing is touched | -t                        | --                           | --
without an answer the file stays     | --telemetry               | Language=de/                 | Language=de/
capitals are no answer               | -t,TRUE                   | --                           | -
an empty word is no answer           | -t,                       | --                           | -
the option is no answer              | -t,-t,True                | --                           | -
what is no answer leaves the file    | -t,maybe                  | Language=de/                 | Language=de/
a file that can't be opened          | -t,True                   | +                            | +
)");
}

void TestStart::telemetryAnswer()
{
    QFETCH(QString, arguments);
    QFETCH(QString, before);
    if (before == "+")
        QVERIFY(folder.mkpath("Settings"));
    else if (before != "--")
        QVERIFY(folder.mkpath(".") && setFileText(settings, before.replace('/', '\n').toUtf8()));
    QCOMPARE(runWithoutDisplay(QStringList(program) + arguments.split(',')), QByteArray("well"));
    QString after = folder.exists() ? "-" : "--";
    if (QFileInfo(settings).isDir())
        after = "+";
    else if (QFile::exists(settings))
        after = fileText(settings).replace('\n', '/');
    QTEST(after, "after");
}

void TestStart::telemetryFolder_data()
{
    // "-" where nothing can be written.
    addRows({"user", "file"}, R"(
a name beyond ASCII             | jürgen      | jürgen/Settings
no user                         |             | Settings
one folder is made, and not two | office/jane | -
)");
}

void TestStart::telemetryFolder()
{
    QFETCH(QString, user);
    QFETCH(QString, file);
    const QDir system(systemFolder);
    const int before = system.entryList().size();
    QCOMPARE(runWithoutDisplay({program, "--telemetry", "True"}, user), QByteArray("well"));
    if (file == "-")
        QCOMPARE(system.entryList().size(), before);
    else
        QCOMPARE(fileText(system.filePath(file)), QByteArray("Telemetry=True\n"));
}

void TestStart::otherArgumentsOpenTheWindow()
{
    const QByteArray answer = "Telemetry=False\n"; // so that it is not asked for
    QVERIFY(folder.mkpath(".") && setFileText(settings, answer));
    for (const QString arguments : {"report.pdf", "-T True", "--telemetry=True"}) {
        PanelDriver panel(program);
        QVERIFY2(panel.start(arguments.split(' ')), qPrintable(panel.error()));
        QCOMPARE(panel.windowTitle(), QString("Brixola Press Desk"));
        QCOMPARE(fileText(settings), answer);
    }
}

void TestStart::rootIsTurnedAway()
{
    PanelDriver panel(program);
    panel.setLauncher(asRoot); // the sandbox around this test takes user namespaces too
    for (const bool byButton : {true, false}) {
        QVERIFY2(panel.start(), qPrintable(panel.error()));
        QCOMPARE(panel.messageBox().title, QString("Press Desk"));
        QCOMPARE(panel.messageBox().text, QString("Please do not run  as root."));
        for (const QJsonObject &window : panel.windows())
            QVERIFY(window.value("class") == "QMessageBox" || !window.value("visible").toBool());

        QVERIFY2(byButton ? panel.click(PanelWidget::standardButton("Ok"))
                          : panel.closeWindow(PanelWidget::ofClass("QMessageBox")),
                 qPrintable(panel.error()));
        QVERIFY2(panel.waitForEnd(), qPrintable(panel.error()));
        QCOMPARE(panel.exitStatus(), 0);
        QCOMPARE(panel.standardError(), QString());
        QVERIFY(!folder.exists());
    }
    // The answer about data collection is recorded all the same.
    QCOMPARE(runWithoutDisplay(asRoot + QStringList{program, "-t", "True"}), QByteArray("well"));
    QCOMPARE(fileText(settings), QByteArray("Telemetry=True\n"));
}

QTEST_GUILESS_MAIN(TestStart)
#include "tst_start.moc"
