#pragma once

#include <QCoreApplication>

/// The values of the colour adjustment.
namespace AdjustmentRows {

/// What happens to the other rows when one changes.
enum Kind : unsigned
{
    Master = 1, ///< turns all hues at once
    Hue = 2,    ///< one of six
    Tone = 4,
    Level = 8 ///< colour balance
};

struct ValueRow
{
    const char *key;
    Kind kind;
    int gridRow;      ///< the hues share one place
    const char *text; ///< of a level, the colour at its left end
    const char *rightText = nullptr;
};

// In the order in which the values are loaded, shown and stored.
constexpr ValueRow valueRows[] = {
    {"CaHueMaster", Master, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Master")},
    {"CaHr", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Red")},
    {"CaHy", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Yellow")},
    {"CaHg", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Green")},
    {"CaHc", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Cyan")},
    {"CaHb", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Blue")},
    {"CaHm", Hue, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Magenta")},
    {"Cast", Tone, 4, QT_TRANSLATE_NOOP("adjustmentDialog", "Saturation")},
    {"Cabt", Tone, 6, QT_TRANSLATE_NOOP("adjustmentDialog", "Lightness")},
    {"Cact", Tone, 8, QT_TRANSLATE_NOOP("adjustmentDialog", "Contrast")},
    {"CaCR", Level, 0, QT_TRANSLATE_NOOP("adjustmentDialog", "Cyan"),
     QT_TRANSLATE_NOOP("adjustmentDialog", "Red")},
    {"CaMG", Level, 2, QT_TRANSLATE_NOOP("adjustmentDialog", "Magenta"),
     QT_TRANSLATE_NOOP("adjustmentDialog", "Green")},
    {"CaYB", Level, 4, QT_TRANSLATE_NOOP("adjustmentDialog", "Yellow"),
     QT_TRANSLATE_NOOP("adjustmentDialog", "Blue")},
};

inline QString keyOf(const ValueRow &row)
{
    return QLatin1String(row.key);
}

} // namespace AdjustmentRows
