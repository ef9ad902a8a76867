#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

/// Gives windows the keyboard focus as a desktop's window manager does; a bare X server has none.
///
/// A window or dialog that opens becomes active, and when it closes, the one before it does.
class WindowActivator : public QObject
{
    Q_OBJECT

public:
    WindowActivator();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void activateTopmost();

    QVector<QPointer<QWidget>> m_windows; ///< open windows, the one used last at the end
};
