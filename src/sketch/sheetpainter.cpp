#include "sketch/sheetpainter.h"

#include "sketch/sheetcolors.h"
#include "sketch/sheetdrawing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// In pixels.
constexpr int usualHeight = 200;
constexpr int leastHeight = 120;
constexpr QSizeF whole(160, 190); // what the biggest drawing takes
constexpr double longestEdge = 130;
constexpr double biggestPaper = 420; // in millimetres: A3, from which on all are drawn as long
constexpr double bookletZoom = 1.25; // of the folded sheet, or it would look lost
constexpr double setRow = 24;        // the room for collation

const QColor ghost(0xd6, 0xe8, 0xfb, 80);
const QColor shade(0x2b, 0x34, 0x40, 22); // on every other panel of a folded sheet

} // namespace

// Measures

double SheetDrawing::pixelsPerMillimetre() const
{
    // Small papers are drawn smaller, but not so much that nothing could be told on them.
    const double length = std::min(sketch.paper.height(), biggestPaper);
    return longestEdge * std::pow(length / biggestPaper, 0.35) / sketch.paper.height();
}

double SheetDrawing::contentScale() const
{
    const double onSheet = isBooklet() ? M_SQRT1_2 : 1;
    return pixelsPerMillimetre() * onSheet * (isFoldedBooklet() ? bookletZoom : 1);
}

QSizeF SheetDrawing::sheetSize() const
{
    const double scale = pixelsPerMillimetre();
    QSizeF sheet = sketch.paper * scale;
    if (isFoldedBooklet())
        sheet = QSizeF(sketch.paper.height() / 2, sketch.paper.width()) * scale * bookletZoom;
    else if (isBooklet())
        sheet.transpose();
    return {std::round(sheet.width()), std::round(sheet.height())};
}

QVector<SheetArea> SheetDrawing::paint(const QRectF &rect)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const double shrink =
        std::min({1.0, rect.width() / whole.width(), rect.height() / whole.height()});
    painter->translate(rect.center().toPoint());
    painter->scale(shrink, shrink);
    const bool hasSets = sketch.collation != SheetSketch::Collation::None;
    if (hasSets)
        paintSets({0, whole.height() / 2 - setRow / 2});
    painter->translate(std::round(-size.width() / 2),
                       std::round(-size.height() / 2 - (hasSets ? setRow / 2 : 0)) + 2);
    paintStacks();
    if (isFoldedBooklet()) {
        paintBooklet();
    } else {
        paintBehind();
        paintBackSide();
        paintFront();
        paintCreases();
    }
    paintCover();
    painter->restore();
    return areas;
}

// Shapes

QPen SheetDrawing::outline(SheetPart part, bool gone) const
{
    QPen pen(sketch.hasMoved(part) ? SheetColors::accent : SheetColors::ink,
             sketch.hasMoved(part) && !gone ? 2 : 1);
    pen.setJoinStyle(Qt::MiterJoin);
    if (gone)
        pen.setDashPattern({3, 2});
    return pen;
}

void SheetDrawing::fill(const QPainterPath &shape, SheetPart part, const QColor &color, bool gone)
{
    painter->setPen(outline(part, gone));
    painter->setBrush(gone ? ghost : color);
    painter->drawPath(shape);
    content.addArea(part, shape);
}

void SheetDrawing::fillSheet(SheetPart part, const QColor &color, const QPointF &at, bool gone)
{
    QPainterPath sheet;
    sheet.addRect(page.adjusted(0.5, 0.5, -0.5, -0.5));
    fill(fold.map(sheet).translated(at), part, color, gone);
}

// One sheet and those that lie below it

void SheetDrawing::paintFront()
{
    QColor paper = sketch.tint;
    if (sketch.seeThrough)
        paper.setAlphaF(0.6);
    fillSheet(SheetPart::Paper, paper);
    if (sketch.seeThrough) {
        const double w = size.width();
        QPainterPath gleam;
        gleam.addPolygon(QPolygonF({{w * 0.55, 1},
                                    {w * 0.8, 1},
                                    {1 + w * 0.25, size.height() - 1},
                                    {1, size.height() - 1}}));
        painter->fillPath(fold.map(gleam), QColor(255, 255, 255, 90));
    }
    paintFlat();
}

void SheetDrawing::paintFlat()
{
    if (isBooklet()) {
        paintBookletPages();
        return;
    }
    content.paintPage(page);
    content.paintBinding(page, false);
}

void SheetDrawing::paintCreases()
{
    const bool gone = isGone(SheetPart::Fold, sketch.fold != Fold::None, before.fold != Fold::None);
    const QVector<SheetFold::Panel> all =
        gone ? SheetFold(before.fold, size).panels() : fold.panels();
    painter->setPen(Qt::NoPen);
    painter->setBrush(shade);
    for (int i = 1; i < all.size() && !gone; i += 2) {
        const SheetFold::Panel &panel = all[i];
        const double w = size.width();
        painter->drawPolygon(QPolygonF({{panel.topShift, panel.top},
                                        {panel.topShift + w, panel.top},
                                        {panel.bottomShift + w, panel.bottom},
                                        {panel.bottomShift, panel.bottom}}));
    }
    for (int i = 1; i < all.size(); ++i) {
        const double shift = gone ? 0 : all[i].topShift;
        const QLineF crease(shift, all[i].top + 0.5, shift + size.width(), all[i].top + 0.5);
        QPen pen = outline(SheetPart::Fold);
        pen.setDashPattern({3, 2});
        painter->setPen(pen);
        painter->drawLine(crease);
        QPainterPath area;
        area.addRect(QRectF(crease.p1() - QPointF(0, 5), crease.p2() + QPointF(0, 5)));
        content.addArea(SheetPart::Fold, area);
    }
}

QRect sheetPlace(const QSize &column, int top)
{
    const int height = std::min(column.height() - top, usualHeight);
    if (height < leastHeight)
        return {};
    return {0, column.height() - height, column.width(), height};
}

QVector<SheetArea> paintSheets(QPainter *painter, const QRectF &rect, const SheetSketch &sketch,
                               const SheetSketch &before)
{
    return SheetDrawing(painter, sketch, before).paint(rect);
}
