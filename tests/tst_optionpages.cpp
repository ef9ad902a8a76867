// The option pages in the unchanged program: conflicts as a user sees them, and what survives a
// restart.

#include "support/panelsteps.h"
#include "support/printserver.h"
#include "support/testhelpers.h"

namespace {

const QString colorPrinter = "Office_C3";
const QString rasterPrinter = "Warehouse_M1";

constexpr char triFold[] = "chkButTriFld";
constexpr char biFold[] = "chkButBiFld";
constexpr char staple[] = "chkButStpl";
constexpr char leanPrint[] = "butGroupLnpr";
constexpr char levels[] = "cmbBxLnpr";
constexpr char adjustment[] = "butAdjustment";
constexpr char storage[] = "cmbBxBXCollate1";
constexpr char code[] = "lnEditJobStorage";
constexpr char watermark[] = "cmbBxWtxt";

class PagePanel : public Panel
{
public:
    /// Starts the panel, ending the one before, and goes to a page of the color printer.
    bool open(const char *page)
    {
        return (!isRunning() || (cancel() && waitForEnd())) && startWith(colorPrinter) &&
               clickTab(page);
    }
    bool applyAndAnswer() { return apply() && answer(); }
    /// "on" or "off", with " grey" behind it for a button that can't be clicked.
    QString look(const char *checkBoxButton)
    {
        const QJsonObject found = state(checkBoxButton);
        return QLatin1String(found["checked"].toBool() ? "on" : "off") +
               (found["enabled"].toBool() ? "" : " grey");
    }
};

} // namespace

class TestOptionPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QVERIFY(makeUserFolder()); }
    void cleanupTestCase() { server.reset(); }
    void foldsExcludeEachOther();
    void transparenciesAreNotStapled();
    void imagingSurvivesRestartAndLosesAdjustmentInBlack();
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
    QCOMPARE(QProcess::execute("/usr/sbin/lpadmin", {"-p", colorPrinter, "-o", "Option18=HardDisk",
                                                     "-o", "Option17=Finisher2", "-o",
                                                     "Option19=True", "-o", "Option22=True"}),
             0);
}

void TestOptionPages::foldsExcludeEachOther()
{
    PagePanel panel;
    QVERIFY(panel.open("Finishing") && panel.click(triFold));
    QCOMPARE(panel.look(triFold) + ", " + panel.look(biFold), QString("on, off grey"));
    QVERIFY(panel.click(triFold) && panel.click(biFold));
    QCOMPARE(panel.look(triFold) + ", " + panel.look(biFold), QString("off grey, on"));
    QVERIFY(panel.applyAndAnswer());
    QVERIFY(savedLines(colorPrinter).contains("FldA=Bifold"));
}

void TestOptionPages::transparenciesAreNotStapled()
{
    PagePanel panel;
    QVERIFY(panel.open("Finishing") && panel.click(staple));
    QCOMPARE(panel.look(staple), QString("on"));
    QVERIFY(panel.clickTab("Basic") && panel.choose("cmbBxMediaType", "Transparency") &&
            panel.clickTab("Finishing"));
    QCOMPARE(panel.look(staple), QString("off grey"));
    QVERIFY(panel.applyAndAnswer());
    QVERIFY(savedLines(colorPrinter).contains("Stpl=None"));
}

void TestOptionPages::imagingSurvivesRestartAndLosesAdjustmentInBlack()
{
    const PanelWidget custom = PanelWidget::button("Custom");
    const QStringList lines{"Lnpr=Level5", "Cadj=True", "fCast=1.25"};
    PagePanel panel;
    QVERIFY(panel.open("Imaging") && panel.clickGroupButton(leanPrint, 1) &&
            panel.choose(levels, "Level 5") && panel.click(adjustment) && panel.click(custom) &&
            panel.enter("Saturation", "1.25") && panel.ok() && panel.applyAndAnswer());
    QCOMPARE(missing(lines, savedLines(colorPrinter)), QStringList());
    QVERIFY(panel.open("Imaging"));
    QCOMPARE(panel.currentText(leanPrint) + ", " + panel.currentText(levels),
             QString("On, Level 5"));
    QVERIFY(panel.applyAndAnswer() && panel.click(adjustment));
    QCOMPARE(missing(lines, savedLines(colorPrinter)), QStringList());
    QVERIFY(panel.isChecked(custom));
    QCOMPARE(panel.text("Saturation"), QString("1.25"));

    QVERIFY(panel.cancel() && panel.clickTab("Basic") &&
            panel.clickGroupButton("butGroupColorModelGeneral", 1) && panel.clickTab("Imaging") &&
            panel.click(adjustment));
    // The page's own group has moved along: its button leads to the dialog for black.
    QVERIFY(!panel.isShown("Saturation"));
    QVERIFY(panel.cancel() && panel.clickTab("Basic") &&
            panel.clickGroupButton("butGroupColorModelGeneral", 0) && panel.clickTab("Imaging") &&
            panel.click(adjustment));
    QVERIFY(!panel.isChecked(custom));
    QCOMPARE(panel.text("Saturation"), QString("0"));
}

void TestOptionPages::rasterPrinterHasNoAdjustment()
{
    PagePanel panel;
    QVERIFY(panel.startWith(rasterPrinter) && panel.applyAndAnswer());
    const QStringList lines = savedLines(rasterPrinter);
    QVERIFY(lines.contains("PageSize=A4"));
    QCOMPARE(lines.filter(QRegularExpression("^f?(Ca|Mact|Malt|Madj)")), QStringList());
}

void TestOptionPages::privatePrintNeedsItsCode()
{
    const PanelWidget apply = Panel::standardButton("Apply");
    PagePanel panel;
    QVERIFY(panel.open("Job") && panel.click("chkButBXCollate1") &&
            panel.choose(storage, "Private print"));
    QVERIFY(!panel.isEnabled(apply));
    QVERIFY(panel.enter(code, "1234"));
    QVERIFY(panel.isEnabled(apply));
    QVERIFY(panel.applyAndAnswer());
    const QByteArray saved = fileText(cfgFile(colorPrinter));
    QVERIFY(!saved.isEmpty() && !saved.contains("1234"));
    QVERIFY(panel.open("Job"));
    QCOMPARE(panel.currentText(storage) + ", " + panel.text(code), QString("Private print, 1234"));
    QVERIFY(panel.clickTab("Printer") && panel.choose("cmbBxOption18", "Not installed") &&
            panel.clickTab("Job"));
    const QStringList kinds = panel.items(storage);
    QVERIFY(!kinds.contains("Private print") && !kinds.contains("Custom box"));
}

void TestOptionPages::pagesToInsert()
{
    PagePanel panel;
    QVERIFY(panel.open("Publishing") && panel.click("chkButPins") &&
            panel.enter("lnEditPinsPage", "2,5-7,3"));
    QCOMPARE(panel.look("chkButTint"), QString("off grey"));
    QVERIFY(panel.applyAndAnswer());
    QVERIFY(savedLines(colorPrinter).contains("BqPageinsertNums=2,3,5,6,7"));
}

void TestOptionPages::customWatermarkArrivesWhole()
{
    PagePanel panel;
    QVERIFY(panel.open("Watermark") && panel.click("chkButWatermark") &&
            panel.enter("lnEditCustomWatermark", "Top secret") &&
            panel.click(PanelWidget::button("New")));
    QCOMPARE(panel.currentText(watermark), QString("Top secret"));
    QVERIFY(panel.applyAndAnswer());
    QVERIFY(savedLines(colorPrinter).contains("Wtxt=\"Top\\ secret\""));
    QVERIFY(fileText(lpoptionsFile()).contains("Wtxt=\"Top secret\""));
    QVERIFY(panel.open("Watermark"));
    QCOMPARE(panel.currentText(watermark), QString("Top secret"));
}

QTEST_GUILESS_MAIN(TestOptionPages)

#include "tst_optionpages.moc"
