#include "pages/base/groupbinding.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "widgets/bixbuttongroup.h"

#include <QPushButton>

#include <algorithm>

namespace {

BixButtonGroup *toGroup(QWidget *widget)
{
    return static_cast<BixButtonGroup *>(widget);
}

const BixButtonGroup *toGroup(const QWidget *widget)
{
    return static_cast<const BixButtonGroup *>(widget);
}

/// What a button and its choice have in common.
enum class Link
{
    Name,
    UntranslatedName,
    Key
};

bool isLinked(const BixButtonGroup *group, int position, const OptionChoice *choice, Link link)
{
    switch (link) {
    case Link::Name:
        return group->buttonAt(position)->accessibleName() == choice->text();
    case Link::UntranslatedName:
        return group->untranslatedNames().at(position) == choice->text();
    case Link::Key:
        break;
    }
    return group->choiceKeysAt(position).contains(choice->key());
}

/// The first way in which any button has a choice. One for the whole group: a text of another
/// language that happens to be a button's name must not stand beside keys.
Link linkOf(const BixButtonGroup *group, const bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    for (const Link link : {Link::Name, Link::UntranslatedName}) {
        for (int i = 0; i < group->buttonCount(); ++i) {
            for (const OptionChoice *choice : choices) {
                if (isLinked(group, i, choice, link))
                    return link;
            }
        }
    }
    return Link::Key;
}

} // namespace

OptionChoice *GroupBinding::choiceAt(const BixButtonGroup *group, int position,
                                     const bOption *option)
{
    if (!group->buttonAt(position))
        return nullptr;
    const Link link = linkOf(group, option);
    QList<OptionChoice *> linked = option->choiceList();
    const auto isForeign = [&](const OptionChoice *choice) {
        return !isLinked(group, position, choice, link);
    };
    linked.erase(std::remove_if(linked.begin(), linked.end(), isForeign), linked.end());
    if (link == Link::Key && linked.size() > 1) {
        OptionChoice *preferred = Tab::savedOrDefaultChoice(option);
        if (linked.contains(preferred))
            return preferred;
    }
    return linked.value(0);
}

int GroupBinding::positionOf(const OptionChoice *choice, const BixButtonGroup *group,
                             const bOption *option)
{
    const Link link = linkOf(group, option);
    for (int i = 0; choice && i < group->buttonCount(); ++i) {
        if (isLinked(group, i, choice, link))
            return i;
    }
    return -1;
}

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
        group->setButton(positionOf(choice, group, option));
}

OptionChoice *GroupBinding::choice(const QWidget *widget, int, const bOption *option) const
{
    return choiceAt(toGroup(widget), toGroup(widget)->currentIndex(), option);
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
    for (int i = 0; i < group->buttonCount(); ++i) {
        const OptionChoice *choice = choiceAt(group, i, option);
        const bool blocked = choice && choice->isBlocked();
        group->setEnabledAt(i, choice && !blocked);
        if (!choice)
            continue; // the printer lacks what the button stands for
        if (blocked) {
            ++constrainedCount;
            mustMove = mustMove || choice == option->current();
        } else if (firstFree < 0) {
            firstFree = i;
        }
    }
    if (mustMove) {
        option->setCurrent(choiceAt(group, firstFree, option));
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

void GroupBinding::explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                           const QString &grey) const
{
    BixButtonGroup *group = toGroup(widget);
    QString whole = grey;
    if (!group->isEnabled() && option && grey.isEmpty())
        whole = reasons.nothingLeft(*option, group->currentText());
    ReasonTip::setIfGrey(group, whole);
    for (int i = 0; i < group->buttonCount(); ++i) {
        const OptionChoice *choice =
            option && grey.isEmpty() ? choiceAt(group, i, option) : nullptr;
        QString reason = group->isEnabled() ? Reasons::notOffered() : whole;
        if (choice && choice->isBlocked())
            reason = reasons.blocked(*choice);
        ReasonTip::setIfGrey(group->buttonAt(i), reason);
    }
}

QString GroupBinding::savedValue(const QWidget *widget, const bOption *option) const
{
    const OptionChoice *shown = choice(widget, 0, option);
    return shown ? shown->key() : QString();
}

void GroupBinding::choose(QWidget *widget, const OptionChoice &choice) const
{
    BixButtonGroup *group = toGroup(widget);
    if (QPushButton *button = group->buttonAt(positionOf(&choice, group, choice.option())))
        button->click();
}

QString GroupBinding::label(const QWidget *widget) const
{
    return toGroup(widget)->title();
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
