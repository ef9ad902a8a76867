// The base of the pages, and what of the real ones shows in the order of calls alone.

#include "app/bixdialog.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "pages/basic/generaltab.h"
#include "pages/finishing/finishingtab.h"
#include "pages/imaging/imagingtab.h"
#include "pages/job/jobtab.h"
#include "pages/layout/booklettab.h"
#include "pages/login/userlogintab.h"
#include "pages/printer/printertab.h"
#include "pages/publishing/publishingtab.h"
#include "pages/watermark/watermarktab.h"
#include "policy/fkptab.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

namespace {

QStringList steps; ///< of the page that reloads

/// A real page that notes the steps of its reload, and the keywords as their values reach the
/// model; "!" follows if the widgets tell of changes meanwhile.
template <typename Base>
class Recorder : public Base
{
public:
    using Base::Base;

    void setTabName() override { note("name"), Base::setTabName(); }
    void beforeLoad() override { note("before"), Base::beforeLoad(); }
    void clearMarks() override { note("clear"), Base::clearMarks(); }
    void loadOptions() override { note("load"), Base::loadOptions(); }
    void applyAllWidgets() override { note("apply:"), Base::applyAllWidgets(); }
    void afterLoad() override { note("after"), Base::afterLoad(); }
    bool enableOptions() override { return note("enable"), Base::enableOptions(); }
    void applyWidgetValue(int value, QObject *widget) override
    {
        note(this->boundWidgets.key(widget));
        Base::applyWidgetValue(value, widget);
    }

private:
    void note(const QString &step)
    {
        bool loud = false;
        for (const auto &[keyword, widget] : this->boundWidgets)
            loud = loud || !widget->signalsBlocked();
        steps << step + (loud ? "!" : "");
    }
};

/// The widget below a page with this accessible name; one without a name goes by its class.
QWidget *find(const QWidget *page, const QString &name)
{
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        const QString own = widget->accessibleName();
        if (own == name || (own.isEmpty() && widget->inherits(qPrintable(name))))
            return widget;
    }
    qFatal("no widget %s", qPrintable(name));
}

/// Does what a user does: "WIDGET" is a click, "GROUP=2" one on a button of a group, "BOX=ITEM" a
/// choice, "FIELD=TEXT" types, "SLIDER=3" moves.
void act(const QWidget *page, const QString &step)
{
    QWidget *widget = find(page, step.section('=', 0, 0));
    const QString value = step.section('=', 1);
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        button->findChild<QCheckBox *>()->click();
    else if (auto *group = qobject_cast<BixButtonGroup *>(widget))
        group->buttonAt(value.toInt())->click();
    else if (auto *box = qobject_cast<ComboBoxEx *>(widget))
        box->setCurrentText(value);
    else if (auto *slider = qobject_cast<QSlider *>(widget))
        slider->setValue(value.toInt());
    else if (auto *plain = qobject_cast<QAbstractButton *>(widget))
        plain->click();
    else
        QTest::keyClicks(widget, value);
}

/// A page with one widget of each kind that can be bound, named after its keyword.
class Page : public Tab
{
public:
    explicit Page(PanelDialog *dialog)
        : Tab(dialog)
    {
        companionWidgets.insert("Media", unit);
        bind("Media", new ComboBoxEx(this), mediaLabel);
        for (const char *keyword : {"Skip", "Cadj"}) {
            auto *box = new QCheckBox(this);
            bind(keyword, box, box);
        }
        bind("Draft", new QRadioButton(this));
        for (const char *keyword : {"Level", "CaHueMaster"}) {
            auto *slider = new QSlider(this);
            slider->setRange(-20, 20);
            bind(keyword, slider);
        }
        auto *group = new BixButtonGroup(this, "Duplex:");
        for (const char *name : {"Off", "Long edge", "Short edge"})
            group->addButton(name, ":/icons/duplex-off");
        bind("Duplex", group, group);
        bind("Tray", new BixCheckBoxButton(this, QString(), QIcon()));
        // The off-value is a choice of the dependent's own option, or names another option.
        addCheckBoxButton("Cover", "CoverMedia", "None");
        addCheckBoxButton("Insert", "InsertMedia", "InsertOff");
        for (int i = 0; i < 2; ++i) // the second time adds nothing
            connectBoundWidgets();
    }
    void createWidgets() override {}
    void setTabName() override {}
    bool isAvailable() override { return true; }

    using Tab::addConstraintWidget;

    template <typename Widget = QWidget>
    Widget *bound(const QString &keyword) const
    {
        return qobject_cast<Widget *>(boundWidgets.value(keyword));
    }
    QLabel *duplexLabel() const { return bound("Duplex")->findChild<QLabel *>(); }

    /// The widget in words: items or buttons with "[]" round the current and "-" before greyed
    /// ones, or "on" and "off".
    QString shown(const QString &keyword) const
    {
        QStringList words;
        const auto add = [&](const QString &text, bool current, bool usable) {
            words << QString(current ? "[%1]" : "%1").arg((usable ? "" : "-") + text);
        };
        if (const auto *box = bound<ComboBoxEx>(keyword)) {
            for (int i = 0; i < box->count(); ++i) {
                const bool usable = box->model()->index(i, 0).flags() & Qt::ItemIsEnabled;
                const bool grey = box->itemData(i, Qt::ForegroundRole).isValid();
                add(usable == grey ? "?" : box->itemText(i), i == box->currentIndex(), usable);
            }
        } else if (const auto *group = bound<BixButtonGroup>(keyword)) {
            for (int i = 0; i < group->buttonCount(); ++i)
                add(group->buttonNames().at(i), i == group->currentIndex(),
                    group->buttonAt(i)->isEnabledTo(group));
            if (duplexLabel()->palette().color(QPalette::WindowText) == QColor(0x9f, 0x9e, 0x9e))
                words << "label-greyed";
        } else {
            const auto *plain = bound<QAbstractButton>(keyword);
            const auto *picture = bound(keyword)->findChild<QCheckBox *>();
            words << ((plain ? plain : picture)->isChecked() ? "on" : "off");
        }
        if (!bound(keyword)->isEnabled())
            words << "disabled";
        return words.join(' ');
    }

    QLabel *const mediaLabel = new QLabel(this);
    QLabel *const unit = new QLabel(this);

private:
    void bind(const char *keyword, QWidget *widget, QWidget *mark = nullptr)
    {
        widget->setAccessibleName(keyword);
        boundWidgets.insert(keyword, widget);
        if (mark)
            markWidgets.insert(keyword, mark);
    }
    void addCheckBoxButton(const char *keyword, const char *dependent, const char *offValue)
    {
        auto *button = new BixCheckBoxButton(this, QString(), QIcon());
        auto *box = new ComboBoxEx(this);
        bind(keyword, button);
        bind(dependent, box);
        button->addDependent(new QLabel(this), "no_default"); // not bound
        button->addDependent(box, offValue);
        checkBoxButtons.append(button);
    }
};

template <typename Base>
Tab *make(PanelDialog *dialog)
{
    return new Recorder<Base>(dialog);
}

const QHash<QString, Tab *(*)(PanelDialog *)> pages = {{"Kinds", make<Page>},
                                                       {"Printer", make<PrinterTab>},
                                                       {"Basic", make<GeneralTab>},
                                                       {"Layout", make<BookletTab>},
                                                       {"Finishing", make<FinishingTab>},
                                                       {"Imaging", make<ImagingTab>},
                                                       {"Publishing", make<PublishingTab>},
                                                       {"Job", make<JobTab>},
                                                       {"Watermark", make<WatermarkTab>},
                                                       {"Fleet Keeper", make<FKPTab>},
                                                       {"Login", make<UserLoginTab>}};

/// Options that several tests use, by the words that stand for them in Panel::load().
const QHash<QString, QString> commonOptions = {
    {"%color", "ColorModel 9 CMYK/Full_color* Gray/Black_&_white"},
    {"%folds", "FldA 6 None/Off* Bifold Trifold; FldB 9 A*; FldC 9 A*; FldD 9 A*; BFpS 9 A*; "
               "cBiFld 6 False True; cTriFld 6 False True"},
    {"%sides", "CvrM 8 Plain*; cCovBut 8 False True; cCovTRad 8 False True; cCovBRad 8 False True"},
    {"%storage", "BXCollate1 7 None* Proof JobStorage/Job_storage; BXColate1 9 None Proof*; "
                 "cJobStore 7 False True; cCustomBox 9 False True; Option18 1 HardDisk*"},
    {"%account", "BqManagment 99 Default*; cJobAccount 7 False True"},
    {"%watermark", "Wren 2 False* True; Wtxt 9 Confidential/CONFIDENTIAL* Draft/DRAFT Custom"},
    {"%level", "Level 9 Minus3/-3.0* Zero/0 Plus3/3.0"},
    {"%media", "Media 99 Plain/Plain_paper* Thick Env/A_&_B"},
    {"%duplex", "Duplex 99 None/Off* NoTumble/Long_edge Tumble/Short_edge"},
    {"%cover", "Cover 99 False* True; CoverMedia 99 None Plain* Thick"},
    {"%insert", "Insert 99 False* True; InsertMedia 99 Plain* Thick; "
                "InsertOff 99 First/Plain Second/Thick"},
};

QString withCommonOptions(QString options)
{
    for (auto it = commonOptions.cbegin(); it != commonOptions.cend(); ++it)
        options.replace(it.key(), it.value());
    return options.replace("; ", "\n");
}

struct Panel
{
    /// Options and settings are lines with "; " between them.
    void load(const QString &options, QString settings = QString())
    {
        dialog.selectPrinter(withCommonOptions(options), settings.replace("; ", "\n"));
        page->reload();
    }

    RecordingDialog dialog;
    Page *page = new Page(&dialog);
};

} // namespace

class TestTab : public QObject
{
    Q_OBJECT

private slots:
    void loadsAndLeavesBlockedValues_data();
    void loadsAndLeavesBlockedValues();
    void forcedMoves();
    void collects_data();
    void collects();
    void marks();
    void reload_data();
    void reload();
    void changes_data();
    void changes();
    void passes();
    void noPrinter();
};

void TestTab::loadsAndLeavesBlockedValues_data()
{
    // Results are those of one constraint pass after the other, while values are blocked.
    addRows({"keyword", "options", "settings", "blocked", "results", "shown", "current"}, R"(
list: a text is no saved value  | Media  | %media               | Media=A & B |             | 0  | [Plain paper] Thick A & B  | Plain
list: option without choices    | Media  | Media 99             | Media=Thick |             | 0  |                            | MediaNULL
list: its value                 | Media  | Media 9 A* B C       |             | A           | 10 | -A [B] C                   | B
list: all values                | Media  | Media 9 A* B C       | Media=B     | A B C       | 100 | [-A] -B -C                 | B
list: two choices of one text   | Media  | Media 9 A/X* B/X C   | Media=B     |             | 0  | [X] X C                    | A
check box: no such option       | Skip   | Other 99 A           | Skip=True   |             | 0  | off disabled               |
check box: on                   | Skip   | Skip 9 False* True   | Skip=True   | True        | 10 | off disabled               | False
check box: off                  | Skip   | Skip 9 False* True   |             | False       | 10 | on disabled                | True
check box: both                 | Skip   | Skip 9 False* True   | Skip=True   | False True  | 10 | off disabled               | False
check box: goes by the order    | Skip   | Skip 9 True* False   |             | False       | 10 | off disabled               | False
check box: one choice           | Skip   | Skip 9 False*        |             | False       | 10 | on disabled                | False
picture box: unknown value      | Tray   | Tray 99 False* True  | Tray=true   |             | 0  | off                        | False
picture box: goes by name       | Tray   | Tray 9 True* False   |             | True        | 10 | off disabled               | False
buttons: lost the value         | Duplex | %duplex              | Duplex=Both |             | 0  | [Off] Long edge Short edge | None
buttons: value without a button | Duplex | %duplex X/Other      | Duplex=X    |             | 0  | [Off] Long edge Short edge | None
buttons: no such option         | Duplex | Other 99 A           |             |             | 0  | Off [Long edge] Short edge label-greyed disabled |
buttons: their value            | Duplex | %duplex              | Duplex=Tumble | Tumble    | 10 | [Off] Long edge -Short edge            | None
buttons: one value is left      | Duplex | %duplex              |             | None Tumble | 10 | -Off [Long edge] -Short edge disabled  | NoTumble
buttons: one without a choice   | Duplex | Duplex 9 NoTumble/Long_edge* Tumble/Short_edge | | Tumble | 00 | Off [Long edge] -Short edge disabled | NoTumble
buttons: all values             | Duplex | %duplex              | Duplex=Tumble | None NoTumble Tumble | 1 | [-Off] -Long edge -Short edge disabled | None
dependent of an unchecked box   | CoverMedia | %cover           | CoverMedia=Thick             |       | 0 | Plain [Thick] disabled | None
dependent that is off           | CoverMedia | %cover           |             | Plain       | 00 | [Plain] Thick disabled     | None
)");
}

void TestTab::loadsAndLeavesBlockedValues()
{
    QFETCH(QString, keyword);
    QFETCH(QString, options);
    QFETCH(QString, settings);
    QFETCH(QString, blocked);
    QFETCH(QString, results);
    QFETCH(QString, shown);
    Panel panel;
    // Other printers before, so that anything left over would show.
    panel.load("Other 99 A");
    panel.load("Media 99 Foil; Skip 99 False True*; Tray 99 False True*; Cover 99 False True*; "
               "CoverMedia 99 None Foil*; %duplex",
               "Duplex=NoTumble");
    options += "; Force 1 Off On";
    for (const QString &choice : blocked.split(' ', Qt::SkipEmptyParts))
        options += QString("; Force=On %1=%2").arg(keyword, choice);
    panel.load(options, settings);
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    for (const QWidget *follower : {panel.page->mediaLabel, panel.page->unit})
        QCOMPARE(follower->isEnabled(), currentStore->find("Media") != nullptr);

    selectValues(*currentStore, "Force=On");
    for (const QChar result : qAsConst(results))
        QCOMPARE(panel.page->enableOptions(), result == '1');
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(panel.page->shown(keyword), shown);
        QTEST(RecordingDialog::current(keyword), "current");
        panel.page->reload(); // the value moves too where the widgets are silent
    }
    if (results == "10") { // freed, it stays where it was moved
        selectValues(*currentStore, "Force=Off");
        QVERIFY(!panel.page->enableOptions());
        QCOMPARE(panel.page->shown(keyword), shown.remove("-").remove(" disabled"));
    }
}

void TestTab::forcedMoves()
{
    Panel panel;
    panel.load("Force 1 Off On Back; Media 99 Plain* Thick; Skip 99 False True*; Other 99 A B; "
               "Force=On Media=Plain Skip=True; Force=Back Skip=False; "
               "Media=Plain Other=A; Media=Thick Other=B");
    panel.dialog.remark = [] { return RecordingDialog::current("Skip"); };
    selectValues(*currentStore, "Force=On");
    QVERIFY(panel.page->enableOptions());
    // The check box alone tells, once the model has moved.
    QCOMPARE(panel.dialog.takeCalls(), QStringList("setConstraints False"));
    QVERIFY(!panel.page->bound("Media")->signalsBlocked());
    QCOMPARE(blockedValues(*currentStore), QString("Media=Plain Other=B Skip=True"));

    // The page is in the midst of it: whoever asks it again has to wait for the next pass.
    selectValues(*currentStore, "Force=Back");
    panel.page->enableOptions();
    panel.dialog.remark = [&] { return QString::number(panel.page->enableOptions()); };
    selectValues(*currentStore, "Force=On");
    QVERIFY(panel.page->enableOptions());
    QCOMPARE(panel.dialog.takeCalls().last(), QString("setConstraints 0"));

    // With nothing left to choose the value no longer stands in the way of others.
    panel.load("Force 1 Off On; Media 99 Plain* Thick; Other 99 A B; "
               "Force=On Media=Plain Media=Thick; Media=Plain Other=A");
    selectValues(*currentStore, "Force=On");
    QVERIFY(panel.page->enableOptions()); // what that frees may belong to a page before
    QCOMPARE(blockedValues(*currentStore), QString("Media=Plain Media=Thick"));
    QVERIFY(!panel.page->enableOptions());
}

void TestTab::collects_data()
{
    // Sliders stand at 3 and -18. The off-value below a button that is off is a choice of the
    // dependent's option, or names another option.
    addRows({"options", "settings", "saved"}, R"(
lists, groups   | %media; %duplex | Duplex=Tumble; Media=Env | Duplex=Tumble Media=Env
boxes           | Skip 9 False True*; Tray 9 False* True; Draft 9 False True*; Media 9 | | Skip=True Tray=False
sliders         | Level 9 X; CaHueMaster 9 X | | CaHueMaster=-180 Level=3.0
choice          | %cover | CoverMedia=Thick | Cover=False CoverMedia=Thick
option          | %insert | InsertMedia=Thick | Insert=False InsertMedia=Thick InsertOff=Second
button is on    | %insert | InsertMedia=Thick; Insert=True | Insert=True InsertMedia=Thick
)");
}

void TestTab::collects()
{
    QFETCH(QString, options);
    QFETCH(QString, settings);
    Panel panel;
    panel.load(options, settings);
    act(panel.page, "Level=3");
    act(panel.page, "CaHueMaster=-18");
    const QHash<QString, QString> values = panel.page->collectSettings();
    QStringList saved;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        saved << it.key() + '=' + it.value();
    saved.sort();
    QTEST(saved.join(' '), "saved");
}

void TestTab::marks()
{
    Panel panel;
    Page *page = panel.page;
    panel.load("Media 9 Plain*; Skip 9 False* True; Cadj 9 False* True; Tray 9 A*; %duplex");
    // Text and tool tip, "#" for the mark and "_" for a blank.
    const auto look = [](const QLabel *label) {
        return label->text().replace(" <img src=':/icons/error'> ", "#").replace(' ', '_') +
               label->toolTip();
    };
    const QPair<QWidget *, QLabel *> marked[] = {{page->mediaLabel, page->mediaLabel},
                                                 {page->bound("Duplex"), page->duplexLabel()}};
    for (const auto &[widget, label] : marked) {
        const QString plain = look(label);
        for (const bool on : {true, true, false}) { // never twice
            page->setWidgetMark(widget, "Why", on);
            QCOMPARE(look(label), on ? plain + "#Why" : plain);
        }
        page->addConstraintWidget(label->text(), widget);
        for (int i = 0; i < 2; ++i)
            page->markConstraintWidgets();
        QCOMPARE(look(label).count('#'), 1);
        page->clearMarks();
        QCOMPARE(look(label).count('#'), 0);
    }
    page->reload(); // forgets them
    const auto isMarked = [page](const char *keyword) {
        page->setMarked(false);
        page->markConstraintWidgets();
        page->markKeyword(keyword, QString());
        return page->hasMarks();
    };
    for (const char *keyword : {"Media", "Skip", "Duplex", "Tray"})
        QVERIFY2(isMarked(keyword), keyword);
    for (const char *keyword : {"Cadj", "KeywordOfAnotherPage"})
        QVERIFY2(!isMarked(keyword), keyword);
}

void TestTab::reload_data()
{
    addRows({"steps"}, R"(
Printer      | name! clear! load! apply:! Option17! Option18! enable!
Basic        | name clear load apply: PageSize MediaType InputSlot OutputBin Coll Duplex ColorModel enable
Layout       | name before clear load apply: BXBooklet Fold after enable
Finishing    | name before clear load apply: Sep FldB FldC FldD BFpS Rotate Pnch Stpl Scnt cTriFld cBiFld cHole cStpl after enable
Imaging      | name clear load apply: BSCREENMODE Trap ColorModel GBTn Resolution Smoothing cLnpr BXGlossmode Crep RCM CIE
Publishing   | name clear load apply: CvrM Pmed Tmed cCovBut cCovTRad cCovBRad cCovPOFO cCovPOFI cCovPOBO cCovPOBI cInsBut cInsPrnF cInsPrnB cIntBut cIntPrn apply: CvrM Pmed Tmed cCovBut cCovTRad cCovBRad cCovPOFO cCovPOFI cCovPOBO cCovPOBI cInsBut cInsPrnF cInsPrnB cIntBut cIntPrn
Job          | name clear load apply: BXCollate1 cJobStore cJobAccount cJACLE cUserLogin cJULE cJPLE cEmail cJELE
Watermark    | before name load Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg apply: Wren Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg BXSuperWatermark Wtxt Wfnt Wsze Wclr Wang Wtrans Wtyp Wflg
Fleet Keeper | name clear load apply: FKPToggle after enable
Login        | name clear load apply:
)");
}

void TestTab::reload()
{
    RecordingDialog dialog;
    Tab *page = pages[QTest::currentDataTag()](&dialog);
    dialog.selectPrinter("Option18 5 None* Staple\nOption17 5 False* True");
    steps.clear();
    page->reload();
    QTEST(steps.join(' '), "steps");
    page->retranslate();
    QCOMPARE(dialog.takeCalls(), QStringList());
}

void TestTab::changes_data()
{
    // What the dialog is told of the last step, with the options' values and shown fields by then.
    addRows({"options", "steps", "watched", "calls"}, R"(
Kinds: list | %media | Media=Thick | Media | pass Thick
Kinds: check box | Skip 9 False* True | Skip | Skip | pass True
Kinds: radio button | Draft 9 False* True | Draft | Draft | pass True
Kinds: group | %duplex | Duplex=1 | Duplex | pass NoTumble
Kinds: picture box | Tray 9 False* True | Tray | Tray | pass True
Kinds: dependents first | %cover | CoverMedia=Thick; Cover | CoverMedia Cover | pass Thick False, pass Thick True
Kinds: off-value | %cover | CoverMedia=Thick; Cover; Cover | CoverMedia Cover | pass None True, pass None False
Kinds: slider | %level | Level=3 | Level | pass Plus3
Kinds: zero | %level | Level=3; Level=0 | Level | pass Zero
Kinds: no such choice | %level | Level=3; Level=4 | Level | pass Minus3
Kinds: tens | CaHueMaster 9 Hue-180/-180* Hue50/50 | CaHueMaster=5 | CaHueMaster | pass Hue50
Basic: colour | %color | butGroupColorModelGeneral=1 | ColorModel | pass Gray, colour Gray
Imaging: colour | %color; Cadj 5 False* True; Lnpr 5 Off* Level1 | BixButtonGroup=1 | ColorModel | colour CMYK, pass Gray
Imaging: LeanPrint off | Lnpr 5 Off* Level1 Level2 Level3 Level4 Level5 | butGroupLnpr=1; cmbBxLnpr=Level1; butGroupLnpr=0 | Lnpr | pass Level1, pass Off
Finishing: fold | %folds | chkButTriFld | FldA cTriFld | pass Trifold True, pass Trifold True
Finishing: other fold | %folds | chkButTriFld; chkButBiFld; chkButTriFld | FldA cTriFld | pass Bifold True, pass Bifold False
Finishing: staple | Stpl 9 None/Off* FrontLeft; cStpl 9 False True | chkButStpl | Stpl cStpl | pass FrontLeft False, pass FrontLeft True
Publishing: cover | %sides | chkButCvr | cCovBut CvrM | pass False Plain, pass True Plain
Publishing: sides | %sides | chkButCvr; rdButCvrFrontBack | cCovTRad cCovBRad | pass False False, pass False True
Job: storage | %storage | chkButBXCollate1 | BXCollate1 cJobStore | pass Proof False, pass Proof True
Job: stored | %storage | chkButBXCollate1; cmbBxBXCollate1=Job storage | BXCollate1 BXColate1 lnEditJobStorage lnEditBoxNumber | pass JobStorage Proof shown hidden
Job: box | %storage | chkButBXCollate1; cmbBxBXCollate1=Custom box | BXCollate1 BXColate1 lnEditJobStorage lnEditBoxNumber | pass None Proof hidden shown
Job: not stored | %storage | chkButBXCollate1; cmbBxBXCollate1=Job storage; chkButBXCollate1 | BXCollate1 BXColate1 | pass None Proof, pass None None
Job: accounting | %account | chkButBqManagment | cJobAccount | pass False, pass False, pass True
Job: account | %account | chkButBqManagment; cmbBxBqManagment=Use specific account ID | cJobAccount lnEditAccountID | pass True shown
Job: name | cJobName 9 False True | cmbBxJobName=Custom | lnEditJobName | pass shown
Job: login | cUserLogin 7 False True | chkButUserLogin | cUserLogin | pass False, pass True
Job: e-mail | cEmail 9 False True | chkButJobEmail | cEmail | pass False, pass True
Watermark: on | %watermark | chkButWatermark | Wren | pass True, pass True
Watermark: text | %watermark | chkButWatermark; cmbBxWtxt=DRAFT | Wtxt | pass Draft, pass Draft
Fleet Keeper: on | FKPToggle 0 Off* On | butGroupFKP=1 | FKPToggle | pass On
Login: on | cUserLogin 7 False True | BixCheckBoxButton | cUserLogin | pass cUserLoginNULL
Printer: box | Option18 9 None* Staple; Option17 5 True False*; Option17=True Option18=Staple | chkBxOption17 | Option17 Option18 | pass True None
)");
}

void TestTab::changes()
{
    QFETCH(QString, options);
    QFETCH(QString, watched);
    QFETCH(QString, steps);
    RecordingDialog dialog;
    Tab *page = pages[QString(QTest::currentDataTag()).section(':', 0, 0)](&dialog);
    dialog.selectPrinter(withCommonOptions(options));
    for (bOption *option : currentStore->optionList())
        option->setCurrent(option->defaultChoice()); // as after the import of a PPD
    page->reload();
    QStringList wanted = steps.split("; ");
    const QString last = wanted.takeLast();
    for (const QString &step : wanted)
        act(page, step);
    dialog.takeCalls();
    dialog.remark = [&] {
        QStringList values;
        for (const QString &name : watched.split(' '))
            values << (currentStore->find(name)                     ? RecordingDialog::current(name)
                       : findNamed<QWidget>(page, qPrintable(name)) ? "shown"
                                                                    : "hidden");
        return values.join(' ');
    };
    act(page, last);
    QTEST(dialog.takeCalls()
              .join(", ")
              .replace("setConstraints", "pass")
              .replace("toggleColorMode", "colour"),
          "calls");
}

void TestTab::passes()
{
    /// The real dialog with a printer that can't stay at A4.
    class Dialog : public BixDialog
    {
    public:
        int passesAfter(const QString &values)
        {
            const auto store = makeStore("PageSize 9 A4* A5\nGo 1 No Yes\nGo=Yes PageSize=A4");
            currentStore = store.get();
            findChild<BixTabWidget *>()->setTabEnabled(1, true);
            static_cast<PanelDialog *>(this)->profileChanged();
            selectValues(*store, values);
            passes = 0;
            setConstraints();
            currentStore = nullptr;
            return passes;
        }
        void setConstraints() override
        {
            ++passes;
            auto *sizes = findNamed<ComboBoxEx>(this, "cmbBxPageSize");
            const QSignalBlocker silent(sizes);
            if (takesMovesBack)
                sizes->setCurrentIndex(0);
            BixDialog::setConstraints();
        }

        int passes = 0;
        bool takesMovesBack = false;
    };
    const QString folder = userDirectory();
    QVERIFY(QDir().mkpath(folder) && setFileText(folder + "Settings", "Telemetry=False"));
    Dialog dialog;
    QCOMPARE(dialog.passesAfter("Go=No"), 1);
    QCOMPARE(dialog.passesAfter("Go=Yes"), 2);
    dialog.takesMovesBack = true;
    for (int i = 0; i < 2; ++i)
        QCOMPARE(dialog.passesAfter("Go=Yes"), 1 + 10);
}

void TestTab::noPrinter()
{
    Panel panel;
    panel.load("Media 99 Plain*; %cover; %duplex");
    currentStore = nullptr;
    act(panel.page, "Duplex=1");
    panel.page->applyWidgetValue(1, nullptr);
    panel.page->reload();
    QVERIFY(!panel.page->enableOptions() && panel.page->collectSettings().isEmpty());
    QCOMPARE(panel.page->shown("Media"), QString("disabled"));
    QVERIFY(panel.page->mediaLabel->isEnabled()); // labels wait for the next printer
}

QTEST_MAIN(TestTab)

#include "tst_tab.moc"
