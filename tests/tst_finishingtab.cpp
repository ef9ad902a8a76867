#include "model/optionstore.h"
#include "pages/finishing/finishingtab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QLabel>
#include <QPushButton>

namespace {

const QString folds = "FldA 6 None/Off* Bifold Trifold\n"
                      "FldB 99 None/Off* In Out\nFldC 99 None/Off* L R\n"
                      "FldD 99 None/Off* D1 D2\nBFpS 99 None/Off* B1 B2\n"
                      "cBiFld 6 False True\ncTriFld 6 False True\n";
const QString staples = "Stpl 99 None/Off* FrontLeft RearLeft\nScnt 99 None/Off* S1 S2\n";
const QString punches = "Pnch 99 None/Off* 2Hole 3Hole\n";
const QString groups = "Sep 99 None/Off* Jog/Offset_jobs Rot/Rotate_copies\n"
                       "Rotate 99 False/Off* True/On\n";
const QString finisher =
    folds + staples + punches + groups + "cStpl 6 False True\ncHole 6 False True\n";
const char *const listKeywords[] = {"FldB", "FldC", "FldD", "BFpS", "Pnch", "Stpl", "Scnt"};

/// Notes the steps of a load.
class Page : public FinishingTab
{
public:
    using FinishingTab::FinishingTab;

    BixCheckBoxButton *button(const QString &name) const
    {
        return findNamed<BixCheckBoxButton>(this, qPrintable("chkBut" + name));
    }
    ComboBoxEx *list(const char *keyword) const
    {
        return qobject_cast<ComboBoxEx *>(boundWidgets.value(keyword));
    }

    /// Switches buttons on and off, like "BiFld+ TriFld-".
    void toggle(const QString &steps)
    {
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts))
            button(step.chopped(1))->setChecked(step.endsWith('+'));
    }
    /// The buttons that are on.
    QString on() const
    {
        QStringList names;
        for (const char *name : {"TriFld", "BiFld", "Pnch", "Stpl"}) {
            if (button(name)->isChecked())
                names << name;
        }
        return names.join(' ');
    }
    /// Brings every list to its last item, and both groups to their second button.
    void chooseEverything()
    {
        for (const char *keyword : listKeywords)
            list(keyword)->setCurrentIndex(list(keyword)->count() - 1);
        for (const char *name : {"butGroupSep", "butGroupRot"})
            findNamed<BixButtonGroup>(this, name)->buttonAt(1)->click();
    }
    /// What a constraint pass of the main dialog does with one page.
    void runPass()
    {
        setMarked(false);
        enableOptions();
        clearMarks();
        markConstraintWidgets();
    }
    /// How many error marks the two fold headings have.
    QString marks() const
    {
        QStringList counts;
        for (const char *name : {"lblTriFld", "lblBiFld"})
            counts << QString::number(findNamed<QLabel>(this, name)->text().count("<img src="));
        return counts.join(' ');
    }

    void beforeLoad() override { note("beforeLoad"); }
    bool enableOptions() override { return note("enableOptions"), FinishingTab::enableOptions(); }
    void applyWidgetValue(int value, QObject *widget) override
    {
        note(boundWidgets.key(widget));
        FinishingTab::applyWidgetValue(value, widget);
    }

    QStringList steps;

private:
    void note(const QString &step)
    {
        steps << step + (list("Stpl")->signalsBlocked() ? "" : " loud");
    }
};

struct Panel
{
    void load(const QString &options, const QString &settings = QString())
    {
        dialog.selectPrinter(options, settings);
        page->steps.clear();
        page->reload();
    }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
};

} // namespace

class TestFinishingTab : public QObject
{
    Q_OBJECT

private slots:
    void loadsButtons();
    void orderOfReload();
    void separationOffersWhatThePrinterHas();
    void stapleMethod();
    void states_data();
    void states();
    void otherFoldStaysUntilItsOwnChange();
    void foldMarks();
    void oddPrinters();
    void rotateTitles();
    void unavailable();
};

void TestFinishingTab::loadsButtons()
{
    Panel panel;
    const auto loaded = [&](const QString &options, const QString &settings) {
        panel.load(finisher, "FldA=Trifold\ncTriFld=True"); // a printer before
        panel.load(options, settings);
        return panel.page->on();
    };
    QCOMPARE(loaded(folds, "FldA=Bifold\ncBiFld=True"), QString("BiFld"));
    QCOMPARE(loaded(folds, "FldA=bifold\ncTriFld=True"), QString("TriFld")); // no such fold
    QCOMPARE(loaded(folds, "FldA=None"), QString());
    QVERIFY(!findNamed<QLabel>(panel.page, "lblHolePunch")->isEnabled());
    for (const char *place : {"Center2", "DualRear", "FrontLeft", "BookletStitch", "InternalTop"})
        QCOMPARE(loaded(staples, QString("Stpl=") + place), QString("Stpl"));
    QCOMPARE(loaded(staples, "Stpl=None"), QString());
    QCOMPARE(loaded(punches, "Pnch=2Hole"), QString("Pnch"));
    QVERIFY(findNamed<QLabel>(panel.page, "lblHolePunch")->isEnabled());
    QCOMPARE(loaded(groups, "FldA=Bifold\nStpl=Front\nPnch=2Hole"), QString()); // can do nothing
    QVERIFY(!findNamed<QLabel>(panel.page, "lblTriFld")->isEnabled());
    QVERIFY(!panel.page->button("BiFld")->isEnabled());
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestFinishingTab::orderOfReload()
{
    Panel panel;
    panel.load(finisher, "Stpl=FrontLeft\ncStpl=True\nPnch=2Hole\ncHole=True");
    // All of them silent; the lists below buttons follow once more.
    QCOMPARE(panel.page->steps.join(' '),
             QString("beforeLoad Sep FldB FldC FldD BFpS Rotate Pnch Stpl Scnt cTriFld cBiFld "
                     "cHole cStpl Pnch Scnt Stpl enableOptions Pnch Scnt Stpl"));
    QVERIFY(!panel.page->list("Stpl")->signalsBlocked());
}

void TestFinishingTab::separationOffersWhatThePrinterHas()
{
    Panel panel;
    const auto loaded = [&](const QString &options, const QString &settings = QString()) {
        panel.load(options, settings);
        const auto *group = findNamed<BixButtonGroup>(panel.page, "butGroupSep");
        QString usable;
        for (int i = 0; i < group->buttonCount(); ++i)
            usable += group->buttonAt(i)->isEnabled() ? '+' : '-';
        return usable + ' ' + group->currentText();
    };
    QCOMPARE(loaded(groups, "Sep=Rot\nRotate=True"), QString("+++ Rotate copies"));
    QCOMPARE(loaded("Sep 99 None/Off* Rot/Rotate_copies X"), QString("+-+ Off"));
    QCOMPARE(findNamed<BixButtonGroup>(panel.page, "butGroupRot")->currentIndex(), 0); // has none
    QCOMPARE(loaded("Sep 99 None/Off Jog/Offset_jobs* X"), QString("++- Offset jobs"));
    QCOMPARE(loaded(folds), QString("--- Off"));
}

void TestFinishingTab::stapleMethod()
{
    for (const char *choices : {"", " S1", " S1 S2"}) {
        Panel panel;
        panel.load(finisher + "Scnt 99 None/Off*" + choices, "Stpl=RearLeft\ncStpl=True");
        const bool canChoose = QString(choices) == " S1 S2";
        for (const char *toggled : {"", "Stpl- Stpl+"}) {
            panel.page->toggle(toggled);
            panel.page->runPass(); // frees nothing
            QCOMPARE(panel.page->list("Scnt")->isEnabled(), canChoose);
            QCOMPARE(findNamed<QLabel>(panel.page, "lblScnt")->isEnabled(), canChoose);
        }
    }
}

void TestFinishingTab::states_data()
{
    // Options FldA, cBiFld and cTriFld of the model; saved FldA and lists; marks on the headings.
    addRows({"toggled", "model", "saved", "marks"}, R"(
all off             |                               | None False False   | None None None None None None None None   | 0 0
bi-fold             | BiFld+                        | Bifold True False  | Bifold None None None B2 None None None   | 0 0
bi-fold, then both  | BiFld+ TriFld+                | Bifold True True   | Bifold Out R D2 B2 None None None         | 1 1
tri-fold, then both | TriFld+ BiFld+                | Trifold True True  | Bifold Out R D2 B2 None None None         | 1 1
both, then one      | BiFld+ TriFld+ BiFld-         | Trifold False True | Trifold Out R D2 None None None None      | 0 0
both, then none     | BiFld+ TriFld+ BiFld- TriFld- | None False False   | None None None None None None None None   | 0 0
holes               | Pnch+                         | None False False   | None None None None None 3Hole None None  | 0 0
staples             | Stpl+ Pnch+ Pnch-             | None False False   | None None None None None None RearLeft S2 | 0 0
)");
}

void TestFinishingTab::states()
{
    QFETCH(QString, toggled);
    Panel panel;
    panel.load(finisher);
    selectValues(*currentStore, "FldA=None");
    panel.page->toggle(toggled);
    panel.page->chooseEverything();
    panel.page->runPass();
    panel.page->runPass();
    QTEST(panel.page->marks(), "marks");
    QCOMPARE(panel.page->hasMarks(), panel.page->marks() == "1 1");
    QStringList model;
    for (const char *keyword : {"FldA", "cBiFld", "cTriFld"})
        model << RecordingDialog::current(keyword);
    QTEST(model.join(' '), "model");

    const QHash<QString, QString> settings = panel.page->collectSettings();
    QStringList saved(settings.value("FldA"));
    for (const char *keyword : listKeywords)
        saved << settings.value(keyword);
    QTEST(saved.join(' '), "saved");
    QCOMPARE(settings.value("Sep") + settings.value("Rotate"), QString("JogTrue"));
    QCOMPARE(settings.size(), 14);

    writeCfg(currentCfgPath, Settings(settings), true);
    auto *fresh = new Page(&panel.dialog);
    fresh->reload();
    QCOMPARE(fresh->on(), panel.page->on());
    QCOMPARE(fresh->collectSettings(), settings);
    panel.page->toggle("TriFld+ BiFld+ Pnch+ Stpl+ TriFld- BiFld- Pnch- Stpl-");
    for (const char *keyword : listKeywords) {
        QCOMPARE(fresh->list(keyword)->isEnabled(), settings.value(keyword) != "None");
        QCOMPARE(panel.page->list(keyword)->currentIndex(), 0);
    }
}

void TestFinishingTab::otherFoldStaysUntilItsOwnChange()
{
    Panel panel;
    panel.load(folds);
    panel.page->toggle("TriFld+ BiFld+");
    panel.dialog.takeCalls();
    panel.dialog.remark = [] {
        return RecordingDialog::current("FldA") + ' ' + RecordingDialog::current("cTriFld");
    };
    panel.page->toggle("TriFld-");
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"setConstraints Bifold True", "setConstraints Bifold False"}));
}

void TestFinishingTab::foldMarks()
{
    Panel panel;
    panel.load(folds);
    const auto marksOf = [&](const char *keyword, const char *value) {
        panel.page->clearMarks();
        panel.page->markKeyword(keyword, value);
        panel.page->markKeyword(keyword, value); // once only
        return panel.page->marks() + (panel.page->hasMarks() ? " marked" : "");
    };
    QCOMPARE(marksOf("FldA", "Trifold"), QString("1 0 marked"));
    QCOMPARE(marksOf("FldA", "Bifold"), QString("0 1 marked"));
    QCOMPARE(marksOf("FldA", "None"), QString("0 0 marked"));
    QCOMPARE(marksOf("FldB", "Bifold"), QString("0 0"));
}

void TestFinishingTab::oddPrinters()
{
    // For every option: too few choices, too many, without a default, off by another name, doubled.
    for (const char *choices :
         {"", "Front/Front*", "Front 2Hole", "None/Without* A B",
          "A B C D E F G H I J K L M N O P Q R S T", "A/Off B/Off C/Same D/Same*"}) {
        QString options = finisher;
        options.replace(QRegularExpression("^(\\w+).*$", QRegularExpression::MultilineOption),
                        QString("\\1 99 ") + choices);
        Panel panel;
        panel.load(options, "Stpl=Front\nPnch=2Hole\nFldA=Bifold");
        for (const char *steps : {"TriFld+ BiFld+ Pnch+ Stpl+", "TriFld- BiFld- Pnch- Stpl-"}) {
            panel.page->toggle(steps);
            panel.page->chooseEverything();
            panel.page->runPass();
            const QHash<QString, QString> settings = panel.page->collectSettings();
            for (const char *keyword : listKeywords) {
                const QString value = settings.value(keyword); // none for an empty list
                QVERIFY(panel.page->on().isEmpty()
                            ? value == "None"
                            : value.isNull() || QString(choices).contains(value));
            }
        }
    }
}

void TestFinishingTab::rotateTitles()
{
    QCOMPARE(FinishingTab::rotateTitle("fr_CA"), QString("Tourner 180°"));
    QCOMPARE(FinishingTab::rotateTitle("ja_JP"), QString("Rotate 180°"));
}

void TestFinishingTab::unavailable()
{
    Panel panel;
    QVERIFY(!panel.page->isAvailable());
    panel.page->reload(); // without a printer
    panel.page->toggle("TriFld+ BiFld+");
    panel.page->resetForDisabled();
    QCOMPARE(panel.page->on(), QString());
    panel.load("FldA 6 None/Off* Bifold"); // nothing of it has a widget
    QVERIFY(!panel.page->isAvailable());
    panel.page->markKeyword("FldA", "Bifold");
    QVERIFY(!panel.page->hasMarks()); // they must not hold up the other pages
    panel.load("cHole 6 False True");
    QVERIFY(panel.page->isAvailable());
}

QTEST_MAIN(TestFinishingTab)

#include "tst_finishingtab.moc"
