#include "widgets/bixtabbar.h"

#include "widgets/panellook.h"

#include <QHelpEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int iconHeight = 30;
constexpr int dotSize = 10;

/// The middle of a row. At a higher pixel density an icon would fill the whole height of it.
QRect iconRow(const QRect &row)
{
    const int spare = std::max(0, row.height() - iconHeight);
    return row.adjusted(0, spare / 2, 0, spare / 2 - spare);
}

QFont textFont()
{
    return {QStringLiteral("Arial"), 12};
}

/// At the corner of the icon, since a long text reaches to the end of its row.
void drawDot(QPainter *painter, const QRect &icon)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(0x55, 0x55, 0x55), 2)); // sets it off against the lines of the icon
    painter->setBrush(Qt::white);
    QRect dot(0, 0, dotSize, dotSize);
    dot.moveCenter(icon.topRight());
    painter->drawEllipse(dot);
}

} // namespace

BixTabBar::BixTabBar(QWidget *parent)
    : QTabBar(parent)
{
}

QRect BixTabBar::textPlace(int index) const
{
    return tabRect(index).adjusted(iconSize().width() + 17, 3, 0, -3);
}

QString BixTabBar::shownText(int index) const
{
    return QFontMetrics(textFont(), this)
        .elidedText(tabText(index), Qt::ElideRight, textPlace(index).width());
}

bool BixTabBar::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int index = tabAt(help->pos());
        if (index >= 0 && shownText(index) != tabText(index)) {
            PanelLook::showToolTip(help->globalPos(), tabText(index), tabToolTip(index), this);
            return true;
        }
    }
    return QTabBar::event(event);
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
        // Only in the option: a change of the tab itself would repaint for ever.
        option.icon = QIcon();
        option.text.clear();
        painter.drawControl(QStyle::CE_TabBarTabShape, option);

        painter.setPen(isTabEnabled(i) ? QColor(Qt::white) : QColor(0, 0, 0, 0));
        painter.setFont(textFont());
        QRect place = textPlace(i);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, shownText(i));
        place.setLeft(place.left() - (iconSize().width() + 10));
        icon.paint(&painter, iconRow(place), Qt::AlignLeft | Qt::AlignVCenter, QIcon::Active);
        if (isTabEnabled(i) && tabData(i).toBool())
            drawDot(&painter,
                    QRect(place.left(), iconRow(place).top() + 2, iconSize().width(), iconHeight));
    }
}
