#include "pages/imaging/imagingtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/colorgroup.h"
#include "pages/base/groupbinding.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "pages/imaging/adjustmentdialog.h"
#include "pages/imaging/leanprint.h"
#include "pages/imaging/monodialog.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

using PageWidgets::withColon;

namespace {

const QLatin1String resolutionKeyword("Resolution");
const QLatin1String adjustmentKeyword("Cadj");
const QLatin1String monoAdjustmentKeyword("Madj");

/// For a colour mode that no button stands for.
ColorGroup::Button buttonForColor(const QString &key)
{
    return key == QLatin1String("CMYK") || key == QLatin1String("RGB") ? ColorGroup::FullColor
                                                                       : ColorGroup::BlackAndWhite;
}

} // namespace

ImagingTab::ImagingTab(PanelDialog *dialog)
    : Tab(dialog, {QT_TRANSLATE_NOOP("ImagingTab", "Imaging"), ":/icons/tab-imaging",
                   PageHead::WithAnOption})
{
    Tab::setTabName();
    ImagingTab::createWidgets();
    // After the page's own connections: a click in the colour group mirrors to the other page and
    // forgets adjustments before it moves the option.
    connectBoundWidgets();
    createLayout();
}

void ImagingTab::createConnections()
{
    const auto clicked = qOverload<int>(&BixButtonGroup::buttonClicked);
    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);

    connect(leanprintGroup, clicked, this, &ImagingTab::leanprintButtonToggled);
    connect(leanprintGroup, clicked, dialog, &PanelDialog::setConstraints);
    connect(leanprintBox, changed, this, &ImagingTab::leanprintComboBoxChanged);
    connect(leanprintBox, changed, dialog, &PanelDialog::setConstraints);
    connect(adjustmentButton, &QPushButton::clicked, this, &ImagingTab::showAdjustmentDialog);
    connect(colorGroup_, clicked, dialog, &PanelDialog::toggleColorMode);
    connect(colorGroup_, clicked, this, qOverload<>(&ImagingTab::clearDialogSettings));
}

void ImagingTab::retranslate()
{
    ConstraintMark::setPlainText(adjustmentLabel, withColon(tr("Adjustment")));
    adjustmentButton->setText(tr("Settings..."));
    ConstraintMark::setPlainText(resolutionLabel, withColon(tr("Resolution")));
}

// Loading

void ImagingTab::reload()
{
    setBoundSignalsBlocked(true);
    setTabName();
    constraintWidgets.clear();
    clearMarks();
    applyLabels();
    enableAdjustment();
    colorDialog->loadStates();
    grayDialog->loadStates();
    for (QLabel *label : {trappingPicture, qualityLabel, resolutionLabel})
        label->setEnabled(true);
    loadOptions();
    loadLeanPrint();
    loadResolutionFallback();
    ColorGroup::showWithoutChoice(colorGroup_, findOption(ColorGroup::keyword));
    applyAllWidgets();
    setBoundSignalsBlocked(false);
}

void ImagingTab::enableAdjustment()
{
    const bool adjustable = findOption(adjustmentKeyword) || findOption(monoAdjustmentKeyword);
    adjustmentButton->setEnabled(adjustable);
    adjustmentLabel->setEnabled(adjustable);
}

void ImagingTab::loadResolutionFallback()
{
    if (findOption(resolutionKeyword))
        return;
    resolutionBox->clear();
    resolutionBox->addItem(tr("600 dpi"));
}

// LeanPrint

void ImagingTab::loadLeanPrint()
{
    const bOption *option = findOption(LeanPrint::keyword);
    if (!option) {
        leanprintGroup->setGroupEnabled(false);
        leanprintBox->hide();
        leanprintGroup->setButtonByValue(tr("Off"));
        return;
    }

    leanprintGroup->setGroupEnabled(true);
    // Whatever was saved counts, also what this printer doesn't know: that is off.
    QString key = readSetting(LeanPrint::keyword);
    if (key.isEmpty() && option->defaultChoice())
        key = option->defaultChoice()->key();
    const bool on = LeanPrint::isOn(key) && option->choiceCount() > 1;
    const bool hasLevels = LeanPrint::hasLevels(*option);
    leanprintBox->setVisible(hasLevels);
    leanprintBox->clear();
    const QList<OptionChoice *> levels =
        hasLevels ? option->choiceList().mid(1) : QList<OptionChoice *>();
    for (const OptionChoice *level : levels)
        leanprintBox->addItem(level->text());
    leanprintGroup->setButtonByValue(on ? tr("On") : tr("Off"));
    leanprintButtonToggled();
    leanprintBox->setCurrentIndex(LeanPrint::levelToShow(*option, on ? key : QString()));
    applyLeanPrint();
}

bool ImagingTab::isLeanPrintOn() const
{
    return leanprintGroup->currentIndex() != 0;
}

void ImagingTab::applyLeanPrint()
{
    if (bOption *option = findOption(LeanPrint::keyword))
        option->setCurrent(
            LeanPrint::shownChoice(*option, isLeanPrintOn(), leanprintBox->currentIndex()));
}

void ImagingTab::leanprintButtonToggled()
{
    const bOption *option = findOption(LeanPrint::keyword);
    if (!option)
        return;
    const OptionChoice *plainOn = option->findChoice(Keys::on);
    if (!isLeanPrintOn()) {
        leanprintBox->setEnabled(false);
        if (option->choiceCount() == 6)
            leanprintBox->setCurrentIndex(2);
    } else if (!plainOn) {
        leanprintBox->setEnabled(true);
    } else if (LeanPrint::hasLevels(*option)) {
        // With a plain "On" the printer decides how much to save.
        leanprintBox->setCurrentIndex(LeanPrint::levelToShow(*option, Keys::on));
    }
    applyLeanPrint();
}

void ImagingTab::leanprintComboBoxChanged()
{
    if (leanprintBox->isEnabled())
        applyLeanPrint();
}

QString ImagingTab::keywordOf(const QObject *control) const
{
    return control == leanprintBox ? LeanPrint::keyword : Tab::keywordOf(control);
}

void ImagingTab::choose(const OptionChoice &choice)
{
    if (choice.option()->key() != LeanPrint::keyword) {
        Tab::choose(choice);
        return;
    }
    leanprintGroup->buttonAt(LeanPrint::isOn(choice.key()) ? 1 : 0)->click();
    const int level = leanprintBox->findText(choice.text());
    if (level >= 0)
        leanprintBox->setCurrentIndex(level);
}

bool ImagingTab::enableOptions()
{
    bool changed = Tab::enableOptions();
    if (bOption *option = findOption(LeanPrint::keyword))
        changed = enableLeanPrint(option) || changed;
    return changed;
}

bool ImagingTab::enableLeanPrint(bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    const bool mustBeOn = !choices.isEmpty() && choices[0]->isBlocked();
    int firstFree = -1;
    for (int level = choices.size() - 2; level >= 0; --level) {
        const bool blocked = choices[level + 1]->isBlocked();
        setChoiceEnabled(level, leanprintBox, blocked);
        if (!blocked)
            firstFree = level;
    }
    leanprintGroup->setGroupEnabled(!mustBeOn);
    leanprintGroup->setEnabledAt(1, firstFree >= 0);
    bool changed = false;
    const auto switchTo = [&](int button) {
        leanprintGroup->setButton(button);
        leanprintButtonToggled();
        changed = true;
    };
    if (mustBeOn) {
        leanprintGroup->setLabelEnabled(true);
        if (!isLeanPrintOn())
            switchTo(1);
    }

    const OptionChoice *shown =
        LeanPrint::shownChoice(*option, isLeanPrintOn(), leanprintBox->currentIndex());
    if (isLeanPrintOn() && shown && shown->isBlocked()) {
        if (firstFree >= 0) {
            const QSignalBlocker silent(leanprintBox);
            leanprintBox->setCurrentIndex(firstFree);
            applyLeanPrint();
            changed = true;
        } else if (!mustBeOn) {
            switchTo(0);
        } else {
            // What can't be printed must not hold up other options.
            changed = changed || option->isArmed();
            option->setCurrent(nullptr);
        }
    } else if (shown && option->current() && !option->isArmed()) {
        applyLeanPrint(); // something is left to choose again
        changed = true;
    }
    return changed;
}

// Colour mode

bool ImagingTab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    const bool changed = Tab::enableOptionsForButtonGroup(group, option);
    if (option->key() != ColorGroup::keyword)
        return changed;
    if (option->current()) {
        const int shown = GroupBinding::positionOf(option->current(), group, option);
        group->setButton(shown < 0 ? int(buttonForColor(option->current()->key())) : shown);
    }
    ColorGroup::showWithoutChoice(group, option);
    return changed;
}

void ImagingTab::clearDialogSettings(int index)
{
    if (index == ColorGroup::FullColor)
        grayDialog->resetStates();
    else
        colorDialog->resetStates();
}

void ImagingTab::clearDialogSettings()
{
    clearDialogSettings(colorGroup_->currentIndex());
}

void ImagingTab::showAdjustmentDialog()
{
    if (colorGroup_->currentIndex() == ColorGroup::FullColor)
        colorDialog->exec();
    else
        grayDialog->exec();
}

// Marks and settings

void ImagingTab::clearMarks()
{
    Tab::clearMarks();
    if (colorGroup_->isEnabled())
        colorGroup_->markConstrained(false);
}

QHash<QString, QString> ImagingTab::collectSettings()
{
    collectBoundWidgets();

    // A printer without a choice of colours prints black.
    const bool hasColor = findOption(ColorGroup::keyword);
    if (!hasColor)
        savedSettings.insert(ColorGroup::keyword, QStringLiteral("Gray"));
    if (const bOption *option = findOption(LeanPrint::keyword)) {
        const OptionChoice *shown =
            LeanPrint::shownChoice(*option, isLeanPrintOn(), leanprintBox->currentIndex());
        if (shown)
            savedSettings.insert(LeanPrint::keyword, shown->key());
    }

    // Raster and PDF filters know nothing of adjustments.
    if (currentStore && !currentStore->rasterOrPdfFilter()) {
        AdjustmentValues::Pairs adjustments;
        if (hasColor)
            adjustments += colorDialog->collectAdjustments();
        adjustments += grayDialog->collectAdjustments();
        for (const auto &[key, value] : qAsConst(adjustments))
            savedSettings.insert(key, value);
    }
    return savedSettings;
}
