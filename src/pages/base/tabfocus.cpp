#include "pages/base/tab.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

// How the Tab key walks within a page.

namespace {

/// The control that a focusable widget is a part of, or the widget itself.
QWidget *wholeOf(QWidget *widget)
{
    QWidget *parent = widget->parentWidget();
    const bool isPart =
        qobject_cast<BixButtonGroup *>(parent) || qobject_cast<BixCheckBoxButton *>(parent);
    return isPart ? parent : widget;
}

/// The buttons of which one is picked, this one among them; none for a button that stands alone.
QList<QAbstractButton *> alternatives(const QAbstractButton *button)
{
    if (button->group())
        return button->group()->buttons();
    QList<QAbstractButton *> buttons;
    if (button->autoExclusive() && button->parentWidget()) {
        const auto radios = button->parentWidget()->findChildren<QRadioButton *>(
            QString(), Qt::FindDirectChildrenOnly);
        for (QRadioButton *radio : radios)
            buttons.append(radio);
    }
    return buttons;
}

/// Of alternatives the picked one takes the focus, else the first that can be picked: the arrow
/// keys do the rest. The group and the picture beside a check box lead nowhere else.
bool isStop(QWidget *widget, const QWidget *page)
{
    if (!widget->isEnabled() || widget->isWindow() || !widget->isVisibleTo(page))
        return false;
    if (qobject_cast<BixCheckBoxButton *>(widget->parentWidget()))
        return qobject_cast<QCheckBox *>(widget);
    const auto *area = qobject_cast<QScrollArea *>(widget);
    if (area && area->verticalScrollBar()->maximum() == 0)
        return false; // nothing to scroll
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    const QList<QAbstractButton *> all = button ? alternatives(button) : QList<QAbstractButton *>();
    if (all.isEmpty())
        return !qobject_cast<BixButtonGroup *>(widget) && (widget->focusPolicy() & Qt::TabFocus);
    const auto first = [&](auto condition) {
        const auto found = std::find_if(all.cbegin(), all.cend(), condition);
        return found == all.cend() ? nullptr : *found;
    };
    const QAbstractButton *picked =
        first([](const QAbstractButton *each) { return each->isChecked() && each->isEnabled(); });
    return button ==
           (picked ? picked : first([](const QAbstractButton *each) { return each->isEnabled(); }));
}

} // namespace

QList<QWidget *> Tab::focusOrder() const
{
    // By the columns that vertical lines make, and down each of them.
    QList<int> lines;
    const auto frames = findChildren<QFrame *>();
    for (const QFrame *frame : frames) {
        if (frame->frameShape() == QFrame::VLine)
            lines.append(frame->mapTo(const_cast<Tab *>(this), QPoint()).x());
    }
    const auto place = [&](QWidget *widget) {
        const QWidget *whole = wholeOf(widget);
        const QPoint corner = whole->mapTo(const_cast<Tab *>(this), QPoint());
        const auto column = std::count_if(lines.cbegin(), lines.cend(),
                                          [&](int line) { return line < corner.x(); });
        return std::make_tuple(column, corner.y(), corner.x());
    };
    QList<QWidget *> stops;
    const auto widgets = findChildren<QWidget *>();
    std::copy_if(widgets.cbegin(), widgets.cend(), std::back_inserter(stops),
                 [this](QWidget *widget) { return isStop(widget, this); });
    std::stable_sort(stops.begin(), stops.end(),
                     [&](QWidget *left, QWidget *right) { return place(left) < place(right); });
    return stops;
}

bool Tab::focusNextPrevChild(bool next)
{
    const QList<QWidget *> stops = focusOrder();
    if (stops.isEmpty() || !isVisible())
        return false;
    QWidget *focused = focusWidget();
    const auto here = std::find_if(stops.cbegin(), stops.cend(), [&](QWidget *stop) {
        return focused && wholeOf(stop) == wholeOf(focused);
    });
    const int count = stops.size();
    int to = next ? 0 : count - 1;
    if (here != stops.cend())
        to = (int(here - stops.cbegin()) + (next ? 1 : count - 1)) % count;
    stops[to]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Tab::takeFocus()
{
    const QList<QWidget *> stops = focusOrder();
    QWidget *last = focusWidget();
    if (stops.contains(last))
        last->setFocus(Qt::TabFocusReason);
    else if (!stops.isEmpty())
        stops.first()->setFocus(Qt::TabFocusReason);
}
