#include "sketch/sheetsketch.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/imaging/leanprint.h"
#include "sketch/papersize.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

struct PartRow
{
    SheetPart part;
    const char *keyword;
};

constexpr PartRow partRows[] = {
    {SheetPart::Paper, "PageSize"},     {SheetPart::Paper, "MediaType"},
    {SheetPart::Content, "ColorModel"}, {SheetPart::Content, "Lnpr"},
    {SheetPart::BackSide, "Duplex"},    {SheetPart::Booklet, "BXBooklet"},
    {SheetPart::Booklet, "Fold"},       {SheetPart::Fold, "cTriFld"},
    {SheetPart::Fold, "cBiFld"},        {SheetPart::Fold, "FldC"},
    {SheetPart::Staple, "Stpl"},        {SheetPart::Staple, "cStpl"},
    {SheetPart::Holes, "Pnch"},         {SheetPart::Holes, "cHole"},
    {SheetPart::Rotation, "Rotate"},    {SheetPart::Watermark, "Wtxt"},
    {SheetPart::Watermark, "Wren"},     {SheetPart::Watermark, "Wclr"},
    {SheetPart::Watermark, "Wang"},     {SheetPart::Watermark, "Wsze"},
    {SheetPart::Cover, "cCovBut"},      {SheetPart::Cover, "CvrM"},
    {SheetPart::Insert, "cInsBut"},     {SheetPart::Insert, "Pmed"},
    {SheetPart::Backing, "cIntBut"},    {SheetPart::Backing, "Tmed"},
    {SheetPart::Separation, "Sep"},     {SheetPart::Collation, "Coll"},
};

template <typename Value>
struct KeyRow
{
    const char *key;
    Value value;
};

constexpr KeyRow<SheetSketch::Edge> edges[] = {
    {"DuplexNoTumble", SheetSketch::Edge::Long},
    {"DuplexTumble", SheetSketch::Edge::Short},
};
constexpr KeyRow<SheetSketch::Binding> bindings[] = {
    {"Left", SheetSketch::Binding::Left},
    {"Right", SheetSketch::Binding::Right},
};
constexpr KeyRow<SheetSketch::Fold> foldDirections[] = {
    {"CFold", SheetSketch::Fold::Inward},
    {"ZFold", SheetSketch::Fold::Zigzag},
};
// That of the built-in stapler is the printer's secret.
constexpr KeyRow<SheetSketch::Staple> staples[] = {
    {"Front", SheetSketch::Staple::Front},
    {"Rear", SheetSketch::Staple::Rear},
    {"Center", SheetSketch::Staple::Center},
    {"BookletStitch", SheetSketch::Staple::Stitch},
};
constexpr KeyRow<int> holeCounts[] = {
    {"Hole2", 2},
    {"Hole3", 3},
    {"Hole4", 4},
};
constexpr KeyRow<SheetSketch::Separation> separations[] = {
    {"Jog", SheetSketch::Separation::Offset},
    {"Rot", SheetSketch::Separation::Crosswise},
};
constexpr KeyRow<SheetSketch::Collation> collations[] = {
    {"False", SheetSketch::Collation::PageByPage},
    {"True", SheetSketch::Collation::SetBySet},
};
// Blue is not that of what has moved.
constexpr KeyRow<QRgb> watermarkColors[] = {
    {"Black", 0xff2b3440},
    {"Red", 0xffd7263d},
    {"Green", 0xff2e8b45},
    {"Blue", 0xff3f3fb5},
};
// By a word in the key.
constexpr KeyRow<QRgb> tints[] = {
    {"Recycled", 0xfff0eadc}, {"Yellow", 0xfffff3b8}, {"Blue", 0xffd9e9f7},
    {"Green", 0xffdcefd9},    {"Pink", 0xfffbdfe6},   {"Red", 0xfff8d3d0},
    {"Orange", 0xffffe3c2},   {"Ivory", 0xfffbf6e3},  {"Gray", 0xffe4e7ea},
};

template <typename Value, size_t N>
Value valueOf(const KeyRow<Value> (&rows)[N], const QString &key, Value otherwise)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows), [&](const auto &each) {
        return key == QLatin1String(each.key);
    });
    return row == std::end(rows) ? otherwise : row->value;
}

QColor tintOf(const QString &media)
{
    const auto *row = std::find_if(std::begin(tints), std::end(tints), [&](const auto &each) {
        return media.contains(QLatin1String(each.key));
    });
    return QColor(row == std::end(tints) ? qRgb(255, 255, 255) : row->value);
}

/// The selected keys, some of them replaced.
class Values
{
public:
    Values(const OptionStore &store, const QHash<QString, QString> &instead)
        : store(store)
        , instead(instead)
    {
    }

    /// Empty for what the printer lacks.
    QString key(const char *keyword) const
    {
        const QLatin1String name(keyword);
        const bOption *option = store.find(name);
        return option ? instead.value(name, option->currentKey()) : QString();
    }
    bool has(const char *keyword) const { return store.find(QLatin1String(keyword)); }
    bool isOn(const char *keyword) const { return key(keyword) == Keys::yes; }
    bool isMode(const char *keyword, const QStringList &modes) const
    {
        const QLatin1String name(keyword);
        return instead.value(name, QLatin1String(Keys::yesOrNo(modes.contains(name)))) == Keys::yes;
    }

private:
    const OptionStore &store;
    const QHash<QString, QString> &instead;
};

SheetSketch::Fold fold(const Values &values)
{
    const bool inTwo = values.isOn("cBiFld");
    if (inTwo == values.isOn("cTriFld")) // both is a conflict
        return SheetSketch::Fold::None;
    return inTwo ? SheetSketch::Fold::Half
                 : valueOf(foldDirections, values.key("FldC"), SheetSketch::Fold::Thirds);
}

SheetSketch::Watermark watermark(const Values &values, const QString &text)
{
    SheetSketch::Watermark mark;
    mark.font = values.key("Wfnt");
    bool isSize = false;
    bool isAngle = false;
    mark.size = values.key("Wsze").toDouble(&isSize);
    mark.angle = values.key("Wang").toDouble(&isAngle);
    const QRgb color = valueOf(
        watermarkColors, values.has("Wclr") ? values.key("Wclr") : QStringLiteral("Black"), 0U);
    mark.color = QColor::fromRgba(color);
    mark.outline = values.key("Wtyp") == QLatin1String("Outline");
    mark.opaque = values.key("Wtrans") == QLatin1String("Opaque");
    if (!values.isOn("Wren") || !isSize || mark.size <= 0 || !isAngle || color == 0)
        return {};
    mark.text = text;
    return text.isEmpty() ? SheetSketch::Watermark() : mark;
}

void addFinishing(SheetSketch *sketch, const Values &values)
{
    sketch->fold = fold(values);
    // A list may keep its value while its switch is off.
    if (values.isOn("cStpl"))
        sketch->staple = valueOf(staples, values.key("Stpl"), SheetSketch::Staple::None);
    if (values.isOn("cHole"))
        sketch->holes = valueOf(holeCounts, values.key("Pnch"), 0);
    sketch->upsideDown = values.isOn("Rotate");
    sketch->separation = valueOf(separations, values.key("Sep"), SheetSketch::Separation::None);
}

void addOtherSheets(SheetSketch *sketch, const Values &values, const QStringList &modes)
{
    sketch->cover = values.isMode("cCovBut", modes);
    if (sketch->cover) {
        sketch->coverPrinted = values.isOn("cCovPOFI");
        sketch->backCover = values.isOn("cCovBRad");
        sketch->coverTint = tintOf(values.key("CvrM"));
    }
    sketch->insert = values.isMode("cInsBut", modes);
    if (sketch->insert)
        sketch->insertTint = tintOf(values.key("Pmed"));
    sketch->backing = values.isMode("cIntBut", modes);
    if (sketch->backing)
        sketch->backingTint = tintOf(values.key("Tmed"));
}

} // namespace

bool SheetSketch::Watermark::operator==(const Watermark &other) const
{
    const auto all = [](const Watermark &mark) {
        return std::tie(mark.text, mark.font, mark.size, mark.angle, mark.color, mark.outline,
                        mark.opaque);
    };
    return all(*this) == all(other);
}

bool SheetSketch::operator==(const SheetSketch &other) const
{
    const auto all = [](const SheetSketch &sketch) {
        return std::tie(sketch.paper, sketch.tint, sketch.seeThrough, sketch.color, sketch.pale,
                        sketch.upsideDown, sketch.backSide, sketch.booklet, sketch.flatBooklet,
                        sketch.fold, sketch.staple, sketch.holes, sketch.watermark, sketch.cover,
                        sketch.coverPrinted, sketch.backCover, sketch.coverTint, sketch.insert,
                        sketch.insertTint, sketch.backing, sketch.backingTint, sketch.separation,
                        sketch.collation, sketch.moved);
    };
    return all(*this) == all(other);
}

SheetSketch sheetSketch(const OptionStore &store, const SheetPages &pages,
                        const QHash<QString, QString> &instead)
{
    const Values values(store, instead);
    SheetSketch sketch;
    sketch.paper = paperSize(values.key("PageSize"));
    const bool isKnownPaper = !sketch.paper.isEmpty();
    if (!isKnownPaper)
        sketch.paper = paperSize(QStringLiteral("A4"));
    const QString media = values.key("MediaType");
    sketch.tint = tintOf(media);
    sketch.seeThrough = media == QLatin1String("Transparency");
    const QString colors = values.key("ColorModel");
    sketch.color = colors == QLatin1String("CMYK") || colors == QLatin1String("RGB");
    sketch.pale = LeanPrint::isOn(values.key("Lnpr"));
    sketch.booklet = valueOf(bindings, values.key("BXBooklet"), SheetSketch::Binding::None);
    if (sketch.booklet != SheetSketch::Binding::None)
        sketch.flatBooklet = values.has("Fold") && !values.isOn("Fold");
    else
        sketch.backSide = valueOf(edges, values.key("Duplex"), SheetSketch::Edge::None);
    addFinishing(&sketch, values);
    addOtherSheets(&sketch, values, pages.modes);
    if (isKnownPaper) // or nobody knows how big the text is on it
        sketch.watermark = watermark(values, pages.watermark);
    sketch.collation = valueOf(collations, values.key("Coll"), SheetSketch::Collation::None);
    return sketch;
}

QStringList sheetKeywords(SheetPart part)
{
    QStringList keywords;
    for (const PartRow &row : partRows) {
        if (row.part == part)
            keywords.append(QLatin1String(row.keyword));
    }
    return keywords;
}

quint32 sheetParts(const QStringList &keywords)
{
    quint32 parts = 0;
    for (const PartRow &row : partRows) {
        if (keywords.contains(QLatin1String(row.keyword)))
            parts |= 1U << int(row.part);
    }
    return parts;
}
