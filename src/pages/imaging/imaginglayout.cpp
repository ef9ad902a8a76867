#include "pages/base/colorgroup.h"
#include "pages/base/pagelayout.h"
#include "pages/base/pagewidgets.h"
#include "pages/imaging/adjustmentdialog.h"
#include "pages/imaging/imagingtab.h"
#include "pages/imaging/leanprint.h"
#include "pages/imaging/monodialog.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"
#include "widgets/icons.h"
#include "widgets/spoken.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

// How the page "Imaging" looks: texts, pictures, names and places of its widgets, and the options
// they stand for.

using PageWidgets::ButtonRow;
using PageWidgets::named;
using PageWidgets::withColon;

namespace {

const QLatin1String adjustmentKeyword("Cadj");
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

// In the order of registration.
constexpr const char *boundKeywords[] = {"BSCREENMODE", "Trap",      "ColorModel", "GBTn",
                                         "Resolution",  "Smoothing", "cLnpr",      "BXGlossmode",
                                         "Crep",        "RCM",       "CIE"};
constexpr const char *markKeywords[] = {"BSCREENMODE", "Cadj", "Trap", "GBTn", "Smoothing", "Lnpr",
                                        "BXGlossmode", "Crep", "RCM",  "CIE",  "ColorModel"};

QLabel *pictureLabel(QWidget *page, const char *icon)
{
    auto *label = new QLabel(page);
    label->setPixmap(Icons::icon(QLatin1String(icon)).pixmap(pictureSize, pictureSize));
    return label;
}

} // namespace

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
    resolutionLabel = qobject_cast<QLabel *>(marks.value(QStringLiteral("Resolution")));
    resolutionBox = qobject_cast<ComboBoxEx *>(inputs.value(QStringLiteral("Resolution")));

    leanprintGroup = named(new BixButtonGroup(this, withColon(tr("LeanPrint"))), "butGroupLnpr");
    PageWidgets::addButtons(leanprintGroup, leanprintButtons, &ImagingTab::tr);
    leanprintBox = named(new ComboBoxEx(this), "cmbBxLnpr");
    Spoken::setLabels(leanprintBox, {leanprintGroup});

    colorGroup_ = new BixButtonGroup(this, tr("Color") + QStringLiteral(": "));
    ColorGroup::addButtons(colorGroup_);
    adjustmentPicture = pictureLabel(this, ":/icons/adjustment");
    adjustmentLabel = named(new QLabel(this), "lblAdjustment");
    adjustmentButton = named(new QPushButton(this), "butAdjustment");
    adjustmentButton->setAutoDefault(false); // Return elsewhere in the window is no click here
    Spoken::setLabels(adjustmentButton, {adjustmentLabel});
    for (const ControlRow &row : colorRows)
        addControl(row, colorGrid, 2);
    ImagingTab::retranslate();

    colorDialog = new adjustmentDialog(this);
    grayDialog = new monoDialog(this);

    inputs[ColorGroup::keyword] = marks[ColorGroup::keyword] = colorGroup_;
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
