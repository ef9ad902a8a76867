#include "pages/publishing/publishingtab.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/errorlabel.h"
#include "pages/base/pagelayout.h"
#include "pages/base/paneldialog.h"
#include "pages/publishing/pagelist.h"
#include "storage/settingsfile.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegExpValidator>

#include <iterator>

using PageWidgets::named;

namespace {

/// A catalogue may shorten a caption, but not the heading with the same words.
struct CaptionText
{
    const char *text;
    const char *comment;
};

struct ModeRow
{
    const char *headingName;
    const char *buttonName;
    const char *keyword;
    const char *text; // of the heading
    CaptionText caption;
    const char *icon;
    const char *mediaLabelName;
    const char *mediaBoxName;
    const char *mediaKeyword;
    const char *mediaText;
};

constexpr ModeRow modeRows[] = {
    {"lblCvrMode", "chkButCvr", "cCovBut", QT_TRANSLATE_NOOP("PublishingTab", "Cover mode:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Cover mode:", "caption"), ":/icons/covermode", "lblCvrM",
     "cmbBxCvrM", "CvrM", QT_TRANSLATE_NOOP("PublishingTab", "Media for cover:")},
    {"lblPins", "chkButPins", "cInsBut", QT_TRANSLATE_NOOP("PublishingTab", "Page insert:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Page insert:", "caption"), ":/icons/pageinsert",
     "lblPMed", "cmbBxPMed", "Pmed", QT_TRANSLATE_NOOP("PublishingTab", "Media for page:")},
    {"lblTint", "chkButTint", "cIntBut",
     QT_TRANSLATE_NOOP("PublishingTab", "Transparency interleaving:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Transparency interleaving:", "caption"),
     ":/icons/transparency", "lblTMed", "cmbBxTMed", "Tmed",
     QT_TRANSLATE_NOOP("PublishingTab", "Media for backing:")},
};

struct TextRow
{
    const char *name;
    const char *text;
};

constexpr TextRow sidesRows[] = {
    {"rdButCvrFront", QT_TRANSLATE_NOOP("PublishingTab", "Front")},
    {"rdButCvrFrontBack", QT_TRANSLATE_NOOP("PublishingTab", "Front and back")},
};

// The first four are the bits of the code for the sides of a cover, from 1 upwards; the next two
// those of the code for inserted sheets.
constexpr TextRow printRows[] = {
    {"chkBxCvrFrontOut", QT_TRANSLATE_NOOP("PublishingTab", "Outside")},
    {"chkBxCvrFrontIn", QT_TRANSLATE_NOOP("PublishingTab", "Inside")},
    {"chkBxCvrBackOut", QT_TRANSLATE_NOOP("PublishingTab", "Outside")},
    {"chkBxCvrBackIn", QT_TRANSLATE_NOOP("PublishingTab", "Inside")},
    {"chkBxPinsPrintOntoFront", QT_TRANSLATE_NOOP("PublishingTab", "Print onto front")},
    {"chkBxPinsPrintOntoBack", QT_TRANSLATE_NOOP("PublishingTab", "Print onto back")},
    {"chkBxTintPrintOnto", QT_TRANSLATE_NOOP("PublishingTab", "Print onto backing")},
};

constexpr TextRow captionRows[] = {
    {"lblCvrPrintOnto", QT_TRANSLATE_NOOP("PublishingTab", "Print onto:")},
    {"lblCvrFront", QT_TRANSLATE_NOOP("PublishingTab", "Front")},
    {"lblCvrBack", QT_TRANSLATE_NOOP("PublishingTab", "Back")},
    {"lblPinsPage", QT_TRANSLATE_NOOP("PublishingTab", "Insert before pages:")},
    {"lblPinsPageError", QT_TRANSLATE_NOOP("PublishingTab", "Generic error message")},
};

// The code of a cover without any printed side, by the chosen sides.
constexpr int blankCoverCodes[] = {16, 32};

constexpr int inputWidth = 185; // at least, in pixels

/// What to tell the user of a list of pages; null for nothing.
const char *message(PageList::Verdict verdict)
{
    switch (verdict) {
    case PageList::Verdict::Empty:
        return QT_TRANSLATE_NOOP("PublishingTab", "Please type a page range.");
    case PageList::Verdict::Malformed:
        return QT_TRANSLATE_NOOP("PublishingTab", "Please enter your specified pages.");
    case PageList::Verdict::TooMany:
        return QT_TRANSLATE_NOOP("PublishingTab", "You can only insert up to 50 pages.");
    case PageList::Verdict::InsideCover:
        return QT_TRANSLATE_NOOP("PublishingTab",
                                 "You can only enter page numbers between 3 and 511");
    case PageList::Verdict::OutOfRange:
        return QT_TRANSLATE_NOOP("PublishingTab",
                                 "You can only enter page numbers between 2 and 511");
    case PageList::Verdict::NoPages:
    case PageList::Verdict::EndsInComma:
    case PageList::Verdict::Good:
        break;
    }
    return nullptr;
}

} // namespace

PublishingTab::PublishingTab(PanelDialog *dialog)
    : Tab(dialog, {QT_TRANSLATE_NOOP("PublishingTab", "Publishing"), ":/icons/tab-publishing",
                   PageHead::WithAnOption})
{
    PublishingTab::createWidgets();
    connectBoundWidgets();
    createLayout();
    createConnections();
}

// Widgets

void PublishingTab::createWidgets()
{
    static_assert(std::size(modeRows) == ModeCount && std::size(sidesRows) == SidesCount &&
                  std::size(printRows) == PrintCount && std::size(captionRows) == CaptionCount &&
                  std::size(blankCoverCodes) == SidesCount);
    for (int i = 0; i < ModeCount; ++i) {
        const ModeRow &row = modeRows[i];
        headings[i] = named(new QLabel(this), row.headingName);
        buttons[i] = named(new BixCheckBoxButton(this, QString(), QIcon(QLatin1String(row.icon))),
                           row.buttonName);
        media[i] =
            PageWidgets::labeledComboBox(this, row.mediaLabelName, row.mediaBoxName, QString());
        media[i].label->setWordWrap(true); // the PPD's name of it may be long
        media[i].box->setMinimumWidth(inputWidth);
    }
    for (int i = 0; i < SidesCount; ++i)
        sides[i] = named(new QRadioButton(this), sidesRows[i].name);
    for (int i = 0; i < PrintCount; ++i)
        prints[i] = named(new QCheckBox(this), printRows[i].name);
    for (int i = 0; i < CaptionCount; ++i) {
        // The error label never shows: what it would say stands in the mark on the heading.
        captions[i] =
            named(i == PagesError ? makeErrorLabel(this) : new QLabel(this), captionRows[i].name);
    }
    captions[InsertPages]->setWordWrap(true);
    pagesEdit = named(new QLineEdit(this), "lnEditPinsPage");
    pagesEdit->setMinimumWidth(inputWidth);
    pagesEdit->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("\\d[\\d ,-]*")), pagesEdit));

    PublishingTab::retranslate();
    registerWidgets();
    addDependents();
}

void PublishingTab::retranslate()
{
    Tab::setTabName();
    for (int i = 0; i < ModeCount; ++i) {
        ConstraintMark::setPlainText(headings[i], tr(modeRows[i].text));
        ButtonCaption::set(buttons[i], tr(modeRows[i].caption.text, modeRows[i].caption.comment),
                           tr(modeRows[i].text));
        ConstraintMark::setPlainText(media[i].label, tr(modeRows[i].mediaText));
    }
    for (int i = 0; i < SidesCount; ++i)
        sides[i]->setText(tr(sidesRows[i].text));
    for (int i = 0; i < PrintCount; ++i)
        prints[i]->setText(tr(printRows[i].text));
    for (int i = 0; i < CaptionCount; ++i)
        captions[i]->setText(tr(captionRows[i].text));
}

void PublishingTab::registerWidgets()
{
    for (int i = 0; i < ModeCount; ++i) {
        const QLatin1String keyword(modeRows[i].mediaKeyword);
        boundWidgets.insert(keyword, media[i].box);
        markWidgets.insert(keyword, media[i].label);
        checkBoxButtons.append(buttons[i]);
    }
    const QPair<const char *, QWidget *> bound[] = {
        {modeRows[Cover].keyword, buttons[Cover]},
        {"cCovTRad", sides[Front]},
        {"cCovBRad", sides[FrontAndBack]},
        {"cCovPOFO", prints[CoverFrontOutside]},
        {"cCovPOFI", prints[CoverFrontInside]},
        {"cCovPOBO", prints[CoverBackOutside]},
        {"cCovPOBI", prints[CoverBackInside]},
        {modeRows[PageInsert].keyword, buttons[PageInsert]},
        {"cInsPrnF", prints[InsertFront]},
        {"cInsPrnB", prints[InsertBack]},
        {modeRows[Interleaving].keyword, buttons[Interleaving]},
        {"cIntPrn", prints[Backing]},
    };
    for (const auto &[keyword, widget] : bound)
        boundWidgets.insert(QLatin1String(keyword), widget);
}

void PublishingTab::addDependents()
{
    const QList<QWidget *> dependents[] = {
        {sides[Front], sides[FrontAndBack], captions[PrintOnto], captions[CoverFront],
         prints[CoverFrontOutside], prints[CoverFrontInside], captions[CoverBack],
         prints[CoverBackOutside], prints[CoverBackInside], media[Cover].label, media[Cover].box},
        {prints[InsertFront], prints[InsertBack], captions[InsertPages], pagesEdit,
         media[PageInsert].label, media[PageInsert].box, captions[PagesError]},
        {prints[Backing], media[Interleaving].label, media[Interleaving].box},
    };
    static_assert(std::size(dependents) == ModeCount);
    for (int i = 0; i < ModeCount; ++i) {
        for (QWidget *dependent : dependents[i])
            buttons[i]->addDependent(dependent, Sentinel::noDefault);
    }
}

// Connections

void PublishingTab::createConnections()
{
    // A constraint pass follows each of these changes already, but for the text.
    const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
    connect(buttons[Cover], toggled, this, &PublishingTab::coverModeToggled);
    for (const QRadioButton *button : sides)
        connect(button, &QRadioButton::toggled, this,
                &PublishingTab::coverRadioButtonSelectionChanged);
    connect(buttons[Interleaving], toggled, this, &PublishingTab::interleaveToggled);
    connect(buttons[PageInsert], toggled, this, &PublishingTab::pageInsertToggled);
    connect(pagesEdit, &QLineEdit::textEdited, this, &PublishingTab::checkPageInsertInputText);
    connect(pagesEdit, &QLineEdit::textEdited, dialog, &PanelDialog::setConstraints);
    // A cover that takes up the first pages changes what is allowed.
    for (const Print print : {CoverFrontInside, CoverFrontOutside})
        connect(prints[print], &QCheckBox::stateChanged, this,
                &PublishingTab::checkPageInsertInputText);
}

void PublishingTab::BlockAllSignals(bool block)
{
    for (int i = 0; i < ModeCount; ++i) {
        buttons[i]->blockSignals(block);
        media[i].box->blockSignals(block);
    }
    for (QRadioButton *button : sides)
        button->blockSignals(block);
    for (QCheckBox *box : prints)
        box->blockSignals(block);
    pagesEdit->blockSignals(block);
}

// Layout

void PublishingTab::createLayout()
{
    setStyleSheet(QStringLiteral(
        "ComboBoxEx{ margin-bottom: 0px }BixButtonGroup{ margin-bottom: 0px }QCheckBox{ "
        "margin-bottom: 0px }BixCheckBoxButton{ margin-bottom: 0px; }"));
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(createCoverGrid());
    layout->addWidget(PageLayout::verticalLine(this));
    layout->addLayout(createInsertGrid());
}

QGridLayout *PublishingTab::createCoverGrid()
{
    for (const Caption caption : {CoverFront, CoverBack})
        captions[caption]->setStyleSheet(QStringLiteral("margin-left: 20px"));
    // On the back the inside comes first, as one turns the pages.
    QWidget *const rows[] = {
        sides[Front],
        sides[FrontAndBack],
        captions[PrintOnto],
        nullptr,
        captions[CoverFront],
        prints[CoverFrontOutside],
        prints[CoverFrontInside],
        captions[CoverBack],
        prints[CoverBackInside],
        prints[CoverBackOutside],
        media[Cover].label,
        media[Cover].box,
    };
    for (const Print print : coverPrints)
        prints[print]->setStyleSheet(QStringLiteral("margin-bottom: 0px; margin-left: 40px"));
    media[Cover].box->setStyleSheet(QStringLiteral("margin-bottom: 15px"));
    headings[Interleaving]->setIndent(0); // a margin would add one
    headings[Interleaving]->setStyleSheet(QStringLiteral("margin-top: 15px; margin-bottom: 0px"));

    auto *grid = new QGridLayout;
    grid->addWidget(headings[Cover], 0, 0, 1, 2);
    grid->addWidget(buttons[Cover], 1, 0, 2, 1);
    for (int i = 0; i < int(std::size(rows)); ++i) {
        if (rows[i])
            grid->addWidget(rows[i], i + 1, 1);
    }
    grid->addWidget(PageLayout::horizontalLine(this), 13, 0, 1, 3);
    grid->addWidget(headings[Interleaving], 14, 0, 1, 2);
    grid->addWidget(buttons[Interleaving], 15, 0, 2, 1);
    grid->addWidget(prints[Backing], 15, 1);
    grid->addWidget(media[Interleaving].label, 16, 1);
    grid->addWidget(media[Interleaving].box, 17, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(22, 1);
    return grid;
}

QGridLayout *PublishingTab::createInsertGrid()
{
    QWidget *const rows[] = {prints[InsertFront], prints[InsertBack],      captions[InsertPages],
                             pagesEdit,           media[PageInsert].label, media[PageInsert].box};
    auto *grid = new QGridLayout;
    grid->addWidget(headings[PageInsert], 0, 0, 1, 2);
    grid->addWidget(buttons[PageInsert], 1, 0, 2, 1);
    for (int i = 0; i < int(std::size(rows)); ++i)
        grid->addWidget(rows[i], i + 1, 1);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(15, 1);
    return grid;
}

// Loading

void PublishingTab::reload()
{
    BlockAllSignals(true);
    clearPages();
    setTabName();
    constraintWidgets.clear();
    clearMarks();
    applyLabels();
    loadOptions();
    applyAllWidgets();
    loadCover();
    loadPageInsert();
    loadInterleaving();
    BlockAllSignals(false);
}

void PublishingTab::clearPages()
{
    pagesEdit->clear();
    setWidgetMark(headings[PageInsert], QString(), false);
}

void PublishingTab::loadMode(Mode mode, const char *key)
{
    buttons[mode]->setChecked(readSetting(QLatin1String(key)) == Keys::yes);
}

void PublishingTab::loadCover()
{
    loadMode(Cover, "BqCoverModeEnabled");
    const bool both =
        readSetting(QStringLiteral("BqCovermodeRadioButtonState")) == QLatin1String("2");
    sides[both ? FrontAndBack : Front]->setChecked(true);
    const QString code = readSetting(QStringLiteral("BqCoverModeValue"));
    if (code.isEmpty())
        return;
    for (const Print print : coverPrints)
        prints[print]->setChecked(code.toInt() & 1 << print);
    coverRadioButtonSelectionChanged();
}

void PublishingTab::loadPageInsert()
{
    loadMode(PageInsert, "BqPageInsertEnabled");
    pagesEdit->setText(readSetting(QStringLiteral("BqPageinsertNums")));
    checkPageInsertInputText();
    const int code = qMax(0, readSetting(QStringLiteral("BqPageinsertValue")).toInt());
    prints[InsertFront]->setChecked(code & 1);
    prints[InsertBack]->setChecked(code & 2);
}

void PublishingTab::loadInterleaving()
{
    loadMode(Interleaving, "BqIntLvEnabled");
    prints[Backing]->setChecked(readSetting(QStringLiteral("BqIntLvValue")) == QLatin1String("2"));
}

// The user switches something on or off

bool PublishingTab::isOn(Mode mode) const
{
    return buttons[mode]->isChecked();
}

bool PublishingTab::isPrinted(Print print) const
{
    return prints[print]->isChecked();
}

void PublishingTab::coverModeToggled(bool toggleState)
{
    if (toggleState) {
        coverRadioButtonSelectionChanged();
        return;
    }
    sides[Front]->setChecked(true);
    media[Cover].box->setCurrentIndex(0);
    for (const Print print : coverPrints)
        prints[print]->setChecked(false);
}

void PublishingTab::coverRadioButtonSelectionChanged()
{
    if (!isOn(Cover))
        return;
    for (const Sides chosen : {Front, FrontAndBack}) {
        if (!sides[chosen]->isChecked())
            continue;
        captions[CoverBack]->setEnabled(chosen == FrontAndBack);
        if (currentStore) {
            currentStore->setCurrentByKey(QStringLiteral("cCovTRad"),
                                          Keys::yesOrNo(chosen == Front));
            currentStore->setCurrentByKey(QStringLiteral("cCovBRad"),
                                          Keys::yesOrNo(chosen == FrontAndBack));
        }
    }
}

void PublishingTab::pageInsertToggled(bool toggleState)
{
    if (toggleState)
        return;
    prints[InsertFront]->setChecked(false);
    prints[InsertBack]->setChecked(false);
    clearPages();
    media[PageInsert].box->setCurrentIndex(0);
}

void PublishingTab::interleaveToggled(bool toggleState)
{
    if (toggleState)
        return;
    prints[Backing]->setChecked(false);
    media[Interleaving].box->setCurrentIndex(0);
}

void PublishingTab::checkPageInsertInputText()
{
    if (!isOn(PageInsert))
        return;
    const PageList::Result list = PageList::check(
        pagesEdit->text(), isPrinted(CoverFrontOutside) && isPrinted(CoverFrontInside));
    pageInsertList = list.pages;
    pageInsertInvalid = list.verdict != PageList::Verdict::Good;
    QLabel *heading = headings[PageInsert];
    if (const char *text = message(list.verdict))
        setWidgetMark(heading, tr(text), true);
    else if (list.verdict == PageList::Verdict::EndsInComma)
        captions[PagesError]->hide(); // a mark stays until the next page is typed
    else
        // Nothing is wrong with the list, but the heading also stands for the conflict with
        // interleaving.
        setWidgetMark(heading, QString(),
                      constraintWidgets.value(buttons[PageInsert]->accessibleName()));
}

// Conflicts

void PublishingTab::setConflict(Mode mode, bool on)
{
    const QString key = buttons[mode]->accessibleName();
    if (on)
        addConstraintWidget(key, headings[mode]);
    else
        removeConstraintWidget(key);
}

void PublishingTab::beforeConstraints()
{
    const bool interleaved = isOn(Interleaving);
    setConflict(Cover, interleaved && isOn(Cover));
    setConflict(PageInsert, interleaved && isOn(PageInsert));
    setConflict(Interleaving, interleaved && (isOn(Cover) || isOn(PageInsert)));
}

void PublishingTab::clearMarks()
{
    Tab::clearMarks();
    for (QLabel *heading : headings)
        ConstraintMark::removeImage(heading);
}

void PublishingTab::markConstraintWidgets()
{
    Tab::markConstraintWidgets();
    checkPageInsertInputText();
}

bool PublishingTab::hasMarks()
{
    if (!isAvailable())
        return false;
    return marked || (isOn(PageInsert) && (pageInsertInvalid || pagesEdit->text().isEmpty()));
}

// Settings

Settings PublishingTab::extraSettings()
{
    Settings settings;
    addCoverSettings(&settings);
    addPageInsertSettings(&settings);
    addInterleavingSettings(&settings);
    return settings;
}

int PublishingTab::sidesCode() const
{
    int code = 0;
    for (const Print print : coverPrints) {
        if (isPrinted(print))
            code |= 1 << print;
    }
    for (int i = 0; i < SidesCount && code == 0; ++i) {
        if (sides[i]->isChecked())
            code = blankCoverCodes[i];
    }
    return code;
}

void PublishingTab::addCoverSettings(Settings *settings) const
{
    settings->insert(QStringLiteral("BqCoverModeEnabled"), Keys::yesOrNo(isOn(Cover)));
    if (!isOn(Cover))
        return;
    const char *chosen = sides[Front]->isChecked()          ? "1"
                         : sides[FrontAndBack]->isChecked() ? "2"
                                                            : "-1";
    settings->insert(QStringLiteral("BqCoverModeValue"), QString::number(sidesCode()));
    settings->insert(QStringLiteral("BqCovermodeRadioButtonState"), QLatin1String(chosen));
    settings->insert(QStringLiteral("BQCoverMedia"), media[Cover].box->currentText());
}

void PublishingTab::addPageInsertSettings(Settings *settings) const
{
    const bool on = isOn(PageInsert);
    const int code = int(isPrinted(InsertFront)) + 2 * int(isPrinted(InsertBack));
    settings->insert(QStringLiteral("BqPageInsertEnabled"), Keys::yesOrNo(on));
    settings->insert(QStringLiteral("Pins"), Keys::onOrOff(on));
    settings->insert(QStringLiteral("BqPageinsertValue"), QString::number(on ? code : -1));
    if (!on)
        return;
    settings->insert(QStringLiteral("BqPageinsertNums"), pageInsertList);
    settings->insert(QStringLiteral("BQPageinsertMedia"), media[PageInsert].box->currentText());
}

void PublishingTab::addInterleavingSettings(Settings *settings) const
{
    const bool on = isOn(Interleaving);
    const int code = !on ? 0 : isPrinted(Backing) ? 2 : 1;
    settings->insert(QStringLiteral("BqIntLvEnabled"), Keys::yesOrNo(on));
    settings->insert(QStringLiteral("BqIntLvValue"), QString::number(code));
    if (on)
        settings->insert(QStringLiteral("BQTransparencyinterleavingMedia"),
                         media[Interleaving].box->currentText());
}
