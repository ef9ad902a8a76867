#pragma once

#include "sketch/sheetsketch.h"

#include <QPainterPath>
#include <QVector>

class QPainter;

/// Where a part is in a drawing. What was drawn later lies above.
struct SheetArea
{
    SheetPart part;
    QPainterPath shape;
};

/// Draws sheets into a rectangle of a dark ground, centred and no bigger than it takes, in the
/// colours of the panel's icons: what has moved in the accent colour, and dashed what `before` had
/// and is gone. Says where each part is, in the painter's coordinates.
QVector<SheetArea> paintSheets(QPainter *painter, const QRectF &rect, const SheetSketch &sketch,
                               const SheetSketch &before);
