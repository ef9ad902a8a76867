// The way to root with the real sudo and su: the unchanged panel changes an installed option, and
// the stand-in of the demo writes it. Runs in the surroundings that run-privileged.sh lays out.

#include "support/paneldriver.h"
#include "support/printserver.h"

#include <QFile>
#include <QtTest>

namespace {

constexpr char printers[] = "tblPrinters";
constexpr char finisher[] = "cmbBxOption17";
constexpr char rootWarning[] = "lblRootWarning";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

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
    QFile client(QStringLiteral("/etc/cups/client.conf"));
    QVERIFY(client.open(QIODevice::WriteOnly));
    client.write("ServerName " + qgetenv("CUPS_SERVER") + '\n');
}

void TestPrivileged::installedOption_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("succeeds");
    // sudo wants the user's password, su wants root's.
    const QString users = qEnvironmentVariable("PRESSDESK_USER_PASSWORD");
    const QString roots = qEnvironmentVariable("PRESSDESK_ROOT_PASSWORD");
    QTest::newRow("sudo, wrong password") << "sudo" << roots << false;
    QTest::newRow("sudo") << "sudo" << users << true;
    QTest::newRow("su, wrong password") << "su" << users << false;
    QTest::newRow("su") << "su" << roots << true;
}

void TestPrivileged::installedOption()
{
    QFETCH(QString, method);
    QFETCH(QString, password);
    QFETCH(bool, succeeds);
    QVERIFY2(server.addQueue(QStringLiteral("Office_C3"), QStringLiteral("demo/ppd/px4500.ppd")),
             qPrintable(server.error()));
    PanelDriver panel(QStringLiteral(PRESSDESK_PROGRAM));
    const auto did = [&panel](bool done) {
        if (!done)
            qWarning("%s\n%s", qPrintable(panel.error()), qPrintable(panel.standardError()));
        return done;
    };
    const PanelWidget ok = PanelWidget::standardButton(QStringLiteral("Ok"));
    QVERIFY(did(panel.start()));
    if (panel.isShown(PanelWidget::ofClass(QStringLiteral("TelemetryDialog"))))
        QVERIFY(did(panel.closeWindow(PanelWidget::ofClass(QStringLiteral("TelemetryDialog")))));
    QVERIFY(did(panel.clickRow(printers, QStringLiteral("Office_C3"))));
    QVERIFY(did(panel.choose(finisher, QStringLiteral("Booklet finisher"))));
    QVERIFY(panel.isShown(rootWarning));

    QVERIFY(did(panel.click(PanelWidget::standardButton(QStringLiteral("Apply")))));
    QVERIFY(did(panel.choose("cmbBxMethod", method)));
    QVERIFY(did(panel.enter("lnEditRootPassword", password)));
    QVERIFY(did(panel.click("butOk")));
    const PanelMessageBox box = panel.messageBox();
    QCOMPARE(box.text, succeeds ? QStringLiteral("Settings applied.")
                                : QStringLiteral("Could not authorize."));
    QVERIFY(did(panel.click(ok)));
    QCOMPARE(panel.isShown(rootWarning), !succeeds);
    QCOMPARE(contents(QStringLiteral("/etc/cups/ppd/Office_C3.ppd"))
                 .contains("*DefaultOption17: Finisher2\n"),
             succeeds);
}

QTEST_GUILESS_MAIN(TestPrivileged)

#include "tst_privileged.moc"
