#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWidget;

/// While it lives, the panel is at work: the pointer shows it, windows are drawn, but whatever the
/// user does counts for nothing, so that an event loop can run in the middle of something that must
/// stay in one piece.
///
/// Clicks and keys are dropped and not kept for later: who clicks a busy window again and again
/// doesn't mean the message that opens next. A window that is to close does so afterwards, unless a
/// message stands before it by then. A dialog that opens meanwhile can be used: nothing would go on
/// before it is answered.
class BusyGuard : public QObject
{
    Q_OBJECT

public:
    BusyGuard();
    ~BusyGuard() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> front; ///< the modal dialog that the work began in, if any
    QList<QPointer<QWidget>> closing;
};
