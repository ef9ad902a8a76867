#include "app/busyguard.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

bool isOfUser(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// As Qt does it: behind a message no window closes.
void closeUnlessBlocked(QWidget *window)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (!modal || modal == window)
        window->close();
}

} // namespace

BusyGuard::BusyGuard()
    : front(QApplication::activeModalWidget())
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QCoreApplication::instance()->installEventFilter(this);
}

BusyGuard::~BusyGuard()
{
    QApplication::restoreOverrideCursor();
    for (QWidget *window : qAsConst(closing)) {
        if (window)
            QTimer::singleShot(0, window, [window] { closeUnlessBlocked(window); });
    }
}

bool BusyGuard::eventFilter(QObject *watched, QEvent *event)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != front)
        return false;
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Close && widget) {
        event->ignore();
        closing.append(widget);
        return true;
    }
    // The windows of the window system, which are no widgets, keep track of the buttons.
    if (!isOfUser(event->type()) || watched->isWindowType())
        return false;
    event->accept(); // or it would go on to the widget around this one
    return true;
}
