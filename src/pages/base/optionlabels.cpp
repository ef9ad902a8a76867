#include "pages/base/optionlabels.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "pages/base/tab.h"

#include <algorithm>

namespace {

bool isOn(const OptionChoice &choice)
{
    return choice.key() == Keys::yes || choice.key() == Keys::on;
}

} // namespace

QString OptionLabels::label(const bOption &option) const
{
    for (const Tab *page : pages) {
        QString text = page->label(option.key());
        if (!text.isEmpty())
            return text;
    }
    return option.text();
}

QString OptionLabels::value(const OptionChoice &choice)
{
    if (choice.text() == Keys::yes)
        return tr("On");
    if (choice.text() == Keys::no)
        return tr("Off");
    return choice.text();
}

QString OptionLabels::phrase(const OptionChoice &choice) const
{
    return isOn(choice) ? label(*choice.option()) : fullPhrase(choice);
}

QString OptionLabels::fullPhrase(const OptionChoice &choice) const
{
    return tr("%1: %2", "option and value").arg(label(*choice.option()), value(choice));
}

QString OptionLabels::shortPhrase(const OptionChoice &choice) const
{
    return isOn(choice) || isOff(choice) ? phrase(choice) : value(choice);
}

QStringList OptionLabels::inOrder(const QStringList &keywords) const
{
    QStringList ordered;
    for (const Tab *page : pages) {
        const QStringList all = page->keywords();
        for (const QString &keyword : all) {
            if (keywords.contains(keyword) && !ordered.contains(keyword))
                ordered.append(keyword);
        }
    }
    return ordered;
}

QStringList OptionLabels::followersAmong(const QStringList &keywords) const
{
    QStringList followers;
    for (const QString &keyword : keywords) {
        for (const Tab *page : pages) {
            const QStringList all = page->followersOf(keyword);
            std::copy_if(all.cbegin(), all.cend(), std::back_inserter(followers),
                         [&](const QString &follower) { return keywords.contains(follower); });
        }
    }
    return followers;
}

bool OptionLabels::isOff(const OptionChoice &choice)
{
    return choice.key() == Keys::no || choice.key() == Keys::off || choice.key() == Keys::none;
}

bool OptionLabels::isPolicy(const bOption &option)
{
    return option.key().startsWith(QLatin1String("FKP"));
}
