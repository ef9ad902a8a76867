#include "widgets/bixtabbar.h"

#include <QIcon>
#include <QKeyEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int iconHeight = 30;
constexpr int dotSize = 8;

/// The middle of a row. At a higher pixel density an icon would fill the whole height of it.
QRect iconRow(const QRect &row)
{
    const int spare = std::max(0, row.height() - iconHeight);
    return row.adjusted(0, spare / 2, 0, spare / 2 - spare);
}

void drawDot(QPainter *painter, const QRect &row)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::white);
    QRect dot(0, 0, dotSize, dotSize);
    dot.moveCenter(QPoint(row.right() - 2 * dotSize, row.center().y()));
    painter->drawEllipse(dot);
}

} // namespace

BixTabBar::BixTabBar(QWidget *parent)
    : QTabBar(parent)
{
}

void BixTabBar::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        QTabBar::keyPressEvent(event);
        return;
    }
    const int step = key == Qt::Key_Down ? 1 : -1;
    int to = currentIndex() + step;
    while (to >= 0 && to < count() && !isTabEnabled(to))
        to += step;
    if (to >= 0 && to < count())
        setCurrentIndex(to);
}

void BixTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    for (int i = 0; i < count(); ++i) {
        QStyleOptionTab option;
        initStyleOption(&option, i);
        const QIcon icon = option.icon;
        const QString text = option.text;
        // Only in the option: a change of the tab itself would repaint for ever.
        option.icon = QIcon();
        option.text.clear();
        painter.drawControl(QStyle::CE_TabBarTabShape, option);

        painter.setPen(isTabEnabled(i) ? QColor(Qt::white) : QColor(0, 0, 0, 0));
        painter.setFont(QFont(QStringLiteral("Arial"), 12));
        const int iconWidth = iconSize().width();
        QRect place = option.rect.adjusted(iconWidth + 17, 3, 0, -3);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
        place.setLeft(place.left() - (iconWidth + 10));
        icon.paint(&painter, iconRow(place), Qt::AlignLeft | Qt::AlignVCenter, QIcon::Active);
        if (isTabEnabled(i) && tabData(i).toBool())
            drawDot(&painter, place);
    }
}
