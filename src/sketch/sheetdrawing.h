#pragma once

#include "sketch/sheetcontent.h"
#include "sketch/sheetfold.h"

#include <QPen>

/// One drawing of sheets, see paintSheets(): the front sheet, and what lies below and beside it.
///
/// Once paint() has placed them, the origin is the upper left corner of the front sheet.
class SheetDrawing
{
public:
    SheetDrawing(QPainter *painter, const SheetSketch &sketch, const SheetSketch &before)
        : painter(painter)
        , sketch(sketch)
        , before(before)
        , size(sheetSize())
        , page(QPointF(), size)
        , fold(sketch.fold, size)
        , content(painter, contentScale(), sketch, before, fold, &areas)
    {
    }

    /// To be called once.
    QVector<SheetArea> paint(const QRectF &rect);

private:
    using Fold = SheetSketch::Fold;

    double pixelsPerMillimetre() const;
    /// Of what is printed, which a booklet makes smaller.
    double contentScale() const;
    QSizeF sheetSize() const;
    bool isFoldedBooklet() const { return isBooklet() && !sketch.flatBooklet; }
    bool isBooklet() const { return sketch.booklet != SheetSketch::Binding::None; }
    /// Whether a part is to be drawn as what the panel has taken away.
    bool isGone(SheetPart part, bool now, bool then) const
    {
        return !now && then && sketch.hasMoved(part);
    }
    QPen outline(SheetPart part, bool gone = false) const;
    /// Draws a part where it lies.
    void fill(const QPainterPath &shape, SheetPart part, const QColor &color, bool gone = false);
    /// Draws a sheet, folded as all are, so far from the front one.
    void fillSheet(SheetPart part, const QColor &color, const QPointF &at = {}, bool gone = false);

    void paintSets(const QPointF &center);
    void paintStacks();
    void paintBehind();
    void paintBackSide();
    void paintFront();
    void paintFlat();
    void paintCover();
    void paintBooklet();
    void paintBookletPages();
    void paintCreases();

    QPainter *const painter;
    const SheetSketch &sketch;
    const SheetSketch &before;
    const QSizeF size;
    const QRectF page;
    const SheetFold fold;
    QVector<SheetArea> areas;
    SheetContent content;
};
