#include "widgets/spokentab.h"

#include <QTabBar>

SpokenTab::SpokenTab(QTabBar *bar, int index, QAccessibleInterface *qt)
    : AccessibleProxy(qt)
    , bar(bar)
    , index(index)
{
}

bool SpokenTab::isValid() const
{
    return bar && qt->isValid();
}

QString SpokenTab::text(QAccessible::Text t) const
{
    if (t != QAccessible::Description || !bar)
        return qt->text(t);
    QStringList texts{bar->tabWhatsThis(index), bar->tabToolTip(index)};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(". "));
}

QAccessible::State SpokenTab::state() const
{
    QAccessible::State state = qt->state();
    if (!isUsable()) {
        state.disabled = true;
        state.invisible = true;
    }
    return state;
}

void *SpokenTab::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : qt->interface_cast(type);
}

void SpokenTab::doAction(const QString &name)
{
    if (isUsable())
        qt->actionInterface()->doAction(name);
}

bool SpokenTab::isUsable() const
{
    return bar && bar->isTabEnabled(index);
}
