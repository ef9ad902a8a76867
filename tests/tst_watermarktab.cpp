#include "app/publication.h"
#include "app/settingscollector.h"
#include "model/optionstore.h"
#include "pages/watermarktab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

namespace {

const QString textOption =
    "Wtxt 99 Confidential/CONFIDENTIAL* Original/ORIGINAL Copy/COPY "
    "DoNotPhotoCopy/DO_NOT_PHOTOCOPY Draft/DRAFT Final/FINAL Proof/PROOF Custom\n";
const QString colorOptions = "ColorModel 2 CMYK* Gray\nWclr 3 Red Green Blue Black*\n";
const QString superOption = "BXSuperWatermark 9 None/Off* UFLight/Uniform SFDark/Scattered\n";
const QString restOptions =
    "Wren/Watermark_<b> 2 False* True\nWfnt 99 Helvetica* Times Courier\nWtrans 5 Clear* Opaque\n"
    "Wtyp 99 Solid* Outline\nWflg 5 False* True\nWsze 99 0 10 20 30 40 50 60 70 80 90 100 110\n"
    "Wang 3 0 15 30 45 60 75 90 105 120 135 150 165 180 195 210 225 240 255 270 285 300 315 330 "
    "345\n";
const QString allOptions = restOptions + textOption + colorOptions + superOption;

const char *const listNames[] = {"cmbBxWFnt", "cmbBxWsze",   "cmbBxClr",
                                 "cmbBxWang", "cmbBxWtrans", "cmbBxWtyp"};
const QString usualLook = "0 8 3 23 0 0 0";
/// A file with one text of the user's own.
const QString ownSettings = "Wren=True\nCustomWatermarkStore=own=1 2 0 4 1 1 1\n";
const QString ownLook = "1 2 0 4 1 1 1";
const QString ownSelected = ownSettings + "CustomWatermarkSet=own\n";

class Page : public WatermarkTab
{
public:
    using WatermarkTab::WatermarkTab;

    ComboBoxEx *list(const char *name) const { return findNamed<ComboBoxEx>(this, name); }
    QLineEdit *name() const { return findNamed<QLineEdit>(this, "lnEditCustomWatermark"); }
    QCheckBox *repeat() const { return findNamed<QCheckBox>(this, "chkBxWFlg"); }
    BixCheckBoxButton *watermark() const
    {
        return findNamed<BixCheckBoxButton>(this, "chkButWatermark");
    }
    BixCheckBoxButton *super() const
    {
        return findNamed<BixCheckBoxButton>(this, "chkButSuperWatermark");
    }
    QPushButton *button(const QString &name) const
    {
        return findNamed<QPushButton>(this, qPrintable("but" + name + "CustomWatermark"));
    }

    void select(const QString &text) { list("cmbBxWtxt")->setCurrentText(text); }
    QString text() const { return list("cmbBxWtxt")->currentText(); }
    /// What the list of texts has from the separator on.
    QString ownTexts() const
    {
        const ComboBoxEx *texts = list("cmbBxWtxt");
        QStringList entries;
        for (int i = texts->count() - 1; i >= 0 && !texts->itemText(i).isEmpty(); --i)
            entries.prepend(texts->itemText(i));
        return entries.join(' ');
    }
    QString look() const
    {
        QString numbers;
        for (const char *name : listNames)
            numbers += QString::number(list(name)->currentIndex()) + ' ';
        return numbers + (repeat()->isChecked() ? '1' : '0');
    }
    void setLook(const QString &look)
    {
        for (int i = 0; i < 6; ++i)
            list(listNames[i])->setCurrentIndex(look.section(' ', i, i).toInt());
        repeat()->setChecked(look.endsWith('1'));
    }
    void create(const QString &text, const QString &look = usualLook)
    {
        setLook(look);
        name()->setText(text);
        button("New")->click();
    }
    QString superState() const
    {
        const ComboBoxEx *kinds = list("cmbBxSuperWatermark");
        return QString(super()->isEnabled() ? "" : "disabled ") +
               (super()->isChecked() ? "on " : "off ") + (kinds->isEnabled() ? "" : "-") +
               kinds->currentText();
    }
    /// All that the user sees.
    QStringList state() const
    {
        return {watermark()->isChecked() ? "on" : "off",
                text(),
                look(),
                ownTexts(),
                name()->text(),
                superState()};
    }
};

struct Panel
{
    explicit Panel(const QString &settings, const QString &options = allOptions)
    {
        load(settings, options);
    }
    void load(const QString &settings, const QString &options = allOptions)
    {
        dialog.selectPrinter(options, settings);
        page->reload();
    }
    QString current(const char *keyword) const { return RecordingDialog::current(keyword); }
    const Settings &collect() { return collector.collect(); }
    /// The page after its settings went through a real file.
    std::unique_ptr<Page> restarted()
    {
        writeCfg(currentCfgPath, collect(), true);
        currentStore->releaseAllConstraints();
        auto fresh = std::make_unique<Page>(&dialog);
        fresh->reload();
        return fresh;
    }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
    QList<Tab *> pages = {page};
    SettingsCollector collector{pages};
};

} // namespace

class TestWatermarkTab : public QObject
{
    Q_OBJECT

private slots:
    void loadsTexts_data();
    void loadsTexts();
    void comesBackAfterRestart_data();
    void comesBackAfterRestart();
    void newSaveAndDelete();
    void buttonsFollowTheName();
    void selectionBringsItsLook();
    void appliedLookIsKept();
    void switchingOff();
    void colors();
    void superWatermark();
    void defaultTextOfThePrinterBecomesCustom();
    void otherPrinters();
};

void TestWatermarkTab::loadsTexts_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("look");
    const auto row = [](const char *name, const QString &settings, const QString &text,
                        const QString &own, const QString &look = usualLook) {
        QTest::newRow(name) << "Wren=True\n" + settings << text << own << look;
    };
    const QString store = "CustomWatermarkStore=";
    const QString zeros = "0 0 0 0 0 0 0";
    row("nothing saved", "", "CONFIDENTIAL", "");
    row("built-in text has the usual look", "Wtxt=Draft\nWfnt=Times\nWflg=True", "DRAFT", "");
    row("own text", store + "b=1 2 0 4 1 1 1\nCustomWatermarkSet=b\nWtxt=\"b\"", "b", "b", ownLook);
    row("sorted by case", store + "b=\n" + store + "a=\n" + store + "B=", "CONFIDENTIAL", "B a b");
    row("one of them twice", store + "b=1\n" + store + "b=2\nCustomWatermarkSet=b", "b", "b",
        "2 0 0 0 0 0 0");
    row("selected text is gone", store + "b=\nCustomWatermarkSet=c\nWtxt=Draft", "DRAFT", "b");
    row("named as a built-in one", store + "DRAFT=1 2 0 4 1 1 1\nWtxt=Draft", "DRAFT", "", ownLook);
    row("no numbers", store + "b\n" + store + "c=\nCustomWatermarkSet=c", "c", "b c", zeros);
    row("no name", store + "=1 2\n" + store + "\n" + store + "c=", "CONFIDENTIAL", "c");
    row("numbers the lists lack", store + "b=3 12 -1 30 2147483647 -5 -1\nCustomWatermarkSet=b",
        "b", "b", "0 0 3 0 0 0 0");
}

void TestWatermarkTab::loadsTexts()
{
    QFETCH(QString, settings);
    Panel panel(ownSelected); // a printer before, of whose texts nothing may be left
    QCOMPARE(panel.page->text(), QString("own"));
    panel.load(settings);
    QTEST(panel.page->text(), "text");
    QTEST(panel.page->ownTexts(), "own");
    QTEST(panel.page->look(), "look");
    const int ownCount = panel.page->ownTexts().split(' ', Qt::SkipEmptyParts).size();
    QCOMPARE(panel.page->list("cmbBxWtxt")->count(), 7 + 1 + ownCount); // no "Custom", no gaps
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestWatermarkTab::comesBackAfterRestart_data()
{
    QTest::addColumn<QString>("own");   // created first; empty: none
    QTest::addColumn<QString>("text");  // selected; empty: the watermark is off
    QTest::addColumn<QString>("super"); // empty: off
    QTest::addColumn<QString>("words"); // of the command that publishes the text
    const auto row = [](const char *name, const QString &own, const QString &text,
                        const char *super, const QString &words) {
        QTest::newRow(name) << own << text << super << words;
    };
    row("all off", "", "", "", "Wtxt=Confidential");
    row("built-in text", "", "DO NOT PHOTOCOPY", "Scattered", "Wtxt=DoNotPhotoCopy");
    row("own text, another selected", "x", "PROOF", "Uniform", "Wtxt=Proof");
    row("own text, switched off", "x", "", "", "Wtxt=Confidential");
    row("two words", "Top secret", "Top secret", "", R"(Wtxt=Top\ secret)");
    row("all that is escaped", "a@b $5!", "a@b $5!", "", R"(Wtxt=a\@b\ \$5\!)");
    row("name with =", "a=b=1 2", "a=b=1 2", "", R"(Wtxt=a=b=1\ 2)");
    row("emoji and placeholders", "🖨%1%2", "🖨%1%2", "", "Wtxt=🖨%1%2");
}

void TestWatermarkTab::comesBackAfterRestart()
{
    QFETCH(QString, own);
    QFETCH(QString, text);
    QFETCH(QString, super);
    QFETCH(QString, words);
    const QString look = "2 11 1 23 1 1 1";
    Panel panel("Wren=True");
    if (!own.isEmpty())
        panel.page->create(own, look);
    panel.page->select(text);
    panel.page->watermark()->setChecked(!text.isEmpty());
    panel.page->super()->setChecked(!super.isEmpty());
    panel.page->list("cmbBxSuperWatermark")->setCurrentText(super);
    const QStringList state = panel.page->state();
    const QString command = Publication::command("Office", {"Wtxt", "Wflg"}, panel.collect());
    QCOMPARE(QProcess::splitCommand(command).mid(3, 3), QStringList({"-o", words, "-o"}));

    const auto fresh = panel.restarted();
    QCOMPARE(fresh->state(), state);
    if (!own.isEmpty()) {
        fresh->watermark()->setChecked(true);
        fresh->select(own);
        QCOMPARE(fresh->look(), look);
    }
}

void TestWatermarkTab::newSaveAndDelete()
{
    Panel panel(ownSelected);
    Page *page = panel.page;
    page->create("new", "2 1 0 5 1 1 1");
    QCOMPARE(page->ownTexts() + ' ' + page->text(), QString("new own new"));
    page->setLook("1 1 1 1 1 1 0");
    page->button("Save")->click();
    QCOMPARE(page->text(), QString("new")); // although the file still names the other
    page->select("own");
    QCOMPARE(page->look(), ownLook);
    page->select("new");
    QCOMPARE(page->look(), QString("1 1 1 1 1 1 0"));

    page->name()->setText("third");
    page->button("Save")->click(); // under another name
    QCOMPARE(page->ownTexts() + ' ' + page->text(), QString("new own third third"));
    page->button("Delete")->click();
    QCOMPARE(page->ownTexts() + ' ' + page->text(), QString("new own CONFIDENTIAL"));
    QCOMPARE(page->look() + page->name()->text(), usualLook);
    page->button("Save")->click(); // without a name
    QStringList lines = panel.collect().values("CustomWatermarkStore");
    lines.sort();
    QCOMPARE(lines, QStringList({"new=1 1 1 1 1 1 0", "own=1 2 0 4 1 1 1"}));
    QVERIFY(!panel.collect().contains("CustomWatermarkSet"));
}

void TestWatermarkTab::buttonsFollowTheName()
{
    Panel panel(ownSettings);
    const auto enabled = [&](const QString &name) {
        panel.page->name()->setText(name);
        QStringList names;
        for (const QString button : {"New", "Save", "Delete"}) {
            if (panel.page->button(button)->isEnabled())
                names << button;
        }
        return names.join(' ');
    };
    QCOMPARE(enabled(""), QString("Save"));
    QCOMPARE(enabled("new"), QString("New Save"));
    QCOMPARE(enabled("own"), QString("Save Delete"));
    QCOMPARE(enabled("Own"), QString("New Save"));
    QCOMPARE(enabled("DRAFT"), QString("Save"));
    panel.page->watermark()->setChecked(false);
    QCOMPARE(enabled(""), QString());
}

void TestWatermarkTab::selectionBringsItsLook()
{
    Panel panel(ownSettings);
    panel.dialog.remark = [&] { return panel.current("Wtxt") + ' ' + panel.current("Wsze"); };
    panel.page->select("own");
    QCOMPARE(panel.page->name()->text() + ' ' + panel.page->look(), "own " + ownLook);
    QCOMPARE(panel.dialog.takeCalls().value(1), QString("setConstraints Confidential 20"));
    panel.page->select("DRAFT");
    QCOMPARE(panel.page->name()->text() + panel.page->look(), usualLook);
    QCOMPARE(panel.dialog.takeCalls().value(1), QString("setConstraints Draft 80"));
}

void TestWatermarkTab::appliedLookIsKept()
{
    Panel panel(ownSelected);
    panel.page->setLook("2 1 0 5 0 0 0");
    panel.page->name()->setText("typed, but not saved");
    QCOMPARE(panel.collect().values("CustomWatermarkStore"), QStringList("own=2 1 0 5 0 0 0"));
    QCOMPARE(panel.restarted()->look(), QString("2 1 0 5 0 0 0"));
}

void TestWatermarkTab::switchingOff()
{
    Panel panel(ownSelected, allOptions + "Wren=False Wflg=True\n");
    for (const bool on : {true, false, true}) {
        panel.page->watermark()->setChecked(on);
        panel.page->enableOptions();
        for (const char *name : {"cmbBxWtxt", "cmbBxWFnt", "lblWFnt", "cmbBxClr", "chkBxWFlg",
                                 "lnEditCustomWatermark"})
            QVERIFY2(findNamed<QWidget>(panel.page, name)->isEnabled() == on, name);
        if (!on)
            QCOMPARE(panel.current("Wren") + panel.current("Wflg") + panel.current("Wsze"),
                     QString("FalseFalse80"));
    }
    // The list stands at its start now, and the field holds something.
    panel.page->name()->setText("new");
    panel.page->watermark()->setChecked(false);
    QCOMPARE(panel.page->state(),
             QStringList({"off", "CONFIDENTIAL", usualLook, "own", "", "off -Uniform"}));
}

void TestWatermarkTab::colors()
{
    Panel panel{QString()};
    ComboBoxEx *box = panel.page->list("cmbBxClr");
    // The list, "-" before a greyed one; the colour of a built-in text and of the user's own.
    const auto loaded = [&](const QString &options) {
        panel.load(ownSettings, restOptions + textOption + options);
        QString items = box->isEnabled() ? "" : "-";
        for (int i = 0; i < box->count(); ++i)
            items += box->itemText(i) + ' ';
        const QString usual = box->currentText();
        panel.page->select("own");
        return items + "| " + usual + ' ' + box->currentText();
    };
    const QString model = "ColorModel 2 CMYK* Gray\n";
    QCOMPARE(loaded(model + "Wclr 3 Blue*"), QString("Blue Black | Blue Blue"));
    QCOMPARE(loaded(model), QString("Black | Black Black"));
    QCOMPARE(loaded(QString()), QString("-Black | Black Black"));
    QCOMPARE(loaded("Wclr 3 Red Black* Blue"), QString("-Red Black Blue | Black Black"));
    QCOMPARE(loaded(colorOptions), QString("Red Green Blue Black | Black Red"));
    selectValues(*currentStore, "ColorModel=Gray"); // printing in gray leaves black
    QVERIFY(panel.page->enableOptions());
    QCOMPARE(box->currentText(), QString("Black"));
}

void TestWatermarkTab::superWatermark()
{
    Panel panel("BXSuperWatermark=SFDark"); // a printer before
    const auto loaded = [&](const QString &option, const QString &saved) {
        panel.load("BXSuperWatermark=" + saved, option);
        return panel.page->superState() + " = " +
               panel.page->collectSettings().value("BXSuperWatermark");
    };
    QCOMPARE(loaded(superOption, ""), QString("off -Uniform = None"));
    QCOMPARE(loaded(superOption, "UFOld"), QString("on Uniform = UFLight"));
    QCOMPARE(loaded(superOption, "uf"), QString("off -Uniform = None"));
    QCOMPARE(loaded("A 9 B", "SFDark"), QString("disabled off - = "));
    QCOMPARE(loaded("BXSuperWatermark 9", "SFDark"), QString("disabled off - = "));
    QCOMPARE(loaded(superOption, "SFDark"), QString("on Scattered = SFDark"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    panel.page->super()->setChecked(false);
    QCOMPARE(panel.current("BXSuperWatermark"), QString("None"));
    QVERIFY(!panel.dialog.takeCalls().isEmpty());
    panel.page->super()->setChecked(true);
    QCOMPARE(panel.page->superState() + panel.current("BXSuperWatermark"),
             QString("on UniformUFLight"));
}

void TestWatermarkTab::defaultTextOfThePrinterBecomesCustom()
{
    // All values are looked up among the fonts; what isn't there is the printer's default.
    QString options = allOptions;
    options.replace("Confidential/CONFIDENTIAL*", "Custom.Ours/Ours*");
    options.replace("Helvetica* Times", "Helvetica Outline Clear*");
    Panel panel("Wren=True", options);
    panel.dialog.selectPrinter(options, "Wren=True");
    selectValues(*currentStore, "Wtxt=Custom.Ours Wfnt=Clear Wtrans=Clear Wtyp=Solid Wclr=Black");
    panel.page->reload();
    QCOMPARE(panel.page->text() + ' ' + panel.page->name()->text(), QString("Ours Ours"));
    QCOMPARE(panel.page->look(), QString("2 0 3 0 0 0 0"));
    panel.load("Wren=True", QString(allOptions).remove("CONFIDENTIAL*")); // none at all
    QCOMPARE(panel.page->ownTexts(), QString());
}

void TestWatermarkTab::otherPrinters()
{
    // Without a switch nothing can be on, and without texts none is published; own ones are kept.
    Panel panel(ownSelected);
    panel.load(ownSelected, "Wsze 99 10 20*");
    QVERIFY(panel.page->isAvailable() && !panel.page->watermark()->isChecked());
    QVERIFY(!panel.page->list("cmbBxWsze")->isEnabled());
    panel.load(ownSelected, "Wren 2 False* True");
    QVERIFY(panel.page->watermark()->isChecked());
    QVERIFY(!panel.page->list("cmbBxWtxt")->isEnabled() && !panel.page->repeat()->isEnabled());
    QVERIFY(!panel.collect().contains("Wtxt"));
    QCOMPARE(panel.collect().value("CustomWatermarkStore"), "own=" + ownLook);
    panel.load("Wren=True", "Wren 2 False* True\nWtxt 99");
    QVERIFY(!panel.collect().contains("Wtxt"));

    panel.load(ownSelected, "Other 99 A");
    QVERIFY(!panel.page->isAvailable());
    currentStore = nullptr;
    panel.page->reload();
    panel.page->watermark()->setChecked(true);
    panel.page->create("x");
    QVERIFY(!panel.page->isAvailable() && panel.page->collectSettings().isEmpty());
}

QTEST_MAIN(TestWatermarkTab)

#include "tst_watermarktab.moc"
