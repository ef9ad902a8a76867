#include "pages/finishing/finishingtab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/groupbinding.h"
#include "pages/base/reasons.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QLabel>

#include <algorithm>
#include <iterator>

namespace {

const QLatin1String foldKeyword("FldA");
const QLatin1String biFoldKey("Bifold");
const QLatin1String triFoldKey("Trifold");

constexpr int offsetButton = 1;
constexpr int rotateCopiesButton = 2;

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
    // Behind the page's own slots: the pass that these start has to see what those have moved.
    connectBoundWidgets();
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
        for (const int button : {rotateCopiesButton, offsetButton})
            separationGroup->setEnabledAt(
                button, GroupBinding::choiceAt(separationGroup, button, separation));
    } else {
        separationGroup->setButton(0);
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

QString FinishingTab::nameOf(Mode mode) const
{
    return label(boundWidgets.key(buttons[mode]));
}

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
    const bool both = isOn(TriFold) && isOn(BiFold);
    for (const auto &[fold, other] : {std::pair(TriFold, BiFold), std::pair(BiFold, TriFold)}) {
        const QString key = headings[fold]->accessibleName();
        if (both)
            addConstraintWidget(key, headings[fold]);
        else
            removeConstraintWidget(key);
        ConstraintMark::explain(headings[fold], both ? Reasons::notWith(nameOf(other)) : QString());
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

QStringList FinishingTab::followersOf(const QString &keyword) const
{
    QStringList followers = Tab::followersOf(keyword);
    // What kind of fold it is has no list: the buttons say it.
    if (keyword == boundWidgets.key(buttons[TriFold]) ||
        keyword == boundWidgets.key(buttons[BiFold]))
        followers.append(foldKeyword);
    return followers;
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
