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

OptionChoice *onChoice(const bOption &option)
{
    OptionChoice *on = option.findChoice(Keys::on);
    return on ? on : option.findChoice(levelKey(usualLevel));
}

QString levelKey(int level)
{
    return levelPrefix + QString::number(level + 1);
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

QString settingFor(const bOption &option, bool on, int level)
{
    if (!on)
        return Keys::off;
    return hasLevels(option) ? levelKey(level) : QString(Keys::on);
}

} // namespace LeanPrint
