#pragma once

#include "pages/watermark/watermarkrecords.h"

#include <QCoreApplication>
#include <QLatin1String>

/// Keywords, names and texts of the widgets of the page "Watermark".
namespace WatermarkRows {

inline const QLatin1String switchKeyword("Wren");
inline const QLatin1String textKeyword("Wtxt");
inline const QLatin1String colorKeyword("Wclr");
inline const QLatin1String repeatKeyword("Wflg");
inline const QLatin1String superKeyword("BXSuperWatermark");
inline const QLatin1String colorModelKeyword("ColorModel");

struct FeatureRow
{
    const char *keyword;
    const char *labelName;
    const char *boxName;
    const char *label;
    int usual; // position of what every text but a custom one starts with
};

// By Watermark::Feature.
constexpr FeatureRow featureRows[] = {
    {"Wfnt", "lblWFnt", "cmbBxWFnt", QT_TRANSLATE_NOOP("WatermarkTab", "Font"), 0},
    {"Wsze", "lblWSze", "cmbBxWsze", QT_TRANSLATE_NOOP("WatermarkTab", "Size"), 8},
    {"Wclr", "lblWClr", "cmbBxClr", QT_TRANSLATE_NOOP("WatermarkTab", "Color"), 3},
    {"Wang", "lblWang", "cmbBxWang", QT_TRANSLATE_NOOP("WatermarkTab", "Angle"), 23},
    {"Wtrans", "lblWtrans", "cmbBxWtrans", QT_TRANSLATE_NOOP("WatermarkTab", "Style"), 0},
    {"Wtyp", "lblWtyp", "cmbBxWtyp", QT_TRANSLATE_NOOP("WatermarkTab", "Fill"), 0},
};

// What conflicts with printing in gray.
constexpr const char *chromaticColors[] = {"Red", "Green", "Blue"};

// What tells a super watermark from "none", as part of the saved value.
constexpr const char *superKinds[] = {"UF", "SF"};

/// What every text but a custom one comes up with.
inline Watermark::Look usualLook()
{
    Watermark::Look look{};
    for (int i = 0; i < Watermark::Repeat; ++i)
        look[i] = featureRows[i].usual;
    return look;
}

} // namespace WatermarkRows
