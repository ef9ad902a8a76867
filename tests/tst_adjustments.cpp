#include "pages/imaging/adjustmentdialog.h"
#include "pages/imaging/adjustmentvalues.h"
#include "pages/imaging/monodialog.h"
#include "support/recordingdialog.h"
#include "support/testhelpers.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

namespace {

const QString hues = "CaHueMaster/All 6 00\nCaHr/Reds 6 0\nCaHy/Yellows 6 0\nCaHg/Greens 6 0\n"
                     "CaHc/Cyans 6 0\nCaHb/Blues 6 0\nCaHm/Magentas 6 0\n";
const QString others = "Cadj 5 False* True\nCaColorSpace 99 -1* 0/A_&_B 1/Balance\nCast 6 0\n"
                       "Cabt 6 0\nCact 6 0\nCaCR 6 0\nCaMG 6 0\nCaYB 6 0\nMadj 99 False* True\n";
const QString printer = hues + others;
const QString on = "Cadj=True\nCaColorSpace=0\nMadj=True\n";

/// One of the two dialogs as its user sees it.
template <typename Dialog>
struct Panel
{
    void load(const QString &options, const QString &settings)
    {
        panel.selectPrinter(options, settings);
        dialog.loadStates();
    }
    /// Opens the dialog, takes the steps and closes it by the button. Steps, separated by commas:
    /// "Red:5" moves a slider, "Red=0.5" types, "custom", "hsl" and "balance" click, and a number
    /// chooses a hue. Afterwards `values`, `hue` and `form` tell what showed.
    void open(const QString &steps, QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok)
    {
        QTimer::singleShot(0, &dialog, [&] {
            for (const QString &step : steps.split(", ", Qt::SkipEmptyParts))
                take(step);
            look();
            find<QDialogButtonBox>().first()->button(button)->click();
        });
        dialog.exec();
    }
    void take(const QString &step)
    {
        const int sign = step.indexOf(QRegularExpression("[:=]"));
        const QString value = step.mid(sign + 1);
        if (step == "custom") {
            find<QCheckBox>().first()->click();
        } else if (step == "hsl" || step == "balance") {
            find<QRadioButton>()[step == "balance"]->click();
        } else if (sign < 0) {
            find<ComboBoxEx>().first()->setCurrentIndex(value.toInt());
        } else if (step[sign] == ':') {
            named<QSlider>(step.left(sign))->setValue(value.toInt());
        } else {
            named<QLineEdit>(step.left(sign))->selectAll();
            QTest::keyClicks(named<QLineEdit>(step.left(sign)), value);
        }
    }
    /// Text and slider of each row that doesn't stand at 0; the rows of hues that show; which form
    /// shows, with "-" before a greyed one.
    void look()
    {
        QStringList rows, shownHues, forms;
        for (const QSlider *slider : find<QSlider>()) {
            const QString name = slider->accessibleName();
            const QString text = named<QLineEdit>(name)->text();
            if (slider->value() != 0 || text != "0")
                rows << QString("%1 %2|%3").arg(name, text).arg(slider->value());
            if (rowsOfHues.contains(name) && slider->isVisibleTo(slider->parentWidget()))
                shownHues << name;
        }
        for (const QGroupBox *group : find<QGroupBox>()) {
            if (group->isVisibleTo(&dialog))
                forms << (group->isEnabled() ? "" : "-") + group->title().left(3);
        }
        values = rows.join(", ");
        hue = shownHues.join(' ');
        form = forms.join(' ');
    }
    template <typename Widget>
    QList<Widget *> find() const
    {
        return dialog.template findChildren<Widget *>();
    }
    template <typename Widget>
    Widget *named(const QString &name) const
    {
        for (Widget *widget : find<Widget>()) {
            if (widget->accessibleName() == name)
                return widget;
        }
        return nullptr;
    }
    /// The result as "Key=value" for the keys that the pattern matches.
    QString collected(const QString &pattern = QString()) const
    {
        QStringList words;
        for (const auto &[key, value] : dialog.collectAdjustments())
            words << key + '=' + value;
        return words.filter(QRegularExpression('^' + pattern)).join(' ');
    }

    const QStringList rowsOfHues = {"Master", "Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"};
    RecordingDialog panel;
    Dialog dialog{nullptr};
    QString values, hue, form;
};
using ColorPanel = Panel<adjustmentDialog>;
using MonoPanel = Panel<monoDialog>;

template <typename Panel>
void checkRows()
{
    QFETCH(QString, settings);
    QFETCH(QString, steps);
    Panel panel;
    panel.load(printer, on + "fCaHm=9\nfCaMG=3\nfMalt=5"); // a file before
    panel.load(printer, settings);
    panel.open(steps);
    QTEST(panel.values, "values");
    // It was committed, a lone sign as 0.
    const QStringList committed = panel.values.split(", ").filter(QRegularExpression("[|]-?[1-9]"));
    panel.open(QString());
    QCOMPARE(panel.values, committed.join(", "));
}

} // namespace

class TestAdjustments : public QObject
{
    Q_OBJECT

private slots:
    void positions();
    void colorRows_data();
    void colorRows() { checkRows<ColorPanel>(); }
    void monoRows_data();
    void monoRows() { checkRows<MonoPanel>(); }
    void forms();
    void hueList();
    void results();
    void cancelAndReset();
    void noPrinter();
};

void TestAdjustments::positions()
{
    const auto position = [](const QString &text) {
        return AdjustmentValues::sliderPosition(AdjustmentValues::number(text), 100);
    };
    for (const char *noNumber : {"", "1,5", "nan", "-inf", "1e999"})
        QCOMPARE(position(noNumber), 0);
    QCOMPARE(position("-0.129"), -12); // the third place is cut
    QCOMPARE(position("-1e300"), -1000000000);
    for (int i = -1000; i <= 1000; ++i) // each finds back to itself
        QCOMPARE(position(AdjustmentValues::exactText(i, 100)), i);
}

void TestAdjustments::colorRows_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("values");
    addRow("no hundredth gets lost", on, "Red=0.29", "Red 0.29|29");
    addRow("sign alone", on, "Saturation:50, Saturation=-", "Saturation -|0");
    addRow("beyond the end", on, "Saturation=10.5", "Saturation 10|1000");
    addRow("master in whole degrees", on, "Master=-180.5", "Master -180|-180");
    addRow("typed master clears all hues", on, "Red:5, Blue:6, Master=5", "Master 5|5");
    addRow("moved master clears all hues", on, "Red:5, Blue:6, Master:5", "Master 5|5");
    addRow("moved hue clears the master", on, "Master:40, Green:3", "Green 0.03|3");
    addRow("typed hue clears the master", on, "Master:40, Green=3", "Green 3|300");
    addRow("hues side by side", on, "Red:5, Blue=1, Master=-0",
           "Master -0|0, Red 0.05|5, Blue 1|100");
    addRow("balance clears the hues", on, "Master:5, Saturation:6, balance", "");
    addRow("hues clear the balance", on, "balance, Cyan - Red:5, Yellow - Blue=2, hsl", "");
    addRow("off clears everything", on, "Red:5, Contrast:6, custom", "");
    addRow("off clears the balance", on, "balance, Cyan - Red:5, custom, custom", "");
    addRow("coarse values alone", "CaHr=3.0\nCaCR=1.0", "", "");
    addRow("saved", "fCaHr=0.29\nfCact=-.07", "", "Red 0.29|29, Contrast -0.07|-7");
    addRow("saved master, its tenfold too far", "fCaHueMaster=180", "", "Master 180|180");
    addRow("saved master and hue", "fCaHueMaster=12\nfCaHr=1", "", "Red 1|100");
    addRow("too far", "fCaHr=50\nfCaYB=-1e300", "", "Red 10|1000, Yellow - Blue -10|-1000");
    addRow("master too far", "fCaHueMaster=-181", "", "Master -180|-180");
    addRow("mark of a bad value", "fCaHr=999\nfCaHueMaster=999", "", "");
    addRow("no numbers", "fCaHr=x\nfCaHy=nan\nfCaHg=inf\nfCaHc=-1e999\nfCaHb=1,5", "", "");
    addRow("a megabyte", "fCaHr=" + QString(1 << 20, '9') + "\nfCaHy=1", "", "Yellow 1|100");
    addRow("unknown words", "CaColorSpace=7\nCadj=Maybe\nHueIndex=x\nfCaHr=1", "", "Red 1|100");
}

void TestAdjustments::monoRows_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("values");
    addRow("beyond the ends", on, "Brightness=-1000", "Brightness -100|-100");
    addRow("whole numbers only", on, "Contrast=1.5", "Contrast 15|15");
    addRow("sign alone", on, "Contrast:5, Contrast=-", "Contrast -|0");
    addRow("saved", on + "fMalt=3.7\nfMact=-0.5", "", "Brightness 37|37, Contrast -5|-5");
    addRow("saved, but off", "Madj=False\nfMalt=3.7", "", "");
    addRow("too far", on + "fMalt=1e300", "", "Brightness 100|100");
    addRow("no numbers", on + "fMalt=nan\nfMact=x", "", "");
    addRow("a megabyte", on + "fMalt=" + QString(1 << 20, '9'), "", "");
}

void TestAdjustments::forms()
{
    const QString saved = on + "HueIndex=3";
    const QString balance = "Cadj=True\nCaColorSpace=1\nHueIndex=3";
    // Which form shows; custom, colour space and hue of the result.
    const auto opened = [](const QString &options, const QString &settings, const QString &steps) {
        ColorPanel panel;
        panel.load(options, settings);
        panel.open(steps);
        return panel.form + ' ' +
               panel.collected("(Cadj|CaColorSpace|HueIndex)")
                   .remove(QRegularExpression("[A-Za-z]+="));
    };
    QCOMPARE(opened(printer, "", ""), QString("-Hue False -1 0"));
    QCOMPARE(opened(printer, "", "custom"), QString("Hue True 0 0"));
    QCOMPARE(opened(printer, balance, ""), QString("Col True 1 0"));
    QCOMPARE(opened(printer, saved, "balance, hsl"), QString("Hue True 0 0"));
    QCOMPARE(opened(printer, balance, "custom"), QString("-Hue False -1 0"));
    QCOMPARE(opened(printer, on + "HueIndex=-3", ""), QString("Hue True 0 0"));
    QCOMPARE(opened("Cadj 5 False True\n" + hues, balance, ""), QString("Hue True 0 3"));
    QCOMPARE(opened("Cadj 5 False True\nCaColorSpace 99 1", balance, ""), QString("Col True 1 0"));
    QCOMPARE(opened(others, saved, ""), QString("Hue True 0 0"));
}

void TestAdjustments::hueList()
{
    ColorPanel panel;
    const auto *list = panel.find<ComboBoxEx>().first();
    const auto shown = [&](const QString &options, const QString &settings) {
        panel.load(options, settings);
        panel.look();
        return QString("%1 %2 %3, %4")
            .arg(list->count())
            .arg(list->currentText(), panel.hue, panel.values);
    };
    shown(printer, "Cadj=True\nCaColorSpace=1"); // a change of form forgets no hue
    QCOMPARE(shown(printer, on + "HueIndex=3\nfCaHg=2"), QString("7 Greens Green, Green 2|200"));
    QCOMPARE(panel.find<QRadioButton>().first()->text(), QString("A && B")); // no shortcut
    panel.open("5");
    QCOMPARE(panel.hue, QString("Blue"));
    // Nothing of the other printer stays.
    QCOMPARE(shown(QString(printer).remove("CaHg/Greens 6 0\n"), on + "HueIndex=3\nfCaHg=2"),
             QString("6 Cyans Cyan, "));
    QCOMPARE(shown("CaHr/Hue 6 0\nCaHy/Hue 6 0\n" + others, on), QString("2 Hue Yellow, "));
    QCOMPARE(shown(others, on), QString("0  , "));
    panel.load(hues, on);
    QCOMPARE(panel.collected("Cadj"), QString("Cadj=False"));
}

void TestAdjustments::results()
{
    ColorPanel color;
    color.load(printer, on + "HueIndex=1\nfCaHueMaster=123");
    QCOMPARE(color.collected("f?CaHueMaster"), QString("CaHueMaster=120 fCaHueMaster=123"));
    color.take("Red:7");
    color.take("Saturation:-250");
    QCOMPARE(color.collected("f?(HueIndex|CaHueMaster|CaHr|Cast)"),
             QString("HueIndex=1 CaHueMaster=00 CaHr=0.0 Cast=-2.0 fCaHueMaster=0 fCaHr=0.07 "
                     "fCast=-2.5"));
    MonoPanel mono;
    for (const char *contrast : {"1", "-3.7"}) // the last load counts
        mono.load(printer, on + "fMalt=0.5\nfMact=" + contrast);
    QCOMPARE(mono.collected(), QString("Madj=True Malt=0.0 Mact=-3.0 fMalt=0.5 fMact=-3.7"));
}

void TestAdjustments::cancelAndReset()
{
    ColorPanel color;
    color.load(printer, on + "HueIndex=3\nfCaHr=1");
    color.open("Red:300", QDialogButtonBox::Cancel);
    QCOMPARE(color.collected("fCaHr"), QString("fCaHr=3")); // what shows
    const auto model = [] {
        return RecordingDialog::current("Cadj") + RecordingDialog::current("CaColorSpace");
    };
    color.open(QString());
    QCOMPARE(color.values, QString("Red 1|100"));
    color.open("balance");
    QCOMPARE(model(), QString("True1"));
    color.open("hsl, 3");
    QCOMPARE(model(), QString("True0"));
    color.dialog.resetStates();
    color.look();
    QCOMPARE(color.values + color.hue + model(), QString("GreenFalse-1"));
    MonoPanel mono;
    mono.load(printer, on + "fMact=1");
    mono.open("Contrast=34, custom", QDialogButtonBox::Cancel);
    QCOMPARE(mono.collected("(Madj|fMact)"), QString("Madj=False fMact=0"));
    mono.open(QString());
    QCOMPARE(mono.values + RecordingDialog::current("Madj"), QString("Contrast 10|10True"));
    mono.dialog.resetStates();
    mono.look();
    QCOMPARE(mono.values + RecordingDialog::current("Madj"), QString("False"));
}

void TestAdjustments::noPrinter()
{
    ColorPanel color;
    color.dialog.loadStates();
    color.dialog.checkAdjustmentSettings();
    color.open("custom, balance, hsl");
    MonoPanel mono;
    mono.dialog.loadStates();
    mono.open("custom");
    QCOMPARE(color.values + mono.values, QString());
}

QTEST_MAIN(TestAdjustments)

#include "tst_adjustments.moc"
