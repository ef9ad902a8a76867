#pragma once

#include "sketch/sheetpainter.h"

/// Draws what stands on one sheet, and what is done to it at its edges. The origin is the upper
/// left corner of the sheet.
class SheetContent
{
public:
    /// `scale` is in pixels per millimetre; all else is borrowed. Parts that it draws are added to
    /// `areas`, within `clip` alone.
    SheetContent(QPainter *painter, double scale, const SheetSketch &sketch,
                 const SheetSketch &before, QVector<SheetArea> *areas);

    /// Text and picture of a page, with its watermark.
    void paintPage(const QRectF &page) const;
    /// Staples and holes along the edge that is bound.
    void paintBinding(const QRectF &page, bool atRight) const;
    /// Two staples across a fold.
    void paintStitches(const QLineF &fold) const;

    /// Of an area that nothing else may be in; a null one for everywhere.
    void setClip(const QRectF &rect) { clip = rect; }
    void addArea(SheetPart part, const QPainterPath &shape) const;

private:
    QColor color(SheetPart part, const QColor &usual) const;
    void paintLines(const QRectF &page) const;
    void paintPicture(const QRectF &place) const;
    void paintWatermark(const QRectF &page) const;
    void paintStaple(const QLineF &staple, bool isGone) const;
    void paintHole(const QPointF &middle, bool isGone) const;

    QPainter *const painter;
    const double scale;
    const SheetSketch &sketch;
    const SheetSketch &before;
    QVector<SheetArea> *const areas;
    QRectF clip;
};
