#include "functiontests.h"
#include "model/optionstore.h"
#include "sketch/sheetpainter.h"
#include "support/storebuilder.h"

/// The options of a printer that can do everything, with some values that nobody knows.
static const char options[] = R"(
PageSize 1 A4* A5 A6 Letter Postcard Foolscap
MediaType 2 Plain* Transparency RecycledHeavy Green RedLabel Orange Ivory Gray Vellum
ColorModel 3 CMYK RGB Gray* Spot
Lnpr 4 Off* On Level3
Duplex 5 None* DuplexNoTumble DuplexTumble DuplexSideways
Coll 6 False* True
BXBooklet 7 None* Left Right Top
Fold 8 False* True
cTriFld 9 False* True
cBiFld 9 False* True
FldC 9 None* CFold ZFold
cStpl 10 False* True
Stpl 10 None* Front Rear Center BookletStitch Internal
cHole 11 False* True
Pnch 11 None* Hole2 Hole3 Hole4 Hole13
Rotate 12 False* True
Sep 13 None* Jog Rot Slip
Wren 14 False* True
Wfnt 14 Helvetica* Times-Bold Courier
Wsze 14 72* 24 Huge
Wang 14 50* -90 Steep
Wclr 14 Black* Red Green Blue Gold
Wtyp 14 Solid* Outline
Wtrans 14 Transparent* Opaque
CvrM 15 Plain* Blue
cCovBRad 15 False* True
cCovPOFI 15 False* True
Pmed 16 Plain* PinkHeavy
Tmed 17 Plain* Yellow
)";

static QString tint(const QString &word, const QColor &color)
{
    return color == QColor(Qt::white) ? word : word + ' ' + color.name();
}

static QString watermark(const SheetSketch::Watermark &mark)
{
    return QString("\"%1\" %2 %3 at %4 %5%6%7")
        .arg(mark.text, mark.font)
        .arg(mark.size)
        .arg(mark.angle)
        .arg(mark.color.name(), mark.outline ? " outline" : "", mark.opaque ? " opaque" : "");
}

/// What a sketch has beyond a plain white sheet in gray.
static QString description(const SheetSketch &sketch)
{
    static const char *const edges[] = {"", "long edge", "short edge"};
    static const char *const bindings[] = {"", "left", "right"};
    static const char *const folds[] = {"", "in two", "in three", "inward", "zigzag"};
    static const char *const staples[] = {"", "front", "rear", "center", "stitch"};
    static const char *const separations[] = {"", "offset", "crosswise"};
    static const char *const collations[] = {"", "112233", "123123"};
    QStringList words{
        QString("%1x%2").arg(int(sketch.paper.width())).arg(int(sketch.paper.height()))};
    words << tint("", sketch.tint).trimmed() << (sketch.seeThrough ? "clear" : "")
          << (sketch.color ? "color" : "") << (sketch.pale ? "pale" : "")
          << (sketch.upsideDown ? "upside down" : "") << edges[int(sketch.backSide)];
    words << bindings[int(sketch.booklet)] << (sketch.flatBooklet ? "flat" : "")
          << folds[int(sketch.fold)] << staples[int(sketch.staple)]
          << (sketch.holes ? QString("%1 holes").arg(sketch.holes) : QString())
          << separations[int(sketch.separation)] << collations[int(sketch.collation)];
    words << (sketch.watermark.text.isEmpty() ? QString() : watermark(sketch.watermark))
          << (sketch.cover ? tint("cover", sketch.coverTint) : QString())
          << (sketch.coverPrinted ? "printed" : "") << (sketch.backCover ? "and back" : "")
          << (sketch.insert ? tint("insert", sketch.insertTint) : QString())
          << (sketch.backing ? tint("backing", sketch.backingTint) : QString());
    words.removeAll(QString());
    return words.join(' ');
}

/// From "Option=Choice" and the pages' "TEXT MODE..."; the store lacks the options of the third.
static QStringList sketched(const QStringList &in)
{
    QString block = options;
    const QStringList missing = in[2].split(' ', Qt::SkipEmptyParts);
    for (const QString &option : missing)
        block.remove(QRegularExpression("\n" + option + " [^\n]*"));
    const std::unique_ptr<OptionStore> store = makeStore(block);
    selectValues(*store, in[0]);
    const QStringList pages = in[1].split(' ');
    return {description(sheetSketch(*store, {pages.first(), pages.mid(1)}))};
}

static const FunctionTests::Table table("TestSheetSketch", 3, sketched, R"(
nothing set            |                               |               |      | 210x297
nothing there at all   |                               | DRAFT         | PageSize MediaType ColorModel Coll Duplex BXBooklet Wren Stpl Pnch | 210x297
small paper            | PageSize=A6                   |               |      | 105x148
paper without a setup  | PageSize=Postcard             |               |      | 100x148
American paper         | PageSize=Letter               |               |      | 215x279
paper nobody knows     | PageSize=Foolscap Wren=True   | DRAFT         |      | 210x297
media nobody knows     | MediaType=Vellum              |               |      | 210x297
transparency           | MediaType=Transparency        |               |      | 210x297 clear
a word within the key  | MediaType=RecycledHeavy       |               |      | 210x297 #f0eadc
green                  | MediaType=Green               |               |      | 210x297 #dcefd9
red                    | MediaType=RedLabel            |               |      | 210x297 #f8d3d0
orange                 | MediaType=Orange              |               |      | 210x297 #ffe3c2
ivory                  | MediaType=Ivory               |               |      | 210x297 #fbf6e3
gray                   | MediaType=Gray                |               |      | 210x297 #e4e7ea
four inks              | ColorModel=CMYK               |               |      | 210x297 color
three colors           | ColorModel=RGB                |               |      | 210x297 color
color nobody knows     | ColorModel=Spot               |               |      | 210x297
LeanPrint on           | Lnpr=On                       |               |      | 210x297 pale
LeanPrint by levels    | Lnpr=Level3                   |               |      | 210x297 pale
long edge              | Duplex=DuplexNoTumble         |               |      | 210x297 long edge
short edge             | Duplex=DuplexTumble           |               |      | 210x297 short edge
edge nobody knows      | Duplex=DuplexSideways         |               |      | 210x297
page by page           | Coll=False                    |               |      | 210x297 112233
set by set             | Coll=True                     |               |      | 210x297 123123
booklet unfolded       | BXBooklet=Left Fold=False     |               |      | 210x297 left flat
booklet folded         | BXBooklet=Right Fold=True     |               |      | 210x297 right
booklet without choice | BXBooklet=Left                |               | Fold | 210x297 left
booklet on both sides  | BXBooklet=Left Fold=True Duplex=DuplexTumble |               |      | 210x297 left
binding nobody knows   | BXBooklet=Top Fold=True       |               |      | 210x297
in two                 | cBiFld=True FldC=ZFold        |               |      | 210x297 in two
C fold                 | cTriFld=True FldC=CFold       |               |      | 210x297 inward
Z fold                 | cTriFld=True FldC=ZFold       |               |      | 210x297 zigzag
in three               | cTriFld=True FldC=None        |               |      | 210x297 in three
both folds             | cTriFld=True cBiFld=True      |               |      | 210x297
direction alone        | FldC=ZFold                    |               |      | 210x297
front                  | cStpl=True Stpl=Front         |               |      | 210x297 front
rear                   | cStpl=True Stpl=Rear          |               |      | 210x297 rear
center                 | cStpl=True Stpl=Center        |               |      | 210x297 center
stitch                 | cStpl=True Stpl=BookletStitch |               |      | 210x297 stitch
place nobody knows     | cStpl=True Stpl=Internal      |               |      | 210x297
staple switched off    | cStpl=False Stpl=Front        |               |      | 210x297
two holes              | cHole=True Pnch=Hole2         |               |      | 210x297 2 holes
three holes            | cHole=True Pnch=Hole3         |               |      | 210x297 3 holes
four holes             | cHole=True Pnch=Hole4         |               |      | 210x297 4 holes
holes nobody knows     | cHole=True Pnch=Hole13        |               |      | 210x297
holes switched off     | cHole=False Pnch=Hole2        |               |      | 210x297
rotated                | Rotate=True                   |               |      | 210x297 upside down
offset                 | Sep=Jog                       |               |      | 210x297 offset
crosswise              | Sep=Rot                       |               |      | 210x297 crosswise
separation unknown     | Sep=Slip                      |               |      | 210x297
watermark              | PageSize=A5 Wren=True Wsze=72 Wang=50 Wclr=Red Wfnt=Helvetica | DRAFT         |      | 148x210 "DRAFT" Helvetica 72 at 50 #d7263d
green watermark        | PageSize=A5 Wren=True Wsze=72 Wang=50 Wclr=Green Wfnt=Courier | DRAFT | | 148x210 "DRAFT" Courier 72 at 50 #2e8b45
blue watermark         | PageSize=A5 Wren=True Wsze=72 Wang=50 Wclr=Blue Wfnt=Courier | DRAFT | | 148x210 "DRAFT" Courier 72 at 50 #3f3fb5
black where no choice  | PageSize=A5 Wren=True Wsze=24 Wang=-90 Wfnt=Times-Bold | DRAFT         | Wclr | 148x210 "DRAFT" Times-Bold 24 at -90 #2b3440
outlined and opaque    | PageSize=A5 Wren=True Wsze=24 Wang=50 Wclr=Black Wfnt=Times-Bold Wtyp=Outline Wtrans=Opaque | DRAFT         |      | 148x210 "DRAFT" Times-Bold 24 at 50 #2b3440 outline opaque
watermark off          | PageSize=A5 Wren=False Wsze=72 Wang=50 Wclr=Red | DRAFT         |      | 148x210
no text                | PageSize=A5 Wren=True Wsze=72 Wang=50 Wclr=Red |               |      | 148x210
size nobody knows      | PageSize=A5 Wren=True Wsze=Huge Wang=50 Wclr=Red | DRAFT         |      | 148x210
angle nobody knows     | PageSize=A5 Wren=True Wsze=72 Wang=Steep Wclr=Red | DRAFT         |      | 148x210
color of no ink        | PageSize=A5 Wren=True Wsze=72 Wang=50 Wclr=Gold | DRAFT         |      | 148x210
text without paper     | PageSize=Foolscap Wren=True Wsze=72 Wang=50 Wclr=Red | DRAFT         |      | 210x297
cover                  | CvrM=Plain                    | DRAFT cCovBut |      | 210x297 cover
both covers, printed   | CvrM=Blue cCovBRad=True cCovPOFI=True | DRAFT cCovBut |      | 210x297 cover #d9e9f7 printed and back
cover's own, but off   | CvrM=Blue cCovBRad=True cCovPOFI=True | DRAFT         |      | 210x297
inserts                | Pmed=PinkHeavy                | DRAFT cInsBut |      | 210x297 insert #fbdfe6
backing                | Tmed=Yellow                   | DRAFT cIntBut |      | 210x297 backing #fff3b8
all of them            | Pmed=Plain                    | DRAFT cCovBut cInsBut cIntBut |      | 210x297 cover insert backing
)");

/// What was there before the panel moved it, and which parts that are.
static QStringList before(const QStringList &in)
{
    const std::unique_ptr<OptionStore> store = makeStore(options);
    QHash<QString, QString> moved;
    const QStringList pairs = in[0].split(' ', Qt::SkipEmptyParts);
    for (const QString &pair : pairs)
        moved.insert(pair.section('=', 0, 0), pair.section('=', 1));
    SheetSketch sketch = sheetSketch(*store, {}, moved);
    sketch.moved = sheetParts(moved.keys());
    QStringList parts;
    for (int part = 0; part <= int(SheetPart::Collation); ++part) {
        if (sketch.hasMoved(SheetPart(part)))
            parts.append(QString::number(part));
    }
    return {description(sketch), parts.join(' ')};
}

static const FunctionTests::Table beforeTable("TestSheetSketchBefore", 1, before, R"(
nothing         |                         | 210x297               | 
staple and hole | cStpl=True Stpl=Front cHole=True Pnch=Hole2 | 210x297 front 2 holes | 5 6
of no part      | Trap=On InputSlot=Tray1 | 210x297               | 
cover           | cCovBut=True            | 210x297 cover         | 9
paper           | PageSize=A5             | 148x210               | 0
)");

/// What a click on a part leads to, the first of them that is on.
static QStringList keywords(const QStringList &in)
{
    return {sheetKeywords(SheetPart(in[0].toInt())).join(' ')};
}

static const FunctionTests::Table keywordTable("TestSheetKeywords", 1, keywords, R"(
paper      | 0  | PageSize MediaType
content    | 1  | ColorModel Lnpr
back side  | 2  | Duplex
booklet    | 3  | BXBooklet Fold
fold       | 4  | cTriFld cBiFld FldC
staple     | 5  | Stpl cStpl
holes      | 6  | Pnch cHole
rotation   | 7  | Rotate
watermark  | 8  | Wtxt Wren Wclr Wang Wsze
cover      | 9  | cCovBut CvrM
insert     | 10 | cInsBut Pmed
backing    | 11 | cIntBut Tmed
separation | 12 | Sep
collation  | 13 | Coll
)");

static QStringList place(const QStringList &in)
{
    const QRect rect = sheetPlace({173, in[0].toInt()}, in[1].toInt());
    return {rect.isEmpty() ? "hidden" : QString("%1 high at %2").arg(rect.height()).arg(rect.y())};
}

static const FunctionTests::Table placeTable("TestSheetPlace", 2, place, R"(
more room than it takes | 650 | 245 | 200 high at 450
as much as it takes     | 650 | 450 | 200 high at 450
less                    | 650 | 500 | 150 high at 500
just enough             | 650 | 530 | 120 high at 530
too little              | 650 | 531 | hidden
none at all             | 650 | 700 | hidden
)");
