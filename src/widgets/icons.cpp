#include "widgets/icons.h"

#include <QCoreApplication>
#include <QHash>

QIcon Icons::icon(const QString &path)
{
    // Copies of an icon share its pixmaps. A new icon would ask the MIME database what the file
    // holds, and read it again.
    static QHash<QString, QIcon> icons;
    if (icons.isEmpty())
        qAddPostRoutine([] { icons.clear(); }); // pixmaps must not outlive the application
    auto known = icons.find(path);
    if (known == icons.end())
        known = icons.insert(path, QIcon(path));
    return *known;
}
