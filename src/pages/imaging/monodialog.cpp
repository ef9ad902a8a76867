#include "pages/imaging/monodialog.h"

#include "model/keys.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "storage/settingsfile.h"
#include "widgets/mnemonics.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

using namespace AdjustmentValues;
using PageWidgets::withColon;

namespace {

const QLatin1String adjustmentKey("Madj");
const QLatin1String brightnessKey("Malt");
const QLatin1String contrastKey("Mact");

constexpr int scale = 10; // slider positions in a step of the printer
constexpr AdjustmentWidgets::Limits limits{100, 6, "-?([0-9]|[1-9][0-9]|100)?"};

} // namespace

monoDialog::monoDialog(QWidget *parent)
    : QDialog(parent)
    , customBox(new QCheckBox(tr("Custom"), this))
    , brightnessLabel(new QLabel(withColon(tr("Brightness")), this))
    , contrastLabel(new QLabel(withColon(tr("Contrast")), this))
    , brightness(AdjustmentWidgets::makeRow(this, tr("Brightness"), limits))
    , contrast(AdjustmentWidgets::makeRow(this, tr("Contrast"), limits))
{
    setWindowTitle(tr("Adjustment Settings"));
    PageWidgets::simplifyTitleBar(this);

    connect(customBox, &QCheckBox::toggled, this, &monoDialog::toggleAdjustment);
    for (const AdjustmentWidgets::Row &row : {brightness, contrast}) {
        connect(row.slider, &QSlider::valueChanged, this, &monoDialog::setLineEditText);
        connect(row.edit, &QLineEdit::textChanged, this, &monoDialog::setSliderValue);
    }
    createLayout();
}

void monoDialog::createLayout()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    const QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    connect(ok, &QPushButton::clicked, this, &monoDialog::saveSettings);
    connect(ok, &QPushButton::clicked, this, &monoDialog::close);
    connect(buttons->button(QDialogButtonBox::Cancel), &QPushButton::clicked, this,
            &monoDialog::close);
    Mnemonics::give(buttons->buttons() + QList<QAbstractButton *>{customBox});

    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(customBox, 0, 0, 1, 2);
    AdjustmentWidgets::place(grid, 1, brightnessLabel, brightness);
    AdjustmentWidgets::place(grid, 3, contrastLabel, contrast);
    grid->addItem(new QSpacerItem(0, 10), 5, 0);
    grid->addWidget(buttons, 6, 0, 2, 3, Qt::AlignBottom);
}

int monoDialog::exec()
{
    refreshWidgets();
    return QDialog::exec();
}

// Slider and text

void monoDialog::setLineEditText(int value)
{
    const QSignalBlocker silent[] = {QSignalBlocker(brightness.slider),
                                     QSignalBlocker(contrast.slider)};
    const AdjustmentWidgets::Row &row = sender() == contrast.slider ? contrast : brightness;
    row.edit->setText(QString::number(value));
}

void monoDialog::setSliderValue()
{
    const QSignalBlocker silent[] = {QSignalBlocker(brightness.slider),
                                     QSignalBlocker(contrast.slider)};
    const AdjustmentWidgets::Row &row = sender() == contrast.edit ? contrast : brightness;
    row.slider->setValue(row.edit->text().toInt());
}

void monoDialog::toggleAdjustment(bool enabled)
{
    for (QWidget *widget :
         {static_cast<QWidget *>(brightnessLabel), static_cast<QWidget *>(contrastLabel),
          static_cast<QWidget *>(brightness.edit), static_cast<QWidget *>(contrast.edit),
          static_cast<QWidget *>(brightness.slider), static_cast<QWidget *>(contrast.slider)})
        widget->setEnabled(enabled);
    ReasonTip::setIfGreyBelow(this, Reasons::switchOnFirst(tr("Custom")));
    if (enabled)
        return;
    for (const AdjustmentWidgets::Row &row : {brightness, contrast}) {
        row.edit->setText(QStringLiteral("0"));
        row.slider->setValue(0);
    }
}

// Loading, committing, collecting

void monoDialog::refreshWidgets()
{
    // A printer without the option shows nothing of the one before.
    customBox->setChecked(isCustom(adjustmentKey));

    const auto show = [](const AdjustmentWidgets::Row &row, int value) {
        row.edit->setText(QString::number(value));
        row.slider->setValue(value);
    };
    if (savedValues.isEmpty()) {
        show(contrast, 0);
        show(brightness, 0);
    }
    for (const auto &[key, value] : qAsConst(savedValues))
        show(key == contrastKey ? contrast : brightness, value);
    toggleAdjustment(customBox->isChecked());
}

void monoDialog::saveSettings()
{
    savedValues.clear();
    select(adjustmentKey, Keys::yesOrNo(customBox->isChecked()));
    savedValues.append({brightnessKey, brightness.edit->text().toInt()});
    savedValues.append({contrastKey, contrast.edit->text().toInt()});
}

void monoDialog::resetStates()
{
    select(adjustmentKey, Keys::no);
    savedValues.clear();
    refreshWidgets();
}

void monoDialog::loadStates()
{
    selectSaved(adjustmentKey, Keys::no);
    // Those of earlier loads may stay: the last ones count.
    for (const QLatin1String &key : {brightnessKey, contrastKey}) {
        const int value = sliderPosition(number(readSetting(exactKey(key))), scale);
        savedValues.append({key, qBound(-limits.sliderEnd, value, limits.sliderEnd)});
    }
    refreshWidgets();
}

Pairs monoDialog::collectAdjustments() const
{
    const int lightness = brightness.slider->value();
    const int difference = contrast.slider->value();
    return {
        {adjustmentKey, Keys::yesOrNo(customBox->isChecked())},
        {brightnessKey, coarseText(lightness, scale, ".0")},
        {contrastKey, coarseText(difference, scale, ".0")},
        {exactKey(brightnessKey), exactText(lightness, scale)},
        {exactKey(contrastKey), exactText(difference, scale)},
    };
}
