// A PPD, from its import to every value that its user could choose.

#include "fuzz.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>

namespace {

std::unique_ptr<OptionStore> imported(const QByteArray &text)
{
    const int file = memfd_create("ppd", MFD_CLOEXEC);
    Fuzz::mustHold(write(file, text.constData(), size_t(text.size())) == text.size() &&
                       lseek(file, 0, SEEK_SET) == 0,
                   "a PPD in memory");
    auto store = importPpdFile(file);
    close(file);
    return store;
}

void checkSelection(const QList<bOption *> &options)
{
    for (const bOption *option : options) {
        Fuzz::mustHold(!option->current() || option->hasChoice(option->currentKey()),
                       "what is selected is one of the option's choices");
        const QList<OptionChoice *> choices = option->choiceList();
        for (const OptionChoice *choice : choices) {
            const QList<OptionRef> blocks = choice->pairBlockList();
            for (const OptionRef &block : blocks)
                Fuzz::mustHold(block.option->current() == block.choice,
                               "every pair block names a value that is selected");
        }
    }
}

/// Whether nothing blocks the value but rules that name no other one: a value never lifts what it
/// has posted on itself.
bool isFreeOfOthers(const OptionChoice &choice)
{
    const QList<OptionRefList> rules = choice.groupBlockList();
    return choice.pairBlockList().isEmpty() &&
           std::all_of(rules.cbegin(), rules.cend(), [](const OptionRefList &rule) {
               return rule.count(rule.last()) == rule.size();
           });
}

} // namespace

void Fuzz::ppd(const QByteArray &input)
{
    const auto store = imported(input);
    if (!store)
        return;
    const QList<bOption *> options = store->optionList();
    checkSelection(options);
    for (bOption *option : options) {
        const QList<OptionChoice *> choices = option->choiceList();
        for (OptionChoice *choice : choices)
            option->setCurrent(choice);
    }
    checkSelection(options);
    for (bOption *option : options)
        store->setCurrentByKey(option->key(), option->choiceList().value(0)
                                                  ? option->choiceList().first()->key()
                                                  : QString());
    checkSelection(options);

    store->releaseAllConstraints();
    for (const bOption *option : options) {
        const QList<OptionChoice *> choices = option->choiceList();
        for (const OptionChoice *choice : choices)
            mustHold(isFreeOfOthers(*choice), "releaseAllConstraints() withdraws all blocks");
    }
}
