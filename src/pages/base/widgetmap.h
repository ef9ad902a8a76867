#pragma once

#include "model/sentinels.h"

#include <QPair>
#include <QString>
#include <QVector>

class QObject;
class QWidget;

/// Keyword to widget, walked in the order of registration: of two loaded values that exclude each
/// other the earlier one wins, so the order must be the same at each start.
class WidgetMap
{
public:
    using Entry = QPair<QString, QWidget *>;

    /// Under a used keyword the widget is replaced, in its old place.
    void insert(const QString &keyword, QWidget *widget)
    {
        for (Entry &entry : entries) {
            if (entry.first == keyword) {
                entry.second = widget;
                return;
            }
        }
        entries.append({keyword, widget});
    }
    void remove(const QString &keyword)
    {
        for (int i = 0; i < entries.size(); ++i) {
            if (entries[i].first == keyword)
                entries.remove(i--);
        }
    }
    void clear() { entries.clear(); }

    int size() const { return entries.size(); }
    /// Null for an unknown keyword.
    QWidget *value(const QString &keyword) const
    {
        for (const Entry &entry : entries) {
            if (entry.first == keyword)
                return entry.second;
        }
        return nullptr;
    }
    /// The keyword of a widget; `otherwise` for one that stands under none.
    QString key(const QObject *widget, const QString &otherwise = Sentinel::notBound) const;

    auto begin() const { return entries.cbegin(); }
    auto end() const { return entries.cend(); }

private:
    QVector<Entry> entries;
};
