#pragma once

#include "widgets/accessibleproxy.h"

#include <QPointer>

class QTabBar;

/// One entry of the list of pages for a screen reader. Qt gives each of them the state of the whole
/// list, and turns to a page that can't be used.
class SpokenTab : public AccessibleProxy
{
public:
    SpokenTab(QTabBar *bar, int index, QAccessibleInterface *qt);

    bool isValid() const override;
    /// With the explanation of a mark (the tab's "What's this?" text) before its tool tip.
    QString text(QAccessible::Text t) const override;
    /// A disabled tab does not show.
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    void doAction(const QString &name) override;

private:
    bool isUsable() const;

    QPointer<QTabBar> bar;
    const int index;
};
