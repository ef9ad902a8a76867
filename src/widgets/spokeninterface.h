#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QWidget>

/// What a screen reader asks of a widget: Qt's own answer for all that the widget can do, and the
/// panel's words for what it is. Qt's classes that answer for widgets are private, so this stands
/// before one of them instead of being derived from it.
///
/// Both lie in Qt's cache of interfaces, which owns them and finds this one by the widget. Each
/// goes with the widget or with the cache, whichever is first.
class SpokenInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// `qt` is Qt's own interface for the widget, in the cache already.
    SpokenInterface(QWidget *widget, QAccessibleInterface *qt);
    ~SpokenInterface() override;
    Q_DISABLE_COPY(SpokenInterface)

    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    /// With the labels of a field and, the other way round, with the fields of a label.
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    // As Qt has it.
    bool isValid() const override { return widget && qt->isValid(); }
    QObject *object() const override { return widget; }
    QWindow *window() const override { return qt->window(); }
    QAccessibleInterface *focusChild() const override { return qt->focusChild(); }
    QAccessibleInterface *childAt(int x, int y) const override { return qt->childAt(x, y); }
    QAccessibleInterface *parent() const override { return qt->parent(); }
    QAccessibleInterface *child(int index) const override { return qt->child(index); }
    int childCount() const override { return qt->childCount(); }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return qt->indexOfChild(child);
    }
    void setText(QAccessible::Text t, const QString &text) override { qt->setText(t, text); }
    QRect rect() const override { return qt->rect(); }
    QColor foregroundColor() const override { return qt->foregroundColor(); }
    QColor backgroundColor() const override { return qt->backgroundColor(); }
    void virtual_hook(int id, void *data) override { qt->virtual_hook(id, data); }

    // The actions of a button: switching it is a click, since that is what pages listen to.
    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

private:
    QPointer<QWidget> widget;
    QAccessibleInterface *qt;
    QAccessible::Id qtId;
};
