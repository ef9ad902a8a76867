#pragma once

#include "pages/watermark/watermarkrecords.h"
#include "storage/settingsfile.h"

#include <QMap>
#include <QStringList>

/// The user's own watermark texts with their looks, as the settings file of a printer or profile
/// keeps them.
///
/// One of the printer's texts may stand here too: it then has a look of its own, but is not listed
/// a second time.
class CustomWatermarks
{
public:
    /// Replaces all by those of the current settings file; false if it has no line of them.
    bool load();
    void clear() { looks.clear(); }
    void insert(const QString &name, const Watermark::Look &look) { looks.insert(name, look); }
    void remove(const QString &name) { looks.remove(name); }

    bool contains(const QString &name) const { return looks.contains(name); }
    /// True for a text that goes out as it reads, not by the name of a choice: one of these, or any
    /// that isn't built in. Settings files remember it by itself, since its choice can't bring it
    /// back.
    bool isCustom(const QString &name) const;
    Watermark::Look look(const QString &name, const Watermark::Look &otherwise) const
    {
        return looks.value(name, otherwise);
    }
    /// In the order of the list.
    QStringList names() const { return looks.keys(); }

    /// The custom text that was selected when the current settings file was written; may be empty.
    static QString savedSelection();
    /// `selected` is empty while no custom one is selected.
    void save(Settings *settings, const QString &selected) const;

private:
    QMap<QString, Watermark::Look> looks;
};
