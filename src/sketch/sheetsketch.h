#pragma once

#include <QColor>
#include <QHash>
#include <QSizeF>
#include <QString>
#include <QStringList>

class OptionStore;

/// What of a drawn sheet is set somewhere on the pages.
enum class SheetPart
{
    Paper,
    Content, ///< in colour or not, pale or not
    BackSide,
    Booklet,
    Fold,
    Staple,
    Holes,
    Rotation,
    Watermark,
    Cover,
    Insert,
    Backing,
    Separation,
    Collation
};

/// The printed sheets of a job as settings make them, as far as a drawing can show it.
///
/// Every part that isn't set, or has a value that is unknown here, is left out: what stands here is
/// never wrong. Equal sketches look the same.
struct SheetSketch
{
    enum class Edge
    {
        None,
        Long,
        Short
    };
    enum class Binding
    {
        None,
        Left,
        Right
    };
    enum class Fold
    {
        None,
        Half,
        Thirds, ///< in three, whichever way
        Inward, ///< in three, both ends to one side
        Zigzag
    };
    enum class Staple
    {
        None,
        Front,  ///< in the lower corner of the edge that is bound
        Rear,   ///< in the upper one
        Center, ///< two along that edge
        Stitch  ///< two where the sheets are folded
    };
    enum class Separation
    {
        None,
        Offset,
        Crosswise
    };
    enum class Collation
    {
        None, ///< the printer leaves no choice
        PageByPage,
        SetBySet
    };
    struct Watermark
    {
        QString text;     ///< empty for none
        QString font;     ///< the PPD's choice
        double size = 0;  ///< in points
        double angle = 0; ///< in degrees, counterclockwise
        QColor color;
        bool outline = false;
        bool opaque = false;

        bool operator==(const Watermark &other) const;
    };

    QSizeF paper; ///< in millimetres, the short edge first
    QColor tint;
    bool seeThrough = false;
    bool color = false;
    bool pale = false;
    bool upsideDown = false;
    Edge backSide = Edge::None;
    Binding booklet = Binding::None;
    bool flatBooklet = false; ///< two pages a side, but nobody folds the sheets
    Fold fold = Fold::None;
    Staple staple = Staple::None;
    int holes = 0;
    Watermark watermark;
    bool cover = false;
    bool coverPrinted = false; ///< on the inside of the front, which shows
    bool backCover = false;
    QColor coverTint;
    bool insert = false;
    QColor insertTint;
    bool backing = false;
    QColor backingTint;
    Separation separation = Separation::None;
    Collation collation = Collation::None;
    quint32 moved = 0; ///< bits by SheetPart: what the panel changed by itself

    bool hasMoved(SheetPart part) const { return moved >> int(part) & 1; }
    bool operator==(const SheetSketch &other) const;
    bool operator!=(const SheetSketch &other) const { return !(*this == other); }
};

/// What pages hold that is no option's value.
struct SheetPages
{
    QString watermark; ///< the text that the list of texts shows
    QStringList modes; ///< the keywords of what is switched on of cover, inserts and interleaving
};

/// Draws up what the selected values make. The keys in `instead`, by keyword, stand in for values
/// of the store and the pages.
SheetSketch sheetSketch(const OptionStore &store, const SheetPages &pages,
                        const QHash<QString, QString> &instead = {});

/// The keywords of a part: what says most about it comes first.
QStringList sheetKeywords(SheetPart part);
/// The parts of these keywords, as bits; keywords of no part are passed over.
quint32 sheetParts(const QStringList &keywords);
