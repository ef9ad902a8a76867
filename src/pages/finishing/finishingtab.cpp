#include "pages/finishing/finishingtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/pagelayout.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <iterator>

using PageWidgets::named;

namespace {

const QLatin1String foldKeyword("FldA");
const QLatin1String biFoldKey("Bifold");
const QLatin1String triFoldKey("Trifold");

constexpr PageWidgets::ButtonRow separationButtons[] = {
    {QT_TRANSLATE_NOOP("FinishingTab", "Off"), ":/icons/separation-off"},
    {QT_TRANSLATE_NOOP("FinishingTab", "Offset jobs"), ":/icons/separation-offset"},
    {QT_TRANSLATE_NOOP("FinishingTab", "Rotate copies"), ":/icons/separation-rotate"},
};
constexpr int offsetButton = 1;
constexpr int rotateCopiesButton = 2;

constexpr PageWidgets::ButtonRow rotateButtons[] = {
    {QT_TRANSLATE_NOOP("FinishingTab", "Off"), ":/icons/Rotate-180-off"},
    {QT_TRANSLATE_NOOP("FinishingTab", "On"), ":/icons/Rotate-180-on"},
};

struct RotateTitle
{
    const char *language;
    const char *text;
};

constexpr RotateTitle rotateTitles[] = {
    {"en", "Rotate 180°"},  {"fr", "Tourner 180°"}, {"de", "Rotiert 180°"},
    {"it", "Ruotato 180°"}, {"pt", "Girar 180°"},   {"es", "Girado 180°"},
};

struct ModeRow
{
    const char *buttonName;
    const char *buttonText; // the same in all languages
    const char *icon;
    const char *headingName;
    const char *heading; // translated
    const char *suffix;
};

constexpr ModeRow modeRows[] = {
    {"chkButTriFld", "TriFold", ":/icons/trifold", "lblTriFld",
     QT_TRANSLATE_NOOP("FinishingTab", "Tri-Fold"), ":"},
    {"chkButBiFld", "BiFold", ":/icons/bifold", "lblBiFld",
     QT_TRANSLATE_NOOP("FinishingTab", "Bi-Fold"), ":"},
    {"chkButStpl", "Staple", ":/icons/staple", "lblStaple",
     QT_TRANSLATE_NOOP("FinishingTab", "Staple:"), ""},
    {"chkButPnch", "Hole punch", ":/icons/punch", "lblHolePunch",
     QT_TRANSLATE_NOOP("FinishingTab", "Punch"), ": "},
};

struct ListRow
{
    const char *labelName;
    const char *boxName;
    const char *label; // translated
    const char *suffix;
    int width; // in pixels, 0 for that of the longest item
};

constexpr ListRow listRows[] = {
    {"lblFldB", "cmbBxFldB", QT_TRANSLATE_NOOP("FinishingTab", "Print side"), ":", 200},
    {"lblFldC", "cmbBxFldC", QT_TRANSLATE_NOOP("FinishingTab", "Direction of fold"), ":", 200},
    {"lblFldD", "cmbBxFldD", QT_TRANSLATE_NOOP("FinishingTab", "Number of sheets"), ":", 200},
    // Named after the print side and the mode, since FldA itself has no list.
    {"lblFldB", "cmbBxFldA", QT_TRANSLATE_NOOP("FinishingTab", "Number of sheets"), ":", 200},
    {"lblStpl", "cmbBxStpl", QT_TRANSLATE_NOOP("FinishingTab", "Staple location:"), "", 0},
    {"lblScnt", "cmbBxScnt", QT_TRANSLATE_NOOP("FinishingTab", "Staple method"), "", 0},
    {"lblPnch", "cmbBxPnch", QT_TRANSLATE_NOOP("FinishingTab", "Punch Method:"), "", 0},
};

// What tells a staple location from "no staple", as part of the saved value.
constexpr const char *staplePlaces[] = {"Center", "Rear", "Front", "BookletStitch", "Internal"};

struct ChoiceRow
{
    const char *keyword;
    const char *choice;
};

// Without any fold, in the order applied: the lists first, then the buttons' own options.
constexpr ChoiceRow unfolded[] = {
    {"FldA", "None"}, {"FldB", "None"},    {"FldC", "None"},     {"FldD", "None"},
    {"BFpS", "None"}, {"cBiFld", "False"}, {"cTriFld", "False"},
};

} // namespace

FinishingTab::FinishingTab(PanelDialog *dialog)
    : Tab(dialog, {QT_TRANSLATE_NOOP("FinishingTab", "Finishing"), ":/icons/tab-finishing",
                   PageHead::WithAnOption})
{
    Tab::setTabName();
    FinishingTab::createWidgets();
    FinishingTab::connectSignals();
    createLayout();
}

// Widgets

QString FinishingTab::rotateTitle(const QString &localeName)
{
    const QString language = localeName.section(QLatin1Char('_'), 0, 0);
    const auto *row =
        std::find_if(std::begin(rotateTitles), std::end(rotateTitles),
                     [&](const RotateTitle &title) { return language == title.language; });
    return QString::fromUtf8(row == std::end(rotateTitles) ? rotateTitles[0].text : row->text);
}

void FinishingTab::createWidgets()
{
    static_assert(std::size(modeRows) == ModeCount && std::size(listRows) == ListCount);
    const QString colonAndBlank = QStringLiteral(": ");

    separationGroup =
        named(new BixButtonGroup(this, tr("Separation") + colonAndBlank), "butGroupSep");
    PageWidgets::addButtons(separationGroup, separationButtons, tr);
    for (int i = 0; i < ModeCount; ++i) {
        const ModeRow &row = modeRows[i];
        headings[i] =
            named(new QLabel(tr(row.heading) + QLatin1String(row.suffix), this), row.headingName);
        buttons[i] = named(new BixCheckBoxButton(this, QLatin1String(row.buttonText),
                                                 QIcon(QLatin1String(row.icon))),
                           row.buttonName);
    }
    for (int i = 0; i < ListCount; ++i) {
        const ListRow &row = listRows[i];
        lists[i] = PageWidgets::labeledComboBox(
            this, row.labelName, row.boxName, tr(row.label) + QLatin1String(row.suffix), row.width);
    }
    rotateGroup =
        named(new BixButtonGroup(this, rotateTitle(QLocale::system().name()) + colonAndBlank),
              "butGroupRot");
    PageWidgets::addButtons(rotateGroup, rotateButtons, tr);
    registerWidgets();
}

void FinishingTab::registerWidgets()
{
    const QPair<const char *, QWidget *> bound[] = {
        {"Sep", separationGroup},           {"FldB", lists[PrintSide].box},
        {"FldC", lists[FoldDirection].box}, {"FldD", lists[TriFoldSheets].box},
        {"BFpS", lists[BiFoldSheets].box},  {"Rotate", rotateGroup},
        {"Pnch", lists[PunchMethod].box},   {"Stpl", lists[StapleLocation].box},
        {"Scnt", lists[StapleMethod].box},  {"cTriFld", buttons[TriFold]},
        {"cBiFld", buttons[BiFold]},        {"cHole", buttons[Punch]},
        {"cStpl", buttons[Staple]},
    };
    for (const auto &[keyword, widget] : bound)
        boundWidgets.insert(QLatin1String(keyword), widget);

    const QPair<const char *, QWidget *> marks[] = {
        {"Sep", separationGroup},   {"Pnch", lists[PunchMethod].label},
        {"Stpl", headings[Staple]}, {"Scnt", lists[StapleMethod].label},
        {"Rotate", rotateGroup},
    };
    for (const auto &[keyword, widget] : marks)
        markWidgets.insert(QLatin1String(keyword), widget);

    checkBoxButtons = {buttons[Punch], buttons[Staple], buttons[TriFold], buttons[BiFold]};
    addDependents(TriFold, {PrintSide, FoldDirection, TriFoldSheets});
    addDependents(BiFold, {BiFoldSheets});
    addDependents(Punch, {PunchMethod});
    addDependents(Staple, {StapleMethod, StapleLocation});
}

void FinishingTab::addDependents(Mode mode, const QList<List> &dependents)
{
    for (const List list : dependents) {
        buttons[mode]->addDependent(lists[list].label, Sentinel::noDefault);
        buttons[mode]->addDependent(lists[list].box, tr("Off"));
    }
}

// Connections

void FinishingTab::connectSignals()
{
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    const auto onToggle = [&](Mode mode, auto slot) {
        connect(buttons[mode], toggled, this, slot, Qt::UniqueConnection);
    };
    onToggle(Punch, &FinishingTab::togglePunch);
    onToggle(Staple, &FinishingTab::toggleStaple);
    for (const Mode fold : {TriFold, BiFold}) {
        onToggle(fold, &FinishingTab::markFold);
        onToggle(fold, &FinishingTab::checkFoldConstraints);
        onToggle(fold,
                 fold == TriFold ? &FinishingTab::toggleTriFold : &FinishingTab::toggleBiFold);
    }
    connectBoundWidgets();
}

// Layout

void FinishingTab::createLayout()
{
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(createFoldGrid());
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createStapleGrid());
}

void FinishingTab::addList(QGridLayout *grid, int row, List list)
{
    grid->addWidget(lists[list].label, row, 1, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(lists[list].box, row + 1, 1, Qt::AlignLeft | Qt::AlignTop);
}

QGridLayout *FinishingTab::createFoldGrid()
{
    auto *grid = new QGridLayout;
    grid->addWidget(separationGroup, 0, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(PageLayout::horizontalLine(this), 1, 0, 1, 4);
    grid->addWidget(headings[TriFold], 2, 0, 1, 2);
    grid->addWidget(buttons[TriFold], 3, 0, 2, 1, Qt::AlignLeft);
    addList(grid, 3, PrintSide);
    addList(grid, 5, FoldDirection);
    addList(grid, 7, TriFoldSheets);
    grid->addWidget(PageLayout::horizontalLine(this), 9, 0, 1, 4);
    grid->addWidget(headings[BiFold], 10, 0, 1, 2);
    grid->addWidget(buttons[BiFold], 11, 0, 2, 1, Qt::AlignLeft);
    addList(grid, 11, BiFoldSheets);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(15, 1);
    return grid;
}

QGridLayout *FinishingTab::createStapleGrid()
{
    auto *grid = new QGridLayout;
    grid->addWidget(headings[Staple], 0, 0, 1, 2);
    grid->addWidget(buttons[Staple], 1, 0, 2, 1, Qt::AlignLeft);
    addList(grid, 1, StapleLocation);
    addList(grid, 3, StapleMethod);
    grid->addWidget(PageLayout::horizontalLine(this), 5, 0, 1, 3);
    grid->addWidget(headings[Punch], 6, 0, 1, 2);
    grid->addWidget(buttons[Punch], 7, 0, 2, 1, Qt::AlignLeft);
    addList(grid, 7, PunchMethod);
    grid->addWidget(PageLayout::horizontalLine(this), 9, 0, 1, 3);
    grid->addWidget(rotateGroup, 10, 0, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(12, 1);
    return grid;
}

// Loading

void FinishingTab::reload()
{
    setBoundSignalsBlocked(true);
    loadFolds();
    loadStaple();
    loadPunch();
    loadRotate();
    loadSeparation();
    setBoundSignalsBlocked(false);

    Tab::reload();

    setBoundSignalsBlocked(true);
    CheckBoxMarkConstraintsWithSender(buttons[Punch]);
    CheckBoxMarkConstraintsWithSender(buttons[Staple]);
    toggleStaple(isOn(Staple));
    setBoundSignalsBlocked(false);
}

void FinishingTab::loadFolds()
{
    const bool canFold = findOption(foldKeyword);
    for (const Mode fold : {BiFold, TriFold}) {
        buttons[fold]->setEnabled(canFold);
        headings[fold]->setEnabled(canFold);
    }
    const QString saved = canFold ? readSetting(foldKeyword) : QString();
    // Any other value of a printer that can fold leaves the buttons as they are.
    if (!canFold || saved == biFoldKey || saved == triFoldKey) {
        buttons[BiFold]->setChecked(saved == biFoldKey);
        buttons[TriFold]->setChecked(saved == triFoldKey);
    }
    checkFoldConstraints();
}

void FinishingTab::loadStaple()
{
    const bool canStaple = findOption(QStringLiteral("Stpl"));
    const QString saved = canStaple ? readSetting(QStringLiteral("Stpl")) : QString();
    buttons[Staple]->setChecked(
        std::any_of(std::begin(staplePlaces), std::end(staplePlaces),
                    [&](const char *place) { return saved.contains(QLatin1String(place)); }));
}

void FinishingTab::loadPunch()
{
    const bool canPunch = findOption(QStringLiteral("Pnch"));
    headings[Punch]->setEnabled(canPunch);
    buttons[Punch]->setChecked(canPunch &&
                               readSetting(QStringLiteral("Pnch")).contains(QLatin1String("Hole")));
}

void FinishingTab::loadRotate()
{
    if (!findOption(QStringLiteral("Rotate")))
        rotateGroup->setButton(0);
}

void FinishingTab::loadSeparation()
{
    if (const bOption *separation = findOption(QStringLiteral("Sep"))) {
        separationGroup->setGroupEnabled(true);
        separationGroup->setEnabledAt(rotateCopiesButton,
                                      separation->hasChoice(QStringLiteral("Rot")));
        separationGroup->setEnabledAt(offsetButton, separation->hasChoice(QStringLiteral("Jog")));
    } else {
        separationGroup->setButtonByValue(tr("Off"));
    }
}

void FinishingTab::loadFoldButton(BixCheckBoxButton *button, bOption *option)
{
    if (!option)
        return;
    const QString saved = readSetting(option->key());
    if (saved.isEmpty())
        return;
    QLatin1String on = Keys::yes;
    if (button == buttons[BiFold])
        on = biFoldKey;
    else if (button == buttons[TriFold])
        on = triFoldKey;
    const OptionChoice *choice = option->findChoice(saved);
    button->setChecked(choice && choice->key() == on);
}

void FinishingTab::resetForDisabled()
{
    buttons[TriFold]->setChecked(false);
    buttons[BiFold]->setChecked(false);
}

// The user switches a mode on or off

bool FinishingTab::isOn(Mode mode) const
{
    return buttons[mode]->isChecked();
}

void FinishingTab::markFold()
{
    if (!currentStore)
        return;
    const auto select = [](const ChoiceRow &row) {
        currentStore->setCurrentByKey(QLatin1String(row.keyword), QLatin1String(row.choice));
    };
    // One fold leaves the other's option alone, and with both on neither wins.
    if (isOn(BiFold) && !isOn(TriFold)) {
        select({"FldA", "Bifold"});
        select({"cBiFld", "True"});
    } else if (isOn(TriFold) && !isOn(BiFold)) {
        select({"FldA", "Trifold"});
        select({"cTriFld", "True"});
    } else if (!isOn(TriFold)) {
        std::for_each(std::begin(unfolded), std::end(unfolded), select);
    }
}

void FinishingTab::checkFoldConstraints()
{
    for (const Mode fold : {TriFold, BiFold}) {
        const QString key = headings[fold]->accessibleName();
        if (isOn(TriFold) && isOn(BiFold))
            addConstraintWidget(key, headings[fold]);
        else
            removeConstraintWidget(key);
    }
}

void FinishingTab::toggleTriFold(bool toggled)
{
    if (toggled)
        return;
    for (const List list : {FoldDirection, TriFoldSheets, PrintSide})
        lists[list].box->setCurrentIndex(0);
}

void FinishingTab::toggleBiFold(bool toggled)
{
    if (!toggled)
        lists[BiFoldSheets].box->setCurrentIndex(0);
}

void FinishingTab::toggleStaple(bool toggled)
{
    if (!toggled) {
        lists[StapleLocation].box->setCurrentIndex(0);
        lists[StapleMethod].box->setCurrentIndex(0);
        return;
    }
    // With "None" and one more there is nothing to choose.
    const bOption *method = findOption(QStringLiteral("Scnt"));
    const bool canChoose = !method || method->choiceCount() >= 3;
    lists[StapleMethod].box->setEnabled(canChoose);
    lists[StapleMethod].label->setEnabled(canChoose);
}

void FinishingTab::togglePunch(bool toggled)
{
    if (!toggled)
        lists[PunchMethod].box->setCurrentIndex(0);
}

// Marks and settings

void FinishingTab::markKeyword(const QString &keyword, const QString &value)
{
    Tab::markKeyword(keyword, value);
    if (keyword != foldKeyword)
        return;
    foldMarked = true;
    for (const auto &[key, fold] : {std::pair(biFoldKey, BiFold), std::pair(triFoldKey, TriFold)}) {
        if (value == key) {
            ConstraintMark::remove(headings[fold]);
            ConstraintMark::append(headings[fold]);
        }
    }
}

void FinishingTab::clearMarks()
{
    Tab::clearMarks();
    ConstraintMark::removeImage(headings[TriFold]);
    ConstraintMark::removeImage(headings[BiFold]);
    foldMarked = false;
}

bool FinishingTab::hasMarks()
{
    return isAvailable() && (marked || foldMarked);
}

QHash<QString, QString> FinishingTab::collectSettings()
{
    collectBoundWidgets();
    if (findOption(foldKeyword))
        savedSettings.insert(foldKeyword, isOn(BiFold)    ? biFoldKey
                                          : isOn(TriFold) ? triFoldKey
                                                          : Keys::none);
    // What hangs under a button that is off is off too, whatever its list showed last.
    for (const BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        if (button->isChecked())
            continue;
        const QList<QWidget *> dependents = button->dependents();
        for (const QWidget *dependent : dependents) {
            const QString keyword = boundWidgets.key(dependent);
            if (findOption(keyword))
                savedSettings.insert(keyword, Keys::none);
        }
    }
    return savedSettings;
}
