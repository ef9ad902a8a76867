#include "pages/base/pagelayout.h"

#include <QFrame>

namespace {

QFrame *line(QWidget *parent, QFrame::Shape shape)
{
    auto *frame = new QFrame(parent);
    frame->setFrameShape(shape);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

} // namespace

namespace PageLayout {

QFrame *horizontalLine(QWidget *parent)
{
    return line(parent, QFrame::HLine);
}

QFrame *verticalLine(QWidget *parent)
{
    return line(parent, QFrame::VLine);
}

void setTabOrder(const QList<QWidget *> &widgets)
{
    QWidget *previous = nullptr;
    for (QWidget *widget : widgets) {
        if (!widget)
            continue;
        if (previous)
            QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}

} // namespace PageLayout
