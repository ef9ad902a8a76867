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

/// Where the drawing lies in a column whose upper part, down to `top`, is taken: always as far from
/// the lower edge, so that it stays in its place whatever lies above. An empty rectangle where
/// there is too little room to tell anything. All in pixels.
QRect sheetPlace(const QSize &column, int top);

/// Draws sheets into a rectangle of a dark ground, centred and no bigger than it takes, in the
/// colours of the panel's icons: what has moved in the accent colour, and dashed what `before` had
/// and is gone. Says where each part is, in the painter's coordinates.
QVector<SheetArea> paintSheets(QPainter *painter, const QRectF &rect, const SheetSketch &sketch,
                               const SheetSketch &before);
