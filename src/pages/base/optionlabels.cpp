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
        const QString text = page->label(option.key());
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
    const QString name = label(*choice.option());
    return isOn(choice) ? name : tr("%1: %2", "option and value").arg(name, value(choice));
}

QString OptionLabels::shortPhrase(const OptionChoice &choice) const
{
    return isOn(choice) || isOff(choice) ? phrase(choice) : value(choice);
}

bool OptionLabels::isShown(const QString &keyword) const
{
    return std::any_of(pages.cbegin(), pages.cend(),
                       [&](const Tab *page) { return !page->label(keyword).isEmpty(); });
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
