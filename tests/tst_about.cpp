// The about dialogs: each by itself, at scale factor 2, and as the unchanged program shows them.

#include "app/aboutdialog.h"
#include "app/licensedialog.h"
#include "app/telemetrydialog.h"
#include "storage/settingsfile.h"
#include "support/paneldriver.h"
#include "support/testhelpers.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

constexpr int scaleFactor = 2;

const QString settingsFile = "/usr/share/brixola/tester/Settings";

/// Opens the dialog, does something in it that should close it, and gives its result, or -1.
template <class Dialog>
int open(Dialog *dialog, const std::function<void()> &act)
{
    QTimer::singleShot(0, dialog, [&] {
        act();
        if (dialog->isVisible())
            dialog->done(-1);
    });
    return dialog->exec();
}

QRadioButton *radioButton(const QDialog &dialog, const QString &beginning)
{
    const auto buttons = dialog.findChildren<QRadioButton *>();
    for (QRadioButton *button : buttons) {
        if (button->text().startsWith(beginning))
            return button;
    }
    return nullptr;
}

void clickOk(const QDialog &dialog)
{
    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
}

QString shownNotices()
{
    return LicenseDialog().findChild<QTextEdit *>()->toPlainText();
}

const PanelWidget textEdit = PanelWidget::ofClass("QTextEdit");
const PanelWidget okButton = PanelWidget::standardButton("Ok");
const PanelWidget cancelButton = PanelWidget::standardButton("Cancel");
const QString questionWindow = "TelemetryDialog";
const QString mainWindow = "BixDialog";

/// The unchanged program.
class Panel : public PanelDriver
{
public:
    Panel()
        : PanelDriver(PRESSDESK_PROGRAM)
    {
        setEnvironment("QT_SCALE_FACTOR", "1");
    }

    /// Class of the window that the user sees in front.
    QString front()
    {
        const QVector<QJsonObject> all = windows();
        for (const QJsonObject &window : all) {
            if (window.value("visible").toBool())
                return window.value("class").toString();
        }
        return {};
    }
};

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
    void init();
    void question_data();
    void question();
    void unwritableSettingsAreSilent();
    void pictureIsSharp();
    void returnClosesAboutBox();
    void controlsHaveNames();
    void noticesCoverLinkedLibraries();
    void noticesHoldLicences();
    void firstStartInLanguage_data();
    void firstStartInLanguage();
    void questionComesUntilAnswered();
    void aboutBoxLeadsOn();
};

void TestAbout::init()
{
    QDir(userDirectory()).removeRecursively();
}

// Data collection

void TestAbout::question_data()
{
    QTest::addColumn<QString>("before"); // null if there is no file and no folder
    QTest::addColumn<bool>("yes");       // what the dialog shows first
    QTest::addColumn<QString>("action"); // an answer to choose before Ok; "leave" for none
    QTest::addColumn<QString>("after");

    const QString none, rubbish = QString::fromLatin1("\xff\xfe\0\r\xc3", 5);
    addRow("no file, left", none, true, "leave", none);
    addRow("no file, no", none, true, "No", "Telemetry=False\n");
    addRow("yes, left", "Telemetry=True\n", true, "leave", "Telemetry=True\n");
    addRow("no over yes reaches into the second line", "Telemetry=True\nFKP_enabled=OFF\n", true,
           "No", "Telemetry=False\nKP_enabled=OFF\n");
    addRow("yes over no keeps the second line", "Telemetry=False\nFKP_enabled=OFF\n", false, "Yes",
           "Telemetry=True\n\nFKP_enabled=OFF\n");
    addRow("yes over rubbish", rubbish + "Telemetry=True\n", true, "Yes", "Telemetry=True\nTrue\n");
    addRow("empty file", "", false, "leave", "");
    addRow("yes in a later line, without its end", "A=1\nTelemetry=True", true, "leave",
           "A=1\nTelemetry=True");
    addRow("the text anywhere counts", "Telemetry=False\nNoTelemetry=Truely\n", true, "leave",
           "Telemetry=False\nNoTelemetry=Truely\n");
    addRow("capitals count", "telemetry=true\nTelemetry=TRUE\n", false, "leave",
           "telemetry=true\nTelemetry=TRUE\n");
}

void TestAbout::question()
{
    QFETCH(QString, before);
    QFETCH(bool, yes);
    QFETCH(QString, action);
    QFETCH(QString, after);
    QVERIFY(before.isNull() || QDir().mkdir(userDirectory()));
    QVERIFY(setFileText(settingsFile, before.toLatin1()));

    TelemetryDialog dialog;
    QCOMPARE(dialog.isTelemetryOn(), yes);
    const bool left = action == "leave";
    const int result = open(&dialog, [&] {
        QVERIFY(radioButton(dialog, yes ? "Yes" : "No")->isChecked());
        if (left) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
        } else {
            radioButton(dialog, action)->click();
            clickOk(dialog);
        }
    });
    QCOMPARE(result, int(left ? QDialog::Rejected : QDialog::Accepted));
    QCOMPARE(fileText(settingsFile), after.toLatin1());
    QCOMPARE(QFile::exists(settingsFile), !after.isNull());
}

void TestAbout::unwritableSettingsAreSilent()
{
    QVERIFY(QDir().mkpath(settingsFile)); // a folder where the file should be
    TelemetryDialog dialog;
    QVERIFY(dialog.isTelemetryOn());
    QCOMPARE(open(&dialog, [&] { clickOk(dialog); }), int(QDialog::Accepted));
}

// The about box and the notices

void TestAbout::pictureIsSharp()
{
    const AboutDialog dialog;
    const QPixmap pixmap = dialog.findChild<QLabel *>()->pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.devicePixelRatio(), qreal(scaleFactor));
    QCOMPARE(pixmap.size(), QSize(480, 300) * scaleFactor);

    // A picture blown up from the small one consists of squares of equal pixels. No text stands in
    // this part.
    const QImage image = pixmap.toImage().copy(0, 0, 960, 240);
    int unequal = 0;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2)
            unequal += image.pixel(x, y) != image.pixel(x + 1, y) ||
                       image.pixel(x, y) != image.pixel(x, y + 1);
    }
    QVERIFY2(unequal > 1000, qPrintable(QString::number(unequal)));
}

void TestAbout::returnClosesAboutBox()
{
    AboutDialog dialog;
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        if (button->isVisible()) // the others would open another dialog
            QCOMPARE(button->isDefault(), button->text() == "Close");
    }
}

void TestAbout::controlsHaveNames()
{
    AboutDialog about;
    const auto widgets = about.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->isWindow())
            continue;
        QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(
            control && !control->text(QAccessible::Name).isEmpty(),
            qPrintable(widget->window()->windowTitle() + ' ' + widget->metaObject()->className()));
    }
}

void TestAbout::noticesCoverLinkedLibraries()
{
    // File names without their endings, and the heading of their notice.
    const QPair<QString, QString> notices[] = {
        {"libQt5\\w+", "Qt 5"},
        {"libcups", "CUPS (libcups)"},
        {"lib(crypto|ssl)", "OpenSSL (libcrypto)"},
        {"lib(c|m|dl|pthread)|ld-linux.*", "GNU C Library"},
        {"lib(stdc\\+\\+|gcc_s)", "libstdc++ and libgcc"},
    };
    QProcess objdump;
    objdump.start("objdump", {"-p", PRESSDESK_PROGRAM});
    QVERIFY2(objdump.waitForFinished() && objdump.exitCode() == 0,
             qPrintable(objdump.errorString()));
    QStringList libraries;
    const QStringList lines = QString::fromUtf8(objdump.readAll()).split('\n');
    for (const QString &line : lines) {
        const QString entry = line.simplified();
        if (entry.startsWith("NEEDED "))
            libraries.append(entry.mid(7).section(".so", 0, 0));
    }
    QVERIFY(libraries.contains("libQt5Core") && libraries.contains("libcups"));

    const auto drop = [&](const QString &names) {
        const QStringList dropped = libraries.filter(QRegularExpression("^(" + names + ")$"));
        for (const QString &library : dropped)
            libraries.removeAll(library);
    };
    drop("lib(asan|ubsan|lsan)"); // part of a developer's build only
    const QString shown = shownNotices();
    for (const auto &[names, heading] : notices) {
        QVERIFY2(shown.contains(". " + heading + '\n'), qPrintable(heading));
        drop(names);
    }
    QVERIFY2(libraries.isEmpty(), qPrintable(libraries.join(' ')));
}

void TestAbout::noticesHoldLicences()
{
    const QString shown = shownNotices();
    const QString system = "/usr/share/common-licenses/";
    for (const QString &path : {QString(PRESSDESK_SOURCE_DIR "/LICENSE"), system + "LGPL-3",
                                system + "GPL-3", system + "Apache-2.0"}) {
        const QString text = QString::fromUtf8(fileText(path)).trimmed();
        QVERIFY2(!text.isEmpty() && shown.contains(text), qPrintable(path));
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
    QVERIFY2(panel.start(), qPrintable(panel.error()));
    QCOMPARE(panel.front(), questionWindow);
    const QString policy = panel.text(textEdit);
    QCOMPARE(policy.section('\n', 0, 0), heading);
    QVERIFY(policy.contains("Brixola Insight"));
    // Yes is what comes of an answer left alone.
    QVERIFY2(panel.click(okButton), qPrintable(panel.error()));
    QCOMPARE(panel.front(), mainWindow);
    QCOMPARE(fileText(settingsFile), QByteArray("Telemetry=True\n"));
}

void TestAbout::questionComesUntilAnswered()
{
    for (const PanelWidget &button : {cancelButton, okButton}) {
        Panel panel;
        QVERIFY2(panel.start(), qPrintable(panel.error()));
        QCOMPARE(panel.front(), questionWindow);
        QVERIFY(!QFile::exists(settingsFile));
        QVERIFY2(panel.click(button), qPrintable(panel.error()));
        QCOMPARE(panel.front(), mainWindow);
    }
    // Any file at all counts as answered.
    for (const QByteArray &settings : {fileText(settingsFile), QByteArray("")}) {
        QVERIFY(setFileText(settingsFile, settings));
        Panel panel;
        QVERIFY2(panel.start(), qPrintable(panel.error()));
        QCOMPARE(panel.front(), mainWindow);
        QCOMPARE(fileText(settingsFile), settings);
    }
}

void TestAbout::aboutBoxLeadsOn()
{
    QVERIFY(QDir().mkdir(userDirectory()) && setFileText(settingsFile, "Telemetry=False\n"));
    Panel panel;
    QVERIFY2(panel.start() && panel.click("About"), qPrintable(panel.error()));
    QCOMPARE(panel.front(), QString("AboutDialog"));

    QVERIFY2(panel.click(PanelWidget::button("Legal notices...")), qPrintable(panel.error()));
    QCOMPARE(panel.front(), QString("LicenseDialog"));
    QVERIFY(panel.text(textEdit).startsWith("LEGAL NOTICES\n"));
    QVERIFY2(panel.click(okButton), qPrintable(panel.error()));

    const PanelWidget yes = PanelWidget::button("Yes, I want to help improve your products");
    const PanelWidget collection = PanelWidget::button("Data collection...");
    // What was chosen and not confirmed is forgotten.
    QVERIFY2(panel.click(collection) && panel.click(yes) && panel.click(cancelButton) &&
                 panel.click(collection),
             qPrintable(panel.error()));
    QVERIFY(!panel.isChecked(yes));
    QVERIFY2(panel.click(yes) && panel.click(okButton), qPrintable(panel.error()));
    QCOMPARE(fileText(settingsFile), QByteArray("Telemetry=True\n\n"));
}

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
