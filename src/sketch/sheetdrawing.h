#pragma once

#include "sketch/sheetcontent.h"

#include <QPen>

#include <functional>

/// A stretch of a folded sheet between two creases: its upper and lower edge, and how far each is
/// moved to the right.
struct Panel
{
    double top, bottom;
    double topShift, bottomShift;
};

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
        , content(painter, contentScale(), sketch, before, &areas)
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
    void fill(const QPainterPath &shape, SheetPart part, const QColor &color, bool gone = false);
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
    QVector<Panel> panels(Fold fold) const;
    void paintCreases();
    /// Draws what is flat as it lies on the folded sheet, a panel after the other.
    void paintPanels(const std::function<void()> &flat);

    QPainter *const painter;
    const SheetSketch &sketch;
    const SheetSketch &before;
    const QSizeF size;
    const QRectF page;
    QVector<SheetArea> areas;
    SheetContent content;
};
