// The page "Fleet Keeper", with a real HTTPS server on loopback; and what a policy does to the
// other pages, in the whole main dialog.

#include "app/bixdialog.h"
#include "model/optionstore.h"
#include "pages/basic/generaltab.h"
#include "pages/imaging/imagingtab.h"
#include "pages/printer/printertab.h"
#include "policy/fkptab.h"
#include "storage/settingsfile.h"
#include "support/dialogs.h"
#include "support/panelsteps.h"
#include "support/policyserver.h"
#include "support/printserver.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

namespace {

constexpr int settleMs = 300;

const QByteArray allRestrictions = R"({"Policies":{"JE.FullColorPrint":"ON",
    "DR.LeanPrintRestriction":"PV.On","DR.DuplexRestriction":"PV.On"}})";
const QByteArray refusal = "INVALID_USER_NAME_OR_PASSWORD";

const QString fillOut = "Server, Port, and Login user information must be filled out.";
const QString clickVerify = "You must click Verify after making changes.";
const QString unreachable = "Unable to connect to the server.";
const QString loginFailed = "Login failed. The user name or password you entered is incorrect.";

/// The lines of a settings file that switch the server on. The password is "secret".
QString settingsFor(const QString &server, const QString &port, const QString &user = "ann",
                    const QString &password = "3350ee6c7dc32ab1eea0f0a3d6e27b25")
{
    return QString("FKP_enabled=ON\nFKP_server=%1\nFKP_port=%2\nFKP_username=%3\n"
                   "FKP_password=%4\nFKP_notify=ON\nFKP_blocking=ON\n")
        .arg(server, port, user, password);
}

void type(QLineEdit *edit, const QString &text)
{
    edit->clear();
    QTest::keyClicks(edit, text);
}

/// Fills the fields for a server on this machine.
void fill(const QWidget *page, const QString &port)
{
    type(findNamed<QLineEdit>(page, "lnEditFKPServer"), "127.0.0.1");
    type(findNamed<QLineEdit>(page, "lnEditFKPPort"), port);
    type(findNamed<QLineEdit>(page, "lnEditFKPUser"), "ann");
    type(findNamed<QLineEdit>(page, "lnEditFKPPassword"), "secret");
}

void click(BixButtonGroup *group, int button)
{
    QTest::mouseClick(group->buttonAt(button), Qt::LeftButton);
}

/// The page alone.
struct Page
{
    void load(const QString &settings)
    {
        dialog.selectPrinter("FKPToggle 0 Off On\nFKPColorMode 1 Off On\nFKPLeanprint 1 Off On\n"
                             "FKPDuplex 4 Off On",
                             settings);
        page.reload();
    }
    /// Loads the page without settings and switches it on.
    void switchOn()
    {
        load(QString());
        click(toggle, 1);
    }
    QLineEdit *edit(const QString &name) const
    {
        return findNamed<QLineEdit>(&page, qPrintable(name));
    }
    /// The explanation of the mark as a constraint pass leaves it; empty without one.
    QString mark()
    {
        page.setMarked(false);
        page.clearMarks();
        page.markConstraintWidgets();
        const auto *label = toggle->findChild<QLabel *>();
        QString text = label->toolTip();
        if (page.hasMarks() == text.isEmpty() || page.hasMarks() != label->text().contains("error"))
            return "mark and explanation differ";
        return text;
    }
    /// Presses Verify and counts what the page says about the answer.
    int messagesOfVerify()
    {
        dialog.takeCalls();
        QTest::mouseClick(verifyButton, Qt::LeftButton);
        waitForPass();
        QTest::qWait(settleMs);
        return boxes.take().filter("Fleet Keeper: ").size();
    }
    /// Waits for the constraint pass that follows an answer.
    /// \return all that ran in the dialog
    QStringList waitForPass()
    {
        QStringList calls;
        const auto passed = [&] {
            calls += dialog.takeCalls();
            return calls.contains("setConstraints");
        };
        if (!QTest::qWaitFor(passed))
            qWarning("no constraint pass");
        return calls;
    }
    static QString restrictions()
    {
        return RecordingDialog::current("FKPColorMode") + ' ' +
               RecordingDialog::current("FKPLeanprint") + ' ' +
               RecordingDialog::current("FKPDuplex");
    }
    /// How many of the fields, their labels and the other controls can be used.
    int enabledWidgets() const
    {
        int count = 0;
        for (const QWidget *widget : page.findChildren<QWidget *>()) {
            if (widget != toggle && widget->accessibleName().contains("FKP"))
                count += widget->isEnabled();
        }
        return count;
    }

    RecordingDialog dialog;
    FKPTab page{&dialog};
    BixButtonGroup *toggle = findNamed<BixButtonGroup>(&page, "butGroupFKP");
    QLineEdit *user = edit("lnEditFKPUser");
    QLineEdit *password = edit("lnEditFKPPassword");
    QCheckBox *notify = findNamed<QCheckBox>(&page, "chkBxFKPConflict");
    QRadioButton *goOn = findNamed<QRadioButton>(&page, "rdButFKPContinue");
    QRadioButton *cancel = findNamed<QRadioButton>(&page, "rdButFKPCancel");
    QPushButton *verifyButton = findNamed<QPushButton>(&page, "butFKPVerify");
    MessageBoxes boxes;
};

} // namespace

class TestFkpTab : public QObject
{
    Q_OBJECT

private slots:
    void switchedOnAndOff();
    void fieldLimits();
    void verification();
    void answerAfterFieldsChanged_data();
    void answerAfterFieldsChanged();
    void silentLogin_data();
    void silentLogin();
    void badSettings_data();
    void badSettings();
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
    QCOMPARE(RecordingDialog::current("FKPToggle"), QString("Off"));
    QCOMPARE(panel.enabledWidgets(), 0);

    click(panel.toggle, 1);
    QVERIFY(panel.dialog.takeCalls().contains("setConstraints"));
    QCOMPARE(RecordingDialog::current("FKPToggle"), QString("On"));
    QCOMPARE(panel.edit("lnEditFKPPort")->text(), QString("9094"));
    QCOMPARE(panel.enabledWidgets(), 12);

    panel.cancel->click();
    panel.notify->click();
    QCOMPARE(panel.enabledWidgets(), 10);
    QVERIFY(!panel.goOn->isEnabled() && !panel.cancel->isEnabled() && panel.goOn->isChecked());
    QCOMPARE(panel.page.collectSettings()["FKP_notify"], QString("OFF"));
    QCOMPARE(panel.page.collectSettings()["FKP_blocking"], QString("OFF"));
    panel.notify->click();
    QCOMPARE(panel.enabledWidgets(), 12);

    type(panel.edit("lnEditFKPPort"), "81");
    panel.cancel->click();
    for (const char *option : {"FKPColorMode", "FKPLeanprint", "FKPDuplex"})
        currentStore->setCurrentByKey(option, "On");
    click(panel.toggle, 0);
    QCOMPARE(RecordingDialog::current("FKPToggle"), QString("Off"));
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
    QVERIFY(panel.goOn->isChecked() && panel.notify->isChecked());
    QCOMPARE(panel.enabledWidgets(), 0);
    click(panel.toggle, 1);
    QCOMPARE(panel.edit("lnEditFKPPort")->text(), QString("81"));
}

void TestFkpTab::fieldLimits()
{
    Page panel;
    panel.switchOn();
    const auto kept = [&panel](const char *field, const QString &typed) {
        type(panel.edit(field), typed);
        return panel.edit(field)->text();
    };
    QCOMPARE(kept("lnEditFKPServer", "a b\t[::1]"), QString("ab[::1]"));
    QCOMPARE(kept("lnEditFKPServer", QString(262, 's')), QString(260, 's'));
    QCOMPARE(kept("lnEditFKPPort", "a1-23456789012345678"), QString("1234567890123456"));
    QCOMPARE(kept("lnEditFKPUser", " &ann_b lee.1"), QString("ann_b lee1"));
    QCOMPARE(kept("lnEditFKPUser", QString(66, 'u')), QString(64, 'u'));
    QCOMPARE(kept("lnEditFKPPassword", " \"$" + QString(63, 'p')), " \"$" + QString(61, 'p'));
}

// Verify

void TestFkpTab::verification()
{
    PolicyServer server;
    Page panel;
    panel.load(QString());
    QCOMPARE(panel.mark(), QString());
    click(panel.toggle, 1);
    QCOMPARE(panel.mark(), fillOut);
    fill(&panel.page, server.port());
    for (const char *name :
         {"lnEditFKPServer", "lnEditFKPPort", "lnEditFKPUser", "lnEditFKPPassword"}) {
        const QString text = panel.edit(name)->text();
        panel.edit(name)->clear();
        QCOMPARE(panel.mark(), fillOut);
        QVERIFY(!panel.verifyButton->isEnabled());
        type(panel.edit(name), text);
        QCOMPARE(panel.mark(), clickVerify);
        QVERIFY(panel.verifyButton->isEnabled());
    }

    server.answerWithBody(allRestrictions);
    QCOMPARE(panel.messagesOfVerify(), 1);
    QCOMPARE(panel.mark(), QString());
    QCOMPARE(Page::restrictions(), QString("On On On"));
    type(panel.password, "other");
    QCOMPARE(panel.mark(), clickVerify);
    type(panel.password, "secret"); // back again
    QCOMPARE(panel.mark(), QString());

    server.answerWithBody(refusal);
    QCOMPARE(panel.messagesOfVerify(), 1);
    QCOMPARE(panel.mark(), loginFailed);
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
    // A fault with a page counts as both; the message box stands while the error comes in.
    server.answerWith({PolicyServer::httpReply("500 Internal Server Error", allRestrictions)});
    QCOMPARE(panel.messagesOfVerify(), 2);
    QCOMPARE(panel.mark(), unreachable);
    QCOMPARE(Page::restrictions(), QString("On On On"));
    server.answerWithBody("{}");
    QCOMPARE(panel.messagesOfVerify(), 1);
    QCOMPARE(panel.mark(), loginFailed);
    server.close();
    QCOMPARE(panel.messagesOfVerify(), 1);
    QCOMPARE(panel.mark(), unreachable);
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
    type(panel.user, "bob");
    QCOMPARE(panel.mark(), clickVerify);
    panel.user->clear();
    QCOMPARE(panel.mark(), fillOut);
    click(panel.toggle, 0);
    QCOMPARE(panel.mark(), QString());
}

void TestFkpTab::answerAfterFieldsChanged_data()
{
    addRows({"field", "body"}, R"(
server            | lnEditFKPServer | {"Policies":{"JE.FullColorPrint":"ON"}}
port              | lnEditFKPPort   | {"Policies":{"JE.FullColorPrint":"ON"}}
user              | lnEditFKPUser   | {"Policies":{"JE.FullColorPrint":"ON"}}
server, no answer | lnEditFKPServer |)");
}

void TestFkpTab::answerAfterFieldsChanged()
{
    QFETCH(QString, field);
    QFETCH(QString, body);
    PolicyServer server;
    if (!body.isEmpty())
        server.answerWithBody(body.toUtf8());
    Page panel;
    panel.switchOn();
    fill(&panel.page, server.port());
    QTest::mouseClick(panel.verifyButton, Qt::LeftButton);
    QTest::keyClicks(panel.edit(field), "1");
    QTRY_VERIFY(server.closed > 0); // Qt tries again where the first connection ends at once
    QTest::qWait(settleMs);
    QCOMPARE(panel.boxes.take(), QStringList());
    QCOMPARE(panel.mark(), clickVerify);
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
}

// Printer change

void TestFkpTab::silentLogin_data()
{
    addColumns<QByteArray, QStringList, QString, QString>("body", "messages", "mark",
                                                          "restrictions");
    const QByteArray noPrinting = R"({"Policies":{},"JE.MonoPrint":"ON"})";
    const QStringList failed{"Fleet Keeper: " + loginFailed};
    const QStringList forbidden{"Fleet Keeper: You do not have permission to print."};
    addRow("accepted", allRestrictions, QStringList(), "", "On On On");
    addRow("refused", refusal, failed, loginFailed, "Off Off Off");
    addRow("may not print", noPrinting, forbidden, "", "Off Off Off");
    addRow("nonsense", QByteArray("hello"), QStringList(), loginFailed, "Off Off Off");
}

void TestFkpTab::silentLogin()
{
    QFETCH(QByteArray, body);
    PolicyServer server;
    server.answerWithBody(allRestrictions);
    Page panel;
    QString settings = settingsFor("127.0.0.1", server.port());
    panel.load(settings);
    QCOMPARE(panel.waitForPass(), QStringList({"toggleColorMode", "setConstraints"}));
    QCOMPARE(Page::restrictions(), QString("On On On"));

    // Another printer at the same server: free until the answer is there.
    server.answerWithBody(body);
    panel.load(settings);
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
    QCOMPARE(panel.mark(), unreachable);
    panel.waitForPass();
    QVERIFY(server.requests.last().endsWith("\r\n\r\nuserID=ann&userPWD=secret"));
    QCOMPARE(server.requests.size(), 2);
    QTEST(panel.boxes.take(), "messages");
    QTEST(panel.mark(), "mark");
    QTEST(Page::restrictions(), "restrictions");

    // And one that it is switched off for: nobody logs in.
    panel.load(settings.replace("enabled=ON", "enabled=OFF"));
    QTest::qWait(settleMs);
    QCOMPARE(server.requests.size(), 2);
    QCOMPARE(RecordingDialog::current("FKPToggle"), QString("Off"));
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
    QCOMPARE(panel.mark(), QString());
    QCOMPARE(panel.user->text(), QString("ann"));
    QCOMPARE(panel.enabledWidgets(), 0);
}

void TestFkpTab::badSettings_data()
{
    // The mark once all is quiet.
    addColumns<QString, QString, int>("settings", "mark", "boxes");
    const QString here = "127.0.0.1";
    addRow("server with blanks", settingsFor("my server", "9094"), unreachable, 1);
    addRow("server with colons", settingsFor("a:b", "9094"), unreachable, 0);
    addRow("address in brackets", settingsFor("[::1]", "1"), unreachable, 0);
    addRow("server of 260 characters", settingsFor(QString(260, 's'), "9094"), unreachable, 1);
    addRow("user with an end of tag", settingsFor(here, "1", "a>b"), unreachable, 0);
    addRow("port is missing", settingsFor(here, QString()), clickVerify, 0);
    addRow("everything is missing", "FKP_enabled=ON", fillOut, 0);
    addRow("password of odd length", settingsFor(here, "1", "ann", "abc"), fillOut, 1);
    addRow("password made with another key", settingsFor(here, "1", "ann", QString(64, 'f')),
           unreachable, 1);
    addRow("rubbish", "FKP_enabled=yes\nFKP_notify=\nFKP_blocking==\n=FKP_server", "", 0);
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
    QCOMPARE(Page::restrictions(), QString("Off Off Off"));
}

void TestFkpTab::roundTrip()
{
    for (const QString password : {"secret", "a\\b\\\\c\"$`'", "Ωß€", ""}) {
        Page panel;
        panel.switchOn();
        fill(&panel.page, "1");
        panel.password->setText(password);
        panel.cancel->click();
        const QHash<QString, QString> settings = panel.page.collectSettings();
        QCOMPARE(settings.size(), password.isEmpty() ? 6 : 7);
        QCOMPARE(settings["FKP_blocking"], QString("ON"));
        QVERIFY(!settings["FKP_password"].contains("secret"));

        Page fresh;
        fresh.load(QString());
        writeCfg(currentCfgPath, Settings(settings), true);
        fresh.page.reload();
        QCOMPARE(fresh.page.collectSettings(), settings);
        QCOMPARE(fresh.password->text(), password);
        QVERIFY(fresh.cancel->isChecked() && fresh.cancel->isEnabled());
    }
}

// All pages

void TestFkpTab::otherPagesFollow()
{
    PrintServer printServer;
    QVERIFY2(printServer.start() && printServer.addSampleQueues(), qPrintable(printServer.error()));
    QVERIFY(makeUserFolder());
    PolicyServer server;
    server.answerWithBody(allRestrictions);
    MessageBoxes boxes;
    BixDialog dialog;
    auto *table = dialog.findChild<PrinterTab *>()->table();
    const auto select = [table](const char *printer) {
        table->setCurrentItem(table->findItems(printer, Qt::MatchExactly).value(0));
    };
    const BixButtonGroup *basicColor = dialog.findChild<GeneralTab *>()->colorGroup();
    const BixButtonGroup *imagingColor = dialog.findChild<ImagingTab *>()->colorGroup();
    const auto *duplex = findNamed<BixButtonGroup>(&dialog, "butGroupDuplex");
    const auto *leanprint = findNamed<BixButtonGroup>(&dialog, "butGroupLnpr");
    auto *toggle = findNamed<BixButtonGroup>(&dialog, "butGroupFKP");
    QPushButton *apply = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    const auto chosen = [&] {
        return QStringList{basicColor->currentText(), imagingColor->currentText(),
                           duplex->currentText(), leanprint->currentText()}
            .join(", ");
    };
    const QString restricted = "Black & white, Black & white, Long edge, On";

    select("Office_C3");
    QCOMPARE(chosen(), QString("Full color, Full color, Off, Off"));
    click(toggle, 1);
    QVERIFY(!apply->isEnabled());
    fill(&dialog, server.port());
    QVERIFY(!apply->isEnabled());
    QTest::mouseClick(findNamed<QPushButton>(&dialog, "butFKPVerify"), Qt::LeftButton);
    QTRY_COMPARE(chosen(), restricted);
    QVERIFY(apply->isEnabled());
    QVERIFY(!basicColor->isEnabled() && !imagingColor->isEnabled() && !leanprint->isEnabled());
    QVERIFY(!duplex->buttonAt(0)->isEnabled() && duplex->buttonAt(2)->isEnabled());
    boxes.take();
    apply->click();
    QCOMPARE(boxes.take(), QStringList("Success: Settings applied."));
    const QStringList saved = savedLines("Office_C3");
    QCOMPARE(missing({"ColorModel=Gray", "Duplex=DuplexNoTumble", "Lnpr=Level3", "FKP_enabled=ON",
                      "FKP_username=ann", "FKP_server=127.0.0.1",
                      "FKP_password=3350ee6c7dc32ab1eea0f0a3d6e27b25"},
                     saved),
             QStringList());

    // A printer without a policy is free; coming back logs in again.
    select("Dual_Path");
    QVERIFY(basicColor->isEnabled());
    QCOMPARE(basicColor->currentText(), QString("Full color"));
    const int requests = server.requests.size();
    select("Office_C3");
    QTRY_COMPARE(server.requests.size(), requests + 1);
    QTRY_VERIFY(apply->isEnabled());
    QCOMPARE(chosen(), restricted);
    QVERIFY(!basicColor->isEnabled());

    // Switched off, nothing is forbidden any more; what was chosen stays.
    click(toggle, 0);
    QCOMPARE(chosen(), restricted);
    QVERIFY(basicColor->isEnabled() && imagingColor->isEnabled() && leanprint->isEnabled());
    QVERIFY(duplex->buttonAt(0)->isEnabled());
    QCOMPARE(boxes.take(), QStringList());
}

QTEST_MAIN(TestFkpTab)

#include "tst_fkptab.moc"
