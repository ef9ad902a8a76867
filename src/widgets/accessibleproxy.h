#pragma once

#include <QAccessibleInterface>

/// Stands before one of Qt's own answers to a screen reader and hands on whatever a subclass does
/// not answer itself. Qt's classes that answer for widgets are private, so this can't be derived
/// from one of them.
///
/// Both lie in Qt's cache of interfaces, which owns them. Each goes by itself or with the cache,
/// whichever is first.
class AccessibleProxy : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// `qt` is Qt's own interface, in the cache already.
    explicit AccessibleProxy(QAccessibleInterface *qt);
    ~AccessibleProxy() override;
    Q_DISABLE_COPY(AccessibleProxy)

    bool isValid() const override { return qt->isValid(); }
    QObject *object() const override { return qt->object(); }
    QString text(QAccessible::Text t) const override { return qt->text(t); }
    QAccessible::Role role() const override { return qt->role(); }
    QAccessible::State state() const override { return qt->state(); }
    QWindow *window() const override { return qt->window(); }
    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override
    {
        return qt->relations(match);
    }
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
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return qt->interface_cast(type);
    }
    void virtual_hook(int id, void *data) override { qt->virtual_hook(id, data); }

    // For a subclass whose interface_cast() answers with itself.
    QStringList actionNames() const override { return qt->actionInterface()->actionNames(); }
    QString localizedActionName(const QString &name) const override
    {
        return qt->actionInterface()->localizedActionName(name);
    }
    QString localizedActionDescription(const QString &name) const override
    {
        return qt->actionInterface()->localizedActionDescription(name);
    }
    void doAction(const QString &name) override { qt->actionInterface()->doAction(name); }
    QStringList keyBindingsForAction(const QString &name) const override
    {
        return qt->actionInterface()->keyBindingsForAction(name);
    }

protected:
    QAccessibleInterface *const qt;

private:
    const QAccessible::Id qtId;
};
