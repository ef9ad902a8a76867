#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// A frame around the control that has the focus, in every window, as long as the keyboard is used:
/// many controls are pictures without a border of their own. The mouse takes it away.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application.
    explicit FocusRing(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();

    QPointer<QWidget> ring; ///< a child of the window that has the focus
    bool byKeyboard = false;
};
