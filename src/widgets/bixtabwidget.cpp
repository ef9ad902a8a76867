#include "widgets/bixtabwidget.h"

#include "widgets/bixtabbar.h"

#include <QPainter>
#include <QVariant>

BixTabWidget::BixTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new BixTabBar(this));
    connect(this, &QTabWidget::currentChanged, this, [this](int index) { setDotAt(index, false); });
}

void BixTabWidget::setDot(QWidget *page)
{
    setDotAt(indexOf(page), page != currentWidget());
}

void BixTabWidget::clearDots()
{
    for (int i = 0; i < count(); ++i)
        setDotAt(i, false);
}

bool BixTabWidget::hasDot(const QWidget *page) const
{
    return tabBar()->tabData(indexOf(const_cast<QWidget *>(page))).toBool();
}

void BixTabWidget::setDotAt(int index, bool on)
{
    if (tabBar()->tabData(index).toBool() == on)
        return;
    tabBar()->setTabData(index, on);
    setTabToolTip(index, on ? tr("Something has changed here.") : QString());
    tabBar()->update();
}

void BixTabWidget::paintEvent(QPaintEvent *event)
{
    QTabWidget::paintEvent(event);
    const int top = tabBar()->geometry().bottom() + 1; // below the last tab
    QPainter(this).fillRect(0, top, tabBar()->width(), height() - top, QColor(0, 0, 0, 127));
}
