#include "pages/imaging/adjustmentdialog.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/imaging/adjustmentrows.h"
#include "storage/settingsfile.h"
#include "widgets/comboboxex.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>

using namespace AdjustmentRows;
using namespace AdjustmentValues;
using PageWidgets::withColon;

namespace {

const QLatin1String adjustmentKey("Cadj");
const QLatin1String colorSpaceKey("CaColorSpace");
const QLatin1String hueIndexKey("HueIndex");
const QLatin1String masterKey("CaHueMaster");

// Choices of the colour space.
const QLatin1String noSpace("-1");
const QLatin1String hslSpace("0");
const QLatin1String balanceSpace("1");

constexpr double badValue = 999; // stands for a text that makes no sense
constexpr int masterScale = 10;

const bOption *findOption(const QString &keyword)
{
    return currentOption(keyword);
}

/// The saved exact value of a row, brought into its range.
double savedValue(const ValueRow &row)
{
    const double value = number(readSetting(exactKey(keyOf(row))));
    const double end = row.kind == Master ? 180 : 10;
    return value == badValue ? 0 : qBound(-end, value, end);
}

} // namespace

// Construction

adjustmentDialog::adjustmentDialog(QWidget *parent)
    : QDialog(parent)
    , customBox(new QCheckBox(tr("Custom"), this))
    , hslButton(new QRadioButton(tr("HSL(hue, saturation and lightness)"), this))
    , balanceButton(new QRadioButton(tr("Color balance"), this))
    , hueGroup(new QGroupBox(tr("Hue Adjustment"), this))
    , levelGroup(new QGroupBox(withColon(tr("Color levels")), this))
    , hueBox(new ComboBoxEx(hueGroup))
{
    setWindowTitle(tr("Adjustment Settings"));
    PageWidgets::simplifyTitleBar(this);
    createRows();
    createLayout();

    // One of the forms shows from the start, and no hue without a printer.
    hslButton->setChecked(true);
    levelGroup->hide();
    showHueRow(QString());
    enableForms();

    connectForms();
    connectRows();
}

void adjustmentDialog::connectForms()
{
    // Both buttons announce each switch, so it clears either form.
    const auto toggled = &QRadioButton::toggled;
    connect(hslButton, toggled, hueGroup, &QWidget::show);
    connect(hslButton, toggled, levelGroup, &QWidget::hide);
    connect(hslButton, toggled, this, &adjustmentDialog::markCaColorSpace);
    connect(hslButton, toggled, this, &adjustmentDialog::clearColorBalanceSettings);

    connect(balanceButton, toggled, hueGroup, &QWidget::hide);
    connect(balanceButton, toggled, levelGroup, &QWidget::show);
    connect(balanceButton, toggled, this, &adjustmentDialog::markCaColorSpace);
    connect(balanceButton, toggled, this, &adjustmentDialog::clearHSLSettings);

    connect(customBox, &QCheckBox::toggled, this, &adjustmentDialog::enableForms);
    connect(customBox, &QCheckBox::toggled, this, &adjustmentDialog::markCaColorSpace);

    connect(hueBox, SIGNAL(currentIndexChanged(QString)), this, SLOT(hueSelectedChanged(QString)));
}

void adjustmentDialog::connectRows()
{
    for (const ValueRow &row : valueRows) {
        const QSlider *slider = sliders.value(keyOf(row));
        const QLineEdit *edit = lineEdits.value(keyOf(row));
        connect(slider, &QSlider::valueChanged, this, &adjustmentDialog::setLineEditText);
        connect(edit, &QLineEdit::textChanged, this, &adjustmentDialog::setSliderValue);
        // After value and text agree.
        if (row.kind == Master) {
            connect(slider, &QSlider::valueChanged, this,
                    &adjustmentDialog::clearOtherSliderValues);
            connect(edit, &QLineEdit::textChanged, this, &adjustmentDialog::clearOtherSliderValues);
        } else if (row.kind == Hue) {
            connect(slider, &QSlider::valueChanged, this,
                    &adjustmentDialog::clearMasterSliderValue);
            connect(edit, &QLineEdit::textChanged, this, &adjustmentDialog::clearMasterSliderValue);
        }
    }
}

int adjustmentDialog::exec()
{
    refreshWidgets();
    return QDialog::exec();
}

// The two forms

void adjustmentDialog::enableForms()
{
    for (QWidget *widget :
         {static_cast<QWidget *>(hslButton), static_cast<QWidget *>(balanceButton),
          static_cast<QWidget *>(hueGroup), static_cast<QWidget *>(levelGroup)})
        widget->setEnabled(customBox->isChecked());
    ReasonTip::setIfGreyBelow(this, Reasons::switchOnFirst(tr("Custom")));
}

void adjustmentDialog::checkAdjustmentSettings()
{
    enableForms();
    if (const bOption *option = findOption(colorSpaceKey))
        (option->currentKey() == balanceSpace ? balanceButton : hslButton)->setChecked(true);
}

void adjustmentDialog::markCaColorSpace()
{
    if (customBox->isChecked())
        return;
    clearHSLSettings();
    clearColorBalanceSettings();
    hslButton->setChecked(true);
}

void adjustmentDialog::clearHSLSettings()
{
    clearRows(Master | Hue | Tone);
    hueIndex = 0;
    hueBox->setCurrentIndex(0);
}

void adjustmentDialog::clearColorBalanceSettings()
{
    clearRows(Level);
}

// Hues

void adjustmentDialog::hueSelectedChanged(const QString &hue)
{
    if (!hue.isEmpty())
        showHueRow(hueKeys.value(hue));
}

void adjustmentDialog::showHueRow(const QString &shown)
{
    for (const ValueRow &row : valueRows) {
        if (row.kind != Master && row.kind != Hue)
            continue;
        const bool visible = keyOf(row) == shown;
        sliders.value(keyOf(row))->setVisible(visible);
        lineEdits.value(keyOf(row))->setVisible(visible);
        labels.value(keyOf(row))->setVisible(visible);
    }
}

void adjustmentDialog::clearMasterSliderValue()
{
    if (anyHue())
        clearRows(Master);
}

void adjustmentDialog::clearOtherSliderValues()
{
    if (sliders.value(masterKey)->value() != 0)
        clearRows(Hue);
}

bool adjustmentDialog::anyHue() const
{
    return std::any_of(std::begin(valueRows), std::end(valueRows), [this](const ValueRow &row) {
        return row.kind == Hue && sliders.value(keyOf(row))->value() != 0;
    });
}

// Slider and text

std::vector<QSignalBlocker> adjustmentDialog::silence() const
{
    std::vector<QSignalBlocker> blockers;
    for (const ValueRow &row : valueRows) {
        blockers.emplace_back(sliders.value(keyOf(row)));
        blockers.emplace_back(lineEdits.value(keyOf(row)));
    }
    blockers.emplace_back(hslButton);
    blockers.emplace_back(balanceButton);
    return blockers;
}

void adjustmentDialog::setLineEditText(int value)
{
    const auto silent = silence();
    const QString sent = sliders.key(qobject_cast<QSlider *>(sender()));
    if (QLineEdit *edit = lineEdits.value(sent))
        edit->setText(sent == masterKey ? QString::number(value) : exactText(value, scale));
}

void adjustmentDialog::setSliderValue()
{
    const auto silent = silence();
    auto *edit = qobject_cast<QLineEdit *>(sender());
    const QString sent = lineEdits.key(edit);
    QSlider *slider = sliders.value(sent);
    if (!slider)
        return;
    const double value = number(edit->text());
    if (value == badValue) {
        slider->setValue(0);
        edit->setText(QStringLiteral("0"));
    } else {
        slider->setValue(sliderPosition(value, sent == masterKey ? 1 : scale));
    }
}

void adjustmentDialog::clearRows(unsigned kinds)
{
    // All at once: one row after the other would meet those that still stand.
    const auto silent = silence();
    for (const ValueRow &row : valueRows) {
        if (!(row.kind & kinds))
            continue;
        sliders.value(keyOf(row))->setValue(0);
        lineEdits.value(keyOf(row))->setText(QStringLiteral("0"));
    }
}

// Loading, committing, collecting

void adjustmentDialog::refreshWidgets()
{
    const int committedHue = hueIndex; // what follows may switch forms, which forgets it
    hueKeys.clear();
    hueBox->clear();
    showHueRow(QString());

    // A printer without the option shows nothing of the one before.
    customBox->setChecked(isCustom(adjustmentKey));
    enableForms();
    showForm();
    for (const auto &[key, value] : qAsConst(savedValues))
        showValue(key, value);

    hueIndex = committedHue;
    const bool known = hueIndex >= 0 && hueIndex < hueBox->count();
    hueBox->setCurrentIndex(known ? hueIndex : 0);
    hueSelectedChanged(hueBox->currentText());
}

void adjustmentDialog::showForm()
{
    const bOption *option = findOption(colorSpaceKey);
    if (!option)
        return;
    const QList<OptionChoice *> choices = option->choiceList();
    const auto setText = [](QRadioButton *button, const OptionChoice *choice) {
        // An ampersand would mark a shortcut.
        if (choice)
            button->setText(QString(choice->text()).replace(QLatin1Char('&'), QLatin1String("&&")));
    };
    setText(hslButton, choices.value(1));
    setText(balanceButton, choices.value(2));

    const OptionChoice *space = option->current() ? option->current() : option->defaultChoice();
    if (!space || (space->key() != hslSpace && space->key() != balanceSpace))
        return;
    const bool hsl = space->key() == hslSpace;
    (hsl ? hslButton : balanceButton)->setChecked(true);
    hueGroup->setVisible(hsl);
    levelGroup->setVisible(!hsl);
}

void adjustmentDialog::showValue(const QString &key, double value)
{
    QSlider *slider = sliders.value(key);
    QLineEdit *edit = lineEdits.value(key);
    const bOption *option = findOption(key);
    if (!option) {
        const auto silent = silence();
        slider->setValue(0);
        edit->setText(QStringLiteral("0"));
        return;
    }
    if (key.contains(QLatin1String("CaH")))
        hueBox->addItem(option->text());
    hueKeys.insert(option->text(), key);
    // Both announce themselves: the text sets the master slider back from ten times its value.
    slider->setValue(sliderPosition(value, key == masterKey ? masterScale : scale));
    edit->setText(exactText(value));
}

QString adjustmentDialog::colorSpace() const
{
    if (!customBox->isChecked())
        return noSpace;
    return hslButton->isChecked() ? hslSpace : balanceSpace;
}

void adjustmentDialog::saveSettings()
{
    select(adjustmentKey, Keys::yesOrNo(customBox->isChecked()));
    select(colorSpaceKey, colorSpace());
    savedValues.clear();
    for (const ValueRow &row : valueRows)
        savedValues.append({keyOf(row), number(lineEdits.value(keyOf(row))->text())});
    hueIndex = hueBox->currentIndex();
}

void adjustmentDialog::resetStates()
{
    select(adjustmentKey, Keys::no);
    select(colorSpaceKey, noSpace);
    savedValues.clear();
    for (const ValueRow &row : valueRows)
        savedValues.append({keyOf(row), 0});
    refreshWidgets();
}

void adjustmentDialog::loadStates()
{
    savedValues.clear();
    for (const ValueRow &row : valueRows)
        savedValues.append({keyOf(row), savedValue(row)});
    selectSaved(adjustmentKey, Keys::no);
    selectSaved(colorSpaceKey, noSpace);
    hueIndex = readSetting(hueIndexKey).toInt();
    refreshWidgets();
}

Pairs adjustmentDialog::collectAdjustments() const
{
    const QString space = colorSpace();
    Pairs pairs{
        {adjustmentKey, Keys::yesOrNo(customBox->isChecked())},
        {colorSpaceKey, space},
        {hueIndexKey, QString::number(space == hslSpace ? std::max(0, hueBox->currentIndex()) : 0)},
    };
    for (const ValueRow &row : valueRows) {
        const int position = sliders.value(keyOf(row))->value();
        pairs.append({keyOf(row), row.kind == Master ? coarseText(position, masterScale, "0")
                                                     : coarseText(position, scale, ".0")});
    }
    for (const ValueRow &row : valueRows) {
        const int position = sliders.value(keyOf(row))->value();
        pairs.append({exactKey(keyOf(row)), exactText(position, row.kind == Master ? 1 : scale)});
    }
    return pairs;
}
