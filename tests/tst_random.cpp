// Random printers, selected and clicked through on the real main dialog: whatever a PPD ties
// together, a click comes to an end, and the widgets show what the model holds.
// Many of them take PRESSDESK_RANDOM_PPDS=10000 and, against the five minutes that Qt Test allows,
// QTEST_FUNCTION_TIMEOUT in milliseconds.

#include "app/bixdialog.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/binding.h"
#include "pages/base/tab.h"
#include "player/shortppd.h"
#include "storage/settingsfile.h"
#include "support/randomhands.h"
#include "support/testhelpers.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"
#include "widgets/comboboxex.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

namespace {

constexpr int clicksPerPrinter = 15;
/// So that windows are made and go in between.
constexpr int printersPerWindow = 50;
/// One pass and ten repeats.
constexpr int mostPasses = 1 + 10;
constexpr qint64 deepestStack = 512 * 1024; // bytes; with sanitizers as well

/// The options that a printer may have: the first word is the keyword, the others are choices.
const QStringList optionPool = {
    // combo boxes
    "PageSize A4/A4 A5/A5 Letter/Letter",
    "MediaType Plain/Plain Thick/Thick Transparency/Clear",
    "InputSlot Auto/Auto Upper/Upper Lower/Lower",
    "OutputBin Top/Top Side/Side Rear/Rear",
    "Trap None/Off T1/T1 T2/T2",
    "BSCREENMODE Auto/Auto Text/Text Photo/Photo",
    "Resolution 600dpi/600 1200dpi/1200",
    "Crep Auto/Auto Vivid/Vivid Plain/Plain",
    "RCM None/Off On/On Auto/Auto",
    "CIE None/Off Text/Text Photo/Photo",
    "Wtxt Confidential/CONFIDENTIAL Draft/DRAFT",
    // check boxes
    "Fold False/Off True/On",
    "GBTn False/Off True/On",
    "Smoothing False/Off True/On",
    "BXGlossmode False/Off True/On",
    // button groups
    "Coll False/Off True/On",
    "Duplex None/Off DuplexNoTumble/Long_edge DuplexTumble/Short_edge",
    "ColorModel CMYK/Full_color Gray/Black_&_white",
    "BXBooklet None/Off Left/Left_edge_binding Right/Right_edge_binding",
    "Sep None/Off Jog/Offset_jobs Rot/Rotate_copies",
    "Rotate False/Off True/On",
    // check boxes with pictures and lists
    "FldA None/Off Bifold/Bi-Fold Trifold/Tri-Fold",
    "FldC None/Off In/In Out/Out",
    "BFpS None/Off S1/One S2/Two",
    "Stpl None/Off FrontLeft/Front RearLeft/Rear",
    "Scnt None/Off One/One Two/Two",
    "Pnch None/Off 2Hole/Two 4Hole/Four",
    "CvrM Plain/Plain Thick/Thick",
    "Pmed Plain/Plain Thick/Thick",
    // a switch and its levels
    "Lnpr Off/Off Level1/Level_1 Level2/Level_2 Level3/Level_3",
    // what is fitted
    "Option17 None/None Finisher1/One Finisher2/Two",
    "Option19 False/No True/Yes",
    "Option22 False/No True/Yes",
};

struct Printer
{
    QStringList parts; ///< for ppdText()
    QByteArray settings;
};

Printer randomPrinter(RandomHands *random)
{
    Printer printer;
    QStringList values;
    QHash<QString, QStringList> byOption;
    const QStringList lines = random->shuffled(optionPool).mid(0, 4 + random->below(12));
    for (const QString &line : lines) {
        const QString keyword = line.section(' ', 0, 0);
        QStringList choices = line.section(' ', 1).split(' ');
        // Texts in the panel's language, in none that it knows, and none at all.
        const int texts = random->below(4);
        for (QString &choice : choices) {
            const QString key = choice.section('/', 0, 0);
            values << '*' + keyword + ' ' + key;
            byOption[keyword] << key;
            if (texts == 2)
                choice = key + "/Text_of_" + key;
            else if (texts == 3)
                choice = key;
        }
        choices[random->below(choices.size())] += '*';
        const QString group = keyword.startsWith("Option") ? " InstallableOptions" : "";
        printer.parts << keyword + group + ": " + choices.join(' ');
        if (random->oneIn(3))
            printer.settings += (keyword + '=' + random->pick(byOption[keyword]) + '\n').toUtf8();
    }
    const auto addRules = [&](int count, int size) {
        while (count-- > 0) {
            QStringList rule, seen;
            for (int tries = 0; rule.size() < size && tries < 20; ++tries) {
                const QString value = random->pick(values);
                const QString keyword = value.section(' ', 0, 0);
                if (!seen.contains(keyword))
                    rule << value;
                seen << keyword;
            }
            if (rule.size() == size)
                printer.parts << rule.join(' ');
        }
    };
    addRules(random->below(2 * lines.size()), 2);
    addRules(random->below(3 * lines.size()), 3);
    return printer;
}

struct BoundWidget
{
    Tab *page;
    QString keyword;
    QWidget *widget;
};

/// Lends the registrations of a page.
class Page : public Tab
{
public:
    static const WidgetMap &boundTo(Tab *page) { return page->*(&Page::boundWidgets); }
};

/// The main window, with an eye on its passes.
class Window : public BixDialog
{
public:
    Window()
    {
        connect(this, &PanelDialog::constraintsWorkedOut, [this] { ++passes; });
    }

    void setConstraints() override
    {
        char here;
        stack = std::max(stack, qAbs(qint64(base - &here)));
        if (++depth == 1)
            passes = 0;
        deepest = std::max(deepest, depth);
        BixDialog::setConstraints();
        most = std::max(most, passes);
        gaveUp = gaveUp || passes == mostPasses;
        --depth;
    }

    /// Runs a click, and measures from here.
    template <typename Click>
    void run(Click click)
    {
        char here;
        base = &here;
        gaveUp = false;
        click();
    }

    QList<BoundWidget> boundWidgets() const
    {
        QList<BoundWidget> bound;
        for (Tab *page : findChildren<Tab *>()) {
            if (!tabs->isTabEnabled(tabs->indexOf(page)))
                continue;
            for (const auto &[keyword, widget] : Page::boundTo(page)) {
                if (currentOption(keyword) && widget->isEnabled() && !widget->isHidden())
                    bound << BoundWidget{page, keyword, widget};
            }
        }
        return bound;
    }

    QTableWidget *printers() const { return findNamed<QTableWidget>(this, "tblPrinters"); }

    /// The last click has moved values round and round: after ten repeats they stay where they are.
    bool gaveUp = false;
    int most = 0;     ///< passes that one change led to
    int deepest = 0;  ///< nested calls of setConstraints()
    qint64 stack = 0; ///< bytes, from a click to a call of setConstraints()

private:
    BixTabWidget *tabs = findChild<BixTabWidget *>();
    const char *base = nullptr;
    int passes = 0;
    int depth = 0;
};

/// Does something that a user could do with the widget, and says what; null if there is nothing.
QString actOn(const BoundWidget &bound, RandomHands *random)
{
    const auto click = [&](QAbstractButton *button, const QString &name) {
        button->click();
        return QString(bound.keyword + ": " + name);
    };
    if (auto *box = qobject_cast<ComboBoxEx *>(bound.widget)) {
        QList<int> items;
        for (int i = 0; i < box->count(); ++i) {
            if (box->model()->index(i, 0).flags() & Qt::ItemIsEnabled)
                items << i;
        }
        if (items.isEmpty())
            return {};
        const int item = random->pick(items);
        const QString step = bound.keyword + ": " + box->itemText(item);
        box->setCurrentIndex(item);
        return step;
    }
    if (auto *group = qobject_cast<BixButtonGroup *>(bound.widget)) {
        QPushButton *button = group->buttonAt(random->below(group->buttonCount()));
        return button->isEnabled() ? click(button, button->accessibleName()) : QString();
    }
    if (auto *button = qobject_cast<BixCheckBoxButton *>(bound.widget))
        return click(button->findChild<QCheckBox *>(), "switched");
    if (auto *box = qobject_cast<QAbstractButton *>(bound.widget))
        return click(box, "clicked");
    return {};
}

/// True if the widget offers a value that isn't blocked.
bool hasFreeValue(const QWidget *widget, const bOption *option)
{
    const auto *box = qobject_cast<const ComboBoxEx *>(widget);
    const QList<OptionChoice *> choices = option->choiceList();
    return std::any_of(choices.begin(), choices.end(), [&](const OptionChoice *choice) {
        return !choice->isBlocked() && (!box || box->findText(choice->text()) >= 0);
    });
}

/// What a widget shows and the model doesn't hold, or what is blocked and stays all the same.
QStringList faults(const Window &window)
{
    QStringList found;
    for (const BoundWidget &bound : window.boundWidgets()) {
        const bOption *option = currentOption(bound.keyword);
        const Binding &binding = Binding::of(bound.widget);
        const OptionChoice *shown =
            binding.choice(bound.widget, binding.value(bound.widget), option);
        const OptionChoice *current = option->current();
        if (!shown)
            continue;
        const bool free = hasFreeValue(bound.widget, option);
        const QString name = bound.page->metaObject()->className() + (' ' + bound.keyword);
        // With nothing left to choose a value shows that takes no part in conflicts.
        const bool givenUp = current && !current->isArmed();
        if (shown != current && (free || !givenUp))
            found << name + " shows " + shown->key() + ", the model holds " + option->currentKey();
        if (shown == current && shown->isBlocked() && free)
            found << name + " stays at " + shown->key() + ", which is blocked";
    }
    return found;
}

} // namespace

class TestRandom : public QObject
{
    Q_OBJECT

private slots:
    void clicksEnd();
};

void TestRandom::clicksEnd()
{
    const unsigned seed = numberFrom("PRESSDESK_TEST_SEED", std::random_device()());
    const int count = int(numberFrom("PRESSDESK_RANDOM_PPDS", 200));
    qInfo("seed %u, %d printers (PRESSDESK_TEST_SEED=%u PRESSDESK_RANDOM_PPDS=%d repeats it)", seed,
          count, seed, count);

    QVERIFY(QDir().mkpath(userDirectory()));
    QVERIFY(setFileText(settingsPath(), "Telemetry=False"));
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    const QStringList queues = {"Even", "Odd"};
    for (const QString &queue : queues) {
        QVERIFY(setFileText("/tmp/first.ppd", ppdText({"PageSize: A4"}).toUtf8()));
        QCOMPARE(QProcess::execute(PRESSDESK_SOURCE_DIR "/demo/printserver.sh",
                                   {"add", server, queue, "/tmp/first.ppd"}),
                 0);
    }

    std::unique_ptr<Window> window;
    int most = 0, deepest = 0, clicks = 0, faulty = 0, endless = 0;
    qint64 stack = 0;
    for (int i = 0; i < count; ++i) {
        if (i % printersPerWindow == 0) {
            window.reset();
            window = std::make_unique<Window>();
        }
        RandomHands random(seed + unsigned(i));
        const Printer printer = randomPrinter(&random);
        const int row = i % 2;
        const QString ppd = ppdText(printer.parts);
        QVERIFY(setFileText("/etc/cups/ppd/" + queues[row] + ".ppd", ppd.toUtf8()));
        userDir = userDirectory();
        QVERIFY(setFileText(cfgPath(queues[row]), printer.settings));

        QStringList steps = {"select"};
        window->run([&] { window->printers()->setCurrentCell(row, 0); });
        QVERIFY(currentStore);
        for (int step = 0; step <= clicksPerPrinter; ++step) {
            QStringList wrong = faults(*window);
            if (window->gaveUp && !wrong.isEmpty() && wrong == wrong.filter(" stays at ")) {
                ++endless;
                break;
            }
            if (window->most > mostPasses || window->deepest > mostPasses + 1 ||
                window->stack > deepestStack)
                wrong << QString("%1 passes, %2 calls deep, %3 bytes of stack")
                             .arg(window->most)
                             .arg(window->deepest)
                             .arg(window->stack);
            if (!wrong.isEmpty()) {
                ++faulty;
                qWarning("printer %d, seed %u:\n%s\nsaved: %s\nsteps: %s\n%s", i,
                         seed + unsigned(i), qPrintable(printer.parts.join('\n')),
                         printer.settings.simplified().constData(), qPrintable(steps.join("; ")),
                         qPrintable(wrong.join('\n')));
                break;
            }
            const QList<BoundWidget> bound = window->boundWidgets();
            if (bound.isEmpty())
                break;
            QString done;
            window->run([&] { done = actOn(random.pick(bound), &random); });
            if (!done.isEmpty())
                steps << done;
            clicks += done.isEmpty() ? 0 : 1;
        }
        most = std::max(most, window->most);
        deepest = std::max(deepest, window->deepest);
        stack = std::max(stack, window->stack);
    }
    qInfo("%d clicks: at most %d passes for one change (%d times), %d nested calls, %lld bytes of "
          "stack",
          clicks, most, endless, deepest, stack);
    QVERIFY(endless * 100 < clicks); // or nothing would be looked at
    QCOMPARE(faulty, 0);
}

QTEST_MAIN(TestRandom)
#include "tst_random.moc"
