#include "widgetstate.h"

#include "widgetfinder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QJsonArray>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTabBar>
#include <QTableView>

#include <algorithm>

namespace {

QJsonArray toJson(const QRect &rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonObject target(const QJsonObject &request)
{
    return request.value("target").toObject();
}

void addText(QJsonObject *state, const QWidget *widget)
{
    for (const char *property : {"text", "plainText", "title"}) {
        if (widget->metaObject()->indexOfProperty(property) >= 0) {
            state->insert("text", widget->property(property).toString());
            return;
        }
    }
}

void addNumbers(QJsonObject *state, const QWidget *widget)
{
    for (const char *property : {"value", "minimum", "maximum"})
        if (widget->metaObject()->indexOfProperty(property) >= 0)
            state->insert(QLatin1String(property),
                          QJsonValue::fromVariant(widget->property(property)));
}

void addComboBox(QJsonObject *state, const QComboBox *box)
{
    QJsonArray items;
    for (int row = 0; row < box->count(); ++row) {
        const QModelIndex index =
            box->model()->index(row, box->modelColumn(), box->rootModelIndex());
        items.append(QJsonObject{{"text", box->itemText(row)},
                                 {"enabled", index.flags().testFlag(Qt::ItemIsEnabled)}});
    }
    state->insert("items", items);
    state->insert("currentIndex", box->currentIndex());
    state->insert("currentText", box->currentText());
    state->insert("popup", box->view()->isVisible());
}

void addButtonGroup(QJsonObject *state, const QWidget *group)
{
    QJsonArray buttons;
    const auto children = group->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : children) {
        // Buttons that the group has given up stay its children.
        if (button->isHidden())
            continue;
        buttons.append(QJsonObject{{"name", button->accessibleName()},
                                   {"checked", button->isChecked()},
                                   {"enabled", button->isEnabled()}});
        if (button->isChecked())
            state->insert("currentText", button->accessibleName());
    }
    state->insert("buttons", buttons);
    if (const auto *label = group->findChild<QLabel *>()) {
        state->insert("text", label->text());
        state->insert("toolTip", label->toolTip());
        state->insert("color", label->palette().color(label->foregroundRole()).name());
    }
}

QJsonObject stateOf(QWidget *widget)
{
    QWidget *window = widget->window();
    QJsonObject state{
        {"class", QLatin1String(widget->metaObject()->className())},
        {"name", widget->accessibleName()},
        {"visible", widget->isVisible()},
        {"enabled", widget->isEnabled()},
        {"focus", widget->hasFocus()},
        {"toolTip", widget->toolTip()},
        {"rect", toJson({widget->mapTo(window, QPoint()), widget->size()})},
        {"sizeHint", toJson({QPoint(), widget->sizeHint()})},
        {"color", widget->palette().color(widget->foregroundRole()).name()},
        {"windowTitle", window->windowTitle()},
    };
    addText(&state, widget);
    addNumbers(&state, widget);
    const QWidget *checkable = widget;
    if (widget->inherits("BixCheckBoxButton")) {
        checkable = widget->findChild<QCheckBox *>();
        if (checkable)
            addText(&state, checkable);
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(checkable))
        state.insert("checked", button->isChecked());
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        addComboBox(&state, box);
    if (widget->inherits("BixButtonGroup"))
        addButtonGroup(&state, widget);
    return state;
}

} // namespace

Outcome queryState(const QJsonObject &request)
{
    QWidget *widget = findWidget(target(request));
    if (!widget)
        return Outcome::failure(notFoundMessage(target(request)));
    return {{{"state", stateOf(widget)}}, {}};
}

Outcome queryTable(const QJsonObject &request)
{
    auto *view = qobject_cast<QAbstractItemView *>(findWidget(target(request)));
    if (!view)
        return Outcome::failure("no table: " + notFoundMessage(target(request)));
    const QAbstractItemModel *model = view->model();
    const int columns = model ? model->columnCount() : 0;
    QJsonArray headers;
    for (int column = 0; column < columns; ++column)
        headers.append(model->headerData(column, Qt::Horizontal).toString());
    QJsonArray rows;
    QJsonArray selectedRows;
    for (int row = 0; model && row < model->rowCount(); ++row) {
        QJsonArray texts;
        for (int column = 0; column < columns; ++column)
            texts.append(model->index(row, column).data().toString());
        rows.append(texts);
        if (view->selectionModel()->rowIntersectsSelection(row, QModelIndex()))
            selectedRows.append(row);
    }
    QJsonObject reply{{"headers", headers},
                      {"rows", rows},
                      {"selectedRows", selectedRows},
                      {"currentRow", view->currentIndex().row()},
                      {"currentColumn", view->currentIndex().column()}};
    if (const auto *tableView = qobject_cast<QTableView *>(view)) {
        QJsonArray widths;
        for (int column = 0; column < columns; ++column)
            widths.append(tableView->columnWidth(column));
        reply.insert("columnWidths", widths);
    }
    return {reply, {}};
}

Outcome queryTabs(const QJsonObject &request)
{
    QJsonObject wanted = target(request);
    if (wanted.isEmpty())
        wanted.insert("class", "QTabBar");
    const auto *bar = qobject_cast<QTabBar *>(findVisibleWidget(wanted));
    if (!bar)
        return Outcome::failure("no tab bar: " + notFoundMessage(wanted));
    QJsonArray tabs;
    for (int index = 0; index < bar->count(); ++index) {
        const QRect rect = bar->tabRect(index);
        tabs.append(QJsonObject{
            {"text", withoutMnemonic(bar->tabText(index))},
            {"enabled", bar->isTabEnabled(index)},
            {"current", index == bar->currentIndex()},
            {"rect", toJson(rect.isEmpty()
                                ? QRect(0, 0, 0, 0)
                                : QRect(bar->mapTo(bar->window(), rect.topLeft()), rect.size()))}});
    }
    return {{{"tabs", tabs}}, {}};
}

Outcome queryWindows(const QJsonObject &request)
{
    Q_UNUSED(request)
    QJsonArray windows;
    const auto all = windowsFrontToBack();
    for (const QWidget *window : all)
        windows.append(QJsonObject{{"class", QLatin1String(window->metaObject()->className())},
                                   {"title", window->windowTitle()},
                                   {"visible", window->isVisible()},
                                   {"active", window->isActiveWindow()},
                                   {"modal", window->isModal()},
                                   {"rect", toJson(window->frameGeometry())}});
    return {{{"windows", windows}}, {}};
}

Outcome queryMessageBox(const QJsonObject &request)
{
    Q_UNUSED(request)
    const auto *box = qobject_cast<QMessageBox *>(findVisibleWidget({{"class", "QMessageBox"}}));
    QJsonObject state;
    if (box) {
        QJsonArray buttons;
        const auto all = box->buttons();
        for (const QAbstractButton *button : all)
            buttons.append(withoutMnemonic(button->text()));
        state = {{"title", box->windowTitle()},
                 {"text", box->text()},
                 {"informativeText", box->informativeText()},
                 {"rect", toJson(box->geometry())},
                 {"buttons", buttons}};
    }
    return {{{"messageBox", state}}, {}};
}

Outcome grabToFile(const QJsonObject &request)
{
    const QString path = request.value("path").toString();
    QPixmap picture;
    if (request.value("screen").toBool()) {
        picture = QGuiApplication::primaryScreen()->grabWindow(0);
    } else {
        const QJsonObject wanted = target(request);
        QWidget *widget = wanted.isEmpty() ? frontWindow() : findVisibleWidget(wanted);
        if (!widget)
            return Outcome::failure(notFoundMessage(wanted));
        picture = widget->grab();
    }
    if (!picture.save(path, "PNG"))
        return Outcome::failure(QString("cannot save the picture as %1").arg(path));
    return {{{"size", QJsonArray{picture.width(), picture.height()}}}, {}};
}
