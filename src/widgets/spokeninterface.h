#pragma once

#include "widgets/accessibleproxy.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

/// What a screen reader asks of a widget: Qt's own answer for all that the widget can do, and the
/// panel's words for what it is. It goes with the widget.
class SpokenInterface : public AccessibleProxy
{
public:
    SpokenInterface(QWidget *widget, QAccessibleInterface *qt);
    ~SpokenInterface() override;
    Q_DISABLE_COPY(SpokenInterface)

    bool isValid() const override { return widget && qt->isValid(); }
    QObject *object() const override { return widget; }
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    /// With the labels of a field and, the other way round, with the fields of a label.
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    /// Of a list of pages each entry is a SpokenTab, however it is asked for.
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *focusChild() const override { return spoken(qt->focusChild()); }
    QAccessibleInterface *childAt(int x, int y) const override { return spoken(qt->childAt(x, y)); }
    int indexOfChild(const QAccessibleInterface *child) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    /// Switching a button is a click, since that is what pages listen to.
    void doAction(const QString &name) override;

private:
    QAccessibleInterface *spoken(QAccessibleInterface *part) const;

    QPointer<QWidget> widget;
    mutable QHash<int, QAccessible::Id> tabs; ///< that have been asked for, by place
};
