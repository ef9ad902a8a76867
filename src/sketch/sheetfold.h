#pragma once

#include "sketch/sheetsketch.h"

#include <QPainterPath>
#include <QVector>

/// How a folded sheet lies: its creases run across it, and each panel between them leans to a side.
///
/// Maps what is drawn for the flat sheet, whose upper left corner is the origin.
class SheetFold
{
public:
    /// A stretch of the sheet between two creases: its upper and lower edge, and how far each is
    /// moved to the right.
    struct Panel
    {
        double top, bottom;
        double topShift, bottomShift;
    };

    SheetFold(SheetSketch::Fold fold, const QSizeF &size);

    /// From top to bottom; a single one for a sheet that isn't folded.
    const QVector<Panel> &panels() const { return panels_; }
    /// What lies beyond the sheet goes on with its outer panels.
    QPointF map(const QPointF &point) const;
    /// Lines break at the creases.
    QPainterPath map(const QPainterPath &path) const;

private:
    void addLine(QPainterPath *path, const QPointF &from, const QPointF &to) const;

    QVector<Panel> panels_;
    bool isStraight; ///< no panel leans
};
