#include "app/settingscollector.h"

#include "pages/base/tab.h"

SettingsCollector::SettingsCollector(const QList<Tab *> &pages)
    : pages(pages)
{
}

const Settings &SettingsCollector::collect()
{
    settings.clear();
    QList<Tab *> collected;
    for (Tab *page : pages) {
        if (page->hasUserSettings())
            collected.append(page);
    }
    for (Tab *page : qAsConst(collected)) {
        const QHash<QString, QString> own = page->collectSettings();
        for (auto entry = own.cbegin(); entry != own.cend(); ++entry)
            settings.replace(entry.key(), entry.value());
    }
    for (Tab *page : qAsConst(collected)) {
        const Settings extra = page->extraSettings();
        for (auto entry = extra.cbegin(); entry != extra.cend(); ++entry)
            settings.insert(entry.key(), entry.value());
    }
    return settings;
}
