// What a constraint pass does with a page: greys what is blocked, moves widgets off it, and sets
// the marks.

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "pages/base/tab.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QCheckBox>
#include <QLabel>
#include <QStandardItemModel>

namespace {

/// The first index of each item text.
QHash<QString, int> itemIndexes(const ComboBoxEx *box)
{
    QHash<QString, int> indexes;
    for (int i = box->count() - 1; i >= 0; --i)
        indexes.insert(box->itemText(i), i);
    return indexes;
}

bool isBlocked(const OptionChoice *choice)
{
    return choice && choice->isBlocked();
}

} // namespace

// What is blocked

bool Tab::enableOptions()
{
    bool changed = false;
    for (const auto &[keyword, widget] : boundWidgets) {
        if (bOption *option = findOption(keyword))
            changed = enableOptionsForWidget(widget, option) || changed;
    }
    return changed;
}

bool Tab::enableOptionsForWidget(QWidget *widget, bOption *option)
{
    if (auto *box = qobject_cast<ComboBoxEx *>(widget))
        return enableOptionsForComboBox(box, option);
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return enableOptionsForCheckBox(check, option);
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        return enableOptionsForCheckBoxButton(button, option);
    if (auto *group = qobject_cast<BixButtonGroup *>(widget))
        return enableOptionsForButtonGroup(group, option);
    return false;
}

bool Tab::enableOptionsForComboBox(ComboBoxEx *box, bOption *option)
{
    if (!box->isEnabled())
        return false;

    const QHash<QString, int> indexes = itemIndexes(box);
    bool mustMove = false;
    int replacement = -1;
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices) {
        const int index = indexes.value(choice->text(), -1);
        if (index < 0)
            continue;
        const bool blocked = choice->isBlocked();
        if (blocked && index == box->currentIndex())
            mustMove = true;
        if (!blocked && replacement < 0)
            replacement = index;
        setChoiceEnabled(index, box, blocked);
    }
    if (!mustMove)
        return false;

    const QSignalBlocker silent(box);
    if (replacement < 0) {
        // Nothing is left to choose; what can't be printed must not hold up other options either.
        option->setCurrent(nullptr);
        box->setCurrentIndex(0);
        return false;
    }
    box->setCurrentIndex(replacement);
    applyWidgetValue(replacement, box);
    return true;
}

void Tab::setChoiceEnabled(int index, ComboBoxEx *box, bool disabled)
{
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    QStandardItem *item = model ? model->item(index) : nullptr;
    if (!item)
        return;
    const Qt::ItemFlags usable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    item->setFlags(disabled ? item->flags() & ~usable : usable);
    item->setData(disabled ? QVariant(box->palette().color(QPalette::Disabled, QPalette::Text))
                           : QVariant(),
                  Qt::ForegroundRole);
}

/// Switches the box to the state that is left, or frees it. True if it had to be switched.
template <typename Checkable>
bool Tab::forceState(Checkable *box, bool offBlocked, bool onBlocked)
{
    if (!offBlocked && !onBlocked) {
        box->setEnabled(true);
        return false;
    }
    const bool state = !onBlocked;
    const bool moved = box->isChecked() != state;
    box->setEnabled(false);
    box->setChecked(state);
    // Its signal may have started a constraint pass that switched it back.
    if (moved)
        applyWidgetValue(box->isChecked(), box);
    return moved;
}

bool Tab::enableOptionsForCheckBox(QCheckBox *box, bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    return forceState(box, isBlocked(choices.value(0)), isBlocked(choices.value(1)));
}

bool Tab::enableOptionsForCheckBoxButton(BixCheckBoxButton *button, bOption *option)
{
    return forceState(button, isBlocked(option->findChoice(Keys::no)),
                      isBlocked(option->findChoice(Keys::yes)));
}

bool Tab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    group->setGroupEnabled(true);

    int constrainedCount = 0;
    int firstFree = -1;
    bool mustMove = false;
    const QStringList names = group->buttonNames();
    for (int i = 0; i < names.size(); ++i) {
        const OptionChoice *choice = option->findChoiceByText(names[i]);
        if (!choice)
            continue;
        const bool blocked = choice->isBlocked();
        group->setEnabledAt(i, !blocked);
        if (blocked) {
            ++constrainedCount;
            mustMove = mustMove || choice == option->current();
        } else if (firstFree < 0) {
            firstFree = i;
        }
    }
    if (mustMove) {
        option->setCurrent(firstFree < 0 ? nullptr : option->findChoiceByText(names[firstFree]));
        if (firstFree >= 0)
            group->setButton(firstFree);
    }

    const int left = option->choiceCount() - constrainedCount;
    if (left == 0 || left == 1) {
        // One value that can't be changed is no conflict: the label reads as always.
        group->setGroupEnabled(false);
        group->setLabelEnabled(true);
    }
    if (left == 0) {
        option->setCurrent(option->choiceList().value(0));
        group->setButton(0);
    }
    return mustMove;
}

// Marks

void Tab::addConstraintWidget(const QString &key, QWidget *widget)
{
    constraintWidgets.insert(key, widget);
}

void Tab::removeConstraintWidget(const QString &key)
{
    constraintWidgets.remove(key);
}

void Tab::setWidgetMark(QWidget *widget, const QString &tooltip, bool on)
{
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        ConstraintMark::remove(label);
        if (on)
            ConstraintMark::append(label);
        ConstraintMark::explain(label, on ? tooltip : QString());
    } else if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
        if (on)
            group->markWithToolTip(tooltip);
        else
            group->clearMark();
    }
}

void Tab::markWidget(QWidget *widget)
{
    marked = true;
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        ConstraintMark::remove(label);
        ConstraintMark::append(label);
    } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
        check->setIcon(QIcon(QLatin1String(ConstraintMark::icon)));
    } else if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
        group->markConstrained(true);
    }
}

void Tab::markKeyword(const QString &keyword, const QString &)
{
    QWidget *mark = markWidgets.value(keyword);
    QWidget *bound = boundWidgets.value(keyword);
    if (qobject_cast<QLabel *>(mark)) {
        markWidget(mark);
    } else if (qobject_cast<QCheckBox *>(bound)) {
        // The adjustment is no value that could be chosen wrongly.
        if (keyword != QLatin1String("Cadj"))
            markWidget(bound);
    } else if (qobject_cast<BixButtonGroup *>(mark)) {
        markWidget(mark);
    } else if (qobject_cast<BixCheckBoxButton *>(bound)) {
        marked = true;
    }
}

void Tab::clearMarks()
{
    for (const auto &[keyword, widget] : markWidgets) {
        if (auto *label = qobject_cast<QLabel *>(widget))
            ConstraintMark::removeImage(label);
        else if (auto *check = qobject_cast<QCheckBox *>(widget))
            check->setIcon(QIcon());
        else if (auto *group = qobject_cast<BixButtonGroup *>(widget))
            group->markConstrained(false);
    }
}

void Tab::markConstraintWidgets()
{
    for (const auto &[key, widget] : constraintWidgets)
        markWidget(widget);
}
