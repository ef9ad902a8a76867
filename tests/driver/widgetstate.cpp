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
    return request.value(QLatin1String("target")).toObject();
}

void addText(QJsonObject *state, const QWidget *widget)
{
    for (const char *property : {"text", "plainText", "title"}) {
        if (widget->metaObject()->indexOfProperty(property) >= 0) {
            state->insert(QStringLiteral("text"), widget->property(property).toString());
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
        items.append(
            QJsonObject{{QStringLiteral("text"), box->itemText(row)},
                        {QStringLiteral("enabled"), index.flags().testFlag(Qt::ItemIsEnabled)}});
    }
    state->insert(QStringLiteral("items"), items);
    state->insert(QStringLiteral("currentIndex"), box->currentIndex());
    state->insert(QStringLiteral("currentText"), box->currentText());
    state->insert(QStringLiteral("popup"), box->view()->isVisible());
}

void addButtonGroup(QJsonObject *state, const QWidget *group)
{
    QJsonArray buttons;
    const auto children = group->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : children) {
        // Buttons that the group has given up stay its children.
        if (button->isHidden())
            continue;
        buttons.append(QJsonObject{{QStringLiteral("name"), button->accessibleName()},
                                   {QStringLiteral("checked"), button->isChecked()},
                                   {QStringLiteral("enabled"), button->isEnabled()}});
        if (button->isChecked())
            state->insert(QStringLiteral("currentText"), button->accessibleName());
    }
    state->insert(QStringLiteral("buttons"), buttons);
    if (const auto *label = group->findChild<QLabel *>()) {
        state->insert(QStringLiteral("text"), label->text());
        state->insert(QStringLiteral("toolTip"), label->toolTip());
        state->insert(QStringLiteral("color"),
                      label->palette().color(label->foregroundRole()).name());
    }
}

QJsonObject stateOf(QWidget *widget)
{
    QWidget *window = widget->window();
    QJsonObject state{
        {QStringLiteral("class"), QLatin1String(widget->metaObject()->className())},
        {QStringLiteral("name"), widget->accessibleName()},
        {QStringLiteral("visible"), widget->isVisible()},
        {QStringLiteral("enabled"), widget->isEnabled()},
        {QStringLiteral("focus"), widget->hasFocus()},
        {QStringLiteral("toolTip"), widget->toolTip()},
        {QStringLiteral("rect"), toJson({widget->mapTo(window, QPoint()), widget->size()})},
        {QStringLiteral("sizeHint"), toJson({QPoint(), widget->sizeHint()})},
        {QStringLiteral("color"), widget->palette().color(widget->foregroundRole()).name()},
        {QStringLiteral("windowTitle"), window->windowTitle()},
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
        state.insert(QStringLiteral("checked"), button->isChecked());
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
    return {{{QStringLiteral("state"), stateOf(widget)}}, {}};
}

Outcome queryTable(const QJsonObject &request)
{
    auto *view = qobject_cast<QAbstractItemView *>(findWidget(target(request)));
    if (!view)
        return Outcome::failure(QStringLiteral("no table: ") + notFoundMessage(target(request)));
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
    QJsonObject reply{{QStringLiteral("headers"), headers},
                      {QStringLiteral("rows"), rows},
                      {QStringLiteral("selectedRows"), selectedRows},
                      {QStringLiteral("currentRow"), view->currentIndex().row()},
                      {QStringLiteral("currentColumn"), view->currentIndex().column()}};
    if (const auto *tableView = qobject_cast<QTableView *>(view)) {
        QJsonArray widths;
        for (int column = 0; column < columns; ++column)
            widths.append(tableView->columnWidth(column));
        reply.insert(QStringLiteral("columnWidths"), widths);
    }
    return {reply, {}};
}

Outcome queryTabs(const QJsonObject &request)
{
    QJsonObject wanted = target(request);
    if (wanted.isEmpty())
        wanted.insert(QStringLiteral("class"), QStringLiteral("QTabBar"));
    const auto *bar = qobject_cast<QTabBar *>(findVisibleWidget(wanted));
    if (!bar)
        return Outcome::failure(QStringLiteral("no tab bar: ") + notFoundMessage(wanted));
    QJsonArray tabs;
    for (int index = 0; index < bar->count(); ++index) {
        const QRect rect = bar->tabRect(index);
        tabs.append(QJsonObject{
            {QStringLiteral("text"), withoutMnemonic(bar->tabText(index))},
            {QStringLiteral("enabled"), bar->isTabEnabled(index)},
            {QStringLiteral("current"), index == bar->currentIndex()},
            {QStringLiteral("rect"),
             toJson(rect.isEmpty()
                        ? QRect(0, 0, 0, 0)
                        : QRect(bar->mapTo(bar->window(), rect.topLeft()), rect.size()))}});
    }
    return {{{QStringLiteral("tabs"), tabs}}, {}};
}

Outcome queryWindows(const QJsonObject &request)
{
    Q_UNUSED(request)
    QJsonArray windows;
    const auto all = windowsFrontToBack();
    for (const QWidget *window : all)
        windows.append(
            QJsonObject{{QStringLiteral("class"), QLatin1String(window->metaObject()->className())},
                        {QStringLiteral("title"), window->windowTitle()},
                        {QStringLiteral("visible"), window->isVisible()},
                        {QStringLiteral("active"), window->isActiveWindow()},
                        {QStringLiteral("modal"), window->isModal()},
                        {QStringLiteral("rect"), toJson(window->frameGeometry())}});
    return {{{QStringLiteral("windows"), windows}}, {}};
}

Outcome queryMessageBox(const QJsonObject &request)
{
    Q_UNUSED(request)
    const auto *box = qobject_cast<QMessageBox *>(
        findVisibleWidget({{QStringLiteral("class"), QStringLiteral("QMessageBox")}}));
    QJsonObject state;
    if (box) {
        QJsonArray buttons;
        const auto all = box->buttons();
        for (const QAbstractButton *button : all)
            buttons.append(withoutMnemonic(button->text()));
        state = {{QStringLiteral("title"), box->windowTitle()},
                 {QStringLiteral("text"), box->text()},
                 {QStringLiteral("informativeText"), box->informativeText()},
                 {QStringLiteral("rect"), toJson(box->geometry())},
                 {QStringLiteral("buttons"), buttons}};
    }
    return {{{QStringLiteral("messageBox"), state}}, {}};
}

Outcome queryFocus(const QJsonObject &request)
{
    Q_UNUSED(request)
    QWidget *widget = QApplication::focusWidget();
    return {{{QStringLiteral("state"), widget ? stateOf(widget) : QJsonObject()}}, {}};
}

Outcome grabToFile(const QJsonObject &request)
{
    const QString path = request.value(QLatin1String("path")).toString();
    QPixmap picture;
    if (request.value(QLatin1String("screen")).toBool()) {
        picture = QGuiApplication::primaryScreen()->grabWindow(0);
    } else {
        const QJsonObject wanted = target(request);
        QWidget *widget = wanted.isEmpty() ? frontWindow() : findVisibleWidget(wanted);
        if (!widget)
            return Outcome::failure(notFoundMessage(wanted));
        picture = widget->grab();
    }
    if (!picture.save(path, "PNG"))
        return Outcome::failure(QStringLiteral("cannot save the picture as %1").arg(path));
    return {{{QStringLiteral("size"), QJsonArray{picture.width(), picture.height()}}}, {}};
}
