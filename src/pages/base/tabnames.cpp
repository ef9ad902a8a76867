#include "model/boption.h"
#include "model/optionchoice.h"
#include "pages/base/binding.h"
#include "pages/base/pagewidgets.h"
#include "pages/base/tab.h"
#include "widgets/bixcheckboxbutton.h"

// What the options of a page are called, which of them belong together, and how one of them is set
// for the user.

QString Tab::label(const QString &keyword) const
{
    for (const WidgetMap *widgets : {&markWidgets, &boundWidgets}) {
        const QWidget *widget = widgets->value(keyword);
        QString text = PageWidgets::withoutColon(Binding::of(widget).label(widget));
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

QStringList Tab::keywords() const
{
    QStringList list;
    for (const WidgetMap *widgets : {&boundWidgets, &markWidgets}) {
        for (const auto &[keyword, widget] : *widgets)
            list.append(keyword);
    }
    return list;
}

QString Tab::keywordOf(const QObject *control) const
{
    return boundWidgets.key(control, markWidgets.key(control, QString()));
}

void Tab::choose(const OptionChoice &choice)
{
    QWidget *widget = boundWidgets.value(choice.option()->key());
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        if (widget && button->dependents().contains(widget))
            button->setChecked(button->offValue(widget) != choice.text());
    }
    Binding::of(widget).choose(widget, choice);
}

QStringList Tab::followersOf(const QString &keyword) const
{
    const auto *button = qobject_cast<const BixCheckBoxButton *>(boundWidgets.value(keyword));
    QStringList followers;
    const QList<QWidget *> dependents = button ? button->dependents() : QList<QWidget *>();
    for (const QWidget *dependent : dependents) {
        const QString follower = boundWidgets.key(dependent, QString());
        if (!follower.isEmpty())
            followers.append(follower);
    }
    return followers;
}
