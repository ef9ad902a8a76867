// Where the widgets of the page "Publishing" stand.

#include "pages/base/pagelayout.h"
#include "pages/publishing/publishingtab.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/panellook.h"
#include "widgets/spoken.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <iterator>

namespace {

// In pixels.
constexpr int inputWidth = 185;
constexpr int captionWidth = 110; // at most, for inputs of the full width beside it

} // namespace

void PublishingTab::createLayout()
{
    const bool hasRoom = PanelLook::typeFactor(font()) == 1.0 &&
                         buttons[Interleaving]->sizeHint().width() <= captionWidth;
    for (QWidget *input : std::initializer_list<QWidget *>{media[Cover].box, media[PageInsert].box,
                                                           media[Interleaving].box, pagesEdit})
        input->setMinimumWidth(hasRoom ? inputWidth : 0);
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
        prints[print]->setStyleSheet(
            QStringLiteral("QCheckBox { margin-bottom: 0px; margin-left: 40px }"));
    media[Cover].box->setStyleSheet(QStringLiteral("ComboBoxEx { margin-bottom: 15px }"));
    for (const Print print : {CoverFrontOutside, CoverFrontInside})
        Spoken::setLabels(prints[print], {captions[CoverFront]});
    for (const Print print : {CoverBackOutside, CoverBackInside})
        Spoken::setLabels(prints[print], {captions[CoverBack]});
    for (int i = 0; i < ModeCount; ++i)
        Spoken::setLabels(buttons[i], {headings[i]});
    headings[Interleaving]->setIndent(0); // a margin would add one
    headings[Interleaving]->setStyleSheet(
        QStringLiteral(".QLabel { margin-top: 15px; margin-bottom: 0px }"));

    auto *grid = new QGridLayout;
    grid->addWidget(headings[Cover], 0, 0, 1, 2);
    grid->addWidget(buttons[Cover], 1, 0, 2, 1);
    for (int i = 0; i < int(std::size(rows)); ++i) {
        if (rows[i])
            grid->addWidget(rows[i], i + 1, 1);
    }
    grid->addWidget(PageLayout::horizontalLine(this), 13, 0, 1, 2);
    grid->addWidget(headings[Interleaving], 14, 0, 1, 2);
    // As high as all that stands beside it, or it would draw two of the rows apart.
    grid->addWidget(buttons[Interleaving], 15, 0, 3, 1);
    grid->addWidget(prints[Backing], 15, 1);
    grid->addWidget(media[Interleaving].label, 16, 1);
    grid->addWidget(media[Interleaving].box, 17, 1);
    grid->setColumnMinimumWidth(1, inputWidth);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(22, 1);
    return grid;
}

QGridLayout *PublishingTab::createInsertGrid()
{
    QWidget *const rows[] = {prints[InsertFront], prints[InsertBack],      captions[InsertPages],
                             pagesEdit,           media[PageInsert].label, media[PageInsert].box};
    // With the heading, which is marked for a fault in it.
    Spoken::setLabels(pagesEdit, {headings[PageInsert], captions[InsertPages]});

    auto *grid = new QGridLayout;
    grid->addWidget(headings[PageInsert], 0, 0, 1, 2);
    grid->addWidget(buttons[PageInsert], 1, 0, 2, 1);
    for (int i = 0; i < int(std::size(rows)); ++i)
        grid->addWidget(rows[i], i + 1, 1);
    grid->setColumnMinimumWidth(1, inputWidth);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(15, 1);
    return grid;
}
