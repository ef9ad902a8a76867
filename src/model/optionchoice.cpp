#include "model/optionchoice.h"

#include "model/boption.h"
#include "model/sentinels.h"

namespace {

template <typename T>
void appendOnce(QList<T> &list, const T &entry)
{
    if (!list.contains(entry))
        list.append(entry);
}

/// True if every entry before the rule's last one is selected. A list with repeated entries ends
/// at the first that equals the last, so only its leading part counts.
bool conditionsHold(const OptionRefList &rule)
{
    const OptionRef &target = rule.last();
    for (const OptionRef &entry : rule) {
        if (entry == target)
            return true;
        // By key: of two choices with the same keyword either one fulfils the condition.
        const OptionChoice *current = entry.option->current();
        if (!current || current->key() != entry.choice->key())
            return false;
    }
    return true;
}

} // namespace

OptionChoice::OptionChoice()
    : OptionChoice(nullptr, Sentinel::empty, Sentinel::empty)
{
}

OptionChoice::OptionChoice(bOption *option, const QString &key, const QString &text)
    : key_(key)
    , text_(text)
    , option_(option)
{
}

bool OptionChoice::isValid() const
{
    return key_ != Sentinel::empty || text_ != Sentinel::empty;
}

void OptionChoice::addPairConstraint(bOption *option, OptionChoice *choice)
{
    appendOnce(pairConstraints, {option, choice});
}

void OptionChoice::addGroupConstraint(const OptionRefList &rule)
{
    appendOnce(groupConstraints, rule);
}

void OptionChoice::arm()
{
    Q_ASSERT(option_ && option_->current() == this); // only a selected value blocks others
    armed = true;
    const int priority = option_->priority();
    for (const OptionRef &other : qAsConst(pairConstraints)) {
        // The lower number wins, so a stronger option never yields; equals block each other.
        if (other.option->priority() >= priority)
            appendOnce(other.choice->activePairBlocks, {option_, this});
    }
    for (const OptionRefList &rule : qAsConst(groupConstraints)) {
        Q_ASSERT(rule.size() >= 3);
        if (conditionsHold(rule))
            appendOnce(rule.last().choice->activeGroupBlocks, rule);
    }
}

void OptionChoice::release()
{
    armed = false;
    // Whatever the priorities say now: they may have changed since the block was posted.
    for (const OptionRef &other : qAsConst(pairConstraints)) {
        other.choice->activePairBlocks.removeOne({option_, this});
        Q_ASSERT(!other.choice->activePairBlocks.contains({option_, this})); // was posted once
    }
    for (const OptionRefList &rule : qAsConst(groupConstraints)) {
        // Others block the target, so its own going lifts nothing.
        OptionChoice *target = rule.last().choice;
        if (target != this)
            target->activeGroupBlocks.removeOne(rule);
    }
}
