#include "app/settingscollector.h"
#include "model/optionstore.h"
#include "pages/publishing/publishingtab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

namespace {

QString publishingOptions()
{
    QString options;
    for (const char *keyword : {"CvrM", "Pmed", "Tmed"})
        options += QLatin1String(keyword) + " 8 Plain/Plain_paper* Heavy/Heavy_paper\n";
    for (const char *keyword :
         {"cCovBut", "cCovTRad", "cCovBRad", "cCovPOFO", "cCovPOFI", "cCovPOBO", "cCovPOBI",
          "cInsBut", "cInsPrnF", "cInsPrnB", "cIntBut", "cIntPrn"})
        options += QLatin1String(keyword) + " 8 False True\n";
    return options;
}

/// What the user sets, by the short names that the tables use.
const QList<QPair<QString, const char *>> inputs = {
    {"Cover", "chkButCvr"},
    {"Front", "rdButCvrFront"},
    {"Both", "rdButCvrFrontBack"},
    {"FrontOut", "chkBxCvrFrontOut"},
    {"FrontIn", "chkBxCvrFrontIn"},
    {"BackOut", "chkBxCvrBackOut"},
    {"BackIn", "chkBxCvrBackIn"},
    {"CoverMedia", "cmbBxCvrM"},
    {"Insert", "chkButPins"},
    {"OntoFront", "chkBxPinsPrintOntoFront"},
    {"OntoBack", "chkBxPinsPrintOntoBack"},
    {"Pages", "lnEditPinsPage"},
    {"InsertMedia", "cmbBxPMed"},
    {"Interleave", "chkButTint"},
    {"OntoBacking", "chkBxTintPrintOnto"},
    {"BackingMedia", "cmbBxTMed"},
};
const QString everything = "Cover Both FrontOut FrontIn BackOut BackIn CoverMedia=1 Insert "
                           "OntoFront OntoBack Pages=1,900 InsertMedia=1 Interleave OntoBacking "
                           "BackingMedia=1";

class Page : public PublishingTab
{
public:
    using PublishingTab::PublishingTab;

    /// Sets inputs as a user does: "Cover FrontOut -FrontIn CoverMedia=1 Pages=2-5".
    void set(const QString &changes)
    {
        for (const QString &word : changes.split(' ', Qt::SkipEmptyParts)) {
            const bool on = !word.startsWith('-');
            const QString shortName = word.mid(on ? 0 : 1).section('=', 0, 0);
            const QString value = word.section('=', 1);
            const auto input = std::find_if(inputs.begin(), inputs.end(), [&](const auto &pair) {
                return pair.first == shortName;
            });
            const char *name = input->second;
            if (auto *button = findNamed<BixCheckBoxButton>(this, name)) {
                button->setChecked(on);
            } else if (auto *box = findNamed<ComboBoxEx>(this, name)) {
                box->setCurrentIndex(value.toInt());
            } else if (auto *plain = findNamed<QAbstractButton>(this, name)) {
                plain->setChecked(on);
            } else if (auto *line = findNamed<QLineEdit>(this, name)) {
                line->setText(value);
                emit line->textEdited(value);
            }
        }
    }
    /// All inputs that are on or hold something, in the form of set().
    QString state() const
    {
        QStringList words;
        for (const auto &[name, accessibleName] : inputs) {
            const auto *button = findNamed<BixCheckBoxButton>(this, accessibleName);
            const auto *plain = findNamed<QAbstractButton>(this, accessibleName);
            const auto *box = findNamed<ComboBoxEx>(this, accessibleName);
            const auto *line = findNamed<QLineEdit>(this, accessibleName);
            if ((button && button->isChecked()) || (plain && plain->isChecked()))
                words << name;
            else if (box && box->currentIndex() > 0)
                words << name + '=' + QString::number(box->currentIndex());
            else if (line && !line->text().isEmpty())
                words << name + '=' + line->text();
        }
        return words.join(' ');
    }
    /// The headings that carry a mark.
    QString marks() const
    {
        QStringList marked;
        for (const char *name : {"lblCvrMode", "lblPins", "lblTint"}) {
            if (findNamed<QLabel>(this, name)->text().count("<img src=':/icons/error'>") == 1)
                marked << QLatin1String(name);
        }
        return marked.join(' ');
    }
    QString message() const { return findNamed<QLabel>(this, "lblPins")->toolTip(); }
    /// What a constraint pass of the main dialog does with one page.
    void runPass()
    {
        setMarked(false);
        enableOptions();
        beforeConstraints();
        clearMarks();
        markConstraintWidgets();
    }
};

struct Panel
{
    explicit Panel(const QString &settings = QString()) { load(settings); }
    void load(const QString &settings, const QString &options = publishingOptions())
    {
        dialog.selectPrinter(options, QString(settings).replace(' ', '\n'));
        page->reload();
    }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
};

} // namespace

class TestPublishingTab : public QObject
{
    Q_OBJECT

private slots:
    void marks_data();
    void marks();
    void comesBackAfterRestart_data();
    void comesBackAfterRestart();
    void switchesReachTheModel();
    void damagedSettings_data();
    void damagedSettings();
    void otherPrinters();
};

void TestPublishingTab::marks_data()
{
    // The page's own options have no rules here that keep the three apart.
    addRows({"steps", "marks", "message", "blocks", "saved"}, R"(
good                      | Insert Cover Pages=2,5-7,3                      |                            |                                                   | no  | 2,3,5,6,7
emptied                   | Insert Pages=2 Pages=                           | lblPins                    | Please type a page range.                         | yes |
two commas                | Insert Pages=3,,4                               | lblPins                    | Please enter your specified pages.                | yes |
51 pages                  | Insert Pages=2-52                               | lblPins                    | You can only insert up to 50 pages.               | yes |
page 2 of the cover       | Insert Pages=2 Cover FrontOut FrontIn           | lblPins                    | You can only enter page numbers between 3 and 511 | yes |
page 2 behind a cover     | Insert Cover FrontOut FrontIn Pages=2 -FrontOut |                            |                                                   | no  | 2
corrected                 | Insert Pages=1 Pages=4                          |                            |                                                   | no  | 4
next page not typed       | Insert Pages=2 Pages=2,                         |                            |                                                   | yes |
comma behind an error     | Insert Pages=1 Pages=2,                         |                            | You can only enter page numbers between 2 and 511 | yes |
open range                | Insert Pages=1 Pages=12-                        |                            |                                                   | yes |
interleaving              | Interleave                                      |                            |                                                   | no  |
cover, then interleaving  | Cover Interleave                                | lblCvrMode lblTint         |                                                   | yes |
interleaving, then insert | Interleave Insert Pages=4                       | lblPins lblTint            |                                                   | yes | 4
list not finished         | Interleave Insert Pages=12-                     | lblPins lblTint            |                                                   | yes |
all three                 | Cover Interleave Insert Pages=4                 | lblCvrMode lblPins lblTint |                                                   | yes | 4
)");
}

void TestPublishingTab::marks()
{
    QFETCH(QString, steps);
    QFETCH(QString, blocks); // OK and Apply
    Panel panel;
    for (const QString &step : steps.split(' ')) {
        panel.dialog.takeCalls();
        panel.page->set(step);
        QVERIFY(!panel.dialog.takeCalls().isEmpty());
    }
    QTEST(panel.page->message(), "message");
    QTEST(panel.page->extraSettings().value("BqPageinsertNums"), "saved");
    for (int pass = 0; pass < 2; ++pass) {
        panel.page->runPass();
        QTEST(panel.page->marks(), "marks");
        QTEST(panel.page->message(), "message");
        QCOMPARE(panel.page->hasMarks(), blocks == "yes");
    }
    panel.page->set("-Interleave -Insert");
    panel.page->runPass();
    QCOMPARE(panel.page->marks(), QString());
}

void TestPublishingTab::comesBackAfterRestart_data()
{
    // What is off saves as in the first row, which the others leave out.
    addRows({"state", "saved"}, R"(
nothing         | Front | BqCoverModeEnabled=False BqIntLvEnabled=False BqIntLvValue=0 BqPageInsertEnabled=False BqPageinsertValue=-1 Pins=Off
blank, front    | Cover Front              | BQCoverMedia=Plain BqCoverModeEnabled=True BqCoverModeValue=16 BqCovermodeRadioButtonState=1
blank, both     | Cover Both CoverMedia=1  | BQCoverMedia=Heavy BqCoverModeEnabled=True BqCoverModeValue=32 BqCovermodeRadioButtonState=2
front sides     | Cover Both FrontOut BackIn | BQCoverMedia=Plain BqCoverModeEnabled=True BqCoverModeValue=9 BqCovermodeRadioButtonState=2
back sides      | Cover Front FrontIn BackOut | BQCoverMedia=Plain BqCoverModeEnabled=True BqCoverModeValue=6 BqCovermodeRadioButtonState=1
blank inserts   | Front Insert Pages=2,3,5,6,7 InsertMedia=1 | BQPageinsertMedia=Heavy BqPageInsertEnabled=True BqPageinsertNums=2,3,5,6,7 BqPageinsertValue=0 Pins=On
inserts, front  | Front Insert OntoFront Pages=4 | BQPageinsertMedia=Plain BqPageInsertEnabled=True BqPageinsertNums=4 BqPageinsertValue=1 Pins=On
inserts, back   | Front Insert OntoBack Pages=4  | BQPageinsertMedia=Plain BqPageInsertEnabled=True BqPageinsertNums=4 BqPageinsertValue=2 Pins=On
blank backing   | Front Interleave BackingMedia=1 | BQTransparencyinterleavingMedia=Heavy BqIntLvEnabled=True BqIntLvValue=1
printed backing | Front Interleave OntoBacking | BQTransparencyinterleavingMedia=Plain BqIntLvEnabled=True BqIntLvValue=2
)");
}

void TestPublishingTab::comesBackAfterRestart()
{
    QFETCH(QString, state);
    QFETCH(QString, saved);
    Panel panel;
    const QString off = "BqCoverModeEnabled=False BqIntLvEnabled=False BqIntLvValue=0 "
                        "BqPageInsertEnabled=False BqPageinsertValue=-1 Pins=Off";
    panel.page->set(state);
    QStringList lines;
    const QHash<QString, QString> extra = panel.page->extraSettings();
    for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry) {
        const QString line = entry.key() + '=' + QString(entry.value()).remove(" paper");
        if (saved == off || !off.split(' ').contains(line))
            lines << line;
    }
    lines.sort();
    QCOMPARE(lines.join(' '), saved);

    writeCfg(currentCfgPath, SettingsCollector({panel.page}).collect(), true);
    currentStore->releaseAllConstraints();
    Page fresh(&panel.dialog);
    fresh.reload();
    fresh.runPass();
    QCOMPARE(fresh.state(), state);
    QCOMPARE(fresh.extraSettings(), extra);
    QVERIFY(!fresh.hasMarks());
}

void TestPublishingTab::switchesReachTheModel()
{
    Panel panel;
    const auto model = [&] {
        QStringList values;
        for (const char *keyword : {"cCovTRad", "cCovBRad", "cCovPOFO", "cInsPrnB", "Tmed"})
            values << panel.dialog.current(keyword);
        return values.join(' ');
    };
    const auto *back = findNamed<QLabel>(panel.page, "lblCvrBack");
    panel.page->set("Cover");
    QCOMPARE(model(), QString("True False False False Plain"));
    QVERIFY(!back->isEnabled() && findNamed<QCheckBox>(panel.page, "chkBxCvrBackIn")->isEnabled());
    panel.page->set(everything);
    QCOMPARE(panel.page->state(), everything);
    QCOMPARE(model(), QString("False True True True Heavy"));
    QVERIFY(back->isEnabled());

    panel.page->set("-Cover -Insert -Interleave");
    QCOMPARE(panel.page->state(), QString("Front"));
    QCOMPARE(model(), QString("True False False False Plain"));
    for (const auto &[name, accessibleName] : inputs) {
        if (!QString(accessibleName).startsWith("chkBut"))
            QVERIFY2(!findNamed<QWidget>(panel.page, accessibleName)->isEnabled(), accessibleName);
    }
    panel.page->runPass();
    QCOMPARE(panel.page->marks() + panel.page->message(), QString());
}

void TestPublishingTab::damagedSettings_data()
{
    addRows({"settings", "state", "blocks"}, R"(
rubbish                | BqCoverModeEnabled=1 BqCovermodeRadioButtonState=x BqCoverModeValue=x BqPageinsertValue=-3 BqIntLvValue=02 | Front | no
bad list               | BqPageInsertEnabled=True BqPageinsertNums=<b>1</b>       | Front Insert Pages=<b>1</b> | yes
list without a switch  | BqPageinsertNums=4                                       | Front Pages=4               | no
code too big           | BqCoverModeEnabled=True BqCoverModeValue=99999999999     | Cover Front                 | no
panel's options differ | cCovBut=False cCovPOFI=False BqCoverModeEnabled=True BqCoverModeValue=2 | Cover Front  | no
)");
}

void TestPublishingTab::damagedSettings()
{
    QFETCH(QString, settings);
    QFETCH(QString, blocks);
    Panel panel;
    panel.load(settings, publishingOptions() + "cCovBut=False cCovPOFI=True\n");
    panel.page->runPass();
    QTEST(panel.page->state(), "state");
    QCOMPARE(panel.page->hasMarks(), blocks == "yes");
}

void TestPublishingTab::otherPrinters()
{
    const QString all = "BqCoverModeEnabled=True BqCovermodeRadioButtonState=2 BqCoverModeValue=15 "
                        "BqPageInsertEnabled=True BqPageinsertNums=1 BqPageinsertValue=3 "
                        "BqIntLvEnabled=True BqIntLvValue=2 CvrM=Heavy Pmed=Heavy Tmed=Heavy";
    Panel panel(all);
    QCOMPARE(panel.page->message(), QString("You can only enter page numbers between 3 and 511"));
    panel.load("BqPageInsertEnabled=True");
    QCOMPARE(panel.page->message(), QString("Please type a page range."));
    panel.load(QString());
    QCOMPARE(panel.page->state() + panel.page->message(), QString("Front"));
    QCOMPARE(panel.dialog.takeCalls(), QStringList()); // loads silently
    panel.page->set("FrontOut");
    QVERIFY(!panel.dialog.takeCalls().isEmpty());

    panel.load(all, "Tmed/Backing_<b> 8 Plain* Heavy");
    QVERIFY(panel.page->isAvailable());
    panel.load(all, "Other 8 A");
    QVERIFY(!panel.page->isAvailable());
    currentStore = nullptr;
    panel.page->retranslate();
    panel.page->reload();
    panel.page->set("Cover Both Insert Pages=1");
    panel.page->setMarked(true);
    QVERIFY(!panel.page->hasMarks());
}

QTEST_MAIN(TestPublishingTab)

#include "tst_publishingtab.moc"
