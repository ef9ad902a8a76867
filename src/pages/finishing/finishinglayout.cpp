#include "pages/base/pagelayout.h"
#include "pages/finishing/finishingtab.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/icons.h"
#include "widgets/spoken.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

#include <algorithm>
#include <iterator>

// How the page "Finishing" looks: texts, pictures, names and places of its widgets, and the options
// they stand for.

using PageWidgets::named;
using PageWidgets::withoutColon;

namespace {

constexpr PageWidgets::ButtonRow separationButtons[] = {
    {QT_TRANSLATE_NOOP("FinishingTab", "Off"), ":/icons/separation-off", "None"},
    {QT_TRANSLATE_NOOP("FinishingTab", "Offset jobs"), ":/icons/separation-offset", "Jog"},
    {QT_TRANSLATE_NOOP("FinishingTab", "Rotate copies"), ":/icons/separation-rotate", "Rot"},
};
constexpr PageWidgets::ButtonRow rotateButtons[] = {
    {QT_TRANSLATE_NOOP("FinishingTab", "Off"), ":/icons/Rotate-180-off", "False"},
    {QT_TRANSLATE_NOOP("FinishingTab", "On"), ":/icons/Rotate-180-on", "True"},
};

struct RotateTitle
{
    const char *language;
    const char *text;
};

constexpr RotateTitle rotateTitles[] = {
    {"en", "Rotate 180°"},  {"fr", "Tourner 180°"}, {"de", "Rotiert 180°"},
    {"it", "Ruotato 180°"}, {"pt", "Girar 180°"},   {"es", "Girado 180°"},
};

struct ModeRow
{
    const char *buttonName;
    const char *buttonText; // the same in all languages
    const char *icon;
    const char *headingName;
    const char *heading; // translated
    const char *suffix;
};

constexpr ModeRow modeRows[] = {
    {"chkButTriFld", "TriFold", ":/icons/trifold", "lblTriFld",
     QT_TRANSLATE_NOOP("FinishingTab", "Tri-Fold"), ":"},
    {"chkButBiFld", "BiFold", ":/icons/bifold", "lblBiFld",
     QT_TRANSLATE_NOOP("FinishingTab", "Bi-Fold"), ":"},
    {"chkButStpl", "Staple", ":/icons/staple", "lblStaple",
     QT_TRANSLATE_NOOP("FinishingTab", "Staple:"), ""},
    {"chkButPnch", "Hole punch", ":/icons/punch", "lblHolePunch",
     QT_TRANSLATE_NOOP("FinishingTab", "Punch"), ": "},
};

struct ListRow
{
    const char *labelName;
    const char *boxName;
    const char *label; // translated
    const char *suffix;
    int width; // in pixels, 0 for that of the longest item
};

constexpr ListRow listRows[] = {
    {"lblFldB", "cmbBxFldB", QT_TRANSLATE_NOOP("FinishingTab", "Print side"), ":", 200},
    {"lblFldC", "cmbBxFldC", QT_TRANSLATE_NOOP("FinishingTab", "Direction of fold"), ":", 200},
    {"lblFldD", "cmbBxFldD", QT_TRANSLATE_NOOP("FinishingTab", "Number of sheets"), ":", 200},
    // Named after the print side and the mode, since FldA itself has no list.
    {"lblFldB", "cmbBxFldA", QT_TRANSLATE_NOOP("FinishingTab", "Number of sheets"), ":", 200},
    {"lblStpl", "cmbBxStpl", QT_TRANSLATE_NOOP("FinishingTab", "Staple location:"), "", 0},
    {"lblScnt", "cmbBxScnt", QT_TRANSLATE_NOOP("FinishingTab", "Staple method"), "", 0},
    {"lblPnch", "cmbBxPnch", QT_TRANSLATE_NOOP("FinishingTab", "Punch Method:"), "", 0},
};

} // namespace

// Widgets

QString FinishingTab::rotateTitle(const QString &localeName)
{
    const QString language = localeName.section(QLatin1Char('_'), 0, 0);
    const auto *row =
        std::find_if(std::begin(rotateTitles), std::end(rotateTitles),
                     [&](const RotateTitle &title) { return language == title.language; });
    return QString::fromUtf8(row == std::end(rotateTitles) ? rotateTitles[0].text : row->text);
}

void FinishingTab::createWidgets()
{
    static_assert(std::size(modeRows) == ModeCount && std::size(listRows) == ListCount);
    const QString colonAndBlank = QStringLiteral(": ");

    separationGroup =
        named(new BixButtonGroup(this, tr("Separation") + colonAndBlank), "butGroupSep");
    PageWidgets::addButtons(separationGroup, separationButtons, tr);
    for (int i = 0; i < ModeCount; ++i) {
        const ModeRow &row = modeRows[i];
        headings[i] =
            named(new QLabel(tr(row.heading) + QLatin1String(row.suffix), this), row.headingName);
        buttons[i] = named(new BixCheckBoxButton(this, QLatin1String(row.buttonText),
                                                 Icons::icon(QLatin1String(row.icon))),
                           row.buttonName);
    }
    for (int i = 0; i < ListCount; ++i) {
        const ListRow &row = listRows[i];
        lists[i] = PageWidgets::labeledComboBox(
            this, row.labelName, row.boxName, tr(row.label) + QLatin1String(row.suffix), row.width);
    }
    rotateGroup =
        named(new BixButtonGroup(this, rotateTitle(QLocale::system().name()) + colonAndBlank),
              "butGroupRot");
    PageWidgets::addButtons(rotateGroup, rotateButtons, tr);
    registerWidgets();
    for (int i = 0; i < ModeCount; ++i)
        buttons[i]->setPictureToolTip(nameOf(Mode(i)));
}

void FinishingTab::registerWidgets()
{
    const QPair<const char *, QWidget *> bound[] = {
        {"Sep", separationGroup},           {"FldB", lists[PrintSide].box},
        {"FldC", lists[FoldDirection].box}, {"FldD", lists[TriFoldSheets].box},
        {"BFpS", lists[BiFoldSheets].box},  {"Rotate", rotateGroup},
        {"Pnch", lists[PunchMethod].box},   {"Stpl", lists[StapleLocation].box},
        {"Scnt", lists[StapleMethod].box},  {"cTriFld", buttons[TriFold]},
        {"cBiFld", buttons[BiFold]},        {"cHole", buttons[Punch]},
        {"cStpl", buttons[Staple]},
    };
    for (const auto &[keyword, widget] : bound)
        boundWidgets.insert(QLatin1String(keyword), widget);

    const QPair<const char *, QWidget *> marks[] = {
        {"Sep", separationGroup},   {"Pnch", lists[PunchMethod].label},
        {"Stpl", headings[Staple]}, {"Scnt", lists[StapleMethod].label},
        {"Rotate", rotateGroup},
    };
    for (const auto &[keyword, widget] : marks)
        markWidgets.insert(QLatin1String(keyword), widget);

    const QPair<const char *, Mode> switches[] = {
        {"cTriFld", TriFold}, {"cBiFld", BiFold}, {"cStpl", Staple}, {"cHole", Punch}};
    for (const auto &[keyword, mode] : switches) {
        Spoken::setName(buttons[mode], FinishingTab::label(QLatin1String(keyword)));
        Spoken::setLabels(buttons[mode], {headings[mode]});
    }

    checkBoxButtons = {buttons[Punch], buttons[Staple], buttons[TriFold], buttons[BiFold]};
    addDependents(TriFold, {PrintSide, FoldDirection, TriFoldSheets});
    addDependents(BiFold, {BiFoldSheets});
    addDependents(Punch, {PunchMethod});
    addDependents(Staple, {StapleMethod, StapleLocation});
}

QString FinishingTab::label(const QString &keyword) const
{
    QWidget *widget = boundWidgets.value(keyword);
    if (widget == buttons[Punch])
        return tr("Hole punch");
    QString text = Tab::label(keyword);
    // The headings are translated, the captions of the buttons are not; the lists are labelled, but
    // not all of them marked.
    for (int i = 0; i < ModeCount && widget; ++i) {
        if (widget == buttons[i])
            text = headings[i]->text();
    }
    for (int i = 0; i < ListCount && widget; ++i) {
        if (widget == lists[i].box && !markWidgets.value(keyword))
            text = lists[i].label->text();
    }
    return withoutColon(text);
}

void FinishingTab::addDependents(Mode mode, const QList<List> &dependents)
{
    for (const List list : dependents) {
        buttons[mode]->addDependent(lists[list].label, Sentinel::noDefault);
        buttons[mode]->addDependent(lists[list].box, tr("Off"));
    }
}

// Layout

void FinishingTab::createLayout()
{
    // Both are labelled "Number of sheets".
    Spoken::setLabels(lists[TriFoldSheets].box, {headings[TriFold], lists[TriFoldSheets].label});
    Spoken::setLabels(lists[BiFoldSheets].box, {headings[BiFold], lists[BiFoldSheets].label});
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(createFoldGrid());
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createStapleGrid());
}

void FinishingTab::addList(QGridLayout *grid, int row, List list)
{
    grid->addWidget(lists[list].label, row, 1, Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(lists[list].box, row + 1, 1, Qt::AlignLeft | Qt::AlignTop);
}

QGridLayout *FinishingTab::createFoldGrid()
{
    auto *grid = new QGridLayout;
    grid->addWidget(separationGroup, 0, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(PageLayout::horizontalLine(this), 1, 0, 1, 4);
    grid->addWidget(headings[TriFold], 2, 0, 1, 2);
    grid->addWidget(buttons[TriFold], 3, 0, 2, 1);
    addList(grid, 3, PrintSide);
    addList(grid, 5, FoldDirection);
    addList(grid, 7, TriFoldSheets);
    grid->addWidget(PageLayout::horizontalLine(this), 9, 0, 1, 4);
    grid->addWidget(headings[BiFold], 10, 0, 1, 2);
    grid->addWidget(buttons[BiFold], 11, 0, 2, 1);
    addList(grid, 11, BiFoldSheets);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(15, 1);
    return grid;
}

QGridLayout *FinishingTab::createStapleGrid()
{
    auto *grid = new QGridLayout;
    grid->addWidget(headings[Staple], 0, 0, 1, 2);
    grid->addWidget(buttons[Staple], 1, 0, 2, 1);
    addList(grid, 1, StapleLocation);
    addList(grid, 3, StapleMethod);
    grid->addWidget(PageLayout::horizontalLine(this), 5, 0, 1, 3);
    grid->addWidget(headings[Punch], 6, 0, 1, 2);
    grid->addWidget(buttons[Punch], 7, 0, 2, 1);
    addList(grid, 7, PunchMethod);
    grid->addWidget(PageLayout::horizontalLine(this), 9, 0, 1, 3);
    grid->addWidget(rotateGroup, 10, 0, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(12, 1);
    return grid;
}
