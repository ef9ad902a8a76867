// The option pages in the unchanged program: conflicts as a user sees them, and what survives a
// restart.

#include "support/paneldriver.h"
#include "support/printserver.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

const QString colorPrinter = QStringLiteral("Office_C3");
const QString rasterPrinter = QStringLiteral("Warehouse_M1");

constexpr char triFold[] = "chkButTriFld";
constexpr char biFold[] = "chkButBiFld";
constexpr char staple[] = "chkButStpl";

QString cfgFile(const QString &printer)
{
    return QStringLiteral("/usr/share/brixola/tester/%1.cfg").arg(printer);
}

QStringList savedLines(const QString &printer)
{
    QFile file(cfgFile(printer));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
               : QStringList();
}

class Panel : public PanelDriver
{
public:
    Panel()
        : PanelDriver(QStringLiteral(PRESSDESK_PROGRAM))
    {
    }
    bool startWith(const QString &printer) { return start() && clickRow("tblPrinters", printer); }
    bool apply()
    {
        const PanelWidget ok = PanelWidget::standardButton(QStringLiteral("Ok"));
        return click(PanelWidget::standardButton(QStringLiteral("Apply"))) &&
               waitFor([this] { return messageBox().shown; }, QStringLiteral("a message")) &&
               click(ok);
    }
    /// "on", "off", with " grey" behind it for a button that can't be clicked.
    QString look(const char *checkBoxButton)
    {
        const QJsonObject found = state(checkBoxButton);
        return (found[QLatin1String("checked")].toBool() ? QStringLiteral("on")
                                                         : QStringLiteral("off")) +
               (found[QLatin1String("enabled")].toBool() ? QString() : QStringLiteral(" grey"));
    }
};

} // namespace

class TestOptionPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void foldsExcludeEachOther();
    void transparenciesAreNotStapled();
    void leanPrintLevelSurvives();
    void adjustmentSurvives();
    void blackAndWhiteResetsAdjustment();
    void rasterPrinterHasNoAdjustment();
    void privatePrintNeedsItsCode();
    void pagesToInsert();
    void customWatermarkArrivesWhole();

private:
    std::unique_ptr<PrintServer> server;
};

void TestOptionPages::initTestCase()
{
    server = std::make_unique<PrintServer>();
    QVERIFY2(server->start() && server->addSampleQueues(), qPrintable(server->error()));
    // Fitted for good: a hard disk, without which there are no sets, inserts and stored jobs, and a
    // finisher with all its units.
    QCOMPARE(QProcess::execute(QStringLiteral("/usr/sbin/lpadmin"),
                               {QStringLiteral("-p"), colorPrinter, QStringLiteral("-o"),
                                QStringLiteral("Option18=HardDisk"), QStringLiteral("-o"),
                                QStringLiteral("Option17=Finisher2"), QStringLiteral("-o"),
                                QStringLiteral("Option19=True"), QStringLiteral("-o"),
                                QStringLiteral("Option22=True")}),
             0);
}

void TestOptionPages::cleanupTestCase()
{
    server.reset();
}

void TestOptionPages::init()
{
    QDir folder(QStringLiteral("/usr/share/brixola/tester"));
    QVERIFY(folder.removeRecursively() && folder.mkpath(QStringLiteral(".")));
    QFile settings(folder.filePath(QStringLiteral("Settings")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("Telemetry=False\n");
}

void TestOptionPages::foldsExcludeEachOther()
{
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Finishing"),
             qPrintable(panel.error()));
    QCOMPARE(panel.look(triFold), QStringLiteral("off"));
    QVERIFY2(panel.click(triFold), qPrintable(panel.error()));
    QCOMPARE(panel.look(triFold), QStringLiteral("on"));
    QCOMPARE(panel.look(biFold), QStringLiteral("off grey"));
    QVERIFY2(panel.click(triFold) && panel.click(biFold), qPrintable(panel.error()));
    QCOMPARE(panel.look(triFold), QStringLiteral("off grey"));
    QCOMPARE(panel.look(biFold), QStringLiteral("on"));
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("FldA=Bifold")));
}

void TestOptionPages::transparenciesAreNotStapled()
{
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Finishing"),
             qPrintable(panel.error()));
    QVERIFY2(panel.click(staple), qPrintable(panel.error()));
    QCOMPARE(panel.look(staple), QStringLiteral("on"));
    QVERIFY2(panel.clickTab("Basic") && panel.choose("cmbBxMediaType", "Transparency"),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab("Finishing"), qPrintable(panel.error()));
    QCOMPARE(panel.look(staple), QStringLiteral("off grey"));
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("Stpl=None")));
}

void TestOptionPages::leanPrintLevelSurvives()
{
    {
        Panel panel;
        QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Imaging"),
                 qPrintable(panel.error()));
        QVERIFY2(panel.clickGroupButton("butGroupLnpr", 1) && panel.choose("cmbBxLnpr", "Level 5"),
                 qPrintable(panel.error()));
        QVERIFY2(panel.apply(), qPrintable(panel.error()));
        QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("Lnpr=Level5")));
    }
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Imaging"), qPrintable(panel.error()));
    QCOMPARE(panel.currentText("butGroupLnpr"), QStringLiteral("On"));
    QCOMPARE(panel.currentText("cmbBxLnpr"), QStringLiteral("Level 5"));
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("Lnpr=Level5")));
}

void TestOptionPages::adjustmentSurvives()
{
    const PanelWidget custom = PanelWidget::button(QStringLiteral("Custom"));
    const PanelWidget ok = PanelWidget::standardButton(QStringLiteral("Ok"));
    {
        Panel panel;
        QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Imaging"),
                 qPrintable(panel.error()));
        QVERIFY2(panel.click("butAdjustment") && panel.click(custom), qPrintable(panel.error()));
        QVERIFY2(panel.enter("Saturation", QStringLiteral("1.25")) && panel.click(ok) &&
                     panel.apply(),
                 qPrintable(panel.error()));
    }
    const QStringList lines = savedLines(colorPrinter);
    QVERIFY(lines.contains(QStringLiteral("fCast=1.25")));
    QVERIFY(lines.contains(QStringLiteral("Cadj=True")));
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Imaging") &&
                 panel.click("butAdjustment"),
             qPrintable(panel.error()));
    QVERIFY(panel.isChecked(custom));
    QCOMPARE(panel.text("Saturation"), QStringLiteral("1.25"));
}

void TestOptionPages::blackAndWhiteResetsAdjustment()
{
    const PanelWidget custom = PanelWidget::button(QStringLiteral("Custom"));
    const PanelWidget ok = PanelWidget::standardButton(QStringLiteral("Ok"));
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Imaging"), qPrintable(panel.error()));
    QVERIFY2(panel.click("butAdjustment") && panel.click(custom), qPrintable(panel.error()));
    QVERIFY2(panel.enter("Saturation", QStringLiteral("1.25")) && panel.click(ok),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab("Basic") && panel.clickGroupButton("butGroupColorModelGeneral", 1),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab("Imaging"), qPrintable(panel.error()));
    // The page's own group has moved along: its button leads to the dialog for black.
    QVERIFY2(panel.click("butAdjustment"), qPrintable(panel.error()));
    QVERIFY(!panel.isShown("Saturation"));
    QVERIFY2(panel.click(PanelWidget::standardButton(QStringLiteral("Cancel"))),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab("Basic") && panel.clickGroupButton("butGroupColorModelGeneral", 0),
             qPrintable(panel.error()));
    QVERIFY2(panel.clickTab("Imaging") && panel.click("butAdjustment"), qPrintable(panel.error()));
    QVERIFY(panel.isShown("Saturation"));
    QVERIFY(!panel.isChecked(custom));
    QCOMPARE(panel.text("Saturation"), QStringLiteral("0"));
}

void TestOptionPages::rasterPrinterHasNoAdjustment()
{
    Panel panel;
    QVERIFY2(panel.startWith(rasterPrinter) && panel.apply(), qPrintable(panel.error()));
    const QStringList lines = savedLines(rasterPrinter);
    QVERIFY(lines.contains(QStringLiteral("PageSize=A4")));
    const QStringList adjustments =
        lines.filter(QRegularExpression(QStringLiteral("^f?(Ca|Mact|Malt|Madj)")));
    QVERIFY2(adjustments.isEmpty(), qPrintable(adjustments.join(QLatin1Char(' '))));
}

void TestOptionPages::privatePrintNeedsItsCode()
{
    constexpr char storage[] = "cmbBxBXCollate1";
    constexpr char code[] = "lnEditJobStorage";
    const PanelWidget apply = PanelWidget::standardButton(QStringLiteral("Apply"));
    {
        Panel panel;
        QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Job") &&
                     panel.click("chkButBXCollate1") && panel.choose(storage, "Private print"),
                 qPrintable(panel.error()));
        QVERIFY(!panel.isEnabled(apply));
        QVERIFY2(panel.enter(code, QStringLiteral("1234")), qPrintable(panel.error()));
        QVERIFY(panel.isEnabled(apply));
        QVERIFY2(panel.apply(), qPrintable(panel.error()));
    }
    QFile saved(cfgFile(colorPrinter));
    QVERIFY(saved.open(QIODevice::ReadOnly) && !saved.readAll().contains("1234"));
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Job"), qPrintable(panel.error()));
    QCOMPARE(panel.currentText(storage), QStringLiteral("Private print"));
    QCOMPARE(panel.text(code), QStringLiteral("1234"));
    QVERIFY2(panel.clickTab("Printer") && panel.choose("cmbBxOption18", "Not installed") &&
                 panel.clickTab("Job"),
             qPrintable(panel.error()));
    QVERIFY(!panel.items(storage).contains(QStringLiteral("Private print")));
    QVERIFY(!panel.items(storage).contains(QStringLiteral("Custom box")));
}

void TestOptionPages::pagesToInsert()
{
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Publishing") &&
                 panel.click("chkButPins") &&
                 panel.enter("lnEditPinsPage", QStringLiteral("2,5-7,3")),
             qPrintable(panel.error()));
    QCOMPARE(panel.look("chkButTint"), QStringLiteral("off grey"));
    QVERIFY2(panel.apply(), qPrintable(panel.error()));
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("BqPageinsertNums=2,3,5,6,7")));
}

void TestOptionPages::customWatermarkArrivesWhole()
{
    {
        Panel panel;
        QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Watermark") &&
                     panel.click("chkButWatermark") &&
                     panel.enter("lnEditCustomWatermark", QStringLiteral("Top secret")) &&
                     panel.click(PanelWidget::button(QStringLiteral("New"))),
                 qPrintable(panel.error()));
        QCOMPARE(panel.currentText("cmbBxWtxt"), QStringLiteral("Top secret"));
        QVERIFY2(panel.apply(), qPrintable(panel.error()));
    }
    QVERIFY(savedLines(colorPrinter).contains(QStringLiteral("Wtxt=\"Top\\ secret\"")));
    QFile defaults(QDir::home().filePath(QStringLiteral(".cups/lpoptions")));
    QVERIFY(defaults.open(QIODevice::ReadOnly));
    const QByteArray text = defaults.readAll();
    QVERIFY2(text.contains("Wtxt=\"Top secret\""), text.constData());
    Panel panel;
    QVERIFY2(panel.startWith(colorPrinter) && panel.clickTab("Watermark"),
             qPrintable(panel.error()));
    QCOMPARE(panel.currentText("cmbBxWtxt"), QStringLiteral("Top secret"));
}

QTEST_GUILESS_MAIN(TestOptionPages)
#include "tst_optionpages.moc"
