#include "widgets/bixtabwidget.h"

#include "widgets/bixtabbar.h"

#include <QPainter>

BixTabWidget::BixTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new BixTabBar(this));
}

void BixTabWidget::paintEvent(QPaintEvent *event)
{
    QTabWidget::paintEvent(event);
    const int top = tabBar()->geometry().bottom() + 1; // below the last tab
    QPainter(this).fillRect(0, top, tabBar()->width(), height() - top, QColor(0, 0, 0, 127));
}
