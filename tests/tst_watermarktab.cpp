#include "app/publication.h"
#include "app/settingscollector.h"
#include "model/optionstore.h"
#include "pages/watermark/watermarktab.h"
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
const QString ownLook = "1 2 0 4 1 1 1";
const QString ownSettings = "Wren=True; CustomWatermarkStore=own=" + ownLook;
const QString ownSelected = ownSettings + "; CustomWatermarkSet=own";

class Page : public WatermarkTab
{
public:
    using WatermarkTab::WatermarkTab;

    ComboBoxEx *list(const char *name) const { return findNamed<ComboBoxEx>(this, name); }
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
        return numbers + (repeat->isChecked() ? '1' : '0');
    }
    void setLook(const QString &look)
    {
        for (int i = 0; i < 6; ++i)
            list(listNames[i])->setCurrentIndex(look.section(' ', i, i).toInt());
        repeat->setChecked(look.endsWith('1'));
    }
    void create(const QString &text, const QString &look)
    {
        setLook(look);
        nameEdit->setText(text);
        button("New")->click();
    }
    QString superState() const
    {
        const ComboBoxEx *kinds = list("cmbBxSuperWatermark");
        return QString(super->isEnabled() ? "" : "disabled ") +
               (super->isChecked() ? "on " : "off ") + (kinds->isEnabled() ? "" : "-") +
               kinds->currentText();
    }
    /// All that the user sees.
    QString state() const
    {
        const QString on = watermark->isChecked() ? "on" : "off";
        return QStringList({on, text(), look(), ownTexts(), nameEdit->text(), superState()})
            .join(',');
    }

    BixCheckBoxButton *watermark = findNamed<BixCheckBoxButton>(this, "chkButWatermark");
    BixCheckBoxButton *super = findNamed<BixCheckBoxButton>(this, "chkButSuperWatermark");
    QLineEdit *nameEdit = findNamed<QLineEdit>(this, "lnEditCustomWatermark");
    QCheckBox *repeat = findNamed<QCheckBox>(this, "chkBxWFlg");
};

struct Panel
{
    explicit Panel(const QString &settings) { load(settings); }
    void load(const QString &settings, const QString &options = allOptions)
    {
        dialog.selectPrinter(options, QString(settings).replace("; ", "\n"));
        page->reload();
    }
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
    void switchingOff();
    void colors();
    void superWatermark();
    void defaultTextOfThePrinterBecomesCustom();
    void otherPrinters();
};

void TestWatermarkTab::loadsTexts_data()
{
    // "own:" stands for a line with a text of the user's own.
    addRows({"settings", "text", "own", "look"}, R"(
nothing saved         |                                                         | CONFIDENTIAL |       | 0 8 3 23 0 0 0
usual look            | Wtxt=Draft; Wfnt=Times; Wflg=True                       | DRAFT        |       | 0 8 3 23 0 0 0
own text              | own:b=1 2 0 4 1 1 1; CustomWatermarkSet=b; Wtxt="b"     | b            | b     | 1 2 0 4 1 1 1
sorted by case        | own:b=; own:a=; own:B=                                  | CONFIDENTIAL | B a b | 0 8 3 23 0 0 0
one of them twice     | own:b=1; own:b=2; CustomWatermarkSet=b                  | b            | b     | 2 0 0 0 0 0 0
selected text is gone | own:b=; CustomWatermarkSet=c; Wtxt=Draft                | DRAFT        | b     | 0 8 3 23 0 0 0
named as a built-in   | own:DRAFT=1 2 0 4 1 1 1; Wtxt=Draft                     | DRAFT        |       | 1 2 0 4 1 1 1
no numbers            | own:b; own:c=; CustomWatermarkSet=c                     | c            | b c   | 0 0 0 0 0 0 0
no name               | own:=1 2; own:; own:c=                                  | CONFIDENTIAL | c     | 0 8 3 23 0 0 0
what the lists lack   | own:b=3 12 -1 30 2147483647 -5 -1; CustomWatermarkSet=b | b            | b     | 0 0 3 0 0 0 0
)");
}

void TestWatermarkTab::loadsTexts()
{
    QFETCH(QString, settings);
    Panel panel(ownSelected); // a printer before, of whose texts nothing may be left
    QCOMPARE(panel.page->text(), QString("own"));
    panel.load("Wren=True; " + settings.replace("own:", "CustomWatermarkStore="));
    QTEST(panel.page->text(), "text");
    QTEST(panel.page->ownTexts(), "own");
    QTEST(panel.page->look(), "look");
    const int ownCount = panel.page->ownTexts().split(' ', Qt::SkipEmptyParts).size();
    QCOMPARE(panel.page->list("cmbBxWtxt")->count(), 7 + 1 + ownCount); // no "Custom", no gaps
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestWatermarkTab::comesBackAfterRestart_data()
{
    // Created first; selected, or the watermark is off; the kind of super watermark; what of it
    // the publishing command passes on.
    addRows({"own", "text", "super", "words"}, R"(
all off                |            |                  |           | Wtxt=Confidential
built-in text          |            | DO NOT PHOTOCOPY | Scattered | Wtxt=DoNotPhotoCopy
own text, not selected | x          | PROOF            | Uniform   | Wtxt=Proof
own text, switched off | x          |                  |           | Wtxt=Confidential
two words              | Top secret | Top secret       |           | Wtxt=Top\ secret
all that is escaped    | a@b $5!    | a@b $5!          |           | Wtxt=a\@b\ \$5\!
name with =            | a=b=1 2    | a=b=1 2          |           | Wtxt=a=b=1\ 2
emoji and placeholders | 🖨%1%2      | 🖨%1%2            |           | Wtxt=🖨%1%2
)");
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
    panel.page->watermark->setChecked(!text.isEmpty());
    panel.page->super->setChecked(!super.isEmpty());
    panel.page->list("cmbBxSuperWatermark")->setCurrentText(super);
    const QString state = panel.page->state();
    const QString command = Publication::command("Office", {"Wtxt", "Wflg"}, panel.collect());
    QCOMPARE(QProcess::splitCommand(command).mid(3, 3), QStringList({"-o", words, "-o"}));

    const auto fresh = panel.restarted();
    QCOMPARE(fresh->state(), state);
    if (!own.isEmpty()) {
        fresh->watermark->setChecked(true);
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

    page->nameEdit->setText("third");
    page->button("Save")->click(); // under another name
    QCOMPARE(page->ownTexts() + ' ' + page->text(), QString("new own third third"));
    page->button("Delete")->click();
    QCOMPARE(page->ownTexts() + ' ' + page->text(), QString("new own CONFIDENTIAL"));
    QCOMPARE(page->look() + page->nameEdit->text(), usualLook);
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
        panel.page->nameEdit->setText(name);
        QString names;
        for (const QString button : {"New", "Save", "Delete"})
            names += panel.page->button(button)->isEnabled() ? button + ' ' : QString();
        return names.trimmed();
    };
    QCOMPARE(enabled(""), QString("Save"));
    QCOMPARE(enabled("new"), QString("New Save"));
    QCOMPARE(enabled("own"), QString("Save Delete"));
    QCOMPARE(enabled("Own"), QString("New Save"));
    QCOMPARE(enabled("DRAFT"), QString("Save"));
    panel.page->watermark->setChecked(false);
    QCOMPARE(enabled(""), QString());
}

void TestWatermarkTab::selectionBringsItsLook()
{
    Panel panel(ownSettings);
    const auto selected = [&](const QString &text) {
        panel.dialog.takeCalls();
        panel.page->select(text);
        return panel.page->nameEdit->text() + ' ' + panel.page->look() + ' ' +
               panel.dialog.takeCalls().last();
    };
    panel.dialog.remark = [&] {
        return panel.dialog.current("Wtxt") + ' ' + panel.dialog.current("Wsze");
    };
    QCOMPARE(selected("own"), "own " + ownLook + " setConstraints Confidential 20");
    QCOMPARE(selected("DRAFT"), ' ' + usualLook + " setConstraints Draft 80");
    // What the user changes is kept, but no name that is only typed.
    panel.page->select("own");
    panel.page->setLook("2 1 0 5 0 0 0");
    panel.page->nameEdit->setText("typed, but not saved");
    QCOMPARE(panel.collect().values("CustomWatermarkStore"), QStringList("own=2 1 0 5 0 0 0"));
    QCOMPARE(panel.restarted()->look(), QString("2 1 0 5 0 0 0"));
}

void TestWatermarkTab::switchingOff()
{
    Panel panel(ownSelected);
    panel.load(ownSelected, allOptions + "Wren=False Wflg=True\n");
    for (const bool on : {true, false, true}) {
        panel.page->watermark->setChecked(on);
        panel.page->enableOptions();
        for (const char *name : {"cmbBxWtxt", "cmbBxWFnt", "lblWFnt", "cmbBxClr", "chkBxWFlg",
                                 "lblCustomWatermark", "lnEditCustomWatermark"})
            QVERIFY2(findNamed<QWidget>(panel.page, name)->isEnabled() == on, name);
    }
    panel.page->nameEdit->setText("new");
    panel.page->watermark->setChecked(false);
    QCOMPARE(panel.page->state(), QString("off,CONFIDENTIAL,0 8 3 23 0 0 0,own,,off -Uniform"));
    for (const QString value : {"Wren=False", "Wflg=False", "Wsze=80"})
        QCOMPARE(panel.dialog.current(value.section('=', 0, 0)), value.section('=', 1));
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
    QCOMPARE(loaded(superOption, "uf"), QString("off -Uniform = None"));
    QCOMPARE(loaded(superOption, "OldUF"), QString("on Uniform = UFLight"));
    QCOMPARE(loaded("A 9 B", "SFDark"), QString("disabled off - = "));
    QCOMPARE(loaded("BXSuperWatermark 9", "SFDark"), QString("disabled off - = "));
    QCOMPARE(loaded(superOption, "SFDark"), QString("on Scattered = SFDark"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    panel.page->super->setChecked(false);
    QCOMPARE(panel.dialog.current("BXSuperWatermark"), QString("None"));
    QVERIFY(!panel.dialog.takeCalls().isEmpty());
    panel.page->super->setChecked(true);
    QCOMPARE(panel.page->superState() + panel.dialog.current("BXSuperWatermark"),
             QString("on UniformUFLight"));
}

void TestWatermarkTab::defaultTextOfThePrinterBecomesCustom()
{
    // All values are looked up among the fonts; what isn't there is the printer's default.
    QString options = allOptions;
    options.replace("Confidential/CONFIDENTIAL*", "Custom.Ours/Ours*");
    options.replace("Helvetica* Times", "Helvetica Outline Clear*");
    Panel panel("Wren=True");
    panel.dialog.selectPrinter(options, "Wren=True");
    selectValues(*currentStore, "Wtxt=Custom.Ours Wfnt=Clear Wtrans=Clear Wtyp=Solid Wclr=Black");
    panel.page->reload();
    QCOMPARE(panel.page->text() + ' ' + panel.page->nameEdit->text(), QString("Ours Ours"));
    QCOMPARE(panel.page->look(), QString("2 0 3 0 0 0 0"));
    panel.load("Wren=True", QString(allOptions).remove("CONFIDENTIAL*")); // none at all
    QCOMPARE(panel.page->ownTexts(), QString());
}

void TestWatermarkTab::otherPrinters()
{
    // Without a switch nothing can be on, and without texts none is published; own ones are kept.
    Panel panel(ownSelected);
    panel.load(ownSelected, "Wsze 99 10 20*");
    QVERIFY(panel.page->isAvailable() && !panel.page->watermark->isChecked());
    QVERIFY(!panel.page->list("cmbBxWsze")->isEnabled());
    panel.load(ownSelected, "Wren 2 False* True");
    QVERIFY(panel.page->watermark->isChecked());
    QVERIFY(!panel.page->list("cmbBxWtxt")->isEnabled() && !panel.page->repeat->isEnabled());
    QVERIFY(!panel.collect().contains("Wtxt"));
    QCOMPARE(panel.collect().value("CustomWatermarkStore"), "own=" + ownLook);
    panel.load("Wren=True", "Wren 2 False* True\nWtxt 99");
    QVERIFY(!panel.collect().contains("Wtxt"));

    panel.load(ownSelected, "Other 99 A");
    QVERIFY(!panel.page->isAvailable());
    currentStore = nullptr;
    panel.page->reload();
    panel.page->watermark->setChecked(true);
    panel.page->create("x", usualLook);
    QVERIFY(!panel.page->isAvailable() && panel.page->collectSettings().isEmpty());
}

QTEST_MAIN(TestWatermarkTab)

#include "tst_watermarktab.moc"
