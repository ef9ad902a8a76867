#include "windowstate.h"

#include "widgetfinder.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDebug>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaEnum>
#include <QScreen>
#include <QSet>
#include <QTabBar>
#include <QTableView>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTreeView>
#include <QWindow>

namespace {

bool isInside(const QWidget *widget, const char *className)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (parent->inherits(className))
            return true;
    }
    return false;
}

/// Hidden by itself or by what it stands in, not because another page is in front.
bool isHiddenOnItsPage(const QWidget *widget)
{
    for (; widget && !widget->isWindow() && !widget->inherits("Tab");
         widget = widget->parentWidget()) {
        if (widget->isHidden())
            return true;
    }
    return false;
}

int markCount(const QString &text)
{
    return text.count("<img");
}

QString plain(const QString &text)
{
    const QString words =
        Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    return QString(words).remove(QChar::ObjectReplacementCharacter).simplified();
}

QString quoted(const QString &text)
{
    return '"' + text + '"';
}

/// Collects the lines of one widget.
class Lines
{
public:
    explicit Lines(QStringList *lines)
        : lines(lines)
    {
    }

    void add(const QString &key, const QString &value)
    {
        lines->append(key + '\t' + QString(value).replace('\n', ' ').replace('\t', ' '));
    }

    void addWidget(const QString &name, const QWidget *widget)
    {
        QString value = valueOf(name, widget);
        if (!widget->isEnabledTo(page(widget)))
            value += " grey";
        if (isHiddenOnItsPage(widget))
            value += " hidden";
        add(name, value.trimmed());
    }

private:
    static const QWidget *page(const QWidget *widget)
    {
        while (widget->parentWidget() && !widget->isWindow() && !widget->inherits("Tab"))
            widget = widget->parentWidget();
        return widget;
    }

    static QString mark(int count, const QString &toolTip)
    {
        if (count == 0)
            return {};
        return (count > 1 ? " marked twice" : " marked") +
               (toolTip.isEmpty() ? QString() : ' ' + quoted(plain(toolTip)));
    }

    QString valueOf(const QString &name, const QWidget *widget)
    {
        if (auto *box = qobject_cast<const QComboBox *>(widget))
            return comboBox(name, box);
        if (widget->inherits("BixButtonGroup"))
            return buttonGroup(name, widget);
        if (widget->inherits("BixCheckBoxButton"))
            widget = widget->findChild<QCheckBox *>();
        if (auto *button = qobject_cast<const QAbstractButton *>(widget))
            return button->isCheckable() ? (button->isChecked() ? "on" : "off") +
                                               mark(qobject_cast<const QCheckBox *>(button) &&
                                                        !button->icon().isNull() &&
                                                        !isInside(button, "BixCheckBoxButton"),
                                                    button->toolTip())
                                         : QString("button");
        if (auto *label = qobject_cast<const QLabel *>(widget))
            return quoted(plain(label->text())) + mark(markCount(label->text()), label->toolTip());
        if (auto *line = qobject_cast<const QLineEdit *>(widget))
            return quoted(line->text());
        if (auto *text = qobject_cast<const QTextEdit *>(widget))
            return quoted(text->toPlainText());
        if (auto *slider = qobject_cast<const QAbstractSlider *>(widget))
            return QString::number(slider->value());
        if (auto *view = qobject_cast<const QTableView *>(widget))
            return table(name, view);
        if (auto *view = qobject_cast<const QTreeView *>(widget))
            addTree(name, view);
        return "shown";
    }

    QString comboBox(const QString &name, const QComboBox *box)
    {
        QStringList items;
        QStringList blocked;
        for (int row = 0; row < box->count(); ++row) {
            const QModelIndex index =
                box->model()->index(row, box->modelColumn(), box->rootModelIndex());
            items.append(box->itemText(row));
            if (!index.flags().testFlag(Qt::ItemIsEnabled))
                blocked.append(box->itemText(row));
        }
        add(name + ".items", items.join('|'));
        add(name + ".blocked", blocked.join('|'));
        return box->currentText();
    }

    QString buttonGroup(const QString &name, const QWidget *group)
    {
        QString checked;
        QStringList items;
        QStringList blocked;
        const auto buttons = group->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            // Buttons that the group has given up stay its children.
            if (button->isHidden())
                continue;
            items.append(button->accessibleName());
            if (button->isChecked())
                checked = button->accessibleName();
            if (!button->isEnabledTo(group))
                blocked.append(button->accessibleName());
        }
        add(name + ".items", items.join('|'));
        add(name + ".blocked", blocked.join('|'));
        const auto *label = group->findChild<QLabel *>();
        if (label) {
            // That the value stands behind the title goes without saying.
            QString text = plain(label->text());
            if (text.endsWith(' ' + checked))
                text.chop(checked.size() + 1);
            add(name + ".label", quoted(text));
        }
        return checked + (label ? mark(markCount(label->text()), label->toolTip()) : QString());
    }

    /// Behind the text a tool tip that says something else.
    static QString cellText(const QModelIndex &cell)
    {
        const QString text = cell.data().toString();
        const QString tip = plain(cell.data(Qt::ToolTipRole).toString());
        return tip.isEmpty() || tip == text.simplified() ? text : text + ' ' + quoted(tip);
    }

    /// Headings, and below those that are expanded "LABEL: TEXT".
    void addTree(const QString &name, const QTreeView *view)
    {
        const QAbstractItemModel *model = view->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex heading = model->index(row, 0);
            rows.append(cellText(heading));
            for (int child = 0; view->isExpanded(heading) && child < model->rowCount(heading);
                 ++child)
                rows.append(cellText(model->index(child, 0, heading)) + ": " +
                            cellText(model->index(child, 1, heading)));
        }
        add(name + ".items", rows.join('|'));
    }

    QString table(const QString &name, const QTableView *view)
    {
        const QAbstractItemModel *model = view->model();
        QStringList rows;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(cellText(model->index(row, column)));
            rows.append(cells.join(' '));
        }
        add(name + ".items", rows.join('|'));
        QStringList headers;
        for (int column = 0; model && column < model->columnCount(); ++column)
            headers.append(model->headerData(column, Qt::Horizontal).toString());
        add(name + ".headers", headers.join('|'));
        const QModelIndexList selected =
            view->selectionModel() ? view->selectionModel()->selectedRows() : QModelIndexList();
        return selected.isEmpty() ? "no row" : quoted(rows.value(selected.first().row()));
    }

    QStringList *lines;
};

/// Whether a user who hears a dialog could not tell what this control of it is.
bool isNameless(const QWidget *widget)
{
    if (!widget->isVisible() || widget->isWindow() || widget->focusPolicy() == Qt::NoFocus ||
        widget->window()->inherits("BixDialog"))
        return false;
    const QAccessibleInterface *control =
        QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
    return !control || control->text(QAccessible::Name).isEmpty();
}

QString standardName(const QDialogButtonBox *box, const QAbstractButton *button)
{
    const auto standard = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    return standard.valueToKey(box->standardButton(const_cast<QAbstractButton *>(button)));
}

/// Those of the window itself: below it are also dialogs that it has made. A dialog's are
/// "NAME of TITLE".
void addStandardButtons(Lines *lines, const QWidget *window)
{
    const auto boxes = window->findChildren<QDialogButtonBox *>();
    for (const QDialogButtonBox *box : boxes) {
        const auto buttons = box->buttons();
        for (const QAbstractButton *button : buttons) {
            const QString text = withoutMnemonic(button->text());
            const QString standard = standardName(box, button);
            QString name = standard == "NoButton" ? text : standard;
            if (box->window() != window)
                continue;
            if (!window->inherits("BixDialog"))
                name += " of " + window->windowTitle();
            lines->add(name, text + (button->isEnabled() ? "" : " grey"));
        }
    }
}

/// Whether the tab shows the picture that stands for a mark on its page.
bool isTabMarked(const QTabBar *bar, int index)
{
    const QSize size = bar->iconSize();
    const QImage shown = bar->tabIcon(index).pixmap(size).toImage();
    for (const char *page : {"printer", "basic", "layout", "finishing", "imaging", "publishing",
                             "job", "watermark", "fkp"}) {
        const QIcon marked(QString(":/icons/tab-%1-constraint").arg(page));
        if (!marked.isNull() && marked.pixmap(size).toImage() == shown)
            return true;
    }
    return false;
}

void addTabs(Lines *lines, const QTabBar *bar)
{
    QStringList titles;
    QStringList marked;
    for (int index = 0; index < bar->count(); ++index) {
        if (bar->tabRect(index).isEmpty() || !bar->isTabEnabled(index))
            continue;
        titles.append(withoutMnemonic(bar->tabText(index)));
        if (isTabMarked(bar, index))
            marked.append(titles.last());
    }
    lines->add("tabs", titles.join('|'));
    lines->add("marked", marked.join('|'));
    lines->add("page", withoutMnemonic(bar->tabText(bar->currentIndex())));
}

void addFront(Lines *lines, const QWidget *window)
{
    // As the window system got it.
    lines->add("title", window->windowHandle() ? window->windowHandle()->title() : QString());
    if (const auto *box = qobject_cast<const QMessageBox *>(window))
        lines->add("message", plain(box->text()));
}

/// Of an item of a list, or of a picture button.
QString valueToolTip(const QWidget *widget, const QString &value)
{
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->itemData(box->findText(value), Qt::ToolTipRole).toString();
    const auto buttons = widget->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        if (button->accessibleName() == value)
            return button->toolTip();
    return QString();
}

/// Whether all of it shows on the screen.
bool isInSight(const QWidget *widget)
{
    const QRect place(widget->mapToGlobal(QPoint()), widget->size());
    return widget->visibleRegion() == widget->rect() &&
           widget->screen()->geometry().contains(place);
}

} // namespace

QStringList windowState()
{
    QStringList all;
    Lines lines(&all);
    if (const QWidget *front = frontWindow())
        addFront(&lines, front);
    QStringList nameless;
    QSet<QString> seen;
    const QList<QWidget *> windows = windowsFrontToBack();
    for (const QWidget *window : windows) {
        if (!window->isVisible() || window->windowType() == Qt::ToolTip)
            continue;
        addStandardButtons(&lines, window);
        const auto widgets = window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (const auto *bar = qobject_cast<const QTabBar *>(widget))
                addTabs(&lines, bar);
            if (isNameless(widget))
                nameless.append(widget->metaObject()->className());
            QString name = widget->accessibleName();
            if (name.isEmpty() || widget->window() != window ||
                isInside(widget, "BixButtonGroup") || isInside(widget, "BixCheckBoxButton"))
                continue;
            while (seen.contains(name))
                name += '\'';
            seen.insert(name);
            lines.addWidget(name, widget);
        }
    }
    if (!nameless.isEmpty())
        lines.add("nameless", nameless.join('|'));
    return all;
}

QString propertyText(const QWidget *widget, const QString &property)
{
    const QString toolTipOf("toolTip of ");
    if (property.startsWith(toolTipOf))
        return plain(valueToolTip(widget, property.mid(toolTipOf.size())));
    if (property == "color") {
        const auto *label =
            widget->inherits("BixButtonGroup") ? widget->findChild<QLabel *>() : nullptr;
        const QWidget *text = label ? label : widget;
        return text->palette().color(text->foregroundRole()).name();
    }
    if (property == "heading")
        return widget->property("plainText").toString().section('\n', 0, 0);
    if (property == "inSight")
        return QVariant(isInSight(widget)).toString();
    QVariant value = widget->property(property.toLatin1().constData());
    if (value.canConvert<QPixmap>())
        value = value.value<QPixmap>().size();
    if (!value.canConvert<QString>()) {
        QString text;
        QDebug(&text).nospace() << value;
        return text;
    }
    return value.toString().replace('\n', ' ');
}
