// What happens before the main window is there: the recorded answer about data collection, and
// root's being turned away.

#include "support/paneldriver.h"
#include "support/testhelpers.h"

#include <QDir>
#include <QtTest>

namespace {

const QString systemFolder = "/usr/share/brixola/";
const QString program = PRESSDESK_PROGRAM;
/// Makes the rest of a command line root, of a user namespace of its own.
const QStringList asRoot{"unshare", "--map-root-user"};

QProcessEnvironment environmentWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.remove("QT_HASH_SEED"); // Qt remarks on most of its values
    // Qt ends the program here as soon as it is asked for a window.
    environment.insert("QT_QPA_PLATFORM", "xcb");
    return environment;
}

/// What a run of the program on no display has come to; "well" for one that ended by itself, with
/// status 0 and without a word.
QByteArray runWithoutDisplay(QStringList command,
                             const QProcessEnvironment &environment = environmentWithoutDisplay())
{
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
    void telemetryFileInTheWay();
    void otherArgumentsOpenTheWindow_data();
    void otherArgumentsOpenTheWindow();
    void rootIsTurnedAway_data();
    void rootIsTurnedAway();

private:
    const QDir folder{systemFolder + "tester"};
    const QString settings = folder.filePath("Settings");
};

void TestStart::init()
{
    // A test may have taken its own rights.
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(QDir(folder).removeRecursively());
    QFile::remove(systemFolder + "Settings");
}

void TestStart::telemetryAnswer_data()
{
    // Of the settings file "-" means that it isn't there, "--" neither is its folder; "/" stands
    // for a line's end.
    addRows({"arguments", "before", "after"}, R"(
-t True                                 | -t,True                    | --                           | Telemetry=True/
-t false                                | -t,false                   | --                           | Telemetry=False/
--telemetry true                        | --telemetry,true           | --                           | Telemetry=True/
behind another word                     | report.pdf,-t,False        | --                           | Telemetry=False/
the first of two counts                 | --telemetry,True,-t,False  | --                           | Telemetry=True/
the whole file is replaced              | -t,true                    | Telemetry=False/Language=de/ | Telemetry=True/
without an answer nothing is touched    | -t                         | --                           | --
without an answer the file stays        | --telemetry                | Language=de/                 | Language=de/
capitals are no answer                  | -t,TRUE                    | --                           | -
an empty word is no answer              | -t,                        | --                           | -
the option is no answer                 | -t,-t,True                 | --                           | -
what is no answer leaves the file       | -t,maybe                   | Language=de/                 | Language=de/
)");
}

void TestStart::telemetryAnswer()
{
    QFETCH(QString, arguments);
    QFETCH(QString, before);
    if (before != "--")
        QVERIFY(folder.mkpath(".") && setFileText(settings, before.replace('/', '\n').toUtf8()));
    QCOMPARE(runWithoutDisplay(QStringList(program) + arguments.split(',')), QByteArray("well"));
    QString after = folder.exists() ? "-" : "--";
    if (QFile::exists(settings))
        after = QString::fromUtf8(fileText(settings).replace('\n', '/'));
    QTEST(after, "after");
}

void TestStart::telemetryFolder_data()
{
    QTest::addColumn<QString>("user"); // null for no such variable
    QTest::addColumn<QString>("file"); // empty if nothing can be written
    addRow("a name beyond ASCII", QString::fromUtf8("jürgen"),
           QString::fromUtf8("jürgen/Settings"));
    addRow("no user", QString(), "Settings");
    addRow("one folder is made, not two", "office/jane", "");
}

void TestStart::telemetryFolder()
{
    QFETCH(QString, user);
    QFETCH(QString, file);
    QProcessEnvironment environment = environmentWithoutDisplay();
    environment.remove("USER");
    if (!user.isNull())
        environment.insert("USER", user);
    const QDir system(systemFolder);
    const QStringList before = system.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QCOMPARE(runWithoutDisplay({program, "--telemetry", "True"}, environment), QByteArray("well"));
    QStringList made = system.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &entry : before)
        made.removeAll(entry);
    QCOMPARE(made.join(' '), file.section('/', 0, 0));
    if (!file.isEmpty())
        QCOMPARE(fileText(systemFolder + file), QByteArray("Telemetry=True\n"));
}

void TestStart::telemetryFileInTheWay()
{
    // A folder where the file should be can't be opened, and an answer is no reason to stop anyone.
    QVERIFY(folder.mkpath("Settings"));
    QCOMPARE(runWithoutDisplay({program, "-t", "True"}), QByteArray("well"));
    QVERIFY(QFileInfo(settings).isDir());

    QVERIFY(QDir(settings).removeRecursively());
    QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(runWithoutDisplay({program, "-t", "True"}), QByteArray("well"));
    QVERIFY(!QFile::exists(settings));
}

void TestStart::otherArgumentsOpenTheWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    addRow("a file", QStringList("report.pdf"));
    addRow("capital letter", QStringList{"-T", "True"});
    addRow("answer behind an equals sign", QStringList("--telemetry=True"));
}

void TestStart::otherArgumentsOpenTheWindow()
{
    QFETCH(QStringList, arguments);
    const QByteArray answer = "Telemetry=False\n"; // so that it is not asked for
    QVERIFY(folder.mkpath(".") && setFileText(settings, answer));
    PanelDriver panel(program);
    QVERIFY2(panel.start(arguments), qPrintable(panel.error()));
    QCOMPARE(panel.windowTitle(), QString("Brixola Press Desk"));
    QCOMPARE(fileText(settings), answer);
}

void TestStart::rootIsTurnedAway_data()
{
    QTest::addColumn<bool>("byButton");
    addRow("the message's button", true);
    addRow("the frame's close button", false);
}

void TestStart::rootIsTurnedAway()
{
    QFETCH(bool, byButton);
    PanelDriver panel(program);
    panel.setLauncher(asRoot); // the sandbox around this test takes user namespaces too
    QVERIFY2(panel.start(), qPrintable(panel.error()));
    QCOMPARE(panel.messageBox().title, QString("Press Desk"));
    QCOMPARE(panel.messageBox().text, QString("Please do not run  as root."));
    const auto windows = panel.windows();
    for (const QJsonObject &window : windows)
        QVERIFY(window.value("class") == "QMessageBox" || !window.value("visible").toBool());

    QVERIFY2(byButton ? panel.click(PanelWidget::standardButton("Ok"))
                      : panel.closeWindow(PanelWidget::ofClass("QMessageBox")),
             qPrintable(panel.error()));
    QVERIFY2(panel.waitForEnd(), qPrintable(panel.error()));
    QCOMPARE(panel.exitStatus(), 0);
    QCOMPARE(panel.standardError(), QString());
    QVERIFY(!folder.exists());

    // The answer about data collection is recorded all the same.
    QCOMPARE(runWithoutDisplay(asRoot + QStringList{program, "-t", "True"}), QByteArray("well"));
    QCOMPARE(fileText(settings), QByteArray("Telemetry=True\n"));
}

QTEST_GUILESS_MAIN(TestStart)
#include "tst_start.moc"
