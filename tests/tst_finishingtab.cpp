#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/finishingtab.h"
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

const QString foldOptions = "FldA 6 None/Off* Bifold Trifold\n"
                            "FldB 99 None/Off* In Out\nFldC 99 None/Off* L R\n"
                            "FldD 99 None/Off* D1 D2\nBFpS 99 None/Off* B1 B2\n"
                            "cBiFld 6 False True\ncTriFld 6 False True\n";
const QString staples = "Stpl/Stapling 99 None/Off* FrontLeft RearLeft\n";
const QString punches = "Pnch/Holes_&_<b> 99 None/Off* 2Hole 3Hole\n";
const QString methods = "Scnt 99 None/Off* S1 S2\n";
const QString groups = "Sep 99 None/Off* Jog/Offset_jobs Rot/Rotate_copies\n"
                       "Rotate 99 False/Off* True/On\n";
const QString finisher =
    foldOptions + staples + methods + punches + groups + "cStpl 6 False True\ncHole 6 False True\n";
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
    BixButtonGroup *group(const char *name) const { return findNamed<BixButtonGroup>(this, name); }
    QLabel *label(const char *name) const { return findNamed<QLabel>(this, name); }
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
    /// Brings every list to one position, counted from its end if negative.
    void setLists(int position)
    {
        for (const char *keyword : listKeywords)
            list(keyword)->setCurrentIndex(position < 0 ? list(keyword)->count() + position
                                                        : position);
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
    /// What a constraint pass of the main dialog does with one page; the error marks on the two
    /// fold headings.
    QString marksAfterPass()
    {
        setMarked(false);
        enableOptions();
        clearMarks();
        markConstraintWidgets();
        return marks();
    }
    QString marks() const
    {
        QStringList counts;
        for (const char *name : {"lblTriFld", "lblBiFld"})
            counts << QString::number(label(name)->text().count("<img src=':/icons/error'> "));
        return counts.join(' ');
    }

    void beforeLoad() override { note("beforeLoad"); }
    void loadOptions() override { FinishingTab::loadOptions(), note("loaded"); }
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
    void loadsButtons_data();
    void loadsButtons();
    void orderOfReload();
    void separationOffersWhatThePrinterHas();
    void stapleMethod();
    void states_data();
    void states();
    void otherFoldStaysUntilItsOwnChange();
    void foldMarks();
    void oddPrinters_data();
    void oddPrinters();
    void rotateTitles();
    void unavailable();
};

void TestFinishingTab::loadsButtons_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("on");
    const auto row = [](const char *name, const QString &options, const QString &settings,
                        const char *on) { QTest::newRow(name) << options << settings << on; };
    row("bi-fold", foldOptions, "FldA=Bifold\ncBiFld=True", "BiFld");
    row("no fold", foldOptions, "FldA=None\ncTriFld=False", "");
    row("no fold, buttons not saved", foldOptions, "FldA=None", "");
    row("unknown fold", foldOptions, "FldA=bifold\ncTriFld=True", "TriFld");
    row("can't fold, staple or punch", groups, "FldA=Bifold\nStpl=Front\nPnch=2Hole", "");
    for (const char *place : {"Center2", "DualRear", "FrontLeft", "BookletStitch", "InternalTop"})
        row(place, staples + methods, QString("Stpl=") + place, "Stpl");
    row("no staple", staples + methods, "Stpl=None", "");
    row("holes", punches, "Pnch=2Hole", "Pnch");
}

void TestFinishingTab::loadsButtons()
{
    QFETCH(QString, options);
    QFETCH(QString, settings);
    Panel panel;
    panel.load(finisher, "FldA=Trifold\ncTriFld=True"); // a printer before
    panel.load(options, settings);
    QTEST(panel.page->on(), "on");
    QCOMPARE(panel.page->label("lblHolePunch")->isEnabled(), options.contains("Pnch"));
    QCOMPARE(panel.page->label("lblTriFld")->isEnabled(), options.contains("FldA"));
    QCOMPARE(panel.page->button("BiFld")->isEnabled(), options.contains("FldA"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
}

void TestFinishingTab::orderOfReload()
{
    Panel panel;
    panel.load(finisher, "Stpl=FrontLeft\ncStpl=True\nPnch=2Hole\ncHole=True");
    // All of them silent; the lists below buttons follow once more.
    QCOMPARE(panel.page->steps.join(' '),
             QString("beforeLoad loaded Sep FldB FldC FldD BFpS Rotate Pnch Stpl Scnt cTriFld "
                     "cBiFld cHole cStpl Pnch Scnt Stpl enableOptions Pnch Scnt Stpl"));
    QVERIFY(!panel.page->list("Stpl")->signalsBlocked());
}

void TestFinishingTab::separationOffersWhatThePrinterHas()
{
    Panel panel;
    const BixButtonGroup *group = panel.page->group("butGroupSep");
    const auto usable = [&] {
        QString marks;
        for (int i = 0; i < group->buttonCount(); ++i)
            marks += group->buttonAt(i)->isEnabled() ? '+' : '-';
        return marks + ' ' + group->currentText();
    };
    panel.load(groups, "Sep=Rot\nRotate=True");
    QCOMPARE(usable(), QString("+++ Rotate copies"));
    panel.load("Sep 99 None/Off* Rot/Rotate_copies X");
    QCOMPARE(usable(), QString("+-+ Off"));
    QCOMPARE(panel.page->group("butGroupRot")->currentText(), QString("Off")); // has none
    panel.load("Sep 99 None/Off Jog/Offset_jobs* X");
    QCOMPARE(usable(), QString("++- Offset jobs"));
    panel.load(foldOptions);
    QCOMPARE(usable(), QString("--- Off"));
}

void TestFinishingTab::stapleMethod()
{
    for (const char *choices : {"", " S1", " S1 S2"}) {
        Panel panel;
        panel.load(finisher + "Scnt 99 None/Off*" + choices, "Stpl=RearLeft\ncStpl=True");
        const ComboBoxEx *method = panel.page->list("Scnt");
        const bool canChoose = qstrcmp(choices, " S1 S2") == 0;
        for (const char *toggled : {"", "Stpl- Stpl+"}) {
            panel.page->toggle(toggled);
            panel.page->marksAfterPass(); // frees nothing
            QCOMPARE(method->isEnabled(), canChoose);
            QCOMPARE(panel.page->label("lblScnt")->isEnabled(), canChoose);
        }
    }
}

void TestFinishingTab::states_data()
{
    QTest::addColumn<QString>("toggled");
    QTest::addColumn<QString>("model"); // FldA cBiFld cTriFld
    QTest::addColumn<QString>("saved"); // FldA and all lists
    QTest::addColumn<QString>("marks"); // on the two headings
    const auto row = [](const char *name, const char *toggled, const char *model, const char *saved,
                        const char *marks = "0 0") {
        QTest::newRow(name) << toggled << model << saved << marks;
    };
    const char *const flat = "None False False";
    const char *const nothing = "None None None None None None None None";
    const char *const triFold = "Trifold Out R D2 None None None None";
    const char *const both = "Bifold Out R D2 B2 None None None";
    row("all off", "", flat, nothing);
    row("bi-fold", "BiFld+", "Bifold True False", "Bifold None None None B2 None None None");
    row("tri-fold", "TriFld+", "Trifold False True", triFold);
    row("bi-fold, then both", "BiFld+ TriFld+", "Bifold True True", both, "1 1");
    row("tri-fold, then both", "TriFld+ BiFld+", "Trifold True True", both, "1 1");
    row("both, then one", "BiFld+ TriFld+ BiFld-", "Trifold False True", triFold);
    row("both, then none", "BiFld+ TriFld+ BiFld- TriFld-", flat, nothing);
    row("holes", "Pnch+", flat, "None None None None None 3Hole None None");
    row("staples", "Stpl+ Pnch+ Pnch-", flat, "None None None None None None RearLeft S2");
}

void TestFinishingTab::states()
{
    QFETCH(QString, toggled);
    Panel panel;
    panel.load(finisher);
    selectValues(*currentStore, "FldA=None");
    panel.page->toggle(toggled);
    panel.page->setLists(1);
    panel.page->group("butGroupSep")->buttonAt(2)->click();
    panel.page->group("butGroupRot")->buttonAt(1)->click();
    panel.page->marksAfterPass();
    QTEST(panel.page->marksAfterPass(), "marks");
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
    QCOMPARE(settings.value("Sep") + settings.value("Rotate"), QString("RotTrue"));
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
    panel.load(foldOptions);
    panel.page->toggle("TriFld+ BiFld+");
    panel.dialog.takeCalls();
    panel.dialog.remark = [] {
        return RecordingDialog::current("FldA") + ' ' + RecordingDialog::current("cTriFld");
    };
    panel.page->toggle("TriFld-");
    QCOMPARE(panel.dialog.takeCalls(),
             QStringList({"setConstraints Bifold True", "setConstraints Bifold False"}));
    panel.page->toggle("TriFld+");
    panel.page->resetForDisabled();
    QCOMPARE(panel.page->on(), QString());
}

void TestFinishingTab::foldMarks()
{
    Panel panel;
    panel.load(foldOptions);
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

void TestFinishingTab::oddPrinters_data()
{
    QTest::addColumn<QString>("choices");
    QTest::newRow("no choices") << "";
    QTest::newRow("off alone") << " None/Off*";
    QTest::newRow("one choice") << " Front/Front*";
    QTest::newRow("two choices without a default") << " Front 2Hole";
    QTest::newRow("twenty choices") << QString(" A B C D E F G H I J K L M N O P Q R S T");
    QTest::newRow("off by another name") << " None/Without* A B";
    QTest::newRow("choices with one text") << " A/Off B/Off C/Same D/Same*";
}

void TestFinishingTab::oddPrinters()
{
    QFETCH(QString, choices);
    QString options = finisher;
    options.replace(QRegularExpression("^(\\w+).*$", QRegularExpression::MultilineOption),
                    "\\1 99" + choices);
    Panel panel;
    panel.load(options, "Stpl=Front\nPnch=2Hole\nFldA=Bifold");
    for (const char *steps : {"TriFld+ BiFld+ Pnch+ Stpl+", "TriFld- BiFld- Pnch- Stpl-"}) {
        panel.page->toggle(steps);
        panel.page->setLists(-1);
        for (const char *name : {"butGroupSep", "butGroupRot"})
            panel.page->group(name)->buttonAt(1)->click();
        panel.page->marksAfterPass();
        const QHash<QString, QString> settings = panel.page->collectSettings();
        for (const char *keyword : listKeywords) {
            const QString value = settings.value(keyword); // none for an empty list
            QVERIFY(panel.page->on().isEmpty() ? value == "None"
                                               : value.isNull() || choices.contains(value));
        }
    }
}

void TestFinishingTab::rotateTitles()
{
    QCOMPARE(FinishingTab::rotateTitle("fr_CA"), QString("Tourner 180°"));
    QCOMPARE(FinishingTab::rotateTitle("de"), QString("Rotiert 180°"));
    for (const char *other : {"ja_JP", "C"})
        QCOMPARE(FinishingTab::rotateTitle(other), QString("Rotate 180°"));
}

void TestFinishingTab::unavailable()
{
    Panel panel;
    QVERIFY(!panel.page->isAvailable());
    panel.page->reload(); // without a printer
    panel.page->toggle("TriFld+ BiFld+");
    panel.page->resetForDisabled();
    panel.load("FldA 6 None/Off* Bifold"); // nothing of it has a widget
    QVERIFY(!panel.page->isAvailable());
    panel.page->markKeyword("FldA", "Bifold");
    QVERIFY(!panel.page->hasMarks()); // they must not hold up the other pages
    panel.load("cHole 6 False True");
    QVERIFY(panel.page->isAvailable());
}

QTEST_MAIN(TestFinishingTab)

#include "tst_finishingtab.moc"
