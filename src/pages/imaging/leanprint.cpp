#include "pages/imaging/leanprint.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"

#include <algorithm>

namespace LeanPrint {

namespace {

const QLatin1String levelPrefix("Level");
constexpr int usualLevel = 2;

} // namespace

bool hasLevels(const bOption &option)
{
    return option.choiceCount() >= 3;
}

bool isOn(const QString &key)
{
    return key == Keys::on || key.contains(levelPrefix);
}

int levelToShow(const bOption &option, const QString &key)
{
    const QList<OptionChoice *> levels = option.choiceList().mid(1);
    for (int i = 0; i < levels.size(); ++i) {
        if (levels[i]->key() == key)
            return i;
    }
    return std::min(usualLevel, levels.size() - 1);
}

OptionChoice *shownChoice(const bOption &option, bool on, int level)
{
    OptionChoice *named = option.findChoice(on ? Keys::on : Keys::off);
    if (on && hasLevels(option))
        return option.choiceList().value(level + 1);
    return named ? named : option.choiceList().value(on ? 1 : 0);
}

} // namespace LeanPrint
