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
    const int barBottom = tabBar()->geometry().bottom();
    QPainter(this).fillRect(0, barBottom, tabBar()->width(), height() - barBottom,
                            QColor(0, 0, 0, 127));
}
