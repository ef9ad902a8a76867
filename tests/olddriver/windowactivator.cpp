#include "windowactivator.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

WindowActivator::WindowActivator()
{
    qApp->installEventFilter(this);
}

bool WindowActivator::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type change = event->type();
    if (!watched->isWidgetType() ||
        (change != QEvent::Show && change != QEvent::Hide && change != QEvent::WindowActivate))
        return false;
    auto *window = static_cast<QWidget *>(watched);
    const Qt::WindowType type = window->windowType();
    if (type != Qt::Window && type != Qt::Dialog)
        return false;
    m_windows.removeAll(window);
    if (change != QEvent::Hide)
        m_windows.append(window);
    if (change != QEvent::WindowActivate)
        QTimer::singleShot(0, this, &WindowActivator::activateTopmost);
    return false;
}

void WindowActivator::activateTopmost()
{
    m_windows.removeAll(nullptr);
    if (!m_windows.isEmpty() && m_windows.last()->isVisible())
        m_windows.last()->activateWindow();
}
