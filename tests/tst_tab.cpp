#include "model/optionstore.h"
#include "pages/tab.h"
#include "support/recordingdialog.h"
#include "support/storebuilder.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QtTest>

namespace {

const QString mark = " <img src=':/icons/error'> ";

/// A page with one widget of each kind that can be bound, that notes the steps of its reload.
class Page : public Tab
{
public:
    explicit Page(PanelDialog *dialog)
        : Tab(dialog)
    {
        createWidgets();
        connectBoundWidgets();
        connectBoundWidgets(); // adds nothing
    }

    void createWidgets() override
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
            group->addButton(QLatin1String(name), ":/icons/duplex-off");
        bind("Duplex", group, group);
        bind("Tray", new BixCheckBoxButton(this, QString(), QIcon()));
        // The off-value is a choice of the dependent's own option, or names another option.
        addCheckBoxButton("Cover", "CoverMedia", "None");
        addCheckBoxButton("Insert", "InsertMedia", "InsertOff");
    }

    void setTabName() override { noting("setTabName"); }
    void beforeLoad() override { noting("beforeLoad"); }
    void clearMarks() override { noting("clearMarks").Tab::clearMarks(); }
    void loadOptions() override { noting("loadOptions").Tab::loadOptions(); }
    void applyAllWidgets() override { noting("applyAllWidgets").Tab::applyAllWidgets(); }
    void afterLoad() override { noting("afterLoad"); }
    bool enableOptions() override { return noting("enableOptions").Tab::enableOptions(); }
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
            const QString word = usable ? text : QLatin1Char('-') + text;
            words << (current ? QLatin1Char('[') + word + QLatin1Char(']') : word);
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
            const auto *picture = bound<BixCheckBoxButton>(keyword);
            const bool on =
                picture ? picture->isChecked() : bound<QAbstractButton>(keyword)->isChecked();
            words << (on ? "on" : "off");
        }
        if (!bound(keyword)->isEnabled())
            words << "disabled";
        return words.join(QLatin1Char(' '));
    }

    QStringList steps;
    QLabel *const mediaLabel = new QLabel(this);
    QLabel *const unit = new QLabel(this);

private:
    void bind(const char *keyword, QWidget *widget, QWidget *mark = nullptr)
    {
        boundWidgets.insert(QLatin1String(keyword), widget);
        if (mark)
            markWidgets.insert(QLatin1String(keyword), mark);
    }
    void addCheckBoxButton(const char *keyword, const char *dependent, const char *offValue)
    {
        auto *button = new BixCheckBoxButton(this, QString(), QIcon());
        auto *box = new ComboBoxEx(this);
        bind(keyword, button);
        bind(dependent, box);
        button->addDependent(new QLabel(this), "no_default"); // not bound
        button->addDependent(box, QLatin1String(offValue));
        checkBoxButtons.append(button);
    }
    /// Notes a step before it is taken.
    Page &noting(const char *step)
    {
        steps << QStringLiteral("%1 %2 %3 %4")
                     .arg(QLatin1String(step), mediaLabel->text())
                     .arg(constraintWidgets.size())
                     .arg(bound("Media")->signalsBlocked() ? "silent" : "loud");
        return *this;
    }
};

/// Options that several tests use, by the words that stand for them in Panel::load().
const QHash<QString, QString> commonOptions = {
    {"%media", "Media 99 Plain/Plain_paper* Thick Env/A_&_B"},
    {"%duplex", "Duplex 99 None/Off* NoTumble/Long_edge Tumble/Short_edge"},
    {"%cover", "Cover 99 False* True; CoverMedia 99 None Plain* Thick"},
    {"%insert", "Insert 99 False* True; InsertMedia 99 Plain* Thick; "
                "InsertOff 99 First/Plain Second/Thick"},
};

struct Panel
{
    /// Options and settings are lines with "; " between them.
    void load(QString options, QString settings = QString())
    {
        for (auto it = commonOptions.cbegin(); it != commonOptions.cend(); ++it)
            options.replace(it.key(), it.value());
        dialog.selectPrinter(options.replace("; ", "\n"), settings.replace("; ", "\n"));
        page->reload();
    }
    QString current(const QString &keyword) const { return RecordingDialog::current(keyword); }

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
    void changeReachesModelThenDialog_data();
    void changeReachesModelThenDialog();
    void uncheckedButtonDrivesItsDependents();
    void forcedMovesAreSilentForComboBoxes();
    void collects_data();
    void collects();
    void marks_data();
    void marks();
    void reloadOrder();
    void noPrinter();
};

void TestTab::loadsAndLeavesBlockedValues_data()
{
    // Results are those of one constraint pass after the other, while values are blocked.
    addRows({"keyword", "options", "settings", "blocked", "results", "shown", "current"}, R"(
list: saved value               | Media  | %media               | Media=Env   |             | 0  | Plain paper Thick [A & B]  | Env
list: a text is no saved value  | Media  | %media               | Media=A & B |             | 0  | [Plain paper] Thick A & B  | Plain
list: option without choices    | Media  | Media 99             | Media=Thick |             | 0  |                            | MediaNULL
list: its value                 | Media  | Media 9 A* B C       |             | A           | 10 | -A [B] C                   | B
list: all values                | Media  | Media 9 A* B C       | Media=B     | A B C       | 00 | [-A] -B -C                 | B
list: two choices of one text   | Media  | Media 9 A/X* B/X C   | Media=B     |             | 0  | [X] X C                    | A
check box: saved                | Skip   | Skip 99 True* False  | Skip=False  |             | 0  | off                        | False
check box: no such option       | Skip   | Other 99 A           | Skip=True   |             | 0  | off disabled               |
check box: on                   | Skip   | Skip 9 False* True   | Skip=True   | True        | 10 | off disabled               | False
check box: off                  | Skip   | Skip 9 False* True   |             | False       | 10 | on disabled                | True
check box: both                 | Skip   | Skip 9 False* True   | Skip=True   | False True  | 10 | off disabled               | False
check box: goes by the order    | Skip   | Skip 9 True* False   |             | False       | 10 | off disabled               | False
check box: no choices           | Skip   | Skip 9               |             |             | 0  | off                        | SkipNULL
check box: one choice           | Skip   | Skip 9 False*        |             | False       | 10 | on disabled                | False
check box: a third choice       | Skip   | Skip 9 False* True X |             | X           | 0  | off                        | False
picture box: unknown value      | Tray   | Tray 99 False* True  | Tray=true   |             | 0  | off                        | False
picture box: goes by name       | Tray   | Tray 9 True* False   |             | True        | 10 | off disabled               | False
buttons: lost the value         | Duplex | %duplex              | Duplex=Both |             | 0  | [Off] Long edge Short edge | None
buttons: value without a button | Duplex | %duplex X/Other      | Duplex=X    |             | 0  | [Off] Long edge Short edge | None
buttons: no such option         | Duplex | Other 99 A           |             |             | 0  | Off [Long edge] Short edge label-greyed disabled |
buttons: only one choice        | Duplex | Duplex 9 None/Off*   |             |             | 00 | [Off] Long edge Short edge disabled    | None
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
    const QStringList choices = blocked.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &choice : choices)
        options += QStringLiteral("; Force=On %1=%2").arg(keyword, choice);
    panel.load(options, settings);
    QCOMPARE(panel.dialog.takeCalls(), QStringList());
    const QWidget *followers[] = {panel.page->mediaLabel, panel.page->unit};
    for (const QWidget *follower : followers)
        QCOMPARE(follower->isEnabled(), currentStore->find("Media") != nullptr);

    selectValues(*currentStore, "Force=On");
    for (const QChar result : qAsConst(results))
        QCOMPARE(panel.page->enableOptions(), result == QLatin1Char('1'));
    QCOMPARE(panel.page->shown(keyword), shown);
    QTEST(panel.current(keyword), "current");
    panel.page->reload(); // the value moves too where the widgets are silent
    QCOMPARE(panel.page->shown(keyword), shown);
    QTEST(panel.current(keyword), "current");
    if (results == "10") { // freed, it stays where it was moved
        selectValues(*currentStore, "Force=Off");
        QVERIFY(!panel.page->enableOptions());
        QCOMPARE(panel.page->shown(keyword), shown.remove("-").remove(" disabled"));
    }
}

void TestTab::changeReachesModelThenDialog_data()
{
    addRows({"keyword", "value", "calls"}, R"(
list                               | Media       | 1   | setConstraints Thick
check box on                       | Skip        | 1   | setConstraints True
radio button on                    | Draft       | 1   | setConstraints True
picture check box on               | Tray        | 1   | setConstraints True
slider                             | Level       | 3   | setConstraints Plus3
slider at zero                     | Level       | 0   | setConstraints Zero
slider without that value          | Level       | 4   | setConstraints Minus3
hue goes in tens                   | CaHueMaster | 5   | setConstraints Hue50
hue without that value and default | CaHueMaster | 1   | setConstraints Hue-180
a box moves its dependents first   | Cover       | 1   | setConstraints False, setConstraints True
)");
}

void TestTab::changeReachesModelThenDialog()
{
    QFETCH(QString, keyword);
    QFETCH(QString, value);
    const int number = value.toInt();
    Panel panel;
    panel.load("Skip 99 False* True; Draft 99 False* True; Tray 99 False* True; "
               "Level 99 Minus3/-3.0* Zero/0 Plus3/3.0; CaHueMaster 99 Hue-180/-180 Hue50/50; "
               "%media; %duplex; %cover");
    panel.page->bound<QSlider>("Level")->setValue(-20);
    selectValues(*currentStore, "CaHueMaster=Hue-180");
    panel.dialog.takeCalls();
    panel.dialog.remark = [&] { return panel.current(keyword); };
    if (auto *box = panel.page->bound<ComboBoxEx>(keyword))
        box->setCurrentIndex(number);
    else if (auto *group = panel.page->bound<BixButtonGroup>(keyword))
        group->buttonAt(number)->click();
    else if (auto *slider = panel.page->bound<QSlider>(keyword))
        slider->setValue(number);
    else if (auto *picture = panel.page->bound<BixCheckBoxButton>(keyword))
        picture->findChild<QCheckBox *>()->click();
    else
        panel.page->bound<QAbstractButton>(keyword)->click();
    QTEST(panel.dialog.takeCalls().join(", "), "calls");
}

void TestTab::uncheckedButtonDrivesItsDependents()
{
    Panel panel;
    panel.load("%cover; Other 99 A; CoverMedia=Thick Other=A", "Cover=True; CoverMedia=Thick");
    QCOMPARE(blockedValues(*currentStore), QString("Other=A"));
    auto *cover = panel.page->bound<BixCheckBoxButton>("Cover");
    cover->setChecked(false);
    QCOMPARE(blockedValues(*currentStore), QString());
    QCOMPARE(panel.current("CoverMedia"), QString("None"));
    QCOMPARE(panel.current("Cover"), QString("False"));
    cover->setChecked(true);
    QCOMPARE(panel.current("CoverMedia"), QString("Thick"));
    QCOMPARE(panel.page->shown("CoverMedia"), QString("Plain [Thick]"));
}

void TestTab::forcedMovesAreSilentForComboBoxes()
{
    Panel panel;
    panel.load("Force 1 Off On Back; Media 99 Plain* Thick; Skip 99 False True*; Other 99 A B; "
               "Force=On Media=Plain Skip=True; Force=Back Skip=False; "
               "Media=Plain Other=A; Media=Thick Other=B");
    panel.dialog.remark = [&] { return panel.current("Skip"); };
    selectValues(*currentStore, "Force=On");
    QVERIFY(panel.page->enableOptions());
    // The check box alone tells, once the model has moved.
    QCOMPARE(panel.dialog.takeCalls(), QStringList("setConstraints False"));
    QVERIFY(!panel.page->bound("Media")->signalsBlocked());
    QCOMPARE(blockedValues(*currentStore), QString("Media=Plain Other=B Skip=True"));

    // The pass that it starts may move it again.
    selectValues(*currentStore, "Force=Back");
    panel.page->enableOptions();
    panel.dialog.remark = [&] {
        selectValues(*currentStore, "Force=Back");
        panel.page->enableOptions();
        return QString();
    };
    selectValues(*currentStore, "Force=On");
    panel.page->enableOptions();
    QCOMPARE(panel.page->shown("Skip") + ' ' + panel.current("Skip"), QString("on disabled True"));

    // With nothing left to choose the value no longer stands in the way of others.
    panel.load("Force 1 Off On; Media 99 Plain* Thick; Other 99 A B; "
               "Force=On Media=Plain Media=Thick; Media=Plain Other=A");
    selectValues(*currentStore, "Force=On");
    QVERIFY(!panel.page->enableOptions());
    QCOMPARE(blockedValues(*currentStore), QString("Media=Plain Media=Thick"));
}

void TestTab::collects_data()
{
    addRows({"options", "settings", "collected"}, R"(
list and buttons                 | %media; %duplex | Duplex=Tumble; Media=Env | Duplex=Tumble Media=Env
check boxes                      | Skip 99 False True*; Tray 99 False* True |  | Skip=True Tray=False
sliders                          | Level 99 X; CaHueMaster 99 X  |          | CaHueMaster=-180 Level=3.0
box off, off-value is a choice   | %cover   | CoverMedia=Thick              | Cover=False CoverMedia=Thick
box off, off-value is an option  | %insert  | InsertMedia=Thick             | Insert=False InsertMedia=Thick InsertOff=Second
box on                           | %insert  | InsertMedia=Thick; Insert=True| Insert=True InsertMedia=Thick
)");
}

void TestTab::collects()
{
    QFETCH(QString, options);
    QFETCH(QString, settings);
    Panel panel;
    panel.load("Cadj 99 True False; Media 99 Foil");
    panel.page->collectSettings();
    panel.load(options, settings);
    panel.page->bound<QSlider>("Level")->setValue(3);
    panel.page->bound<QSlider>("CaHueMaster")->setValue(-18);
    const QHash<QString, QString> collected = panel.page->collectSettings();
    QStringList lines;
    for (auto it = collected.cbegin(); it != collected.cend(); ++it)
        lines << it.key() + '=' + it.value();
    lines.sort();
    QTEST(lines.join(' '), "collected");
}

void TestTab::marks_data()
{
    // Steps: + marks, - clears all marks, e explains, x takes an explanation away, c marks as a
    // constraint widget, r reloads and marks those that are left. In looks "#" is the mark and "_"
    // a blank; the tool tip follows.
    addRows({"keyword", "steps", "look", "marked"}, R"(
label, twice                 | Media  | ++   | Media:#          | 1
label, a blank each time     | Media  | +-+- | Media:__         | 1
label, new by a reload       | Media  | +-+r | Media:           | 0
label, explained twice       | Media  | ee   | Media:#Why       | 0
label, no longer explained   | Media  | ex   | Media:           | 0
label, constraint, twice     | Media  | cc   | Media:#          | 1
label, forgotten by a reload | Media  | cr   | Media:           | 0
check box                    | Skip   | +    | icon             | 1
check box, cleared           | Skip   | +-   |                  | 1
adjustment is never marked   | Cadj   | +    |                  | 0
buttons                      | Duplex | +    | Duplex:_Off#     | 1
buttons, twice               | Duplex | ++   | Duplex:_Off_#    | 1
buttons, cleared             | Duplex | +-   | Duplex:_Off_     | 1
buttons, the mark explained  | Duplex | +ee  | Duplex:_Off#Why  | 1
buttons, no longer explained | Duplex | ex   | Duplex:_Off      | 0
picture check box: the page  | Tray   | +    |                  | 1
keyword of another page      | Paper  | +    |                  | 0
)");
}

void TestTab::marks()
{
    QFETCH(QString, keyword);
    QFETCH(QString, steps);
    Panel panel;
    Page *page = panel.page;
    panel.load("Media 99 Plain*; Skip 99 False* True; Cadj 99 False* True; "
               "Tray 99 False* True; %duplex");
    const bool isList = keyword == "Media";
    QWidget *marked = isList ? page->mediaLabel : page->bound(keyword);
    for (const QChar step : qAsConst(steps)) {
        if (step == '+') {
            page->markKeyword(keyword, QString());
        } else if (step == '-') {
            page->clearMarks();
        } else if (step == 'e' || step == 'x') {
            page->setWidgetMark(marked, "Why", step == 'e');
        } else {
            if (step == 'c')
                page->addConstraintWidget("a", marked);
            page->setMarked(false);
            if (step == 'r')
                page->reload();
            page->markConstraintWidgets();
        }
    }
    QString look;
    if (const auto *check = page->bound<QCheckBox>(keyword)) {
        look = check->icon().isNull() ? "" : "icon";
    } else if (isList || keyword == "Duplex") {
        const QLabel *label = isList ? page->mediaLabel : page->duplexLabel();
        look = label->text().replace(mark, "#").replace(' ', '_') + label->toolTip();
    }
    QTEST(look, "look");
    QTEST(QString::number(page->hasMarks()), "marked");
}

void TestTab::reloadOrder()
{
    Panel panel;
    panel.load("Media/Old 99 Plain*");
    panel.page->addConstraintWidget("a", panel.page->mediaLabel);
    panel.page->steps.clear();
    panel.load("Media/New 99 Plain*");
    QCOMPARE(panel.page->steps,
             QStringList({"setTabName Old: 1 silent", "beforeLoad Old: 0 silent",
                          "clearMarks Old: 0 silent", "loadOptions New: 0 silent",
                          "applyAllWidgets New: 0 silent", "afterLoad New: 0 silent",
                          "enableOptions New: 0 silent"}));
    QVERIFY(!panel.page->bound("Media")->signalsBlocked());
}

void TestTab::noPrinter()
{
    Panel panel;
    panel.load("Media 99 Plain*; %cover; %duplex");
    currentStore = nullptr;
    panel.page->bound<BixButtonGroup>("Duplex")->buttonAt(1)->click();
    panel.page->applyWidgetValue(1, nullptr);
    panel.page->reload();
    QVERIFY(!panel.page->enableOptions());
    QVERIFY(panel.page->collectSettings().isEmpty());
    QCOMPARE(panel.page->shown("Media"), QString("disabled"));
    QVERIFY(panel.page->mediaLabel->isEnabled()); // labels wait for the next printer
}

QTEST_MAIN(TestTab)

#include "tst_tab.moc"
