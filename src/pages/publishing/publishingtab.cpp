#include "pages/publishing/publishingtab.h"

#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/buttoncaption.h"
#include "pages/base/errorlabel.h"
#include "pages/base/paneldialog.h"
#include "pages/base/reasons.h"
#include "pages/publishing/pagelist.h"
#include "pages/publishing/publishingrows.h"
#include "pages/publishing/publishingsettings.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegExpValidator>

#include <iterator>

using PageWidgets::named;
using namespace PublishingRows;

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
    // A frame takes its margins when it is made.
    setStyleSheet(QStringLiteral(
        "ComboBoxEx{ margin-bottom: 0px }BixButtonGroup{ margin-bottom: 0px }QCheckBox{ "
        "margin-bottom: 0px }BixCheckBoxButton{ margin-bottom: 0px; }"));
    static_assert(std::size(modeRows) == ModeCount && std::size(sidesRows) == SidesCount &&
                  std::size(printRows) == PrintCount && std::size(captionRows) == CaptionCount);
    for (int i = 0; i < ModeCount; ++i) {
        const ModeRow &row = modeRows[i];
        headings[i] = named(new QLabel(this), row.headingName);
        buttons[i] =
            named(new BixCheckBoxButton(this, QString(), Icons::icon(QLatin1String(row.icon))),
                  row.buttonName);
        media[i] =
            PageWidgets::labeledComboBox(this, row.mediaLabelName, row.mediaBoxName, QString());
        media[i].label->setWordWrap(true); // the PPD's name of it may be long
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
    // The option store follows what was loaded since, unless interleaving is on beside one of the
    // others: it would switch one off, and the user is to be told instead.
    if (!isOn(Interleaving) || !(isOn(Cover) || isOn(PageInsert)))
        applyAllWidgets();
    BlockAllSignals(false);
}

void PublishingTab::clearPages()
{
    pagesEdit->clear();
    setWidgetMark(headings[PageInsert], QString(), false);
}

void PublishingTab::loadCover()
{
    const PublishingSettings::Cover saved = PublishingSettings::savedCover();
    buttons[Cover]->setChecked(saved.on);
    sides[saved.bothSides ? FrontAndBack : Front]->setChecked(true);
    if (!saved.hasCode)
        return;
    for (const Print print : coverPrints)
        prints[print]->setChecked(saved.printed[print]);
    coverRadioButtonSelectionChanged();
}

void PublishingTab::loadPageInsert()
{
    const PublishingSettings::PageInsert saved = PublishingSettings::savedPageInsert();
    buttons[PageInsert]->setChecked(saved.on);
    pagesEdit->setText(saved.pages);
    checkPageInsertInputText();
    prints[InsertFront]->setChecked(saved.front);
    prints[InsertBack]->setChecked(saved.back);
}

void PublishingTab::loadInterleaving()
{
    const PublishingSettings::Interleaving saved = PublishingSettings::savedInterleaving();
    buttons[Interleaving]->setChecked(saved.on);
    prints[Backing]->setChecked(saved.backing);
}

// The user switches something on or off

bool PublishingTab::isOn(Mode mode) const
{
    return buttons[mode]->isChecked();
}

QStringList PublishingTab::modesOn() const
{
    QStringList keywords;
    for (int i = 0; i < ModeCount; ++i) {
        if (isOn(Mode(i)))
            keywords.append(QLatin1String(modeRows[i].keyword));
    }
    return keywords;
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
    if (const char *text = PageList::message(list.verdict))
        setWidgetMark(heading, tr(text), true);
    else if (list.verdict == PageList::Verdict::EndsInComma)
        captions[PagesError]->hide(); // a mark stays until the next page is typed
    else
        // Nothing is wrong with the list, but the heading also stands for the conflict with
        // interleaving.
        setWidgetMark(heading, conflicts[PageInsert], !conflicts[PageInsert].isEmpty());
}

// Conflicts

void PublishingTab::setConflict(Mode mode, const QList<Mode> &others)
{
    QStringList reasons;
    for (const Mode other : others) {
        if (isOn(mode) && isOn(other))
            reasons.append(Reasons::notWith(PageWidgets::withoutColon(tr(modeRows[other].text))));
    }
    const QString key = buttons[mode]->accessibleName();
    if (reasons.isEmpty())
        removeConstraintWidget(key);
    else
        addConstraintWidget(key, headings[mode]);
    const QString text = reasons.join(QLatin1Char('\n'));
    // The mark of a list of pages has a tool tip of its own.
    if (conflicts[mode] != text)
        ConstraintMark::explain(headings[mode], text);
    conflicts[mode] = text;
}

void PublishingTab::beforeConstraints()
{
    setConflict(Cover, {Interleaving});
    setConflict(PageInsert, {Interleaving});
    setConflict(Interleaving, {Cover, PageInsert});
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
    const bool printed[] = {isPrinted(CoverFrontOutside), isPrinted(CoverFrontInside),
                            isPrinted(CoverBackOutside), isPrinted(CoverBackInside)};
    Settings settings;
    PublishingSettings::addCover(&settings, isOn(Cover), printed, sides[Front]->isChecked(),
                                 sides[FrontAndBack]->isChecked(), media[Cover].box->currentText());
    PublishingSettings::addPageInsert(&settings, isOn(PageInsert), isPrinted(InsertFront),
                                      isPrinted(InsertBack), pageInsertList,
                                      media[PageInsert].box->currentText());
    PublishingSettings::addInterleaving(&settings, isOn(Interleaving), isPrinted(Backing),
                                        media[Interleaving].box->currentText());
    return settings;
}
