#include "sketch/sheetcolors.h"
#include "sketch/sheetdrawing.h"

#include <QPainter>

#include <cmath>

// What lies below and beside the front sheet, and what a booklet looks like.

namespace {

// In pixels.
constexpr QPointF nextSheet(5, -5); // how far a sheet behind another one peeps out
constexpr double flap = 13;
constexpr QSizeF setPage(11, 14);

} // namespace

// Copies

void SheetDrawing::paintSets(const QPointF &center)
{
    constexpr int order[][6] = {{1, 1, 2, 2, 3, 3}, {1, 2, 3, 1, 2, 3}};
    const bool bySet = sketch.collation == SheetSketch::Collation::SetBySet;
    const int together = bySet ? 3 : 2;
    constexpr double gap = 2;
    constexpr double wideGap = 7;
    const int sets = 6 / together;
    const double width = 6 * (setPage.width() + gap) - gap + (sets - 1) * (wideGap - gap);
    QPointF corner(std::round(center.x() - width / 2),
                   std::round(center.y() - setPage.height() / 2));
    QPainterPath area;
    area.addRect(QRectF(corner, QSizeF(width, setPage.height())));
    QFont font;
    font.setPixelSize(9);
    painter->setFont(font);
    const QColor ink =
        sketch.hasMoved(SheetPart::Collation) ? SheetColors::accent : SheetColors::ink;
    for (int i = 0; i < 6; ++i) {
        const QRectF sheet(corner, setPage);
        painter->setPen(outline(SheetPart::Collation));
        painter->setBrush(Qt::white);
        painter->drawRect(sheet.adjusted(0.5, 0.5, -0.5, -0.5));
        painter->setPen(ink);
        painter->drawText(sheet, Qt::AlignCenter, QString::number(order[bySet ? 1 : 0][i]));
        corner.rx() += setPage.width() + ((i + 1) % together == 0 ? wideGap : gap);
    }
    content.addArea(SheetPart::Collation, area);
}

void SheetDrawing::paintStacks()
{
    using Separation = SheetSketch::Separation;
    const bool gone = isGone(SheetPart::Separation, sketch.separation != Separation::None,
                             before.separation != Separation::None);
    const Separation separation = gone ? before.separation : sketch.separation;
    const QColor color = SheetColors::frame;
    if (separation == Separation::Offset) {
        fillSheet(SheetPart::Separation, color, {0, 12}, gone);
        fillSheet(SheetPart::Separation, color, {12, 6}, gone);
    } else if (separation == Separation::Crosswise) {
        QPainterPath across;
        QRectF turned(QPointF(), size.transposed());
        turned.moveCenter(page.center() + QPointF(0, 3));
        across.addRect(QRectF(turned.toRect()).adjusted(0.5, 0.5, -0.5, -0.5));
        fill(across, SheetPart::Separation, color, gone);
    }
}

// Other sheets, and the other side

void SheetDrawing::paintBehind()
{
    struct Layer
    {
        SheetPart part;
        QColor color;
        bool gone;
    };
    QVector<Layer> layers; // from front to back
    const bool backingGone = isGone(SheetPart::Backing, sketch.backing, before.backing);
    if (sketch.backing || backingGone)
        layers.append({SheetPart::Backing, sketch.backingTint, backingGone});
    const bool insertGone = isGone(SheetPart::Insert, sketch.insert, before.insert);
    if (sketch.insert || insertGone) {
        layers.append({SheetPart::Insert, sketch.insertTint, insertGone});
        layers.append({SheetPart::Paper, sketch.tint, false});
    }
    if (sketch.backCover)
        layers.append({SheetPart::Cover, sketch.coverTint, false});
    for (int i = layers.size(); i > 0; --i) {
        const Layer &layer = layers[i - 1];
        // A sheet that is put in looks like one, whatever it is made of.
        const bool isOther = layer.part != SheetPart::Paper;
        fillSheet(layer.part, isOther ? layer.color.darker(112) : layer.color, nextSheet * i,
                  layer.gone);
    }
}

void SheetDrawing::paintBackSide()
{
    using Edge = SheetSketch::Edge;
    const bool gone =
        isGone(SheetPart::BackSide, sketch.backSide != Edge::None, before.backSide != Edge::None);
    const Edge edge = gone ? before.backSide : sketch.backSide;
    if (edge == Edge::None)
        return;
    const QPointF away = edge == Edge::Long ? QPointF(flap, flap / 2) : QPointF(flap / 2, flap);
    const QLineF hinge = edge == Edge::Long ? QLineF(page.topRight(), page.bottomRight())
                                            : QLineF(page.bottomLeft(), page.bottomRight());
    QPainterPath shape(hinge.p1());
    shape.lineTo(hinge.p1() + away);
    shape.lineTo(hinge.p2() + away);
    shape.lineTo(hinge.p2());
    shape.closeSubpath();
    shape.translate(-0.5, -0.5);
    const bool moved = sketch.hasMoved(SheetPart::BackSide);
    fill(fold.map(shape), SheetPart::BackSide,
         moved ? SheetColors::accentGround : SheetColors::back, gone);
}

void SheetDrawing::paintCover()
{
    const bool gone = isGone(SheetPart::Cover, sketch.cover, before.cover);
    if (!sketch.cover && !gone)
        return;
    // Swung open, so that what is behind it shows.
    const bool atRight = sketch.booklet == SheetSketch::Binding::Right;
    const double hinge = atRight ? page.right() - 0.5 : 0.5;
    const double out = atRight ? flap + 3 : -flap - 3;
    const double up = -(flap + 3) / 2;
    const double h = size.height() - 1;
    QPainterPath leaf(QPointF(hinge, 0.5));
    leaf.lineTo(hinge + out, 0.5 + up);
    leaf.lineTo(hinge + out, h + 0.5 + up);
    leaf.lineTo(hinge, h + 0.5);
    leaf.closeSubpath();
    fill(fold.map(leaf), SheetPart::Cover, sketch.coverTint.darker(112), gone);
    if (!sketch.coverPrinted || gone)
        return;
    QPainterPath lines;
    const int count = int(h * 0.6 / 8);
    for (int i = 0; i <= count; ++i) {
        const double y = h * 0.2 + 8 * i;
        lines.moveTo(hinge + out * 0.2, y + up * 0.2);
        lines.lineTo(hinge + out * 0.8, y + up * 0.8);
    }
    painter->strokePath(fold.map(lines), QPen(SheetColors::line, 2));
}

// A booklet

void SheetDrawing::paintBooklet()
{
    const bool atRight = sketch.booklet == SheetSketch::Binding::Right;
    const double out = atRight ? -2 : 2;
    for (int behind = 4; behind > 0; --behind)
        fillSheet(SheetPart::Paper, behind % 2 == 0 ? SheetColors::back : sketch.tint,
                  {out * behind, 0});
    fillSheet(SheetPart::Booklet, sketch.tint);
    content.paintPage(page);
    const double spine = 7;
    const QRectF back(atRight ? size.width() - spine : 0, 0, spine, size.height());
    QPainterPath shape;
    shape.addRect(back.adjusted(0.5, 0.5, -0.5, -0.5));
    const bool moved = sketch.hasMoved(SheetPart::Booklet);
    fill(shape, SheetPart::Booklet, moved ? SheetColors::accentGround : SheetColors::back);
    const double middle = back.center().x();
    if (sketch.staple == SheetSketch::Staple::Stitch)
        content.paintStitches({middle, 0, middle, size.height()});
    else
        content.paintBinding(page, atRight);
}

void SheetDrawing::paintBookletPages()
{
    // The outer side of the outermost sheet: the first page and the last one.
    const double half = std::round(size.width() / 2);
    QRectF left(0, 0, half, size.height());
    QRectF right(half, 0, size.width() - half, size.height());
    const bool firstAtRight = sketch.booklet == SheetSketch::Binding::Left;
    content.paintPage(firstAtRight ? right : left);
    painter->setPen(outline(SheetPart::Booklet));
    const QLineF middle(half + 0.5, 1, half + 0.5, size.height() - 1);
    painter->drawLine(middle);
    QPainterPath area;
    area.addRect(firstAtRight ? left : right);
    content.addArea(SheetPart::Booklet, area);
    if (sketch.staple == SheetSketch::Staple::Stitch)
        content.paintStitches(middle);
}
