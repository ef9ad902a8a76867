// The about dialogs: each by itself, at scale factor 2, and as the unchanged program shows them.

#include "app/aboutdialog.h"
#include "app/licensedialog.h"
#include "app/telemetrydialog.h"
#include "storage/settingsfile.h"
#include "support/panelsteps.h"
#include "support/testhelpers.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <QTimer>

namespace {

constexpr int scaleFactor = 2;

const QString settingsFile = "/usr/share/brixola/tester/Settings";

const PanelWidget textEdit = PanelWidget::ofClass("QTextEdit");
const PanelWidget okButton = PanelWidget::standardButton("Ok");
const PanelWidget question = PanelWidget::ofClass("TelemetryDialog");
const PanelWidget mainWindow = PanelWidget::ofClass("BixDialog");

} // namespace

class TestAbout : public QObject
{
    Q_OBJECT

public:
    /// Called before the application object is made.
    static void initMain()
    {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scaleFactor));
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    }

private slots:
    void initTestCase();
    void init();
    void recordedAnswer_data();
    void recordedAnswer();
    void aboutBox();
    void controlsHaveNames();
    void noticesCoverLinkedLibraries();
    void firstStartInLanguage_data();
    void firstStartInLanguage();
    void questionComesUntilAnswered();
    void aboutBoxLeadsOn();
};

void TestAbout::initTestCase()
{
    qunsetenv("QT_SCALE_FACTOR"); // the program has a screen of its own
}

void TestAbout::init()
{
    QDir(userDirectory()).removeRecursively();
}

// Data collection

void TestAbout::recordedAnswer_data()
{
    // Of the settings file "-" means that it isn't there, "+" that a folder is in its place; "/"
    // stands for a line's end. The answer is what the dialog shows first, then what is clicked, if
    // it is not left.
    addRows({"before", "answer", "after"}, R"(
no file, left                               | -                                     | Yes     | -
no file, no                                 | -                                     | Yes, No | Telemetry=False/
yes, left                                   | Telemetry=True/                       | Yes     | Telemetry=True/
no over yes reaches into the second line    | Telemetry=True/FKP_enabled=OFF/       | Yes, No | Telemetry=False/KP_enabled=OFF/
yes over no keeps the second line           | Telemetry=False/FKP_enabled=OFF/      | No, Yes | Telemetry=True//FKP_enabled=OFF/
yes over rubbish                            | ÿþÃTelemetry=True/                    | Yes, Yes | Telemetry=True/ue/
empty file                                  |                                       | No      |
yes in a later line, without its end        | A=1/Telemetry=True                    | Yes     | A=1/Telemetry=True
the text anywhere counts                    | Telemetry=False/NoTelemetry=Truely/   | Yes     | Telemetry=False/NoTelemetry=Truely/
capitals count                              | telemetry=true/Telemetry=TRUE/        | No      | telemetry=true/Telemetry=TRUE/
a file that can't be opened                 | +                                     | Yes, No | +
)");
}

void TestAbout::recordedAnswer()
{
    QFETCH(QString, before);
    QFETCH(QString, answer);
    if (before == "+")
        QVERIFY(QDir().mkpath(settingsFile));
    else if (before != "-")
        QVERIFY(QDir().mkdir(userDirectory()) &&
                setFileText(settingsFile, before.replace('/', '\n').toLatin1()));

    TelemetryDialog dialog;
    const auto radioButton = [&dialog](const QString &beginning) {
        const auto buttons = dialog.findChildren<QRadioButton *>();
        return buttons[buttons[0]->text().startsWith(beginning) ? 0 : 1];
    };
    const QString chosen = answer.section(", ", 1);
    QTimer::singleShot(0, &dialog, [&] {
        if (!radioButton(answer.section(", ", 0, 0))->isChecked())
            return dialog.done(-1);
        if (chosen.isEmpty())
            return QTest::keyClick(&dialog, Qt::Key_Escape);
        radioButton(chosen)->click();
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
    });
    QCOMPARE(dialog.exec(), int(chosen.isEmpty() ? QDialog::Rejected : QDialog::Accepted));

    QString after = "-";
    if (QFileInfo(settingsFile).isDir())
        after = "+";
    else if (QFile::exists(settingsFile))
        after = QString::fromLatin1(fileText(settingsFile).replace('\n', '/'));
    QTEST(after, "after");
}

// The about box and the notices

void TestAbout::aboutBox()
{
    AboutDialog dialog;
    const QPixmap pixmap = dialog.findChild<QLabel *>()->pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.devicePixelRatio(), qreal(scaleFactor)); // as sharp as the screen
    QCOMPARE(pixmap.size(), QSize(480, 300) * scaleFactor);

    dialog.show();
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->isVisible()) // the others would open another dialog
            QCOMPARE(button->isDefault(), button->text() == "Close");
    }
}

void TestAbout::controlsHaveNames()
{
    AboutDialog about;
    for (QWidget *widget : about.findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->isWindow())
            continue;
        const QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(
            control && !control->text(QAccessible::Name).isEmpty(),
            qPrintable(widget->window()->windowTitle() + ' ' + widget->metaObject()->className()));
    }
}

void TestAbout::noticesCoverLinkedLibraries()
{
    QProcess objdump;
    objdump.start("objdump", {"-p", PRESSDESK_PROGRAM});
    QVERIFY2(objdump.waitForFinished() && objdump.exitCode() == 0,
             qPrintable(objdump.errorString()));
    QStringList libraries; // without the endings of their files
    for (const QString &line : QString::fromUtf8(objdump.readAll()).split('\n')) {
        const QString entry = line.simplified();
        if (entry.startsWith("NEEDED "))
            libraries.append(entry.mid(7).section(".so", 0, 0));
    }
    QVERIFY(libraries.contains("libQt5Core") && libraries.contains("libcups"));

    const QString notices = LicenseDialog().findChild<QTextEdit *>()->toPlainText();
    const QHash<QString, QString> headings{
        {"Qt 5", "libQt5\\w+"},
        {"CUPS (libcups)", "libcups"},
        {"OpenSSL (libcrypto)", "lib(crypto|ssl)"},
        {"GNU C Library", "lib(c|m|dl|pthread)|ld-linux.*"},
        {"libstdc++ and libgcc", "lib(stdc\\+\\+|gcc_s)"},
    };
    QStringList covered{"lib(asan|ubsan|lsan)"}; // part of a developer's build only
    for (auto i = headings.begin(); i != headings.end(); ++i) {
        QVERIFY2(notices.contains(". " + i.key() + '\n'), qPrintable(i.key()));
        covered.append(i.value());
    }
    const QRegularExpression names("^(" + covered.join('|') + ")$");
    for (const QString &library : libraries)
        QVERIFY2(names.match(library).hasMatch(), qPrintable(library));

    const QString system = "/usr/share/common-licenses/";
    for (const QString &path : {QString(PRESSDESK_SOURCE_DIR "/LICENSE"), system + "LGPL-3",
                                system + "GPL-3", system + "Apache-2.0"}) {
        const QString text = QString::fromUtf8(fileText(path)).trimmed();
        QVERIFY2(!text.isEmpty() && notices.contains(text), qPrintable(path));
    }
}

// The unchanged program

void TestAbout::firstStartInLanguage_data()
{
    addRows({"heading"}, R"(
de_DE | DATENSCHUTZERKLÄRUNG
fr_CA | POLITIQUE DE CONFIDENTIALITÉ
it_IT | INFORMATIVA SULLA PRIVACY
pt_BR | POLÍTICA DE PRIVACIDADE
es_MX | POLÍTICA DE PRIVACIDAD
nl_NL | PRIVACY POLICY
)");
}

void TestAbout::firstStartInLanguage()
{
    QFETCH(QString, heading);
    Panel panel;
    panel.setLanguage(QTest::currentDataTag());
    QVERIFY(panel.start());
    QVERIFY(panel.isShown(question) && !panel.isShown(mainWindow));
    const QString policy = panel.text(textEdit);
    QCOMPARE(policy.section('\n', 0, 0), heading);
    QVERIFY(policy.contains("Brixola Insight"));
    // Yes is what comes of an answer left alone.
    QVERIFY(panel.click(okButton));
    QVERIFY(panel.isShown(mainWindow) && !panel.isShown(question));
    QCOMPARE(fileText(settingsFile), QByteArray("Telemetry=True\n"));
}

void TestAbout::questionComesUntilAnswered()
{
    Panel panel;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(panel.start());
        QVERIFY(panel.isShown(question));
        QVERIFY(panel.cancel());
        QVERIFY(panel.isShown(mainWindow));
        QVERIFY(panel.cancel() && panel.waitForEnd());
    }
    QVERIFY(setFileText(settingsFile, "")); // any file at all counts as answered
    QVERIFY(panel.start());
    QVERIFY(panel.isShown(mainWindow));
    QCOMPARE(fileText(settingsFile), QByteArray(""));
}

void TestAbout::aboutBoxLeadsOn()
{
    QVERIFY(QDir().mkdir(userDirectory()) && setFileText(settingsFile, "Telemetry=False\n"));
    const PanelWidget yes = PanelWidget::button("Yes, I want to help improve your products");
    const PanelWidget collection = PanelWidget::button("Data collection...");
    Panel panel;
    QVERIFY(panel.start() && panel.click("About") &&
            panel.click(PanelWidget::button("Legal notices...")));
    QVERIFY(panel.isShown(PanelWidget::ofClass("LicenseDialog")));
    // What is chosen and not confirmed is forgotten.
    QVERIFY(panel.click(okButton) && panel.click(collection) && panel.click(yes) &&
            panel.cancel() && panel.click(collection));
    QVERIFY(!panel.isChecked(yes));
    QVERIFY(panel.click(yes) && panel.click(okButton));
    QCOMPARE(fileText(settingsFile), QByteArray("Telemetry=True\n\n"));
}

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
