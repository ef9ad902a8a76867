#include "model/boption.h"

#include "model/optionchoice.h"
#include "model/sentinels.h"

#include <algorithm>

namespace {

template <typename Predicate>
OptionChoice *firstChoice(const QList<OptionChoice *> &choices, Predicate matches)
{
    const auto found = std::find_if(choices.cbegin(), choices.cend(), matches);
    return found == choices.cend() ? nullptr : *found;
}

} // namespace

bOption::bOption()
    : bOption(Sentinel::empty, Sentinel::empty)
{
}

bOption::bOption(const QString &key, const QString &text)
    : key_(key)
    , text_(text)
{
}

bOption::~bOption()
{
    qDeleteAll(choices);
}

bool bOption::isValid() const
{
    return key_ != Sentinel::empty || text_ != Sentinel::empty;
}

void bOption::addChoice(const QString &key, const QString &text)
{
    addChoice(new OptionChoice(this, key, text));
}

void bOption::addChoice(OptionChoice *choice)
{
    choices.append(choice);
}

OptionChoice *bOption::findChoice(const QString &key) const
{
    return firstChoice(choices, [&](const OptionChoice *choice) { return choice->key() == key; });
}

OptionChoice *bOption::findChoiceByText(const QString &text) const
{
    return firstChoice(choices, [&](const OptionChoice *choice) { return choice->text() == text; });
}

void bOption::setCurrent(OptionChoice *choice)
{
    Q_ASSERT(!current_ || choices.contains(current_));
    if (current_)
        current_->release();
    if (!choice || choices.lastIndexOf(choice) < 0)
        return;
    current_ = choice;
    choice->arm();
}

void bOption::setDefaultChoice(OptionChoice *choice)
{
    if (choices.contains(choice))
        defaultChoice_ = choice;
}

bool bOption::isArmed() const
{
    return current_ && current_->isArmed();
}

QString bOption::currentKey() const
{
    return current_ ? current_->key() : key_ + Sentinel::noSelection;
}
