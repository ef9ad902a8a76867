#include "model/valueindex.h"

#include "model/boption.h"

void ValueIndex::add(bOption *option)
{
    Choices &choices = options[keep(option->key())];
    choices.clear();
    choices.reserve(size_t(option->choiceCount()));
    const QList<OptionChoice *> list = option->choiceList();
    for (OptionChoice *choice : list)
        choices.emplace(keep(choice->key()), OptionRef{option, choice});
}

OptionRef ValueIndex::find(std::string_view option, std::string_view choice) const
{
    const auto choices = options.find(option);
    if (choices == options.end())
        return {};
    const auto value = choices->second.find(choice);
    return value == choices->second.end() ? OptionRef() : value->second;
}

std::string_view ValueIndex::keep(const QString &name)
{
    names.push_back(name.toLatin1());
    return {names.back().constData(), size_t(names.back().size())};
}
