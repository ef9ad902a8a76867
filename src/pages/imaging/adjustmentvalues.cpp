#include "pages/imaging/adjustmentvalues.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionstore.h"
#include "storage/settingsfile.h"

#include <cmath>

namespace AdjustmentValues {

QString exactKey(const QString &key)
{
    return QLatin1Char('f') + key;
}

bool isCustom(const QString &keyword)
{
    const bOption *option = currentOption(keyword);
    return option && option->currentKey() == Keys::yes;
}

void select(const QString &keyword, const QString &key)
{
    if (currentStore)
        currentStore->setCurrentByKey(keyword, key);
}

void selectSaved(const QString &keyword, const QString &otherwise)
{
    const QString saved = readSetting(keyword);
    select(keyword, saved.isEmpty() ? otherwise : saved);
}

double number(const QString &text)
{
    // "nan" and "inf" read as numbers too.
    const double value = text.toDouble();
    return std::isfinite(value) ? value : 0;
}

int sliderPosition(double value, int scale)
{
    constexpr double farthest = 1e9;
    // Binary fractions fall a hair short: 0.29 times 100 is 28.999999999999996. Without the nudge a
    // value would shrink each time it is loaded.
    constexpr double nudge = 1e-9;
    const double position = qBound(-farthest, value * scale, farthest);
    return int(position + std::copysign(nudge, position));
}

QString exactText(double value)
{
    return QString::number(value, 'g', 6);
}

QString exactText(int position, int scale)
{
    return exactText(double(position) / scale);
}

QString coarseText(int position, int scale, const char *tail)
{
    return QString::number(position / scale) + QLatin1String(tail);
}

} // namespace AdjustmentValues
