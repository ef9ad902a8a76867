#include "model/optionstore.h"

#include "model/boption.h"
#include "model/maker.h"
#include "model/optionchoice.h"

OptionStore *currentStore = nullptr;

namespace {

/// Orders a three-way rule. The three tests run one after the other: options of equal priority pass
/// several of them, and the longer lists that come out of it decide which value is the target.
OptionRefList orderedByPriority(const OptionRef (&l)[3])
{
    const int a = l[0].option->priority();
    const int b = l[1].option->priority();
    const int c = l[2].option->priority();

    OptionRefList rule;
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

void OptionStore::setCurrentByKey(const QString &optionKey, const QString &choiceKey)
{
    bOption *option = find(optionKey);
    if (OptionChoice *choice = option ? option->findChoice(choiceKey) : nullptr)
        option->setCurrent(choice);
}

void OptionStore::setPriority(const QString &optionKey, int priority)
{
    if (bOption *option = find(optionKey))
        option->setPriority(priority);
}

void OptionStore::addConstraint(const QString &option1, const QString &choice1,
                                const QString &option2, const QString &choice2)
{
    bOption *first = find(option1);
    bOption *second = find(option2);
    if (!first || !second)
        return;
    OptionChoice *firstChoice = first->findChoice(choice1);
    OptionChoice *secondChoice = second->findChoice(choice2);
    if (!firstChoice || !secondChoice)
        return;
    firstChoice->addPairConstraint(second, secondChoice);
    secondChoice->addPairConstraint(first, firstChoice);
}

void OptionStore::addGroupConstraint(const QList<QPair<QString, QString>> &values)
{
    if (values.size() != 3)
        return;
    OptionRef refs[3];
    for (int i = 0; i < 3; ++i) {
        bOption *option = find(values[i].first);
        OptionChoice *choice = option ? option->findChoice(values[i].second) : nullptr;
        if (!choice)
            return;
        refs[i] = {option, choice};
    }
    const OptionRefList rule = orderedByPriority(refs);
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
