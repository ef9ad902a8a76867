#pragma once

#include "storage/settingsfile.h"

/// Whoever can say what all pages hold: the profile dialogs save it, and needn't know any page.
class SettingsSource
{
public:
    SettingsSource() = default;
    SettingsSource(const SettingsSource &) = delete;
    SettingsSource &operator=(const SettingsSource &) = delete;
    virtual ~SettingsSource() = default;

    /// Asks the pages anew; the answer stands until the next call.
    virtual const Settings &collect() = 0;
};
