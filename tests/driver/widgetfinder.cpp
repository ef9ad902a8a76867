#include "widgetfinder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QStackedWidget>

#include <algorithm>

namespace {

bool hasName(const QWidget *widget, const QString &word)
{
    return widget->accessibleName() == word;
}

bool isStandardButton(const QWidget *widget, const QString &word)
{
    auto *button = qobject_cast<const QAbstractButton *>(widget);
    auto *box = qobject_cast<QDialogButtonBox *>(widget->parentWidget());
    const int value = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().keyToValue(
        word.toLatin1().constData());
    return button && box && value > 0 &&
           box->standardButton(const_cast<QAbstractButton *>(button)) == value;
}

bool hasText(const QWidget *widget, const QString &word)
{
    auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && withoutMnemonic(button->text()) == word;
}

bool hasClass(const QWidget *widget, const QString &word)
{
    return widget->inherits(word.toLatin1().constData());
}

QWidget *find(const QString &word, bool visible)
{
    if (word.isEmpty())
        return nullptr;
    if (word == "@focus")
        return visible ? QApplication::focusWidget() : nullptr;
    const QList<QWidget *> windows = windowsFrontToBack();
    for (QWidget *window : windows) {
        QList<QWidget *> candidates = window->findChildren<QWidget *>();
        candidates.prepend(window);
        for (const auto matches : {hasName, isStandardButton, hasText, hasClass}) {
            for (QWidget *widget : qAsConst(candidates))
                if (widget->window() == window && widget->isVisible() == visible &&
                    matches(widget, word))
                    return widget;
        }
    }
    return nullptr;
}

// The smaller, the nearer to the user.
int depth(const QWidget *window)
{
    if (window->windowType() == Qt::ToolTip)
        return 5;
    if (window == QApplication::activePopupWidget())
        return 0;
    if (window == QApplication::activeModalWidget())
        return 1;
    if (window == QApplication::activeWindow())
        return 2;
    // A window may be shown before it is active.
    return !window->isVisible() ? 5 : window->isModal() ? 3 : 4;
}

} // namespace

QWidget *findWidget(const QString &word)
{
    QWidget *shown = find(word, true);
    return shown ? shown : find(word, false);
}

QWidget *findVisibleWidget(const QString &word)
{
    return find(word, true);
}

int backgroundPage(const QString &word)
{
    QWidget *page = find(word, true) ? nullptr : find(word, false);
    while (page && !page->inherits("Tab"))
        page = page->parentWidget();
    auto *pages = page ? qobject_cast<QStackedWidget *>(page->parentWidget()) : nullptr;
    return pages && !page->isVisible() ? pages->indexOf(page) : -1;
}

QString notFoundMessage(const QString &word)
{
    return find(word, false) ? QString("the widget %1 is hidden").arg(word)
                             : QString("there is no widget %1").arg(word);
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
