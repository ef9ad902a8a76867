#include "model/optionstore.h"
#include "pages/imaging/imagingtab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

const QString colors = "ColorModel 2 CMYK/Full_color* Gray/Black_&_white\n";
const QString five = "Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five\n";
const QString adjustments = "Cadj/Tune_<i>_&_co 5 False* True\nCaColorSpace 99 -1* 0 1\n"
                            "CaHueMaster 6 00\nCaHr 6 0\nCaHy 6 0\nCaHg 6 0\nCaHc 6 0\nCaHb 6 0\n"
                            "CaHm 6 0\nCast 6 0\nCabt 6 0\nCact 6 0\nCaCR 6 0\nCaMG 6 0\n"
                            "CaYB 6 0\nMadj 99 False* True\n";
const QString everything =
    "BSCREENMODE/Screen 99 S1* S2\nTrap 99 Off* T1\nGBTn/Black_for_gray 6 False* True\n"
    "Resolution 5 600* 1200\nSmoothing 99 False True*\nBXGlossmode 6 False* True\n"
    "Crep 3 C1* C2\nRCM 5 R1* R2\nCIE 99 E1* E2\n" +
    colors + five + adjustments;

/// Notes the steps of a reload.
class Page : public ImagingTab
{
public:
    using ImagingTab::ImagingTab;

    void setTabName() override { ImagingTab::setTabName(), note("setTabName"); }
    void beforeLoad() override { note("beforeLoad"); }
    void clearMarks() override { ImagingTab::clearMarks(), note("clearMarks"); }
    void loadOptions() override { ImagingTab::loadOptions(), note("loadOptions"); }
    void applyAllWidgets() override { ImagingTab::applyAllWidgets(), note("applyAllWidgets"); }
    void afterLoad() override { note("afterLoad"); }
    bool enableOptions() override { return note("enableOptions"), ImagingTab::enableOptions(); }

    ComboBoxEx *list(const char *keyword) const
    {
        return qobject_cast<ComboBoxEx *>(boundWidgets.value(keyword));
    }
    BixButtonGroup *leanPrint() const { return findNamed<BixButtonGroup>(this, "butGroupLnpr"); }
    /// LeanPrint as the user sees it: "Off", "On: Five", with "-" before what is greyed.
    QString leanPrintText() const
    {
        const auto text = [](const QWidget *widget, const QString &current) {
            return (widget->isEnabled() ? "" : "-") + current;
        };
        const QString group = text(leanPrint(), leanPrint()->currentText());
        const ComboBoxEx *levels = list("cLnpr");
        return levels->isHidden() ? group : group + ": " + text(levels, levels->currentText());
    }
    /// All settings as "Keyword=value", sorted, but of the adjustments only how many there are.
    QString saved()
    {
        const QHash<QString, QString> settings = collectSettings();
        QStringList words;
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            words << it.key() + '=' + it.value();
        words = words.filter(QRegularExpression("^(?!f?Ca|HueIndex|f?M)"));
        words.sort();
        return QString("%1 %2").arg(words.join(' ')).arg(settings.size() - words.size());
    }

    QStringList steps;

private:
    void note(const char *step)
    {
        steps << step + QString(list("Trap")->signalsBlocked() ? "" : " loud");
    }
};

struct Panel
{
    void load(const QString &options, const QString &settings = QString())
    {
        dialog.selectPrinter(options, settings);
        page->reload();
    }
    static QString current(const char *keyword) { return RecordingDialog::current(keyword); }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
    BixButtonGroup *colorGroup = page->colorGroup();
};

} // namespace

class TestImagingTab : public QObject
{
    Q_OBJECT

private slots:
    void leanPrint_data();
    void leanPrint();
    void color();
    void colorFollowsTheModel();
    void clicksReachModelAndDialog();
    void colorClickClearsTheOtherMode();
    void printers();
    void reloadOrder();
    void roundTrip_data();
    void roundTrip();
};

void TestImagingTab::leanPrint_data()
{
    // Steps: "on", "off", a position in the list, or "force" for a pass after another option has
    // excluded "off", behind which "+" tells of a change.
    addRows({"saved", "steps", "shown", "current", "stored", "option"}, R"(
printer without it          | On      |              | -Off         |          |         | Trap 99 Off*
on/off: a level saved       | Level4  |              | On           | On       | On      | Lnpr 5 Off* On
on/off: on by default       |         |              | On           | On       | On      | Lnpr 5 Off On*
on/off: clicks              |         | on off       | Off          | Off      | Off     | Lnpr 5 Off* On
on/off: forced              |         | force+ force | -On          | On       | On      | Lnpr 5 Off* On
off alone                   |         | on           | On           | Off      | On      | Lnpr 5 Off*
without choices             | Level1  |              | On           | LnprNULL | On      | Lnpr 5
levels: saved               | Level5  |              | On: Five     | Level3   | Level5  | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
levels: on saved            | On      |              | On: Level3   | Level3   | Level3  | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
levels: default             |         |              | On: Level2   | Level3   | Level2  | Lnpr 5 Off Level1 Level2* Level3
levels: rubbish is off      | Foo     |              | Off: -Level2 | Off      | Off     | Lnpr 5 Off* Foo Level2
levels: click, off and back |         | on 4 off     | Off: -Level3 | Off      | Off     | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
levels: click               |         | on 4         | On: Five     | Level5   | Level5  | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
levels: forced              |         | force+ force | -On: Level3  | Level3   | Level3  | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
levels: forced, on already  | Level5  | force        | -On: Five    | Level3   | Level5  | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5/Five
four choices: off stays     |         | 0 off        | Off: -Level1 | Off      | Off     | Lnpr 5 Off Level1 Level2* Level3
two levels: saved           | Level1  |              | On: Level1   | LnprNULL | Level1  | Lnpr 5 Off* Level1 Level2
two levels: forced          |         | force+ force | -On: Level2  | Off      | Level2  | Lnpr 5 Off* Level1 Level2
levels and on: saved        | Level4  |              | On: -Level4  | On       | Level4  | Lnpr 5 Off* Level1 Level2 Level3 Level4 On
no off                      |         |              | Off: -Level3 | LnprNULL | Off     | Lnpr 5 None* Level1 Level2 Level3
one name                    | Level2  |              | On: L        | LnprNULL | Level2  | Lnpr 5 Off* Level1/L Level2/L
twenty choices              | Level19 |              | On: Level19  | Level3   | Level19 | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5 Level6 Level7 Level8 Level9 Level10 Level11 Level12 Level13 Level14 Level15 Level16 Level17 Level18 Level19
)");
}

void TestImagingTab::leanPrint()
{
    QFETCH(QString, option);
    QFETCH(QString, saved);
    QFETCH(QString, steps);
    const QString rule = steps.contains("force") ? "\nPolicy 1 Off On\nPolicy=On Lnpr=Off" : "";
    Panel panel;
    panel.load(five, "Lnpr=Level1"); // a printer before
    panel.load(option + rule, "Lnpr=" + saved);
    panel.page->enableOptions();
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
        if (step.startsWith("force")) {
            selectValues(*currentStore, "Policy=On");
            QCOMPARE(panel.page->enableOptions(), step.endsWith('+'));
        } else if (step[0].isDigit()) {
            panel.page->list("cLnpr")->setCurrentIndex(step.toInt());
        } else {
            panel.page->leanPrint()->buttonAt(step == "on")->click();
        }
    }
    QTEST(panel.page->leanPrintText(), "shown");
    QTEST(panel.current("Lnpr"), "current");
    QTEST(panel.page->collectSettings().value("Lnpr"), "stored");
    if (!rule.isEmpty()) {
        const auto *label = panel.page->leanPrint()->findChild<QLabel *>();
        QVERIFY(label->palette().color(QPalette::Disabled, QPalette::WindowText) !=
                QColor(0x9f, 0x9e, 0x9e)); // it reads as always
        selectValues(*currentStore, "Policy=Off");
        QVERIFY(!panel.page->enableOptions());
        QVERIFY(panel.page->leanPrintText().startsWith("On")); // free to change it again
    }
}

void TestImagingTab::color()
{
    Panel panel;
    const auto loaded = [&](const QString &options, const QString &settings = QString()) {
        panel.load(colors, "ColorModel=CMYK"); // a printer before
        panel.load(options, settings);
        panel.page->enableOptions(); // a constraint pass leaves it so
        return (panel.colorGroup->isEnabled() ? "" : "-") + panel.colorGroup->currentText() + ", " +
               panel.page->collectSettings().value("ColorModel");
    };
    QCOMPARE(loaded("Trap 99 Off*", "ColorModel=CMYK"), QString("-Black & white, Gray"));
    QCOMPARE(loaded("ColorModel 2 CMYK/Full_color*"), QString("-Black & white, "));
    QCOMPARE(loaded(colors, "ColorModel=Gray"), QString("Black & white, Gray"));
    QCOMPARE(loaded("ColorModel 2 RGB/Full_color* Gray"), QString("Full color, RGB"));
}

void TestImagingTab::colorFollowsTheModel()
{
    Panel panel;
    panel.load("Policy 1 Off On\n" + colors + "Policy=On ColorModel=CMYK");
    selectValues(*currentStore, "Policy=On");
    QVERIFY(panel.page->enableOptions());
    QVERIFY(!panel.page->enableOptions());
    QCOMPARE(panel.colorGroup->currentText(), QString("Black & white"));
    QCOMPARE(panel.current("ColorModel"), QString("Gray"));
    selectValues(*currentStore, "Policy=Off ColorModel=CMYK"); // another page did
    QVERIFY(!panel.page->enableOptions());
    QCOMPARE(panel.colorGroup->currentText(), QString("Full color"));
}

void TestImagingTab::clicksReachModelAndDialog()
{
    Panel panel;
    panel.load(everything, "Cadj=True\nCaColorSpace=0");
    panel.dialog.remark = [&] {
        return panel.current("ColorModel") + panel.current("Cadj") + panel.current("Lnpr");
    };
    // Adjustments go before the option moves.
    panel.colorGroup->buttonAt(1)->click();
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"toggleColorMode CMYKTrueOff", "setConstraints GrayFalseOff"}));
    panel.page->leanPrint()->buttonAt(1)->click();
    panel.page->list("cLnpr")->setCurrentIndex(0);
    // The list moves first, while the level still counts.
    panel.page->leanPrint()->buttonAt(0)->click();
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"setConstraints GrayFalseLevel3", "setConstraints GrayFalseLevel1",
                          "setConstraints GrayFalseLevel1", "setConstraints GrayFalseOff"}));
}

void TestImagingTab::colorClickClearsTheOtherMode()
{
    Panel panel;
    const auto adjustedAfterClick = [&](int button) {
        panel.load(colors + adjustments,
                   "Cadj=True\nCaColorSpace=0\nfCaHr=2.5\nMadj=True\nfMalt=3.7");
        panel.colorGroup->buttonAt(button)->click();
        const QHash<QString, QString> settings = panel.page->collectSettings();
        return settings["fCaHr"] + ' ' + settings["fMalt"];
    };
    QCOMPARE(adjustedAfterClick(0), QString("2.5 0"));
    QCOMPARE(adjustedAfterClick(1), QString("0 3.7"));
}

void TestImagingTab::printers()
{
    Panel panel;
    const auto *label = findNamed<QLabel>(panel.page, "lblAdjustment");
    const auto loaded = [&](const QString &options, bool raster = false) {
        panel.page->retranslate(); // as the dialog does on a printer change
        panel.load(options);
        currentStore->setRasterOrPdfFilter(raster);
        return QString(panel.page->isAvailable() ? "" : "not available ") +
               (label->isEnabled() ? "" : "-") + label->text() + ' ' + panel.page->saved();
    };
    QVERIFY(!panel.page->isAvailable());
    QCOMPARE(loaded(everything),
             QString("Tune <i> & co: BSCREENMODE=S1 BXGlossmode=False CIE=E1 ColorModel=CMYK "
                     "Crep=C1 GBTn=False Lnpr=Off RCM=R1 Resolution=600 Smoothing=True Trap=Off "
                     "34"));
    QCOMPARE(loaded(everything, true).right(2), QString(" 0"));
    // Nothing of the printer before stays.
    QCOMPARE(loaded("Madj 5 False True"), QString("not available Adjustment: ColorModel=Gray 5"));
    QCOMPARE(loaded("GBTn 6 False* True"), QString("-Adjustment: ColorModel=Gray GBTn=False 5"));
    QCOMPARE(panel.page->list("Resolution")->currentText(), QString("600 dpi"));
    // Without any printer.
    currentStore = nullptr;
    panel.page->reload();
    QVERIFY(!panel.page->enableOptions());
    panel.page->leanPrint()->buttonAt(1)->click();
    panel.colorGroup->buttonAt(0)->click();
    QCOMPARE(panel.page->saved(), QString("ColorModel=Gray 0"));
}

void TestImagingTab::reloadOrder()
{
    Panel panel;
    panel.load(everything);
    panel.page->steps.clear();
    panel.page->reload();
    QCOMPARE(panel.page->steps,
             QStringList({"setTabName", "clearMarks", "loadOptions", "applyAllWidgets"}));
    QVERIFY(!panel.page->list("Trap")->signalsBlocked());
}

void TestImagingTab::roundTrip_data()
{
    addRows({"adjusted"}, R"(
hues and tones  | Cadj=True CaColorSpace=0 HueIndex=6 fCaHm=-0.29 fCact=9.99
color balance   | Cadj=True CaColorSpace=1 fCaCR=10 fCaYB=-0.01
black and white | Madj=True fMalt=3.7 fMact=-10
)");
}

void TestImagingTab::roundTrip()
{
    QFETCH(QString, adjusted);
    const QStringList lines = adjusted.split(' ');
    Panel panel;
    panel.load(everything, lines.join('\n'));
    // Everything else away from its default.
    for (const char *name : {"Trap", "CIE", "BSCREENMODE", "Resolution", "Crep", "RCM"})
        panel.page->list(name)->setCurrentIndex(1);
    for (const char *name : {"chkBxBXGlossMode", "chkBxSmoothing", "chkBxGBTn"})
        findNamed<QCheckBox>(panel.page, name)->click();
    panel.page->leanPrint()->buttonAt(1)->click();
    panel.page->list("cLnpr")->setCurrentIndex(4);
    panel.colorGroup->buttonAt(adjusted.startsWith("Madj"))->click();
    const QHash<QString, QString> settings = panel.page->collectSettings();
    for (const QString &line : lines)
        QCOMPARE(settings.value(line.section('=', 0, 0)), line.section('=', 1));

    Panel fresh;
    fresh.dialog.selectPrinter(everything);
    writeCfg(currentCfgPath, Settings(settings), true);
    fresh.page->reload();
    fresh.page->enableOptions();
    QCOMPARE(fresh.page->collectSettings(), settings);
    QCOMPARE(fresh.page->leanPrintText(), QString("On: Five"));
}

QTEST_MAIN(TestImagingTab)

#include "tst_imagingtab.moc"
