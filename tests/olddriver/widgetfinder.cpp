#include "widgetfinder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QRegularExpression>

#include <algorithm>

namespace {

bool isStandardButton(QWidget *widget, const QString &name)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    auto *box = qobject_cast<QDialogButtonBox *>(widget->parentWidget());
    const int value = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().keyToValue(
        name.toLatin1().constData());
    return button && box && value > 0 && box->standardButton(button) == value;
}

bool matches(QWidget *widget, const QJsonObject &target)
{
    for (auto it = target.begin(); it != target.end(); ++it) {
        const QString wanted = it.value().toString();
        bool fits = false;
        if (it.key() == "name") {
            fits = widget->accessibleName() == wanted;
        } else if (it.key() == "class") {
            fits = widget->inherits(wanted.toLatin1().constData());
        } else if (it.key() == "text") {
            auto *button = qobject_cast<QAbstractButton *>(widget);
            fits = button && withoutMnemonic(button->text()) == wanted;
        } else if (it.key() == "standardButton") {
            fits = isStandardButton(widget, wanted);
        }
        if (!fits)
            return false;
    }
    return !target.isEmpty();
}

QWidget *find(const QJsonObject &target, bool visible)
{
    const QList<QWidget *> windows = windowsFrontToBack();
    for (QWidget *window : windows) {
        QList<QWidget *> candidates = window->findChildren<QWidget *>();
        candidates.prepend(window);
        for (QWidget *widget : qAsConst(candidates))
            if (widget->window() == window && widget->isVisible() == visible &&
                matches(widget, target))
                return widget;
    }
    return nullptr;
}

// The smaller, the nearer to the user.
int depth(const QWidget *window)
{
    if (window->windowType() == Qt::ToolTip)
        return 4;
    if (window == QApplication::activePopupWidget())
        return 0;
    if (window == QApplication::activeModalWidget())
        return 1;
    if (window == QApplication::activeWindow())
        return 2;
    return window->isVisible() ? 3 : 4;
}

} // namespace

QWidget *findWidget(const QJsonObject &target)
{
    QWidget *shown = findVisibleWidget(target);
    return shown ? shown : find(target, false);
}

QWidget *findVisibleWidget(const QJsonObject &target)
{
    return find(target, true);
}

QString notFoundMessage(const QJsonObject &target)
{
    const QString wanted = QString::fromUtf8(QJsonDocument(target).toJson(QJsonDocument::Compact));
    return find(target, false) ? QString("the widget %1 is hidden").arg(wanted)
                               : QString("there is no widget %1").arg(wanted);
}

QList<QWidget *> windowsFrontToBack()
{
    QList<QWidget *> windows = QApplication::topLevelWidgets();
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget *left, const QWidget *right) {
        return depth(left) < depth(right);
    });
    return windows;
}

QWidget *frontWindow()
{
    const QList<QWidget *> windows = windowsFrontToBack();
    for (QWidget *window : windows)
        if (window->isVisible())
            return window;
    return nullptr;
}

QString withoutMnemonic(QString text)
{
    static const QRegularExpression mark("&(.)");
    return text.replace(mark, "\\1");
}
