#include "widgets/spokeninterface.h"

#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/noticeline.h"
#include "widgets/spoken.h"
#include "widgets/spokencombobox.h"
#include "widgets/spokenevents.h"
#include "widgets/spokentab.h"
#include "widgets/spokenwords.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>

namespace {

/// The check box button whose picture a widget is, or null.
const BixCheckBoxButton *switchOfPicture(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget)
               ? qobject_cast<const BixCheckBoxButton *>(widget->parentWidget())
               : nullptr;
}

/// Buttons have words of their own and would be called twice by those of their labels.
bool isLabelled(const QWidget *widget)
{
    return !qobject_cast<const QAbstractButton *>(widget) &&
           !qobject_cast<const BixCheckBoxButton *>(widget);
}

bool isPictureButton(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) &&
           qobject_cast<const BixButtonGroup *>(widget->parentWidget());
}

QAccessible::Role roleOfFrame(const QFrame *frame)
{
    if (frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine)
        return QAccessible::Separator;
    return Spoken::nameOf(frame).isEmpty() ? QAccessible::Client : QAccessible::Grouping;
}

} // namespace

// What it is

SpokenInterface::SpokenInterface(QWidget *widget, QAccessibleInterface *qt)
    : AccessibleProxy(qt)
    , widget(widget)
{
}

SpokenInterface::~SpokenInterface()
{
    for (const QAccessible::Id tab : qAsConst(tabs))
        if (!QCoreApplication::closingDown() && QAccessible::accessibleInterface(tab))
            QAccessible::deleteAccessibleInterface(tab);
}

QString SpokenInterface::text(QAccessible::Text t) const
{
    if (widget && t == QAccessible::Description)
        return Spoken::descriptionOf(widget);
    if (t != QAccessible::Name && qobject_cast<QAbstractItemView *>(widget))
        return QString(); // Qt says the name again
    const QString words = widget && t == QAccessible::Name ? Spoken::nameOf(widget) : QString();
    return words.isNull() ? qt->text(t) : words;
}

QAccessible::Role SpokenInterface::role() const
{
    if (qobject_cast<BixButtonGroup *>(widget))
        return QAccessible::Grouping;
    if (isPictureButton(widget))
        return QAccessible::RadioButton;
    if (qobject_cast<BixCheckBoxButton *>(widget))
        return QAccessible::Client;
    if (switchOfPicture(widget))
        return QAccessible::CheckBox;
    if (qobject_cast<NoticeLine *>(widget))
        return QAccessible::Notification; // which is said as soon as it shows
    if (widget && qobject_cast<QStackedWidget *>(widget->parentWidget()))
        return QAccessible::Pane;
    if (qobject_cast<QStackedWidget *>(widget))
        return QAccessible::Client; // it holds pages and is no "layered pane" to anybody
    if (widget && widget->metaObject() == &QFrame::staticMetaObject)
        return roleOfFrame(qobject_cast<QFrame *>(widget));
    return qt->role();
}

QAccessible::State SpokenInterface::state() const
{
    QAccessible::State state = qt->state();
    if (const BixCheckBoxButton *whole = switchOfPicture(widget)) {
        // The check box beside it says all of it, unless the mouse has brought the focus here.
        state.invisible = state.invisible || !widget->hasFocus();
        state.checkable = true;
        state.checked = whole->isChecked();
    }
    if (widget && widget->focusProxy())
        state.focusable = false;
    const auto *label = qobject_cast<QLabel *>(widget);
    const bool decorates = label && Spoken::isPicture(label) && Spoken::nameOf(label).isEmpty();
    // What stands above a group of pictures is said by the group and its buttons already.
    if (decorates || (label && qobject_cast<BixButtonGroup *>(label->parentWidget())))
        state.invisible = true;
    return state;
}

QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
SpokenInterface::relations(QAccessible::Relation match) const
{
    auto all = qt->relations(match);
    const auto add = [&all](QWidget *other, QAccessible::Relation relation) {
        const auto pair = qMakePair(QAccessible::queryAccessibleInterface(other), relation);
        if (pair.first && !all.contains(pair))
            all.append(pair);
    };
    if (!widget || !widget->parentWidget())
        return all;
    if ((match & QAccessible::Label) && isLabelled(widget)) {
        const QList<QWidget *> labels = Spoken::labelsOf(widget);
        for (QWidget *label : labels)
            add(label, QAccessible::Label);
    }
    const bool mayLabel = qobject_cast<QLabel *>(widget) || qobject_cast<BixButtonGroup *>(widget);
    if ((match & QAccessible::Labelled) && mayLabel) {
        const auto others =
            widget->parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *other : others) {
            if (isLabelled(other) && Spoken::labelsOf(other).contains(widget.data()))
                add(other, QAccessible::Labelled);
        }
    }
    return all;
}

QAccessibleInterface *SpokenInterface::child(int index) const
{
    QAccessibleInterface *part = qt->child(index);
    auto *bar = qobject_cast<QTabBar *>(widget);
    if (!bar || !part || part->role() != QAccessible::PageTab)
        return part;
    if (!tabs.contains(index))
        tabs.insert(index,
                    QAccessible::registerAccessibleInterface(new SpokenTab(bar, index, part)));
    return QAccessible::accessibleInterface(tabs.value(index));
}

int SpokenInterface::indexOfChild(const QAccessibleInterface *child) const
{
    for (auto tab = tabs.cbegin(); tab != tabs.cend(); ++tab)
        if (QAccessible::accessibleInterface(*tab) == child)
            return tab.key();
    return qt->indexOfChild(child);
}

/// What stands before one of Qt's own parts of the widget, if anything does.
QAccessibleInterface *SpokenInterface::spoken(QAccessibleInterface *part) const
{
    const auto *bar = qobject_cast<QTabBar *>(widget);
    for (int i = 0; part && bar && i < bar->count(); ++i)
        if (qt->child(i) == part)
            return child(i);
    return part;
}

// What it does

void *SpokenInterface::interface_cast(QAccessible::InterfaceType type)
{
    void *part = qt->interface_cast(type);
    if (part && type == QAccessible::ActionInterface && qobject_cast<QAbstractButton *>(widget))
        return static_cast<QAccessibleActionInterface *>(this);
    return part;
}

void SpokenInterface::doAction(const QString &name)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    // Later, since a click may open a dialog and the reader waits for the end of this call.
    if (button && name == toggleAction())
        QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
    else
        qt->actionInterface()->doAction(name);
}

// How Qt gets to it

namespace {

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    static const QObject *asked = nullptr; // for which Qt's own interface is wanted
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget || widget == asked)
        return nullptr;
    asked = widget;
    QAccessibleInterface *qt = QAccessible::queryAccessibleInterface(widget);
    asked = nullptr;
    auto *box = qobject_cast<QComboBox *>(widget);
    if (qt && box && !box->isEditable())
        return new SpokenComboBox(box, qt);
    return qt ? new SpokenInterface(widget, qt) : nullptr;
}

} // namespace

void Spoken::install()
{
    tellOfWhatShows();
    if (!QLibraryInfo::isDebugBuild())
        QAccessible::installFactory(makeInterface);
}
