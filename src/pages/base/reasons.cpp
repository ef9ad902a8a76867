#include "pages/base/reasons.h"

#include "model/boption.h"
#include "model/maker.h"
#include "model/optionchoice.h"
#include "pages/base/optionlabels.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int mostReasons = 5;
constexpr char lineFeed = '\n';

bool isInstalledOption(const bOption &option)
{
    return std::any_of(std::begin(Maker::installedKeywords), std::end(Maker::installedKeywords),
                       [&](const char *keyword) { return option.key() == QLatin1String(keyword); });
}

/// The only value of an option that a choice goes with, if all others of several exclude it; else
/// null.
const OptionChoice *onlyPartner(const OptionChoice &choice, const bOption &option)
{
    QList<OptionChoice *> partners = option.choiceList();
    if (partners.size() < 3)
        return nullptr;
    const QList<OptionRef> excluded = choice.pairConstraintList();
    for (const OptionRef &other : excluded) {
        if (other.option == &option)
            partners.removeOne(other.choice);
    }
    return partners.size() == 1 ? partners.first() : nullptr;
}

void addOnce(const QString &text, QStringList *texts)
{
    if (!texts->contains(text))
        texts->append(text);
}

} // namespace

QList<Reasons::Conditions> Reasons::blockers(const OptionChoice &choice) const
{
    const QList<OptionRef> pairs = choice.pairBlockList();
    const QList<OptionRefList> rules = choice.groupBlockList();
    QStringList keywords;
    for (const OptionRef &pair : pairs)
        keywords.append(pair.option->key());
    const QStringList followers =
        keywords.size() > 1 ? labels.followersAmong(keywords) : QStringList();

    QList<Conditions> all;
    for (const OptionRef &pair : pairs) {
        if (!followers.contains(pair.option->key()))
            all.append(Conditions{pair.choice});
    }
    for (const OptionRefList &rule : rules) {
        // What blocks by itself needs no second condition.
        Conditions conditions;
        for (const OptionRef &condition : rule.mid(0, rule.size() - 1)) {
            if (!pairs.contains(condition))
                conditions.append(condition.choice);
        }
        if (conditions.size() == rule.size() - 1)
            all.append(conditions);
    }
    return all;
}

QString Reasons::sentence(const QStringList &on, const QStringList &off, bool installed,
                          Outcome outcome)
{
    const QString with = on.size() > 1 ? tr("%1 and %2").arg(on[0], on[1]) : on.value(0);
    const QString without = off.size() > 1 ? tr("%1 or %2").arg(off[0], off[1]) : off.value(0);
    if (outcome == AlwaysOn) {
        if (off.isEmpty())
            return tr("Always on with %1").arg(with);
        return on.isEmpty() ? tr("Always on without %1").arg(without)
                            : tr("Always on with %1 without %2").arg(with, without);
    }
    if (off.isEmpty())
        return tr("Not with %1").arg(with);
    if (on.isEmpty())
        return (installed ? tr("Not installed: %1 (see Printer)") : tr("Only with %1"))
            .arg(without);
    return tr("Not with %1 without %2").arg(with, without);
}

QString Reasons::sentence(const OptionChoice &choice, const Conditions &conditions,
                          Outcome outcome) const
{
    if (outcome == Blocked && conditions.size() == 1) {
        const OptionChoice *partner = onlyPartner(choice, *conditions.first()->option());
        if (partner && OptionLabels::isOff(*partner))
            return tr("Not with %1").arg(labels.label(*partner->option()));
        if (partner && !OptionLabels::isOff(*conditions.first()))
            return tr("Only with %1").arg(labels.phrase(*partner));
    }
    QStringList on;
    QStringList off;
    // One who is on the page Printer needs no hint at it.
    bool installed = !isInstalledOption(*choice.option());
    for (const OptionChoice *condition : conditions) {
        const bOption &option = *condition->option();
        if (OptionLabels::isPolicy(option))
            return tr("Decided by the policy server");
        if (OptionLabels::isOff(*condition)) {
            off.append(labels.label(option));
            installed = installed && isInstalledOption(option);
        } else {
            on.append(labels.phrase(*condition));
        }
    }
    return sentence(on, off, installed, outcome);
}

QString Reasons::ofBlocks(const Conditions &choices, Outcome outcome) const
{
    QStringList lines;
    for (const OptionChoice *choice : choices) {
        const QList<Conditions> all = blockers(*choice);
        for (const Conditions &conditions : all) {
            if (lines.size() == mostReasons)
                break;
            addOnce(sentence(*choice, conditions, outcome), &lines);
        }
    }
    return lines.join(QLatin1Char(lineFeed));
}

QString Reasons::ofSwitch(const OptionChoice *off, const OptionChoice *on) const
{
    if (on && on->isBlocked())
        return blocked(*on);
    return off && off->isBlocked() ? alwaysOn(*off) : offersNothingElse();
}

QString Reasons::nothingLeft(const bOption &option, const QString &left) const
{
    const QList<OptionChoice *> choices = option.choiceList();
    if (choices.size() < 2)
        return offersNothingElse();
    for (const int off : {0, 1}) {
        if (choices.size() == 2 && OptionLabels::isOff(*choices[off]))
            return ofSwitch(choices[off], choices[1 - off]);
    }
    const bool any = std::any_of(choices.cbegin(), choices.cend(),
                                 [](const OptionChoice *choice) { return !choice->isBlocked(); });
    return (any ? tr("Only %1 is left.").arg(left) + QLatin1Char(lineFeed) : QString()) +
           noneOf(choices);
}

QString Reasons::noneOf(const QList<OptionChoice *> &choices) const
{
    return ofBlocks(Conditions(choices.cbegin(), choices.cend()), Blocked);
}
