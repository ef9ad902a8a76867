#include "app/changewatch.h"

#include "model/boption.h"
#include "model/optionstore.h"

void ChangeWatch::restart(const OptionStore *store)
{
    options = store ? store->optionList() : QList<bOption *>();
    beforePass = selection(); // a pass may be under way
    rest();
}

void ChangeWatch::rest()
{
    resting = selection();
    firstMoved = resting;
    moved.fill(false, options.size());
}

void ChangeWatch::beginPass()
{
    if (depth++ == 0)
        beforePass = selection();
}

void ChangeWatch::endPass()
{
    if (--depth > 0)
        return;
    for (int i = 0; i < options.size(); ++i) {
        if (moved[i] || options[i]->current() == beforePass[i])
            continue;
        moved[i] = true;
        firstMoved[i] = beforePass[i];
    }
}

QList<ChangeWatch::Move> ChangeWatch::moves() const
{
    QList<Move> list;
    for (int i = 0; i < options.size(); ++i) {
        if (moved[i] && options[i]->current() != firstMoved[i])
            list.append({options[i], resting[i], options[i]->current()});
    }
    return list;
}

OptionChoice *ChangeWatch::atRest(const bOption *option) const
{
    const int index = options.indexOf(const_cast<bOption *>(option));
    return resting.value(index, nullptr);
}

ChangeWatch::Selection ChangeWatch::selection() const
{
    Selection selected;
    selected.reserve(options.size());
    for (const bOption *option : options)
        selected.append(option->current());
    return selected;
}
