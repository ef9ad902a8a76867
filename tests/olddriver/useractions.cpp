#include "useractions.h"

#include "widgetfinder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QWindow>

namespace {

/// Where to click: a point of a widget, or why there is none.
struct Spot
{
    QPointer<QWidget> widget;
    QPoint point; // in the widget's coordinates
    QString error;
};

Spot noSpot(const QString &error)
{
    return {nullptr, QPoint(), error};
}

QJsonObject target(const QJsonObject &request)
{
    return request.value("target").toObject();
}

// The place of an entry that is given by its number or its text; -1 if there is none.
int entryIndex(const QJsonValue &wanted, const QStringList &texts)
{
    const int index = wanted.isString() ? texts.indexOf(wanted.toString()) : wanted.toInt(-1);
    return index < texts.size() ? index : -1;
}

QString entryError(const QString &what, const QJsonValue &wanted, const QStringList &texts)
{
    return QString("there is no %1 \"%2\" among: %3")
        .arg(what, wanted.toVariant().toString(), texts.join(", "));
}

Spot tabSpot(QWidget *widget, const QJsonValue &wanted)
{
    auto *bar = qobject_cast<QTabBar *>(widget);
    if (!bar)
        return noSpot("the widget is no tab bar");
    QStringList titles;
    for (int index = 0; index < bar->count(); ++index)
        titles.append(withoutMnemonic(bar->tabText(index)));
    const int index = entryIndex(wanted, titles);
    if (index < 0)
        return noSpot(entryError("tab", wanted, titles));
    if (!bar->isTabEnabled(index) || bar->tabRect(index).isEmpty())
        return noSpot(QString("the tab \"%1\" is not available").arg(titles.at(index)));
    return {bar, bar->tabRect(index).center(), QString()};
}

Spot cellSpot(QWidget *widget, const QJsonValue &wanted, int column)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (!view || !view->model())
        return noSpot("the widget is no table");
    QStringList texts;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        texts.append(view->model()->index(row, column).data().toString());
    const QModelIndex index = view->model()->index(entryIndex(wanted, texts), column);
    if (!index.isValid())
        return noSpot(entryError("row", wanted, texts));
    view->scrollTo(index);
    // Of a wide cell only the shown part can be clicked.
    const QRect shown = view->visualRect(index) & view->viewport()->rect();
    return {view->viewport(), shown.center(), QString()};
}

Spot groupButtonSpot(QWidget *widget, const QJsonValue &wanted)
{
    QStringList names;
    QList<QAbstractButton *> buttons;
    const auto children = widget->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : children) {
        if (button->isVisible()) {
            buttons.append(button);
            names.append(button->accessibleName());
        }
    }
    const int index = entryIndex(wanted, names);
    if (index < 0)
        return noSpot(entryError("button", wanted, names));
    return {buttons.at(index), buttons.at(index)->rect().center(), QString()};
}

// A box or radio button that is wider than its text reacts to the indicator and the text only.
Spot indicatorSpot(QAbstractButton *button, QStyle::SubElement indicator)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    return {button, button->style()->subElementRect(indicator, &option, button).center(),
            QString()};
}

Spot widgetSpot(QWidget *widget)
{
    if (widget->inherits("BixCheckBoxButton")) {
        if (auto *box = widget->findChild<QCheckBox *>())
            widget = box;
    }
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        return indicatorSpot(box, QStyle::SE_CheckBoxIndicator);
    if (auto *button = qobject_cast<QRadioButton *>(widget))
        return indicatorSpot(button, QStyle::SE_RadioButtonIndicator);
    return {widget, widget->rect().center(), QString()};
}

Spot findSpot(const QJsonObject &request)
{
    QJsonObject wanted = target(request);
    const QJsonValue tab = request.value("tab");
    if (wanted.isEmpty() && !tab.isUndefined())
        wanted.insert("class", "QTabBar");
    QWidget *widget = findVisibleWidget(wanted);
    if (!widget)
        return noSpot(notFoundMessage(wanted));
    if (!tab.isUndefined())
        return tabSpot(widget, tab);
    if (request.contains("row"))
        return cellSpot(widget, request.value("row"), request.value("column").toInt());
    if (request.contains("button"))
        return groupButtonSpot(widget, request.value("button"));
    return widgetSpot(widget);
}

// Empty if the window gets input, else what keeps it from the user.
QString obstacle(const QWidget *window)
{
    const QWidget *popup = QApplication::activePopupWidget();
    if (popup && popup != window)
        return QString("a pop-up of class %1 is open")
            .arg(QLatin1String(popup->metaObject()->className()));
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != window && !modal->isAncestorOf(window) && popup != window)
        return QString("the modal window \"%1\" of class %2 is open")
            .arg(modal->windowTitle(), QLatin1String(modal->metaObject()->className()));
    return QString();
}

void scrollIntoView(QWidget *widget, const QPoint &point)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        if (area && !widget->visibleRegion().contains(point))
            area->ensureWidgetVisible(widget);
    }
}

// Why the user cannot click the spot; empty if nothing is in the way.
QString clickError(const Spot &spot)
{
    if (!spot.widget)
        return spot.error;
    QWidget *window = spot.widget->window();
    const QString blocked = obstacle(window);
    if (!blocked.isEmpty())
        return blocked;
    if (!spot.widget->isEnabled())
        return "the widget is disabled";
    scrollIntoView(spot.widget, spot.point);
    const QPoint point = spot.widget->mapTo(window, spot.point);
    const QWidget *hit = window->childAt(point);
    if (spot.widget != window && hit != spot.widget && !spot.widget->isAncestorOf(hit))
        return QString("the widget is covered by %1 \"%2\"")
            .arg(hit ? hit->metaObject()->className() : "nothing",
                 hit ? hit->accessibleName() : QString());
    return QString();
}

void clickAt(const Spot &spot)
{
    if (!spot.widget)
        return;
    QWidget *window = spot.widget->window();
    const QPoint point = spot.widget->mapTo(window, spot.point);
    // As a window manager does at a click into another window.
    if (!window->isActiveWindow() && window->windowType() != Qt::Popup)
        window->activateWindow();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
}

void movePointerTo(const Spot &spot)
{
    QWidget *window = spot.widget->window();
    QTest::mouseMove(window->windowHandle(), spot.widget->mapTo(window, spot.point));
}

// The window that key strokes go to now; it can be null.
QWindow *keyboardWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    QWidget *window = frontWindow();
    return window ? window->windowHandle() : nullptr;
}

QWidget *windowFor(const QJsonObject &wanted)
{
    if (wanted.isEmpty())
        return frontWindow();
    QWidget *widget = findVisibleWidget(wanted);
    return widget ? widget->window() : nullptr;
}

} // namespace

Outcome prepareClick(const QJsonObject &request)
{
    const Spot spot = findSpot(request);
    const QString error = clickError(spot);
    if (!error.isEmpty())
        return Outcome::failure(error);
    return {{}, [spot] { clickAt(spot); }};
}

Outcome prepareChoose(const QJsonObject &request)
{
    const Spot spot = findSpot(request);
    auto *box = qobject_cast<QComboBox *>(spot.widget.data());
    QString error = clickError(spot);
    if (error.isEmpty() && !box)
        error = "the widget is no combo box";
    if (!error.isEmpty())
        return Outcome::failure(error);
    QStringList texts;
    for (int row = 0; row < box->count(); ++row)
        texts.append(box->itemText(row));
    const QJsonValue wanted = request.value("item");
    const int row = entryIndex(wanted, texts);
    const QModelIndex index = box->model()->index(row, box->modelColumn(), box->rootModelIndex());
    if (row < 0)
        return Outcome::failure(entryError("item", wanted, texts));
    if (!index.flags().testFlag(Qt::ItemIsEnabled))
        return Outcome::failure(QString("the item \"%1\" is disabled").arg(texts.at(row)));

    clickAt(spot);
    QAbstractItemView *list = box->view();
    if (!list->isVisible())
        return Outcome::failure("the list did not open");
    // The list takes no click before the pointer has moved a bit: it could be the end of the
    // click that opened it.
    movePointerTo({list->viewport(), list->viewport()->rect().bottomRight(), QString()});
    movePointerTo({list->viewport(), list->viewport()->rect().topLeft(), QString()});
    list->scrollTo(index);
    // A long list shows and hides its scroll arrows, which moves the items.
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    // An item can be wider than its list.
    const QRect shown = list->visualRect(index) & list->viewport()->rect();
    const Spot item{list->viewport(), shown.center(), QString()};
    movePointerTo(item);
    if (list->currentIndex() != index) {
        box->hidePopup();
        return Outcome::failure(QString("the item \"%1\" cannot be reached").arg(texts.at(row)));
    }
    return {{}, [item] { clickAt(item); }};
}

Outcome prepareType(const QJsonObject &request)
{
    const QString text = request.value("text").toString();
    if (!keyboardWindow())
        return Outcome::failure("there is no window to type into");
    return {{}, [text] {
                for (const QChar character : text) {
                    QWindow *window = keyboardWindow();
                    if (!window)
                        return;
                    // Qt's key codes of letters are the upper case characters.
                    const ushort code = character.unicode();
                    const Qt::Key key = code < 0x80
                                            ? QTest::asciiToKey(static_cast<char>(code))
                                            : static_cast<Qt::Key>(character.toUpper().unicode());
                    QTest::sendKeyEvent(QTest::Click, window, key, QString(character),
                                        Qt::NoModifier);
                }
            }};
}

Outcome prepareKey(const QJsonObject &request)
{
    const QString keys = request.value("keys").toString();
    const QKeySequence sequence(keys, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0] == Qt::Key_unknown)
        return Outcome::failure(QString("\"%1\" is no key combination").arg(keys));
    if (!keyboardWindow())
        return Outcome::failure("no window takes keys");
    const int combination = sequence[0];
    return {{}, [combination] {
                QTest::keyClick(
                    keyboardWindow(), static_cast<Qt::Key>(combination & ~Qt::KeyboardModifierMask),
                    static_cast<Qt::KeyboardModifiers>(combination & Qt::KeyboardModifierMask));
            }};
}

Outcome prepareActivate(const QJsonObject &request)
{
    QPointer<QWidget> window = windowFor(target(request));
    if (!window)
        return Outcome::failure(notFoundMessage(target(request)));
    return {{}, [window] {
                window->raise();
                window->activateWindow();
            }};
}

Outcome prepareClose(const QJsonObject &request)
{
    QPointer<QWidget> window = windowFor(target(request));
    if (!window)
        return Outcome::failure(notFoundMessage(target(request)));
    const QString blocked = obstacle(window);
    if (!blocked.isEmpty())
        return Outcome::failure(blocked);
    return {{}, [window] { window->close(); }};
}
