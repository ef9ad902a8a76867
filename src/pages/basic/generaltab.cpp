#include "pages/basic/generaltab.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/colorgroup.h"
#include "pages/base/pagelayout.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/paneldialog.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using PageWidgets::withColon;

namespace {

const QLatin1String paperKeyword("PageSize");

// PPD keywords that describe the paper too; they always follow the page size.
constexpr const char *paperAliases[] = {"PageRegion", "ImageableArea", "PaperDimension",
                                        "MediaSize"};

constexpr PageWidgets::ButtonRow collateButtons[] = {
    {QT_TRANSLATE_NOOP("GeneralTab", "Off"), ":/icons/collate-off", "False"},
    {QT_TRANSLATE_NOOP("GeneralTab", "On"), ":/icons/collate-on", "True"},
};
constexpr PageWidgets::ButtonRow duplexButtons[] = {
    {QT_TRANSLATE_NOOP("GeneralTab", "Off"), ":/icons/duplex-off", "None"},
    {QT_TRANSLATE_NOOP("GeneralTab", "Long edge"), ":/icons/duplex-long", "DuplexNoTumble"},
    {QT_TRANSLATE_NOOP("GeneralTab", "Short edge"), ":/icons/duplex-short", "DuplexTumble"},
};

} // namespace

GeneralTab::GeneralTab(PanelDialog *dialog)
    : Tab(dialog,
          {QT_TRANSLATE_NOOP("GeneralTab", "Basic"), ":/icons/tab-basic", PageHead::WithPrinter})
{
    Tab::setTabName();
    GeneralTab::createWidgets();
    connectBoundWidgets();
    // After the connections above: a click first moves the option, then mirrors to the other page.
    connect(colorGroup_, qOverload<int>(&BixButtonGroup::buttonClicked), dialog,
            &PanelDialog::toggleColorMode);
    createLayout();
}

// Widgets

void GeneralTab::createWidgets()
{
    paperGrid = new QGridLayout;
    addComboBox(paperGrid, 0, "PageSize", tr("Media size"));
    addComboBox(paperGrid, 2, "MediaType", tr("Media type"));
    addComboBox(paperGrid, 4, "InputSlot", tr("Source"));
    addComboBox(paperGrid, 7, "OutputBin", tr("Destination"));

    collateGroup = addGroup("Coll", QStringLiteral("butGroupCol"), tr("Collate"));
    PageWidgets::addButtons(collateGroup, collateButtons, &GeneralTab::tr);

    duplexGroup = addGroup("Duplex", QStringLiteral("butGroupDuplex"), tr("Duplex"));
    PageWidgets::addButtons(duplexGroup, duplexButtons, &GeneralTab::tr);

    colorGroup_ = addGroup("ColorModel", QStringLiteral("butGroupColorModelGeneral"), tr("Color"));
    ColorGroup::addButtons(colorGroup_);
    colorGroup_->setFixedWidth(200);
    colorGroup_->setLabelEnabled(true);
}

void GeneralTab::addComboBox(QGridLayout *grid, int row, const char *keyword, const QString &text)
{
    const auto [label, box] = PageWidgets::labeledComboBox(
        this, QByteArray("lbl") + keyword, QByteArray("cmbBx") + keyword, withColon(text), 215);
    boundWidgets.insert(QLatin1String(keyword), box);
    markWidgets.insert(QLatin1String(keyword), label);
    grid->addWidget(label, row, 1, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(box, row + 1, 1, Qt::AlignLeft | Qt::AlignTop);
}

BixButtonGroup *GeneralTab::addGroup(const char *keyword, const QString &accessibleName,
                                     const QString &title)
{
    auto *group = new BixButtonGroup(this, withColon(title));
    group->setAccessibleName(accessibleName);
    boundWidgets.insert(QLatin1String(keyword), group);
    markWidgets.insert(QLatin1String(keyword), group);
    return group;
}

void GeneralTab::createLayout()
{
    paperGrid->setColumnStretch(2, 1);
    paperGrid->setRowStretch(12, 1);

    auto *groupGrid = new QGridLayout;
    groupGrid->addWidget(collateGroup, 0, 0, Qt::AlignLeft);
    groupGrid->addWidget(PageLayout::horizontalLine(this), 1, 0);
    groupGrid->addWidget(duplexGroup, 2, 0, Qt::AlignLeft);
    groupGrid->addWidget(PageLayout::horizontalLine(this), 3, 0);
    groupGrid->addWidget(colorGroup_, 4, 0, Qt::AlignLeft);
    groupGrid->setColumnStretch(2, 1);
    groupGrid->setRowStretch(9, 1);
    for (BixButtonGroup *group : {duplexGroup, colorGroup_})
        group->setStyleSheet(QStringLiteral(
            "BixButtonGroup{ none; margin-top: 8px; margin-bottom: 8px } QPushButton { border: "
            "none; outline: } "));

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(paperGrid);
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(groupGrid);

    PageLayout::setTabOrder(
        {boundWidgets.value(paperKeyword), boundWidgets.value(QStringLiteral("MediaType")),
         boundWidgets.value(QStringLiteral("InputSlot")),
         boundWidgets.value(QStringLiteral("OutputBin")), collateGroup->buttonAt(0)});
}

// Loading

void GeneralTab::reload()
{
    setBoundSignalsBlocked(true);
    setTabName();
    constraintWidgets.clear();
    clearMarks();
    relabel();
    loadOptions();
    applyAllWidgets();
    enableOptions();
    ColorGroup::showWithoutChoice(colorGroup_, findOption(ColorGroup::keyword));
    setBoundSignalsBlocked(false);
}

void GeneralTab::relabel()
{
    applyLabels();
    const auto setLabel = [this](const char *keyword, const QString &text) {
        ConstraintMark::setPlainText(
            qobject_cast<QLabel *>(markWidgets.value(QLatin1String(keyword))), withColon(text));
    };
    setLabel("OutputBin", tr("Destination"));
    setLabel("InputSlot", tr("Source"));
    setLabel("PageSize", tr("Print size"));
}

void GeneralTab::addComboBoxItems(ComboBoxEx *box, bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices) {
        // A custom size has no place to enter its measures here.
        if (choice->key() != QLatin1String("Custom"))
            box->addItem(choice->text());
    }
}

bool GeneralTab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    const bool changed = Tab::enableOptionsForButtonGroup(group, option);
    if (option->key() == ColorGroup::keyword)
        ColorGroup::showWithoutChoice(group, option);
    return changed;
}

// Marks and settings

void GeneralTab::clearMarks()
{
    Tab::clearMarks();
    duplexGroup->markConstrained(false);
}

QHash<QString, QString> GeneralTab::collectSettings()
{
    collectBoundWidgets();
    const QString paper = savedSettings.value(paperKeyword);
    if (!paper.isEmpty()) {
        for (const char *alias : paperAliases)
            savedSettings.insert(QLatin1String(alias), paper);
    }
    return savedSettings;
}
