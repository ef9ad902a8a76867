#pragma once

#include "storage/settingsfile.h"

#include <QString>

class QLabel;

/// A group of the page "Job": its widgets, which belong to the page, and its rules. The page
/// registers and connects the widgets.
class JobGroup
{
public:
    explicit JobGroup(QLabel *label)
        : label(label)
    {
    }
    JobGroup(const JobGroup &) = delete;
    JobGroup &operator=(const JobGroup &) = delete;
    virtual ~JobGroup() = default;

    /// Texts in the language of the catalogue. Lists are refilled silently and fall back to their
    /// first entries.
    virtual void setTexts() = 0;
    /// The message for what is wrong; empty if nothing is.
    virtual QString fault() const = 0;
    /// True for a fault that holds back OK.
    virtual bool holdsBack() const = 0;
    /// From the settings file of the selected printer or profile.
    virtual void load() = 0;
    virtual void save(Settings *settings) const = 0;

    QLabel *const label; ///< the title, where marks show
};
