#include "pages/base/groupbinding.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "pages/base/tab.h"
#include "widgets/bixbuttongroup.h"

namespace {

BixButtonGroup *toGroup(QWidget *widget)
{
    return static_cast<BixButtonGroup *>(widget);
}

const BixButtonGroup *toGroup(const QWidget *widget)
{
    return static_cast<const BixButtonGroup *>(widget);
}

} // namespace

void GroupBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectButtonGroup(toGroup(widget));
}

void GroupBinding::load(Tab &, QWidget *widget, bOption *option) const
{
    BixButtonGroup *group = toGroup(widget);
    const OptionChoice *choice = option ? Tab::savedOrDefaultChoice(option) : nullptr;
    group->setGroupEnabled(choice);
    if (choice)
        group->setButtonByValue(choice->text());
}

OptionChoice *GroupBinding::choice(const QWidget *widget, int, const bOption *option) const
{
    return option->findChoiceByText(toGroup(widget)->currentText());
}

bool GroupBinding::enable(Tab &page, QWidget *widget, bOption *option) const
{
    return page.enableOptionsForButtonGroup(toGroup(widget), option);
}

bool GroupBinding::enableButtons(BixButtonGroup *group, bOption *option)
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

QString GroupBinding::savedValue(const QWidget *widget, const bOption *option) const
{
    return Tab::keywordForText(option, toGroup(widget)->currentText());
}

void GroupBinding::mark(QWidget *widget) const
{
    toGroup(widget)->markConstrained(true);
}

void GroupBinding::clearMark(QWidget *widget) const
{
    toGroup(widget)->markConstrained(false);
}

void GroupBinding::markWithToolTip(QWidget *widget, const QString &toolTip, bool on) const
{
    if (on)
        toGroup(widget)->markWithToolTip(toolTip);
    else
        toGroup(widget)->clearMark();
}
