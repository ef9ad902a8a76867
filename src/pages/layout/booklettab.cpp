#include "pages/layout/booklettab.h"

#include "pages/base/pagewidgets.h"
#include "widgets/bixbuttongroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>

using PageWidgets::named;
using PageWidgets::withColon;

namespace {

constexpr PageWidgets::ButtonRow bindingButtons[] = {
    {QT_TRANSLATE_NOOP("BookletTab", "Off"), ":/icons/booklet-off", "None"},
    {QT_TRANSLATE_NOOP("BookletTab", "Left edge binding"), ":/icons/booklet-left", "Left"},
    {QT_TRANSLATE_NOOP("BookletTab", "Right edge binding"), ":/icons/booklet-right", "Right"},
};

} // namespace

BookletTab::BookletTab(PanelDialog *dialog)
    : Tab(dialog,
          {QT_TRANSLATE_NOOP("BookletTab", "Layout"), ":/icons/tab-layout", PageHead::WithAnOption})
{
    Tab::setTabName();
    BookletTab::createWidgets();
    BookletTab::connectSignals();
    createLayout();
}

void BookletTab::createWidgets()
{
    bindingGroup = named(new BixButtonGroup(this, withColon(tr("Booklet"))), "butGroupBXBooklet");
    PageWidgets::addButtons(bindingGroup, bindingButtons, tr);
    foldBox = named(new QCheckBox(tr("Booklet fold"), this), "chkBxFold");

    // Each shows its own mark.
    for (WidgetMap *widgets : {&boundWidgets, &markWidgets}) {
        widgets->insert(QStringLiteral("BXBooklet"), bindingGroup);
        widgets->insert(QStringLiteral("Fold"), foldBox);
    }
}

void BookletTab::connectSignals()
{
    connectBoundWidgets();
}

void BookletTab::createLayout()
{
    auto *grid = new QGridLayout;
    grid->addWidget(bindingGroup, 0, 1, Qt::AlignLeft);
    grid->addWidget(foldBox, 1, 1, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(3, 1);

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(grid);
}
