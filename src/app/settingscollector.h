#pragma once

#include "profiles/settingssource.h"

#include <QList>

class Tab;

/// Merges the settings of all pages but the Printer page, for files and publication.
class SettingsCollector : public SettingsSource
{
public:
    /// The list stays the caller's, who may fill it later.
    explicit SettingsCollector(const QList<Tab *> &pages);

    /// Asks the pages anew. Of two pages with the same option the later one wins; a page's extra
    /// settings are added, so that a keyword may stand twice with the extra value first.
    const Settings &collect() override;

private:
    const QList<Tab *> &pages;
    Settings settings;
};
