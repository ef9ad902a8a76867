#pragma once

#include "sketch/sheetfold.h"
#include "sketch/sheetpainter.h"

#include <QTransform>

/// Draws what stands on one sheet, and what is done to it at its edges. The origin is the upper
/// left corner of the sheet.
class SheetContent
{
public:
    /// `scale` is in pixels per millimetre; all else is borrowed. Parts that it draws are added to
    /// `areas`.
    SheetContent(QPainter *painter, double scale, const SheetSketch &sketch,
                 const SheetSketch &before, const SheetFold &fold, QVector<SheetArea> *areas);

    /// Text and picture of a page, with its watermark.
    void paintPage(const QRectF &page) const;
    /// Staples and holes along the edge that is bound.
    void paintBinding(const QRectF &page, bool atRight) const;
    /// Two staples across a fold.
    void paintStitches(const QLineF &fold) const;

    /// Notes where a part is that has been drawn.
    void addArea(SheetPart part, const QPainterPath &shape) const;

private:
    QColor color(SheetPart part, const QColor &usual) const;
    void paintLines(const QRectF &page, const QTransform &turn) const;
    void paintPicture(const QRectF &place, const QTransform &turn) const;
    void paintWatermark(const QRectF &page, const QTransform &turn) const;
    /// Where these stand on the folded sheet.
    QPainterPath placed(const QVector<QRectF> &rects, const QTransform &turn) const;
    void paintStaple(const QLineF &staple, bool isGone) const;
    void paintHole(const QPointF &place, bool isGone) const;

    QPainter *const painter;
    const double scale;
    const SheetSketch &sketch;
    const SheetSketch &before;
    const SheetFold &fold;
    const QPainterPath letters; ///< of the watermark
    QVector<SheetArea> *const areas;
};
