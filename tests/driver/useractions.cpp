#include "useractions.h"

#include "widgetfinder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QKeySequence>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
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

// The place of an entry that is given by its text, or by "#" and its number; -1 if there is none.
int entryIndex(const QString &wanted, const QStringList &texts)
{
    const int index = wanted.startsWith('#') ? wanted.mid(1).toInt() : texts.indexOf(wanted);
    return index < texts.size() ? index : -1;
}

QString entryError(const QString &what, const QString &wanted, const QStringList &texts)
{
    return QString("there is no %1 \"%2\" among: %3").arg(what, wanted, texts.join(", "));
}

Spot tabSpot(QWidget *widget, const QString &wanted)
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

Spot cellSpot(QWidget *widget, const QString &wanted, int column)
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

Spot groupButtonSpot(QWidget *widget, const QString &wanted)
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
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        return indicatorSpot(box, QStyle::SE_CheckBoxIndicator);
    if (auto *button = qobject_cast<QRadioButton *>(widget))
        return indicatorSpot(button, QStyle::SE_RadioButtonIndicator);
    return {widget, widget->rect().center(), QString()};
}

Spot findSpot(const QString &word)
{
    QWidget *widget = findVisibleWidget(word);
    return widget ? widgetSpot(widget) : noSpot(notFoundMessage(word));
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

// The window that key strokes go to now; it can be null. A window that came up just now is waited
// for, as by a user: the X server takes it for an error if one is closed first that is to be
// active.
QWindow *keyboardWindow()
{
    QWidget *widget = QApplication::activePopupWidget();
    if (!widget)
        widget = frontWindow();
    QWindow *window = widget ? widget->windowHandle() : nullptr;
    return window && QTest::qWaitForWindowExposed(window) ? window : nullptr;
}

void sendKey(int combination)
{
    if (QWindow *window = keyboardWindow())
        QTest::keyClick(window, static_cast<Qt::Key>(combination & ~Qt::KeyboardModifierMask),
                        static_cast<Qt::KeyboardModifiers>(combination & Qt::KeyboardModifierMask));
}

void sendText(const QString &text)
{
    for (const QChar character : text) {
        QWindow *window = keyboardWindow();
        if (!window)
            return;
        // Qt's key codes of letters are the upper case characters.
        const ushort code = character.unicode();
        const Qt::Key key = code < 0x80 ? QTest::asciiToKey(static_cast<char>(code))
                                        : static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, window, key, QString(character), Qt::NoModifier);
    }
}

Step clickStep(const Spot &spot, bool twice = false)
{
    const QString error = clickError(spot);
    if (!error.isEmpty())
        return {error, {}};
    return {{}, [spot, twice] {
                clickAt(spot);
                if (twice && spot.widget)
                    QTest::mouseDClick(spot.widget->window()->windowHandle(), Qt::LeftButton,
                                       Qt::NoModifier,
                                       spot.widget->mapTo(spot.widget->window(), spot.point));
            }};
}

Step checkStep(const QString &word, bool on)
{
    QWidget *widget = findVisibleWidget(word);
    if (widget && widget->inherits("BixCheckBoxButton"))
        widget = widget->findChild<QCheckBox *>(); // beside the picture
    const Spot spot = widget ? widgetSpot(widget) : noSpot(notFoundMessage(word));
    const auto *button = qobject_cast<QAbstractButton *>(spot.widget.data());
    if (button && button->isCheckable() && button->isChecked() == on)
        return {on ? "it is on already" : "it is off already", {}};
    return clickStep(spot);
}

Step tabStep(const QString &wanted)
{
    QWidget *bar = findVisibleWidget("QTabBar");
    return clickStep(bar ? tabSpot(bar, wanted) : noSpot("there is no tab bar"));
}

Step rowStep(const QString &word, const QString &row, int column, bool twice)
{
    QWidget *table = findVisibleWidget(word);
    return clickStep(table ? cellSpot(table, row, column) : noSpot(notFoundMessage(word)), twice);
}

Step pickStep(const QString &word, const QString &button)
{
    QWidget *group = findVisibleWidget(word);
    return clickStep(group ? groupButtonSpot(group, button) : noSpot(notFoundMessage(word)));
}

/// Opens the combo box and clicks the item in the list.
Step chooseStep(const QString &word, const QString &wanted)
{
    const Spot spot = findSpot(word);
    auto *box = qobject_cast<QComboBox *>(spot.widget.data());
    QString error = clickError(spot);
    if (error.isEmpty() && !box)
        error = "the widget is no combo box";
    if (!error.isEmpty())
        return {error, {}};
    QStringList texts;
    for (int row = 0; row < box->count(); ++row)
        texts.append(box->itemText(row));
    const int row = entryIndex(wanted, texts);
    const QModelIndex index = box->model()->index(row, box->modelColumn(), box->rootModelIndex());
    if (row < 0)
        return {entryError("item", wanted, texts), {}};
    if (!index.flags().testFlag(Qt::ItemIsEnabled))
        return {QString("the item \"%1\" is disabled").arg(texts.at(row)), {}};

    clickAt(spot);
    QAbstractItemView *list = box->view();
    if (!list->isVisible())
        return {"the list did not open", {}};
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
        return {QString("the item \"%1\" cannot be reached").arg(texts.at(row)), {}};
    }
    return {{}, [item] { clickAt(item); }};
}

/// Types over what the field holds.
Step typeStep(const QString &word, const QString &text)
{
    const Spot spot = findSpot(word);
    const QString error = clickError(spot);
    if (!error.isEmpty())
        return {error, {}};
    return {{}, [spot, text] {
                clickAt(spot);
                sendKey(Qt::CTRL + Qt::Key_A);
                if (text.isEmpty())
                    sendKey(Qt::Key_Delete);
                sendText(text);
            }};
}

Step pressStep(const QStringList &keys)
{
    QVector<int> combinations;
    for (const QString &key : keys) {
        const QKeySequence sequence(key, QKeySequence::PortableText);
        if (sequence.count() != 1 || sequence[0] == Qt::Key_unknown)
            return {QString("\"%1\" is no key combination").arg(key), {}};
        combinations.append(sequence[0]);
    }
    return {{}, [combinations] {
                for (const int combination : combinations)
                    sendKey(combination);
            }};
}

/// Of the front window, as the window manager does.
Step windowStep(bool close)
{
    return {{}, [window = frontWindow(), close] {
                if (close) {
                    window->close();
                } else {
                    window->raise();
                    window->activateWindow();
                }
            }};
}

/// Saves a picture of the named widget, or of all windows on the screen, as a PNG file.
Step grabStep(const QString &path, const QString &word)
{
    QWidget *widget = word.isEmpty() ? nullptr : findVisibleWidget(word);
    if (!word.isEmpty() && !widget)
        return {notFoundMessage(word), {}};
    const QPixmap picture =
        widget ? widget->grab() : QGuiApplication::primaryScreen()->grabWindow(0);
    if (!picture.save(path, "PNG"))
        return {"cannot save the picture as " + path, {}};
    return {};
}

} // namespace

Step prepareStep(const QStringList &words)
{
    const QString verb = words.value(0);
    const QString first = words.value(1);
    const QString second = words.value(2);
    if (verb == "click" || verb == "doubleclick")
        return clickStep(findSpot(first), verb != "click");
    if (verb == "check" || verb == "uncheck")
        return checkStep(first, verb == "check");
    if (verb == "tab")
        return tabStep(first);
    if (verb == "row" || verb == "doublerow")
        return rowStep(first, second, words.value(3).toInt(), verb != "row");
    if (verb == "pick")
        return pickStep(first, second);
    if (verb == "choose")
        return chooseStep(first, second);
    if (verb == "type")
        return typeStep(first, second);
    if (verb == "press")
        return pressStep(words.mid(1));
    if (verb == "paste")
        return {{}, [first] {
                    QGuiApplication::clipboard()->setText(QString(first).replace("\\n", "\n"));
                    sendKey(Qt::CTRL + Qt::Key_V);
                }};
    if (verb == "close" || verb == "activate")
        return windowStep(verb == "close");
    if (verb == "grab")
        return grabStep(first, second);
    return {QString("there is no step \"%1\"").arg(verb), {}};
}
