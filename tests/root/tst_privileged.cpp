// The way to root with the real sudo and su: the unchanged panel changes an installed option, and
// the stand-in of the demo writes it. Runs in the surroundings that run-privileged.sh lays out.

#include "support/paneldriver.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

class TestPrivileged : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void installedOption_data();
    void installedOption();

private:
    PrintServer server;
};

void TestPrivileged::initTestCase()
{
    // Its socket is where /etc/cups/client.conf has it, since root gets none of our environment.
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY(setFileText("/etc/cups/client.conf", "ServerName " + qgetenv("CUPS_SERVER") + '\n'));
}

void TestPrivileged::installedOption_data()
{
    addColumns<QString, QString, bool>("method", "password", "succeeds");
    // sudo wants the user's password, su wants root's.
    const QString users = qEnvironmentVariable("PRESSDESK_USER_PASSWORD");
    const QString roots = qEnvironmentVariable("PRESSDESK_ROOT_PASSWORD");
    addRow("sudo, wrong password", "sudo", roots, false);
    addRow("sudo", "sudo", users, true);
    addRow("su, wrong password", "su", users, false);
    addRow("su", "su", roots, true);
}

void TestPrivileged::installedOption()
{
    QFETCH(QString, method);
    QFETCH(QString, password);
    QFETCH(bool, succeeds);
    QVERIFY2(server.addQueue("Office_C3", "demo/ppd/px4500.ppd"), qPrintable(server.error()));
    PanelDriver panel(PRESSDESK_PROGRAM);
    const auto did = [&panel](bool done) {
        if (!done)
            qWarning("%s\n%s", qPrintable(panel.error()), qPrintable(panel.standardError()));
        return done;
    };
    const PanelWidget ok = PanelWidget::standardButton("Ok");
    QVERIFY(did(panel.start()));
    if (panel.isShown(PanelWidget::ofClass("TelemetryDialog")))
        QVERIFY(did(panel.closeWindow(PanelWidget::ofClass("TelemetryDialog"))));
    QVERIFY(did(panel.clickRow("tblPrinters", "Office_C3")));
    QVERIFY(did(panel.choose("cmbBxOption17", "Booklet finisher")));
    QVERIFY(panel.isShown("lblRootWarning"));

    QVERIFY(did(panel.click(PanelWidget::standardButton("Apply"))));
    QVERIFY(did(panel.choose("cmbBxMethod", method)));
    QVERIFY(did(panel.enter("lnEditRootPassword", password)));
    QVERIFY(did(panel.click("butOk")));
    const PanelMessageBox box = panel.messageBox();
    QCOMPARE(box.text, QString(succeeds ? "Settings applied." : "Could not authorize."));
    QVERIFY(did(panel.click(ok)));
    QCOMPARE(panel.isShown("lblRootWarning"), !succeeds);
    QCOMPARE(fileText("/etc/cups/ppd/Office_C3.ppd").contains("*DefaultOption17: Finisher2\n"),
             succeeds);
}

QTEST_GUILESS_MAIN(TestPrivileged)

#include "tst_privileged.moc"
