#include "app/keyboardareas.h"

#include "pages/base/tab.h"
#include "widgets/bixtabwidget.h"
#include "widgets/noticeline.h"

#include <QApplication>
#include <QPushButton>
#include <QTabBar>

KeyboardAreas::KeyboardAreas(BixTabWidget *tabs, NoticeLine *notice,
                             const QList<QPushButton *> &buttons)
    : tabs(tabs)
    , notice(notice)
    , buttons(buttons)
{
}

QList<QWidget *> KeyboardAreas::stops() const
{
    QList<QWidget *> list;
    if (notice->hasLink())
        list.append(notice);
    for (QPushButton *button : buttons) {
        if (button->isEnabled())
            list.append(button);
    }
    return list;
}

KeyboardAreas::Area KeyboardAreas::current() const
{
    QWidget *focused = QApplication::focusWidget();
    // The focus may have stayed on a page that a click on another tab has hidden.
    if (!focused || !focused->isVisible() || focused == tabs->tabBar())
        return List;
    return tabs->isAncestorOf(focused) ? Page : Rows;
}

void KeyboardAreas::goRound(bool next) const
{
    switch ((current() + (next ? 1 : AreaCount - 1)) % AreaCount) {
    case List:
        tabs->tabBar()->setFocus(Qt::TabFocusReason);
        break;
    case Page:
        if (auto *page = qobject_cast<Tab *>(tabs->currentWidget()))
            page->takeFocus();
        break;
    default:
        stops().first()->setFocus(Qt::TabFocusReason); // Cancel is always there
    }
}

bool KeyboardAreas::walk(bool next) const
{
    const QList<QWidget *> all = stops();
    const int here = all.indexOf(QApplication::focusWidget());
    if (here < 0)
        return false;
    all[(here + (next ? 1 : all.size() - 1)) % all.size()]->setFocus(next ? Qt::TabFocusReason
                                                                          : Qt::BacktabFocusReason);
    return true;
}

bool KeyboardAreas::pressFocused()
{
    auto *button = qobject_cast<QPushButton *>(QApplication::focusWidget());
    if (button)
        button->click();
    return button;
}
