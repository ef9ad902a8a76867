#include "model/optionstore.h"
#include "pages/base/tab.h"
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
        Page::createWidgets();
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
    void changesReachTheModelThenTheDialog();
    void forcedMoves();
    void collects();
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

void TestTab::changesReachTheModelThenTheDialog()
{
    Panel panel;
    const Page *page = panel.page;
    panel.load("Skip 99 False* True; Draft 99 False* True; Tray 99 False* True; "
               "Level 99 Minus3/-3.0* Zero/0 Plus3/3.0; CaHueMaster 99 Hue-180/-180 Hue50/50; "
               "%media; %duplex; %cover; Other 99 A; CoverMedia=Thick Other=A",
               "CoverMedia=Thick");
    const auto callsAfter = [&](const char *keyword, const std::function<void()> &change) {
        panel.dialog.remark = [&panel, keyword] { return panel.current(keyword); };
        change();
        return panel.dialog.takeCalls().join(", ");
    };
    const auto click = [page](const char *keyword) {
        return [=] { page->bound(keyword)->findChild<QCheckBox *>()->click(); };
    };
    QCOMPARE(callsAfter("Media", [&] { page->bound<ComboBoxEx>("Media")->setCurrentIndex(1); }),
             QString("setConstraints Thick"));
    QCOMPARE(
        callsAfter("Duplex", [&] { page->bound<BixButtonGroup>("Duplex")->buttonAt(1)->click(); }),
        QString("setConstraints NoTumble"));
    for (const char *keyword : {"Skip", "Draft"})
        QCOMPARE(callsAfter(keyword, [&] { page->bound<QAbstractButton>(keyword)->click(); }),
                 QString("setConstraints True"));
    QCOMPARE(callsAfter("Tray", click("Tray")), QString("setConstraints True"));

    // One that dependents hang on moves them first, unchecked to their off-value.
    QCOMPARE(callsAfter("Cover", click("Cover")),
             QString("setConstraints False, setConstraints True"));
    QCOMPARE(page->shown("CoverMedia"), QString("Plain [Thick]"));
    QCOMPARE(blockedValues(*currentStore), QString("Other=A"));
    QCOMPARE(callsAfter("CoverMedia", click("Cover")),
             QString("setConstraints None, setConstraints None"));
    QCOMPARE(blockedValues(*currentStore), QString());

    const auto slide = [page](const char *keyword, int value) {
        return [=] { page->bound<QSlider>(keyword)->setValue(value); };
    };
    QCOMPARE(callsAfter("Level", slide("Level", 3)), QString("setConstraints Plus3"));
    QCOMPARE(callsAfter("Level", slide("Level", 0)), QString("setConstraints Zero"));
    QCOMPARE(callsAfter("Level", slide("Level", 4)), QString("setConstraints Minus3")); // default
    QCOMPARE(callsAfter("CaHueMaster", slide("CaHueMaster", 5)), QString("setConstraints Hue50"));
    QCOMPARE(callsAfter("CaHueMaster", slide("CaHueMaster", 1)), QString("setConstraints Hue50"));
}

void TestTab::forcedMoves()
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

void TestTab::collects()
{
    Panel panel;
    const auto collected = [&](const QString &options, const QString &settings = QString()) {
        panel.load(options, settings);
        panel.page->bound<QSlider>("Level")->setValue(3);
        panel.page->bound<QSlider>("CaHueMaster")->setValue(-18);
        const QHash<QString, QString> values = panel.page->collectSettings();
        QStringList lines;
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            lines << it.key() + '=' + it.value();
        lines.sort();
        return lines.join(' ');
    };
    QCOMPARE(collected("%media; %duplex", "Duplex=Tumble; Media=Env"),
             QString("Duplex=Tumble Media=Env"));
    QCOMPARE(collected("Skip 99 False True*; Tray 99 False* True; Draft 99 False True*; Media 99"),
             QString("Skip=True Tray=False"));
    QCOMPARE(collected("Level 99 X; CaHueMaster 99 X"), QString("CaHueMaster=-180 Level=3.0"));
    // Below a button that is off: the off-value is a choice, or names another option.
    QCOMPARE(collected("%cover", "CoverMedia=Thick"), QString("Cover=False CoverMedia=Thick"));
    QCOMPARE(collected("%insert", "InsertMedia=Thick"),
             QString("Insert=False InsertMedia=Thick InsertOff=Second"));
    QCOMPARE(collected("%insert", "InsertMedia=Thick; Insert=True"),
             QString("Insert=True InsertMedia=Thick"));
}

void TestTab::marks()
{
    Panel panel;
    Page *page = panel.page;
    panel.load("Media 99 Plain*; Skip 99 False* True; Cadj 99 False* True; Tray 99 False* True; "
               "%duplex");
    // The label's text and tool tip, "#" for the mark and "_" for a blank.
    const auto look = [](const QLabel *label) {
        return label->text().replace(mark, "#").replace(' ', '_') + label->toolTip();
    };
    const auto isMarked = [page](const char *keyword) {
        page->setMarked(false);
        page->markKeyword(keyword, QString());
        return page->hasMarks();
    };
    const auto *box = page->bound<QCheckBox>("Skip");
    QVERIFY(isMarked("Media") && isMarked("Media") && isMarked("Skip") && isMarked("Duplex") &&
            isMarked("Tray"));
    QVERIFY(!isMarked("Cadj") && !isMarked("KeywordOfAnotherPage"));
    QVERIFY(!box->icon().isNull() && page->bound<QCheckBox>("Cadj")->icon().isNull());
    QCOMPARE(look(page->mediaLabel), QString("Media:#")); // once
    QCOMPARE(look(page->duplexLabel()), QString("Duplex:_Off#"));
    page->clearMarks(); // leaves the blank before the mark
    QVERIFY(box->icon().isNull());
    QCOMPARE(look(page->mediaLabel), QString("Media:_"));
    QCOMPARE(look(page->duplexLabel()), QString("Duplex:_Off_"));
    page->reload(); // sets the texts anew

    for (QWidget *widget : {static_cast<QWidget *>(page->mediaLabel), page->bound("Duplex")}) {
        const auto *label = widget == page->mediaLabel ? page->mediaLabel : page->duplexLabel();
        const QString plain = look(label);
        for (const bool on : {true, true, false}) {
            page->setWidgetMark(widget, "Why", on);
            QCOMPARE(look(label), on ? plain + "#Why" : plain);
        }
        page->addConstraintWidget(label->text(), widget);
        page->setMarked(false);
        page->markConstraintWidgets();
        page->markConstraintWidgets();
        QVERIFY(page->hasMarks() && look(label).count('#') == 1);
    }
    page->reload(); // forgets them
    page->setMarked(false);
    page->markConstraintWidgets();
    QVERIFY(!page->hasMarks());
    QCOMPARE(look(page->mediaLabel), QString("Media:"));
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
