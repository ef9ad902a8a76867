#include "widgets/comboboxex.h"

#include "widgets/panellook.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include <algorithm>

namespace {

// From this number on the list has a scroll bar.
constexpr int longListCount = 11;
constexpr int padding = 4; // pixels

} // namespace

ComboBoxEx::ComboBoxEx(QWidget *parent)
    : QComboBox(parent)
{
    // Without the wheel, which would take the focus before the event arrives.
    setFocusPolicy(Qt::StrongFocus);
}

void ComboBoxEx::setUsualWidth(int width)
{
    usualWidth = width;
    setSizePolicy(QSizePolicy::Fixed, sizePolicy().verticalPolicy());
    // Larger type needs the freedom to be given less on a crowded page.
    if (PanelLook::typeFactor(font()) == 1.0)
        setFixedWidth(width);
    updateGeometry();
}

int ComboBoxEx::grownWidth(int textWidth) const
{
    const double factor = PanelLook::typeFactor(font());
    if (usualWidth == 0) // with what Qt forgets to add for the padding of the window's style sheet
        return factor == 1.0 ? textWidth : textWidth + padding;
    return std::clamp(textWidth, usualWidth, int(usualWidth * factor));
}

QSize ComboBoxEx::sizeHint() const
{
    const QSize hint = QComboBox::sizeHint();
    return {grownWidth(hint.width()), hint.height()};
}

QSize ComboBoxEx::minimumSizeHint() const
{
    const QSize hint = QComboBox::minimumSizeHint();
    return {grownWidth(hint.width()), hint.height()};
}

void ComboBoxEx::showPopup()
{
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (int i = 0; i < count(); ++i) {
        int width = metrics.horizontalAdvance(itemText(i));
        if (!itemIcon(i).isNull())
            width += iconSize().width() + 4;
        widest = std::max(widest, width);
    }

    QStyleOptionComboBox option;
    initStyleOption(&option);
    int width = style()
                    ->sizeFromContents(QStyle::CT_ComboBox, &option,
                                       QSize(widest, option.rect.height()), this)
                    .width();
    if (count() >= longListCount) {
        const QScrollBar *bar = view()->verticalScrollBar();
        width += bar->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, bar);
    }
    view()->window()->setFixedWidth(std::max(width, this->width()));
    QComboBox::showPopup();
}

void ComboBoxEx::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void ComboBoxEx::keyPressEvent(QKeyEvent *event)
{
    // Qt looks for an item that begins with a tab.
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isTab && event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}
