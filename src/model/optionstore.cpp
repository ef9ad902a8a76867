#include "model/optionstore.h"

#include "model/boption.h"
#include "model/maker.h"
#include "model/optionchoice.h"

OptionStore *currentStore = nullptr;

namespace {

/// Orders a three-way rule. The three tests run one after the other: options of equal priority pass
/// several of them, and the longer lists that come out of it decide which value is the target.
OptionRefList orderedByPriority(const OptionRefList &l)
{
    const int a = l[0].option->priority();
    const int b = l[1].option->priority();
    const int c = l[2].option->priority();

    OptionRefList rule;
    rule.reserve(l.size());
    if (a <= b && a <= c)
        rule << l[0] << (b > c ? l[2] : l[1]) << (b > c ? l[1] : l[2]);
    if (b <= c && b <= a)
        rule << l[1] << (a <= c ? l[0] : l[2]) << (a <= c ? l[2] : l[0]);
    if (c <= a)
        rule << l[2] << (a <= b ? l[0] : l[1]) << (a <= b ? l[1] : l[0]);
    return rule;
}

} // namespace

OptionStore::OptionStore() = default;

OptionStore::~OptionStore()
{
    qDeleteAll(options);
}

void OptionStore::insert(bOption *option)
{
    bOption *&slot = options[option->key()];
    if (slot && slot != option)
        replacedOptions.emplace_back(slot);
    slot = option;
}

OptionRef OptionStore::findValue(const QString &optionKey, const QString &choiceKey) const
{
    bOption *option = find(optionKey);
    OptionChoice *choice = option ? option->findChoice(choiceKey) : nullptr;
    return choice ? OptionRef{option, choice} : OptionRef();
}

void OptionStore::setCurrentByKey(const QString &optionKey, const QString &choiceKey)
{
    const OptionRef value = findValue(optionKey, choiceKey);
    if (value.choice)
        value.option->setCurrent(value.choice);
}

void OptionStore::setPriority(const QString &optionKey, int priority)
{
    if (bOption *option = find(optionKey))
        option->setPriority(priority);
}

void OptionStore::addConstraint(const QString &option1, const QString &choice1,
                                const QString &option2, const QString &choice2)
{
    addConstraint(findValue(option1, choice1), findValue(option2, choice2));
}

void OptionStore::addConstraint(const OptionRef &first, const OptionRef &second)
{
    if (!first.choice || !second.choice)
        return;
    first.choice->addPairConstraint(second.option, second.choice);
    second.choice->addPairConstraint(first.option, first.choice);
}

void OptionStore::addGroupConstraint(const QList<QPair<QString, QString>> &values)
{
    OptionRefList found;
    for (const auto &[option, choice] : values)
        found.append(findValue(option, choice));
    addGroupConstraint(found);
}

void OptionStore::addGroupConstraint(const OptionRefList &values)
{
    if (values.size() != 3 || values.contains(OptionRef()))
        return;
    const OptionRefList rule = orderedByPriority(values);
    for (const OptionRef &entry : rule)
        entry.choice->addGroupConstraint(rule);
}

void OptionStore::releaseAllConstraints()
{
    for (const bOption *option : qAsConst(options)) {
        const QList<OptionChoice *> choices = option->choiceList();
        for (OptionChoice *choice : choices)
            choice->release();
    }
}

QList<bOption *> OptionStore::installedOptions() const
{
    QList<bOption *> found;
    for (const char *keyword : Maker::installedKeywords) {
        if (bOption *option = find(QLatin1String(keyword)))
            found.append(option);
    }
    return found;
}

bOption *currentOption(const QString &key)
{
    return currentStore ? currentStore->find(key) : nullptr;
}
