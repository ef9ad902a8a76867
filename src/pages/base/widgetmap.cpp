#include "pages/base/widgetmap.h"

#include <QWidget>

QString WidgetMap::key(const QObject *widget, const QString &otherwise) const
{
    for (const Entry &entry : entries) {
        if (entry.second == widget)
            return entry.first;
    }
    return otherwise;
}
