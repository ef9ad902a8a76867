#pragma once

#include <QColor>

/// The palette of the panel's icons, see resources/icons/STYLE.md.
namespace SheetColors {

inline const QColor ink(0x2b, 0x34, 0x40);
inline const QColor back(0xb9, 0xd5, 0xf2); ///< of a sheet
inline const QColor line(0x89, 0x95, 0xa3);
inline const QColor frame(0xc3, 0xcc, 0xd6);
inline const QColor accent(0x2a, 0x82, 0xda);
inline const QColor accentGround(0xd6, 0xe8, 0xfb);

} // namespace SheetColors
