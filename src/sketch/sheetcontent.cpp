#include "sketch/sheetcontent.h"

#include "sketch/sheetcolors.h"

#include <QFont>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double pointsPerMillimetre = 72 / 25.4;
constexpr double reach = 4; // around what is small, for the pointer, in pixels

// Cyan, magenta and yellow as printed in colour and in gray.
constexpr QRgb inks[] = {0xff18a4d8, 0xffe0348b, 0xffffd21f};
constexpr QRgb grays[] = {0xff6b7683, 0xff4a5460, 0xffb4bdc7};
constexpr double bars[] = {0.55, 1, 0.75}; // of the height

// Letters are drawn big and made smaller, or they would stand on whole pixels. In pixels.
constexpr int drawnLetters = 100;

QFont fontOf(const QString &choice)
{
    QFont font;
    if (choice.startsWith(QLatin1String("Times"))) {
        font.setFamily(QStringLiteral("Times"));
        font.setStyleHint(QFont::Serif);
    } else if (choice.startsWith(QLatin1String("Courier"))) {
        font.setFamily(QStringLiteral("Courier"));
        font.setStyleHint(QFont::TypeWriter);
    } else {
        font.setFamily(QStringLiteral("Helvetica"));
        font.setStyleHint(QFont::SansSerif);
    }
    font.setBold(choice.contains(QLatin1String("Bold")));
    font.setPixelSize(drawnLetters);
    return font;
}

QPainterPath lettersOf(const SheetSketch::Watermark &mark)
{
    QPainterPath letters;
    if (!mark.text.isEmpty())
        letters.addText(QPointF(), fontOf(mark.font), mark.text);
    return letters;
}

QPainterPath around(const QLineF &line, double width)
{
    QPainterPath path(line.p1());
    path.lineTo(line.p2());
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(path);
}

} // namespace

SheetContent::SheetContent(QPainter *painter, double scale, const SheetSketch &sketch,
                           const SheetSketch &before, const SheetFold &fold,
                           QVector<SheetArea> *areas)
    : painter(painter)
    , scale(scale)
    , sketch(sketch)
    , before(before)
    , fold(fold)
    , letters(lettersOf(sketch.watermark))
    , areas(areas)
{
}

void SheetContent::addArea(SheetPart part, const QPainterPath &shape) const
{
    areas->append({part, painter->worldTransform().map(shape)});
}

QPainterPath SheetContent::placed(const QVector<QRectF> &rects, const QTransform &turn) const
{
    QPainterPath path;
    for (const QRectF &rect : rects)
        path.addRect(turn.mapRect(rect));
    return fold.map(path);
}

QColor SheetContent::color(SheetPart part, const QColor &usual) const
{
    return sketch.hasMoved(part) ? SheetColors::accent : usual;
}

// The page

void SheetContent::paintPage(const QRectF &page) const
{
    const QPointF middle = page.center() * 2;
    const QTransform turn =
        sketch.upsideDown ? QTransform(-1, 0, 0, -1, middle.x(), middle.y()) : QTransform();
    painter->setOpacity(sketch.pale ? 0.35 : 1);
    paintLines(page, turn);
    painter->setOpacity(1);
    paintWatermark(page, turn);
}

void SheetContent::paintLines(const QRectF &page, const QTransform &turn) const
{
    const double side = std::round(page.width() * 0.2);
    const QRectF text = page.adjusted(side, std::round(page.height() * 0.13), -side,
                                      -std::round(page.height() * 0.12));
    const QRectF heading(text.left(), text.top(), std::round(text.width() * 0.55), 4);
    const QRectF picture(text.left(), text.top() + 10, text.width(),
                         std::round(text.height() * 0.36));
    QVector<QRectF> lines;
    for (double y = picture.bottom() + 6; y + 2 <= text.bottom(); y += 6) {
        const bool isLast = y + 8 > text.bottom();
        lines.append(QRectF(text.left(), y, std::round(text.width() * (isLast ? 0.6 : 1)), 2));
    }
    painter->fillPath(placed({heading}, turn), color(SheetPart::Rotation, SheetColors::ink));
    painter->fillPath(placed(lines, turn), color(SheetPart::Rotation, SheetColors::line));
    if (sketch.upsideDown || sketch.hasMoved(SheetPart::Rotation)) {
        const QRectF whole(picture.bottomLeft() + QPointF(0, 3), text.bottomRight());
        addArea(SheetPart::Rotation, placed({whole}, turn));
    }
    paintPicture(picture, turn);
}

void SheetContent::paintPicture(const QRectF &place, const QTransform &turn) const
{
    const double width = std::floor(place.width() / 3 - 2);
    for (int i = 0; i < 3; ++i) {
        const double height = std::round((place.height() - 4) * bars[i]);
        const QRectF bar(place.left() + 1 + i * (width + 2), place.bottom() - 1 - height, width,
                         height);
        painter->fillPath(placed({bar}, turn), QColor(sketch.color ? inks[i] : grays[i]));
    }
    const QRectF ground(place.left(), place.bottom() - 1, place.width(), 1);
    painter->fillPath(placed({ground}, turn), color(SheetPart::Content, SheetColors::frame));
    if (sketch.hasMoved(SheetPart::Content))
        painter->strokePath(placed({place.adjusted(-1.5, 0.5, 1.5, 1.5)}, turn),
                            QPen(SheetColors::accent, 1));
    addArea(SheetPart::Content, placed({place}, turn));
}

void SheetContent::paintWatermark(const QRectF &page, const QTransform &turn) const
{
    const SheetSketch::Watermark &mark = sketch.watermark;
    if (mark.text.isEmpty())
        return;
    const double factor = mark.size / pointsPerMillimetre * scale / drawnLetters;
    const QRectF bounds = letters.boundingRect();
    QTransform place;
    place.translate(page.center().x(), page.center().y());
    place.rotate(-mark.angle);
    place.scale(factor, factor);
    place.translate(-bounds.center().x(), -bounds.center().y());
    place *= turn;
    const QPainterPath text = fold.map(place.map(letters));
    const QPainterPath sheet = placed({page}, QTransform());

    painter->save();
    if (!sheet.boundingRect().contains(text.boundingRect()))
        painter->setClipPath(sheet, Qt::IntersectClip);
    QColor ink = color(SheetPart::Watermark, mark.color);
    ink.setAlphaF(mark.opaque ? 1 : 0.7);
    if (mark.outline)
        painter->strokePath(text, QPen(ink, 0.75));
    else
        painter->fillPath(text, ink);
    painter->restore();

    QPainterPath strip;
    strip.addRect(bounds);
    addArea(SheetPart::Watermark, fold.map(place.map(strip)).intersected(sheet));
}

// The edges

void SheetContent::paintStaple(const QLineF &staple, bool isGone) const
{
    const QPainterPath shape = fold.map(around(staple, 3));
    if (isGone) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(SheetColors::accent, 1));
    } else {
        painter->setBrush(color(SheetPart::Staple, SheetColors::ink));
        painter->setPen(Qt::NoPen);
    }
    painter->drawPath(shape);
    addArea(SheetPart::Staple, fold.map(around(staple, 3 + 2 * reach)));
}

void SheetContent::paintHole(const QPointF &place, bool isGone) const
{
    const QPointF middle = fold.map(place);
    if (isGone) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(SheetColors::accent, 1));
    } else {
        painter->setBrush(color(SheetPart::Holes, QColor(0x6a, 0x71, 0x7a)));
        painter->setPen(QPen(color(SheetPart::Holes, SheetColors::ink), 1));
    }
    painter->drawEllipse(middle, 3, 3);
    QPainterPath area;
    area.addEllipse(middle, 3 + reach, 3 + reach);
    addArea(SheetPart::Holes, area);
}

void SheetContent::paintBinding(const QRectF &page, bool atRight) const
{
    const auto at = [&](double fromEdge, double y) {
        return QPointF(atRight ? page.right() - fromEdge : page.left() + fromEdge, y);
    };
    const bool holesGone = sketch.holes == 0 && sketch.hasMoved(SheetPart::Holes);
    const int holes = holesGone ? before.holes : sketch.holes;
    for (int i = 0; i < holes; ++i) {
        // Two holes are as far apart as the middle ones of four.
        const double step = holes == 3 ? 0.34 : 0.25;
        paintHole(at(8, page.top() + page.height() * (0.5 + (i - (holes - 1) / 2.0) * step)),
                  holesGone);
    }

    using Staple = SheetSketch::Staple;
    const bool isGone = sketch.staple == Staple::None && sketch.hasMoved(SheetPart::Staple);
    const Staple staple = isGone ? before.staple : sketch.staple;
    if (staple == Staple::Rear)
        paintStaple({at(5, page.top() + 12), at(12, page.top() + 5)}, isGone);
    else if (staple == Staple::Front)
        paintStaple({at(5, page.bottom() - 12), at(12, page.bottom() - 5)}, isGone);
    for (const double y : {0.25, 0.75}) {
        const double middle = page.top() + std::round(page.height() * y);
        if (staple == Staple::Center)
            paintStaple({at(6, middle - 5), at(6, middle + 5)}, isGone);
    }
    if (staple == Staple::Stitch)
        paintStitches({page.left(), page.center().y(), page.right(), page.center().y()});
}

void SheetContent::paintStitches(const QLineF &fold) const
{
    const bool isGone = sketch.staple != SheetSketch::Staple::Stitch;
    const double half = 5 / fold.length();
    for (const double place : {0.3, 0.7})
        paintStaple({fold.pointAt(place - half), fold.pointAt(place + half)}, isGone);
}
