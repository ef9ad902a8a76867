#include "model/valueindex.h"

#include "model/boption.h"

void ValueIndex::add(bOption *option, const ppd_option_t &source)
{
    Choices &choices = startOption(source.keyword, source.num_choices);
    const QList<OptionChoice *> list = option->choiceList();
    for (int i = 0; i < source.num_choices; ++i)
        choices.emplace(source.choices[i].choice, OptionRef{option, list[i]});
}

void ValueIndex::add(bOption *option)
{
    Choices &choices = startOption(keep(option->key()), option->choiceCount());
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

ValueIndex::Choices &ValueIndex::startOption(std::string_view keyword, int choiceCount)
{
    Choices &choices = options[keyword];
    choices.clear();
    choices.reserve(size_t(choiceCount));
    return choices;
}

std::string_view ValueIndex::keep(const QString &name)
{
    names.push_back(name.toLatin1());
    return {names.back().constData(), size_t(names.back().size())};
}
