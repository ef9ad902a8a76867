#include "model/cupsuiconstraint.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "model/valueindex.h"

#include <algorithm>

namespace {

/// Takes the text before the first separator, or all of it, off the front.
std::string_view cutOff(std::string_view *text, char separator)
{
    const std::string_view front = text->substr(0, text->find(separator));
    text->remove_prefix(std::min(front.size() + 1, text->size()));
    return front;
}

/// Which value an entry of a three-way rule stands for: a PPD names the fold, punch or staple
/// style, the panel blocks the mode as a whole, whatever the style.
OptionRef ruleValue(const ValueIndex &values, std::string_view option, std::string_view choice)
{
    const auto mode = [&values](std::string_view key) {
        return values.find(key, Keys::yes.data());
    };
    if (choice == "Bifold")
        return mode("cBiFld");
    if (choice == "Trifold")
        return mode("cTriFld");
    if (option == "Stpl")
        return mode("cStpl");
    if (option == "Pnch")
        return mode("cHole");
    return values.find(option, choice);
}

} // namespace

void addCupsUiConstraint(const ValueIndex &values, std::string_view rule)
{
    OptionRefList named;
    named.reserve(3);
    while (!rule.empty()) {
        std::string_view part = cutOff(&rule, '*');
        const bool isValue = part.find(' ') != std::string_view::npos;
        const std::string_view option = cutOff(&part, ' ');
        if (isValue)
            named.append(ruleValue(values, option, cutOff(&part, ' ')));
    }
    OptionStore::addGroupConstraint(named);
}
