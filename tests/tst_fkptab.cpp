// The page "Fleet Keeper", with a real HTTPS server on loopback; and what a policy does to the
// other pages, in the whole main dialog.

#include "app/bixdialog.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/generaltab.h"
#include "pages/imagingtab.h"
#include "pages/printertab.h"
#include "policy/fkptab.h"
#include "storage/settingsfile.h"
#include "support/policyserver.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "widgets/bixbuttongroup.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

namespace {

constexpr int settleMs = 300;

const QByteArray noRestriction = R"({"Policies":{}})";
const QByteArray allRestrictions = R"({"Policies":{"JE.FullColorPrint":"ON",
    "DR.LeanPrintRestriction":"PV.On","DR.DuplexRestriction":"PV.On"}})";
const QByteArray refusal = "INVALID_USER_NAME_OR_PASSWORD";

const char *const fillOut = "Server, Port, and Login user information must be filled out.";
const char *const clickVerify = "You must click Verify after making changes.";
const char *const unreachable = "Unable to connect to the server.";
const char *const loginFailed = "Login failed. The user name or password you entered is incorrect.";

const char *const options = R"(
    FKPToggle 0 Off On
    FKPColorMode 1 Off On
    FKPLeanprint 1 Off On
    FKPDuplex 4 Off On)";

/// A row of test data; texts may be literals.
template <typename... Cells>
void addRow(const char *name, const Cells &...cells)
{
    (QTest::newRow(name) << ... << cells);
}

/// Answers every message box with its default and keeps what it said.
class MessageBoxes : public QObject
{
public:
    MessageBoxes()
    {
        connect(&timer, &QTimer::timeout, this, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                texts.append(box->windowTitle() + QStringLiteral(": ") + box->text());
                box->accept();
            }
        });
        timer.start(5);
    }

    QStringList take() { return std::exchange(texts, {}); }

private:
    QTimer timer;
    QStringList texts;
};

/// The lines of a settings file that switch the server on. The password is "secret".
QString settingsFor(const QString &server, const QString &port,
                    const QString &user = QStringLiteral("ann"))
{
    return QStringLiteral("FKP_enabled=ON\nFKP_server=%1\nFKP_port=%2\nFKP_username=%3\n"
                          "FKP_password=3350ee6c7dc32ab1eea0f0a3d6e27b25\nFKP_notify=ON\n"
                          "FKP_blocking=ON\n")
        .arg(server, port, user);
}

template <typename Widget>
Widget *find(const QWidget *parent, const char *name)
{
    const QList<Widget *> widgets = parent->findChildren<Widget *>();
    for (Widget *widget : widgets)
        if (widget->accessibleName() == QLatin1String(name))
            return widget;
    qFatal("no widget %s", name);
}

/// The page alone.
struct Page
{
    void load(const QString &settings)
    {
        dialog.selectPrinter(QString::fromLatin1(options), settings);
        page.reload();
    }
    void click(int button) { QTest::mouseClick(toggle->buttonAt(button), Qt::LeftButton); }
    static void type(QLineEdit *edit, const QString &text)
    {
        edit->clear();
        QTest::keyClicks(edit, text);
    }
    void fill(const QString &serverPort)
    {
        type(server, QStringLiteral("127.0.0.1"));
        type(port, serverPort);
        type(user, QStringLiteral("ann"));
        type(password, QStringLiteral("secret"));
    }
    /// The explanation of the mark as a constraint pass leaves it; empty without one.
    QString mark()
    {
        page.setMarked(false);
        page.clearMarks();
        page.markConstraintWidgets();
        const auto *label = toggle->findChild<QLabel *>();
        const QString text = label->toolTip();
        if (page.hasMarks() == text.isEmpty() ||
            page.hasMarks() != label->text().contains(QLatin1String("error")))
            return QStringLiteral("mark and explanation differ");
        return text;
    }
    /// Presses Verify and waits for what the page makes of the answer.
    void verify()
    {
        dialog.takeCalls();
        QTest::mouseClick(verifyButton, Qt::LeftButton);
        waitForPass();
    }
    /// Waits for the constraint pass that follows an answer.
    /// \return all that ran in the dialog
    QStringList waitForPass()
    {
        QStringList calls;
        const auto passed = [&] {
            calls += dialog.takeCalls();
            return calls.contains(QLatin1String("setConstraints"));
        };
        if (!QTest::qWaitFor(passed))
            qWarning("no constraint pass");
        return calls;
    }
    static QString restrictions()
    {
        return QStringList{RecordingDialog::current(QStringLiteral("FKPColorMode")),
                           RecordingDialog::current(QStringLiteral("FKPLeanprint")),
                           RecordingDialog::current(QStringLiteral("FKPDuplex"))}
            .join(QLatin1Char(' '));
    }

    RecordingDialog dialog;
    FKPTab page{&dialog};
    BixButtonGroup *toggle = find<BixButtonGroup>(&page, "butGroupFKP");
    QLineEdit *server = find<QLineEdit>(&page, "lnEditFKPServer");
    QLineEdit *port = find<QLineEdit>(&page, "lnEditFKPPort");
    QLineEdit *user = find<QLineEdit>(&page, "lnEditFKPUser");
    QLineEdit *password = find<QLineEdit>(&page, "lnEditFKPPassword");
    QCheckBox *notify = find<QCheckBox>(&page, "chkBxFKPConflict");
    QRadioButton *goOn = find<QRadioButton>(&page, "rdButFKPContinue");
    QRadioButton *cancel = find<QRadioButton>(&page, "rdButFKPCancel");
    QPushButton *verifyButton = find<QPushButton>(&page, "butFKPVerify");
    MessageBoxes boxes;
};

} // namespace

class TestFkpTab : public QObject
{
    Q_OBJECT

private slots:
    void switchedOnAndOff();
    void fieldLimits_data();
    void fieldLimits();
    void notifications();
    void marksInTheirOrder();
    void answersToVerify_data();
    void answersToVerify();
    void answerAfterFieldsChanged_data();
    void answerAfterFieldsChanged();
    void silentLogin_data();
    void silentLogin();
    void noLoginWhileOff();
    void badSettings_data();
    void badSettings();
    void roundTrip_data();
    void roundTrip();
    void otherPagesFollow();
};

// The switch and the fields

void TestFkpTab::switchedOnAndOff()
{
    Page panel;
    QVERIFY(!panel.page.isAvailable());
    panel.load(QString());
    QVERIFY(panel.page.isAvailable());
    QCOMPARE(panel.dialog.takeCalls(), QStringList()); // no pass while the page loads
    QCOMPARE(RecordingDialog::current(QStringLiteral("FKPToggle")), QStringLiteral("Off"));
    QCOMPARE(panel.mark(), QString());

    panel.click(1);
    QVERIFY(panel.dialog.takeCalls().contains(QLatin1String("setConstraints")));
    QCOMPARE(RecordingDialog::current(QStringLiteral("FKPToggle")), QStringLiteral("On"));
    QCOMPARE(panel.port->text(), QStringLiteral("9094"));
    const QList<QWidget *> fields{panel.server,
                                  panel.port,
                                  panel.user,
                                  panel.password,
                                  panel.notify,
                                  panel.goOn,
                                  panel.cancel,
                                  panel.verifyButton,
                                  find<QLabel>(&panel.page, "lblFKPServer"),
                                  find<QLabel>(&panel.page, "lblFKPPort"),
                                  find<QLabel>(&panel.page, "lblFKPUser"),
                                  find<QLabel>(&panel.page, "lblFKPPassword")};
    for (const QWidget *field : fields)
        QVERIFY2(field->isEnabled(), qPrintable(field->accessibleName()));

    Page::type(panel.port, QStringLiteral("81"));
    panel.cancel->click();
    for (const char *option : {"FKPColorMode", "FKPLeanprint", "FKPDuplex"})
        currentStore->setCurrentByKey(QLatin1String(option), QStringLiteral("On"));
    panel.click(0);
    QCOMPARE(RecordingDialog::current(QStringLiteral("FKPToggle")), QStringLiteral("Off"));
    QCOMPARE(Page::restrictions(), QStringLiteral("Off Off Off"));
    QVERIFY(panel.goOn->isChecked() && panel.notify->isChecked());
    for (const QWidget *field : fields)
        QVERIFY2(!field->isEnabled(), qPrintable(field->accessibleName()));
    panel.click(1);
    QCOMPARE(panel.port->text(), QStringLiteral("81"));
}

void TestFkpTab::fieldLimits_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    addRow("server without blanks", "lnEditFKPServer", "a b\t[::1]", "ab[::1]");
    addRow("server of 260", "lnEditFKPServer", QString(262, 's'), QString(260, 's'));
    addRow("port of 16 digits", "lnEditFKPPort", "a1-23456789012345678", "1234567890123456");
    addRow("user", "lnEditFKPUser", " &ann_b lee.1", "ann_b lee1");
    addRow("user of 64", "lnEditFKPUser", QString(66, 'u'), QString(64, 'u'));
    addRow("password of 64", "lnEditFKPPassword", " \"$" + QString(63, 'p'),
           " \"$" + QString(61, 'p'));
}

void TestFkpTab::fieldLimits()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    Page panel;
    panel.load(QString());
    panel.click(1);
    auto *edit = find<QLineEdit>(&panel.page, field.toLatin1().constData());
    Page::type(edit, typed);
    QTEST(edit->text(), "kept");
}

void TestFkpTab::notifications()
{
    Page panel;
    panel.load(QString());
    panel.click(1);
    panel.cancel->click();
    QCOMPARE(panel.page.collectSettings().value(QStringLiteral("FKP_blocking")),
             QStringLiteral("ON"));
    panel.notify->click();
    QVERIFY(!panel.goOn->isEnabled() && !panel.cancel->isEnabled() && panel.goOn->isChecked());
    const QHash<QString, QString> settings = panel.page.collectSettings();
    QCOMPARE(settings.value(QStringLiteral("FKP_notify")), QStringLiteral("OFF"));
    QCOMPARE(settings.value(QStringLiteral("FKP_blocking")), QStringLiteral("OFF"));
    panel.notify->click();
    QVERIFY(panel.goOn->isEnabled() && panel.cancel->isEnabled());
}

// Marks

void TestFkpTab::marksInTheirOrder()
{
    PolicyServer server;
    Page panel;
    panel.load(QString());
    QCOMPARE(panel.mark(), QString());
    panel.click(1);
    QCOMPARE(panel.mark(), QString::fromLatin1(fillOut));
    panel.fill(server.port());
    for (QLineEdit *edit : {panel.server, panel.port, panel.user, panel.password}) {
        const QString text = edit->text();
        edit->clear();
        QCOMPARE(panel.mark(), QString::fromLatin1(fillOut));
        QVERIFY(!panel.verifyButton->isEnabled());
        Page::type(edit, text);
        QCOMPARE(panel.mark(), QString::fromLatin1(clickVerify));
        QVERIFY(panel.verifyButton->isEnabled());
    }

    server.answerWithBody(noRestriction);
    panel.verify();
    QCOMPARE(panel.boxes.take().size(), 1);
    QCOMPARE(panel.mark(), QString());
    Page::type(panel.password, QStringLiteral("other"));
    QCOMPARE(panel.mark(), QString::fromLatin1(clickVerify));
    Page::type(panel.password, QStringLiteral("secret")); // back again
    QCOMPARE(panel.mark(), QString());

    server.answerWithBody(refusal);
    panel.verify();
    QCOMPARE(panel.mark(), QString::fromLatin1(loginFailed));
    server.close();
    panel.verify();
    QCOMPARE(panel.mark(), QString::fromLatin1(unreachable));
    Page::type(panel.user, QStringLiteral("bob"));
    QCOMPARE(panel.mark(), QString::fromLatin1(clickVerify));
    panel.user->clear();
    QCOMPARE(panel.mark(), QString::fromLatin1(fillOut));
    panel.click(0);
    QCOMPARE(panel.mark(), QString());
}

void TestFkpTab::answersToVerify_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("boxes");
    QTest::addColumn<QString>("mark");
    QTest::addColumn<QString>("restrictions");
    const auto row = [](const char *name, const QByteArray &reply, int boxes, const char *mark,
                        const char *restrictions) {
        addRow(name, reply, boxes, QString::fromLatin1(mark), QString::fromLatin1(restrictions));
    };
    const auto ok = [](const QByteArray &body, int length = -1) {
        return PolicyServer::httpReply("200 OK", body, length);
    };
    row("all restricted", ok(allRestrictions), 1, "", "On On On");
    row("nothing restricted", ok(noRestriction), 1, "", "Off Off Off");
    row("color alone", ok(R"({"Policies":{"JE.FullColorPrint":"ON"}})"), 1, "", "On Off Off");
    // Nothing has been verified yet, so this is what is left to do.
    row("refused", ok(refusal), 1, clickVerify, "Off Off Off");
    row("no policies", ok("{}"), 1, clickVerify, "Off Off Off");
    row("no JSON", ok("<html>"), 1, clickVerify, "Off Off Off");
    // The message box stands while the error comes in.
    row("server fault with a page",
        PolicyServer::httpReply("500 Internal Server Error", allRestrictions), 2, unreachable,
        "On On On");
    row("server fault with nothing", PolicyServer::httpReply("500 Internal Server Error", {}), 1,
        clickVerify, "Off Off Off");
    row("closed at once", {}, 1, clickVerify, "Off Off Off");
}

void TestFkpTab::answersToVerify()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, boxes);
    PolicyServer server;
    server.answerWith({reply});
    Page panel;
    panel.load(QString());
    panel.click(1);
    panel.fill(server.port());
    panel.verify();
    QTest::qWait(settleMs);
    const QStringList texts = panel.boxes.take();
    QCOMPARE(texts.size(), boxes);
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1String("Fleet Keeper: ")), qPrintable(text));
    QTEST(panel.mark(), "mark");
    QTEST(Page::restrictions(), "restrictions");
    QCOMPARE(panel.server->text() + panel.port->text() + panel.user->text() +
                 panel.password->text(),
             QStringLiteral("127.0.0.1%1annsecret").arg(server.port()));
}

void TestFkpTab::answerAfterFieldsChanged_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("answered");
    addRow("server", "lnEditFKPServer", true);
    addRow("port", "lnEditFKPPort", true);
    addRow("user", "lnEditFKPUser", true);
    addRow("server, no answer", "lnEditFKPServer", false);
}

void TestFkpTab::answerAfterFieldsChanged()
{
    QFETCH(QString, field);
    QFETCH(bool, answered);
    PolicyServer server;
    if (answered)
        server.answerWithBody(allRestrictions);
    else
        server.answerWith({});
    Page panel;
    panel.load(QString());
    panel.click(1);
    panel.fill(server.port());
    QTest::mouseClick(panel.verifyButton, Qt::LeftButton);
    QTest::keyClicks(find<QLineEdit>(&panel.page, field.toLatin1().constData()),
                     QStringLiteral("1"));
    QTRY_VERIFY(server.closed > 0); // Qt tries again where the first connection ends at once
    QTest::qWait(settleMs);
    QCOMPARE(panel.boxes.take(), QStringList());
    QCOMPARE(panel.mark(), QString::fromLatin1(clickVerify));
    QCOMPARE(Page::restrictions(), QStringLiteral("Off Off Off"));
}

// Printer change

void TestFkpTab::silentLogin_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("mark");
    QTest::addColumn<QString>("restrictions");
    addRow("accepted", allRestrictions, "", "", "On On On");
    addRow("refused", refusal, loginFailed, loginFailed, "Off Off Off");
    addRow("may not print", QByteArray(R"({"Policies":{},"JE.MonoPrint":"ON"})"),
           "You do not have permission to print.", "", "Off Off Off");
    addRow("nonsense", QByteArray("hello"), "", loginFailed, "Off Off Off");
}

void TestFkpTab::silentLogin()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, message);
    PolicyServer server;
    server.answerWithBody(allRestrictions);
    Page panel;
    const QString settings = settingsFor(QStringLiteral("127.0.0.1"), server.port());
    panel.load(settings);
    QTRY_COMPARE(Page::restrictions(), QStringLiteral("On On On"));
    QCOMPARE(panel.waitForPass(),
             (QStringList{QStringLiteral("toggleColorMode"), QStringLiteral("setConstraints")}));

    // Another printer at the same server: free until the answer is there.
    server.answerWithBody(body);
    panel.load(settings);
    QCOMPARE(Page::restrictions(), QStringLiteral("Off Off Off"));
    QCOMPARE(panel.mark(), QString::fromLatin1(unreachable));
    panel.waitForPass();
    QVERIFY(server.requests.last().endsWith("\r\n\r\nuserID=ann&userPWD=secret"));
    QCOMPARE(server.requests.size(), 2);
    QCOMPARE(panel.boxes.take(), message.isEmpty()
                                     ? QStringList()
                                     : QStringList{QStringLiteral("Fleet Keeper: ") + message});
    QTEST(panel.mark(), "mark");
    QTEST(Page::restrictions(), "restrictions");
}

void TestFkpTab::noLoginWhileOff()
{
    PolicyServer server;
    server.answerWithBody(allRestrictions);
    Page panel;
    QString settings = settingsFor(QStringLiteral("127.0.0.1"), server.port());
    panel.load(settings);
    QTRY_COMPARE(Page::restrictions(), QStringLiteral("On On On"));
    panel.load(settings.replace(QLatin1String("enabled=ON"), QLatin1String("enabled=OFF")));
    QTest::qWait(settleMs);
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(RecordingDialog::current(QStringLiteral("FKPToggle")), QStringLiteral("Off"));
    QCOMPARE(Page::restrictions(), QStringLiteral("Off Off Off"));
    QCOMPARE(panel.mark(), QString());
    QCOMPARE(panel.user->text(), QStringLiteral("ann"));
    QVERIFY(panel.notify->isChecked() && panel.goOn->isChecked() && !panel.server->isEnabled());
}

void TestFkpTab::badSettings_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("mark"); // once all is quiet
    QTest::addColumn<int>("boxes");
    const auto row = [](const char *name, const QString &settings, const char *mark, int boxes) {
        addRow(name, settings, QString::fromLatin1(mark), boxes);
    };
    row("server with blanks", settingsFor(QStringLiteral("my server"), QStringLiteral("9094")),
        unreachable, 1);
    row("server with colons", settingsFor(QStringLiteral("a:b"), QStringLiteral("9094")),
        unreachable, 0);
    row("address in brackets", settingsFor(QStringLiteral("[::1]"), QStringLiteral("1")),
        unreachable, 0);
    row("server of 260 characters", settingsFor(QString(260, 's'), QStringLiteral("9094")),
        unreachable, 1);
    row("user with an end of tag",
        settingsFor(QStringLiteral("127.0.0.1"), QStringLiteral("1"), QStringLiteral("a>b")),
        unreachable, 0);
    row("port is missing", settingsFor(QStringLiteral("127.0.0.1"), QString()), clickVerify, 0);
    row("everything is missing", QStringLiteral("FKP_enabled=ON"), fillOut, 0);
    row("password of odd length",
        QStringLiteral("FKP_enabled=ON\nFKP_server=127.0.0.1\nFKP_port=1\nFKP_username=ann\n"
                       "FKP_password=abc"),
        fillOut, 1);
    row("password made with another key",
        QStringLiteral("FKP_enabled=ON\nFKP_server=127.0.0.1\nFKP_port=1\nFKP_username=ann\n"
                       "FKP_password=%1")
            .arg(QString(64, 'f')),
        unreachable, 1);
    row("rubbish", QStringLiteral("FKP_enabled=yes\nFKP_notify=\nFKP_blocking==\n=FKP_server"), "",
        0);
}

void TestFkpTab::badSettings()
{
    QFETCH(QString, settings);
    QFETCH(int, boxes);
    Page panel;
    panel.load(settings);
    QTest::qWait(settleMs);
    QCOMPARE(panel.boxes.take().size(), boxes);
    QTEST(panel.mark(), "mark");
    QCOMPARE(Page::restrictions(), QStringLiteral("Off Off Off"));
}

void TestFkpTab::roundTrip_data()
{
    QTest::addColumn<QString>("password");
    addRow("plain", "secret");
    addRow("backslashes and quotes", "a\\b\\\\c\"$`'");
    addRow("other alphabets", QString::fromUtf8("Ωß€"));
    addRow("none", "");
}

void TestFkpTab::roundTrip()
{
    QFETCH(QString, password);
    Page panel;
    panel.load(QString());
    panel.click(1);
    panel.fill(QStringLiteral("1"));
    panel.password->setText(password);
    panel.cancel->click();
    const QHash<QString, QString> settings = panel.page.collectSettings();
    QCOMPARE(settings.size(), password.isEmpty() ? 6 : 7);
    QVERIFY(!settings.value(QStringLiteral("FKP_password")).contains(QLatin1String("secret")));

    Page fresh;
    fresh.load(QString());
    writeCfg(currentCfgPath, Settings(settings), true);
    fresh.page.reload();
    QCOMPARE(fresh.page.collectSettings(), settings);
    QCOMPARE(fresh.password->text(), password);
    QVERIFY(fresh.cancel->isChecked() && fresh.cancel->isEnabled());
}

// All pages

void TestFkpTab::otherPagesFollow()
{
    PrintServer printServer;
    QVERIFY2(printServer.start() && printServer.addSampleQueues(), qPrintable(printServer.error()));
    const QDir folder(QStringLiteral("/usr/share/brixola/tester"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QFile answer(folder.filePath(QStringLiteral("Settings")));
    QVERIFY(answer.open(QIODevice::WriteOnly)); // nobody asks about data collection

    PolicyServer server;
    server.answerWithBody(allRestrictions);
    MessageBoxes boxes;
    BixDialog dialog;
    auto *table = dialog.findChild<PrinterTab *>()->table();
    const auto select = [table](const char *printer) {
        table->setCurrentItem(table->findItems(QLatin1String(printer), Qt::MatchExactly).value(0));
    };
    const BixButtonGroup *basicColor = dialog.findChild<GeneralTab *>()->colorGroup();
    const BixButtonGroup *imagingColor = dialog.findChild<ImagingTab *>()->colorGroup();
    auto *duplex = find<BixButtonGroup>(&dialog, "butGroupDuplex");
    auto *leanprint = find<BixButtonGroup>(&dialog, "butGroupLnpr");
    auto *toggle = find<BixButtonGroup>(&dialog, "butGroupFKP");
    QPushButton *apply = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    const auto chosen = [&] {
        return QStringList{basicColor->currentText(), imagingColor->currentText(),
                           duplex->currentText(), leanprint->currentText()}
            .join(QStringLiteral(", "));
    };
    const QString free = QStringLiteral("Full color, Full color, Off, Off");
    const QString restricted = QStringLiteral("Black & white, Black & white, Long edge, On");

    select("Office_C3");
    QCOMPARE(chosen(), free);
    QTest::mouseClick(toggle->buttonAt(1), Qt::LeftButton);
    QVERIFY(!apply->isEnabled());
    for (const auto &[name, text] : {std::pair("lnEditFKPServer", QStringLiteral("127.0.0.1")),
                                     {"lnEditFKPPort", server.port()},
                                     {"lnEditFKPUser", QStringLiteral("ann")},
                                     {"lnEditFKPPassword", QStringLiteral("secret")}}) {
        auto *edit = find<QLineEdit>(&dialog, name);
        edit->clear();
        QTest::keyClicks(edit, text);
    }
    QVERIFY(!apply->isEnabled());
    QTest::mouseClick(find<QPushButton>(&dialog, "butFKPVerify"), Qt::LeftButton);
    QTRY_COMPARE(chosen(), restricted);
    QVERIFY(apply->isEnabled());
    QVERIFY(!basicColor->isEnabled() && !imagingColor->isEnabled() && !leanprint->isEnabled());
    QVERIFY(!duplex->buttonAt(0)->isEnabled() && duplex->buttonAt(2)->isEnabled());
    boxes.take();
    apply->click();
    QCOMPARE(boxes.take(), QStringList{QStringLiteral("Success: Settings applied.")});
    QFile cfg(folder.filePath(QStringLiteral("Office_C3.cfg")));
    QVERIFY(cfg.open(QIODevice::ReadOnly));
    const QByteArray saved = cfg.readAll();
    for (const char *line : {"ColorModel=Gray\n", "Duplex=DuplexNoTumble\n", "Lnpr=Level3\n",
                             "FKP_enabled=ON\n", "FKP_username=ann\n", "FKP_server=127.0.0.1\n"})
        QVERIFY2(saved.contains(line), line);
    QVERIFY(saved.contains("FKP_password=") && !saved.contains("secret"));

    // A printer without a policy is free; coming back logs in again.
    select("Dual_Path");
    QVERIFY(basicColor->isEnabled());
    QCOMPARE(basicColor->currentText(), QStringLiteral("Full color"));
    const int requests = server.requests.size();
    select("Office_C3");
    QTRY_COMPARE(server.requests.size(), requests + 1);
    QTRY_VERIFY(apply->isEnabled());
    QCOMPARE(chosen(), restricted);
    QVERIFY(!basicColor->isEnabled());

    // Switched off, nothing is forbidden any more; what was chosen stays.
    QTest::mouseClick(toggle->buttonAt(0), Qt::LeftButton);
    QCOMPARE(chosen(), restricted);
    for (const BixButtonGroup *group :
         {basicColor, imagingColor, static_cast<const BixButtonGroup *>(leanprint)})
        QVERIFY(group->isEnabled());
    QVERIFY(duplex->buttonAt(0)->isEnabled());
    QCOMPARE(boxes.take(), QStringList());
}

QTEST_MAIN(TestFkpTab)

#include "tst_fkptab.moc"
