#include "pages/imaging/imagingtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagelayout.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "pages/imaging/adjustmentdialog.h"
#include "pages/imaging/leanprint.h"
#include "pages/imaging/monodialog.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

using PageWidgets::ButtonRow;
using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String colorKeyword("ColorModel");
const QLatin1String resolutionKeyword("Resolution");
const QLatin1String adjustmentKeyword("Cadj");
const QLatin1String monoAdjustmentKeyword("Madj");
// Binds the list of levels to no option: the page fills and stores it itself.
const QLatin1String levelsKeyword("cLnpr");

constexpr int boxWidth = 175;
constexpr int pictureSize = 50;

/// An option with a combo box below its label, or with a check box.
struct ControlRow
{
    const char *keyword;
    const char *labelName; ///< null for a check box
    const char *inputName;
    const char *text;
    int gridRow;
};

constexpr ControlRow qualityRows[] = {
    {"Trap", "lblTrap", "cmbBxTrap", QT_TRANSLATE_NOOP("ImagingTab", "Trapping"), 1},
    {"BXGlossmode", nullptr, "chkBxBXGlossMode", QT_TRANSLATE_NOOP("ImagingTab", "Gloss mode"), 3},
    {"CIE", "lblCIE", "cmbBxCIE", QT_TRANSLATE_NOOP("ImagingTab", "CIE optimization"), 4},
    {"BSCREENMODE", "lblBXSCREENMODE", "cmbBxBXSCREENMODE",
     QT_TRANSLATE_NOOP("ImagingTab", "Halftone screen"), 6},
    {"Resolution", "lblResolution", "cmbBxResolution",
     QT_TRANSLATE_NOOP("ImagingTab", "Resolution"), 8},
};

constexpr ControlRow colorRows[] = {
    {"Crep", "lblCrep", "cmbBxCrep", QT_TRANSLATE_NOOP("ImagingTab", "Color reproduction"), 4},
    {"RCM", "lblRCM", "cmbBxRCM", QT_TRANSLATE_NOOP("ImagingTab", "Color conversion"), 6},
    {"Smoothing", nullptr, "chkBxSmoothing", QT_TRANSLATE_NOOP("ImagingTab", "VRS"), 10},
    {"GBTn", nullptr, "chkBxGBTn", QT_TRANSLATE_NOOP("ImagingTab", "Print grays with black toner"),
     11},
};

constexpr ButtonRow leanprintButtons[] = {
    {QT_TRANSLATE_NOOP("ImagingTab", "Off"), ":/icons/leanprint-off"},
    {QT_TRANSLATE_NOOP("ImagingTab", "On"), ":/icons/leanprint-on"},
};

constexpr ButtonRow colorButtons[] = {
    {QT_TRANSLATE_NOOP("ImagingTab", "Full color"), ":/icons/color"},
    {QT_TRANSLATE_NOOP("ImagingTab", "Black & white"), ":/icons/monochrome"},
};

enum ColorButton
{
    FullColor,
    BlackAndWhite
};

// In the order of registration.
constexpr const char *boundKeywords[] = {"BSCREENMODE", "Trap",      "ColorModel", "GBTn",
                                         "Resolution",  "Smoothing", "cLnpr",      "BXGlossmode",
                                         "Crep",        "RCM",       "CIE"};
constexpr const char *markKeywords[] = {"BSCREENMODE", "Cadj", "Trap", "GBTn", "Smoothing", "Lnpr",
                                        "BXGlossmode", "Crep", "RCM",  "CIE",  "ColorModel"};

QLabel *pictureLabel(QWidget *page, const char *icon)
{
    auto *label = new QLabel(page);
    label->setPixmap(QIcon(QLatin1String(icon)).pixmap(pictureSize, pictureSize));
    return label;
}

ColorButton buttonForColor(const QString &key)
{
    return key == QLatin1String("CMYK") || key == QLatin1String("RGB") ? FullColor : BlackAndWhite;
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

// Widgets

void ImagingTab::createWidgets()
{
    // In the order in which the keyboard reaches them.
    QHash<QString, QWidget *> inputs;
    QHash<QString, QWidget *> marks;
    qualityGrid = new QGridLayout;
    colorGrid = new QGridLayout;
    const auto addControl = [&](const ControlRow &row, QGridLayout *grid, int columnSpan) {
        const QLatin1String keyword(row.keyword);
        if (!row.labelName) {
            auto *check = named(new QCheckBox(tr(row.text), this), row.inputName);
            inputs[keyword] = marks[keyword] = check;
            grid->addWidget(check, row.gridRow, 1, 1, columnSpan);
            return;
        }
        const PageWidgets::LabeledComboBox pair = PageWidgets::labeledComboBox(
            this, row.labelName, row.inputName, withColon(tr(row.text)), boxWidth);
        inputs[keyword] = pair.box;
        marks[keyword] = pair.label;
        grid->addWidget(pair.label, row.gridRow, 1, 1, columnSpan);
        grid->addWidget(pair.box, row.gridRow + 1, 1, 1, columnSpan);
    };

    trappingPicture = named(pictureLabel(this, ":/icons/print-quality"), "iconTrapping");
    qualityLabel = named(new QLabel(withColon(tr("Print quality")), this), "lblPrintQuality");
    for (const ControlRow &row : qualityRows)
        addControl(row, qualityGrid, 2);
    resolutionLabel = qobject_cast<QLabel *>(marks.value(resolutionKeyword));
    resolutionBox = qobject_cast<ComboBoxEx *>(inputs.value(resolutionKeyword));

    leanprintGroup = named(new BixButtonGroup(this, withColon(tr("LeanPrint"))), "butGroupLnpr");
    PageWidgets::addButtons(leanprintGroup, leanprintButtons, &ImagingTab::tr);
    leanprintBox = named(new ComboBoxEx(this), "cmbBxLnpr");

    colorGroup_ = new BixButtonGroup(this, tr("Color") + QStringLiteral(": "));
    PageWidgets::addButtons(colorGroup_, colorButtons, &ImagingTab::tr);
    adjustmentPicture = pictureLabel(this, ":/icons/adjustment");
    adjustmentLabel = named(new QLabel(this), "lblAdjustment");
    adjustmentButton = named(new QPushButton(this), "butAdjustment");
    adjustmentButton->setAutoDefault(false); // Return elsewhere in the window is no click here
    for (const ControlRow &row : colorRows)
        addControl(row, colorGrid, 2);
    ImagingTab::retranslate();

    colorDialog = new adjustmentDialog(this);
    grayDialog = new monoDialog(this);

    inputs[colorKeyword] = marks[colorKeyword] = colorGroup_;
    inputs[levelsKeyword] = leanprintBox;
    marks[LeanPrint::keyword] = leanprintGroup;
    marks[adjustmentKeyword] = adjustmentLabel;
    for (const char *keyword : boundKeywords)
        boundWidgets.insert(QLatin1String(keyword), inputs.value(QLatin1String(keyword)));
    for (const char *keyword : markKeywords)
        markWidgets.insert(QLatin1String(keyword), marks.value(QLatin1String(keyword)));
    companionWidgets.insert(adjustmentKeyword, adjustmentPicture);

    createConnections();
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

void ImagingTab::createLayout()
{
    qualityGrid->addWidget(trappingPicture, 0, 0, 2, 1);
    qualityGrid->addWidget(qualityLabel, 0, 1, 1, 2);
    qualityGrid->addWidget(PageLayout::horizontalLine(this), 10, 0, 1, 6);
    auto *leanprintGrid = new QGridLayout;
    leanprintGrid->addWidget(leanprintGroup, 0, 0, 1, 2, Qt::AlignLeft);
    leanprintGrid->addWidget(leanprintBox, 0, 2, 1, 2, Qt::AlignVCenter);
    qualityGrid->addLayout(leanprintGrid, 11, 0, 1, 4);
    qualityGrid->setColumnStretch(5, 1);
    qualityGrid->setRowStretch(17, 1);

    // The picture stands behind the button: before it, it would leave the check boxes below less
    // room than their texts need.
    colorGrid->addWidget(colorGroup_, 0, 1, 1, 2, Qt::AlignLeft);
    colorGrid->addWidget(PageLayout::horizontalLine(this), 1, 1, 1, 2);
    colorGrid->addWidget(adjustmentLabel, 2, 1);
    colorGrid->addWidget(adjustmentButton, 3, 1);
    colorGrid->addWidget(adjustmentPicture, 2, 2, 2, 1);
    colorGrid->addWidget(PageLayout::horizontalLine(this), 8, 1, 1, 2);
    colorGrid->setColumnStretch(2, 1);
    colorGrid->setRowStretch(12, 1);

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(qualityGrid);
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(colorGrid);
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
    loadColorFallback();
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
    const bool on = LeanPrint::isOn(key);
    leanprintGroup->setButtonByValue(on ? tr("On") : tr("Off"));
    leanprintButtonToggled();

    const bool hasLevels = LeanPrint::hasLevels(*option);
    leanprintBox->setVisible(hasLevels);
    if (!hasLevels)
        return;
    leanprintBox->clear();
    const QList<OptionChoice *> levels = option->choiceList().mid(1);
    for (const OptionChoice *level : levels)
        leanprintBox->addItem(level->text());
    leanprintBox->setCurrentIndex(LeanPrint::levelToShow(*option, on ? key : QString()));
}

void ImagingTab::leanprintButtonToggled()
{
    bOption *option = findOption(LeanPrint::keyword);
    if (!option)
        return;
    if (leanprintGroup->currentIndex() == 0) {
        leanprintBox->setEnabled(false);
        if (option->choiceCount() == 6)
            leanprintBox->setCurrentIndex(2);
        option->setCurrent(option->findChoice(Keys::off));
        return;
    }
    option->setCurrent(LeanPrint::onChoice(*option));
    // With a plain "On" the printer decides how much to save.
    if (!option->hasChoice(Keys::on))
        leanprintBox->setEnabled(true);
}

void ImagingTab::leanprintComboBoxChanged()
{
    bOption *option = findOption(LeanPrint::keyword);
    if (!option || !leanprintBox->isEnabled())
        return;
    const QString level = LeanPrint::levelKey(leanprintBox->currentIndex());
    if (OptionChoice *choice = option->findChoice(level))
        option->setCurrent(choice);
}

bool ImagingTab::enableOptions()
{
    const bool changed = Tab::enableOptions();
    const bOption *option = findOption(LeanPrint::keyword);
    if (!option)
        return changed;
    const OptionChoice *off = option->choiceList().value(0);
    const bool mustBeOn = off && off->isBlocked();
    leanprintGroup->setGroupEnabled(!mustBeOn);
    if (!mustBeOn)
        return changed;
    leanprintGroup->setLabelEnabled(true);
    if (leanprintGroup->currentIndex() != 0)
        return changed;
    leanprintGroup->setButton(1);
    leanprintButtonToggled();
    return true;
}

// Colour mode

void ImagingTab::showSingleColor()
{
    colorGroup_->setButtonByValue(tr("Black & white"));
    colorGroup_->setGroupEnabled(false);
    colorGroup_->setLabelEnabled(true);
}

void ImagingTab::loadColorFallback()
{
    const bOption *option = findOption(colorKeyword);
    if (!option) {
        colorGroup_->setButtonByValue(tr("Black & white"));
        colorGroup_->setLabelEnabled(true);
    } else if (option->choiceCount() == 1) {
        showSingleColor();
    }
}

bool ImagingTab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    const bool changed = Tab::enableOptionsForButtonGroup(group, option);
    if (option->key() != colorKeyword)
        return changed;
    if (option->choiceCount() == 1)
        showSingleColor();
    else if (option->current())
        group->setButton(buttonForColor(option->current()->key()));
    return changed;
}

void ImagingTab::clearDialogSettings(int index)
{
    if (index == FullColor)
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
    if (colorGroup_->currentIndex() == FullColor)
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
    const bool hasColor = findOption(colorKeyword);
    if (!hasColor)
        savedSettings.insert(colorKeyword, QStringLiteral("Gray"));
    if (const bOption *option = findOption(LeanPrint::keyword))
        savedSettings.insert(LeanPrint::keyword,
                             LeanPrint::settingFor(*option, leanprintGroup->currentIndex() != 0,
                                                   leanprintBox->currentIndex()));

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
