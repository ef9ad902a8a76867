#include "sketch/sheetview.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/optionlabels.h"
#include "pages/base/tab.h"
#include "pages/publishing/publishingtab.h"
#include "pages/watermark/watermarktab.h"
#include "sketch/sheetwords.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/bixtabwidget.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace {

/// What takes the focus for a bound widget; null if nothing can now.
QWidget *focusTarget(QWidget *control)
{
    QWidget *target = control;
    if (const auto *group = qobject_cast<BixButtonGroup *>(control))
        target = group->buttonAt(group->currentIndex());
    else if (qobject_cast<BixCheckBoxButton *>(control))
        target = control->findChild<QCheckBox *>();
    const bool canTake =
        target && target->isEnabled() && (target->focusPolicy() & Qt::TabFocus) != 0;
    return canTake ? target : nullptr;
}

QWidget *controlOf(const Tab *page, const QString &keyword)
{
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isIt = !qobject_cast<QLabel *>(widget) && page->keywordOf(widget) == keyword;
        if (QWidget *target = isIt ? focusTarget(widget) : nullptr)
            return target;
    }
    return nullptr;
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

SheetView::SheetView(BixTabWidget *tabs, const QList<Tab *> &pages, const OptionLabels &labels)
    : QWidget(tabs)
    , tabs(tabs)
    , pages(pages)
    , labels(labels)
{
    setMouseTracking(true);
    hide();
    tabs->installEventFilter(this);
    tabs->tabBar()->installEventFilter(this);
}

// What it shows

SheetPages SheetView::pagesNow() const
{
    SheetPages now;
    for (const Tab *page : pages) {
        if (const auto *watermark = qobject_cast<const WatermarkTab *>(page))
            now.watermark = watermark->shownText();
        else if (const auto *publishing = qobject_cast<const PublishingTab *>(page))
            now.modes = publishing->modesOn();
    }
    return now;
}

void SheetView::showSettings(const QHash<QString, QString> &moved)
{
    place();
    if (!currentStore)
        return;
    const SheetPages now = pagesNow();
    const QString words = sheetWords(*currentStore, now, labels);
    if (words != accessibleDescription()) {
        setAccessibleDescription(words);
        setToolTip(plainToolTip(words));
    }
    SheetSketch next = sheetSketch(*currentStore, now);
    next.moved = sheetParts(moved.keys());
    const SheetSketch last = next.moved ? sheetSketch(*currentStore, now, moved) : SheetSketch();
    if (next == sketch && last == before)
        return;
    sketch = next;
    before = last;
    update();
}

void SheetView::place()
{
    const QRect bar = tabs->tabBar()->geometry();
    const QRect free = sheetPlace({bar.width(), tabs->height()}, bar.bottom() + 1);
    setGeometry(free);
    setVisible(currentStore && !free.isEmpty());
}

bool SheetView::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return false;
}

void SheetView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    areas = paintSheets(&painter, rect(), sketch, before);
}

// What lies under the pointer

std::optional<SheetPart> SheetView::partAt(const QPoint &point) const
{
    const auto found = std::find_if(areas.crbegin(), areas.crend(), [&](const SheetArea &area) {
        return area.shape.contains(point);
    });
    if (found == areas.crend())
        return std::nullopt;
    return found->part;
}

QStringList SheetView::keywordsOf(SheetPart part) const
{
    const QStringList all = sheetKeywords(part);
    QStringList used;
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(used), [](const QString &keyword) {
        const bOption *option = currentOption(keyword);
        return option && option->current() && !OptionLabels::isOff(*option->current());
    });
    return used + all; // a switch, where the list below it is greyed
}

QString SheetView::toolTipAt(const QPoint &point) const
{
    const std::optional<SheetPart> part = partAt(point);
    if (!part)
        return toolTip();
    const QStringList keywords = keywordsOf(*part);
    for (const QString &keyword : keywords) {
        if (const bOption *option = currentOption(keyword))
            return plainToolTip(accessibleDescription() + QLatin1Char('\n') +
                                tr("Click to change: %1").arg(labels.label(*option)));
    }
    return toolTip();
}

bool SheetView::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), toolTipAt(help->pos()), this);
    return true;
}

void SheetView::mouseMoveEvent(QMouseEvent *event)
{
    setCursor(partAt(event->pos()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void SheetView::mousePressEvent(QMouseEvent *event)
{
    pressed = event->button() == Qt::LeftButton ? partAt(event->pos()) : std::nullopt;
}

void SheetView::mouseReleaseEvent(QMouseEvent *event)
{
    const std::optional<SheetPart> part = pressed;
    pressed.reset();
    if (part && part == partAt(event->pos()))
        open(*part);
}

void SheetView::open(SheetPart part)
{
    const QStringList keywords = keywordsOf(part);
    for (const QString &keyword : keywords) {
        for (Tab *page : pages) {
            QWidget *control =
                tabs->isTabEnabled(tabs->indexOf(page)) ? controlOf(page, keyword) : nullptr;
            if (!control)
                continue;
            tabs->setCurrentWidget(page);
            control->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}
