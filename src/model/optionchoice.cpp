#include "model/optionchoice.h"

#include "model/boption.h"
#include "model/sentinels.h"

namespace {

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
    pairConstraints.append({option, choice});
}

void OptionChoice::addGroupConstraint(const OptionRefList &rule)
{
    groupConstraints.append(rule);
}

void OptionChoice::arm()
{
    Q_ASSERT(option_ && option_->current() == this); // only a selected value blocks others
    armed = true;
    const int priority = option_->priority();
    const QVector<OptionRef> pairs = pairConstraints.list();
    const QVector<OptionRefList> rules = groupConstraints.list();
    for (const OptionRef &other : pairs) {
        // The lower number wins, so a stronger option never yields; equals block each other.
        if (other.option->priority() >= priority)
            other.choice->activePairBlocks.append({option_, this});
    }
    for (const OptionRefList &rule : rules) {
        Q_ASSERT(rule.size() >= 3);
        if (conditionsHold(rule))
            rule.last().choice->activeGroupBlocks.append(rule);
    }
}

void OptionChoice::release()
{
    armed = false;
    const QVector<OptionRef> pairs = pairConstraints.list();
    const QVector<OptionRefList> rules = groupConstraints.list();
    // Whatever the priorities say now: they may have changed since the block was posted.
    for (const OptionRef &other : pairs)
        other.choice->activePairBlocks.remove({option_, this});
    for (const OptionRefList &rule : rules) {
        // Others block the target, so its own going lifts nothing.
        OptionChoice *target = rule.last().choice;
        if (target != this)
            target->activeGroupBlocks.remove(rule);
    }
}
