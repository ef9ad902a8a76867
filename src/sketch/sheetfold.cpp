#include "sketch/sheetfold.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double lean = 6; // of a crease to either side, in pixels

QVector<SheetFold::Panel> panelsOf(SheetSketch::Fold fold, double height)
{
    using Fold = SheetSketch::Fold;
    const double half = std::round(height / 2);
    const double third = std::round(height / 3);
    switch (fold) {
    case Fold::Half:
        return {{0, half, lean, -lean}, {half, height, -lean, lean}};
    case Fold::Inward:
        return {{0, third, lean, -lean},
                {third, 2 * third, -lean, -lean},
                {2 * third, height, -lean, lean}};
    case Fold::Zigzag:
        return {{0, third, -lean, lean},
                {third, 2 * third, lean, -lean},
                {2 * third, height, -lean, lean}};
    case Fold::Thirds:
        return {{0, third, 0, 0}, {third, 2 * third, 0, 0}, {2 * third, height, 0, 0}};
    case Fold::None:
        break;
    }
    return {{0, height, 0, 0}};
}

} // namespace

SheetFold::SheetFold(SheetSketch::Fold fold, const QSizeF &size)
    : panels_(panelsOf(fold, size.height()))
    , isStraight(std::all_of(panels_.cbegin(), panels_.cend(), [](const Panel &panel) {
        return panel.topShift == 0 && panel.bottomShift == 0;
    }))
{
}

QPointF SheetFold::map(const QPointF &point) const
{
    const auto below = std::find_if(panels_.cbegin(), panels_.cend() - 1,
                                    [&](const Panel &panel) { return point.y() <= panel.bottom; });
    const double slope = (below->bottomShift - below->topShift) / (below->bottom - below->top);
    return {point.x() + below->topShift + slope * (point.y() - below->top), point.y()};
}

QPainterPath SheetFold::map(const QPainterPath &path) const
{
    if (isStraight)
        return path;
    QPainterPath folded;
    folded.setFillRule(path.fillRule());
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            folded.moveTo(map(QPointF(element)));
        } else if (element.isLineTo()) {
            addLine(&folded, path.elementAt(i - 1), element);
        } else {
            folded.cubicTo(map(QPointF(element)), map(QPointF(path.elementAt(i + 1))),
                           map(QPointF(path.elementAt(i + 2))));
            i += 2;
        }
    }
    return folded;
}

void SheetFold::addLine(QPainterPath *path, const QPointF &from, const QPointF &to) const
{
    const bool isDown = from.y() < to.y();
    for (int i = 1; i < panels_.size(); ++i) {
        const double crease = panels_[isDown ? i : panels_.size() - i].top;
        if ((crease - from.y()) * (crease - to.y()) < 0) {
            const double part = (crease - from.y()) / (to.y() - from.y());
            path->lineTo(map(from + part * (to - from)));
        }
    }
    path->lineTo(map(to));
}
