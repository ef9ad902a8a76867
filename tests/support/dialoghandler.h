#pragma once

#include <QApplication>
#include <QDialog>
#include <QEvent>

/// Hears of every modal dialog as it shows, which is before its own loop runs: to answer it is for
/// later, see QMetaObject::invokeMethod().
class DialogHandler : public QObject
{
public:
    DialogHandler() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (event->type() == QEvent::Show && dialog && dialog->isModal())
            handle(dialog);
        return false;
    }

protected:
    virtual void handle(QDialog *dialog) = 0;
};
