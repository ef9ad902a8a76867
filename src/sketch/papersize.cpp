#include "sketch/papersize.h"

#include "desktop/pagesetuptable.h"

#include <QString>

namespace {

/// "Width=210" of a page setup.
double length(const QString &setup, const QString &name)
{
    const QString key = QLatin1Char('\n') + name + QLatin1Char('=');
    const int at = setup.indexOf(key);
    return at < 0 ? 0 : setup.mid(at + key.size()).section(QLatin1Char('\n'), 0, 0).toDouble();
}

} // namespace

QSizeF paperSize(const QString &pageSize)
{
    if (pageSize == QLatin1String("Postcard")) // which gedit has no page setup for
        return {100, 148};
    const QString setup = pageSetupTable.value(pageSize);
    return {length(setup, QStringLiteral("Width")), length(setup, QStringLiteral("Height"))};
}
