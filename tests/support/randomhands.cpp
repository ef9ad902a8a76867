#include "support/randomhands.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>

namespace {

/// What people type where they should, and where they shouldn't.
const QStringList texts = {
    "",      "1234",        "7",         "12, 15-17",  "-3",    "Max Müller", "me@here.org",
    "Draft", "a \"b",       "Office_C3", " ",          "a=b;c", "99999",      "localhost",
    "5.5",   "Grün & Blau", "x'y",       "back\\slash"};

bool isUsable(const QWidget *widget)
{
    if (!widget->isVisible() || !widget->isEnabled())
        return false;
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->count() > 1;
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return !edit->isReadOnly();
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget))
        return !edit->isReadOnly();
    if (const auto *table = qobject_cast<const QTableWidget *>(widget))
        return table->rowCount() > 0;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text().contains("<a href");
    // The others are parts of such widgets, or of the window's own.
    return (qobject_cast<const QAbstractButton *>(widget) && !widget->inherits("QToolButton") &&
            !widget->inherits("QTableCornerButton")) ||
           qobject_cast<const QSlider *>(widget);
}

QString nameOf(const QWidget *widget)
{
    const QString name = widget->accessibleName();
    return name.isEmpty() ? widget->property("text").toString() : name;
}

} // namespace

QList<QWidget *> usableControls(const QWidget *parent)
{
    QList<QWidget *> usable;
    for (QWidget *widget : parent->findChildren<QWidget *>())
        if (widget->window() == parent->window() && isUsable(widget))
            usable.append(widget);
    return usable;
}

bool RandomHands::turnPage(QTabWidget *tabs, int first)
{
    QList<int> usable;
    for (int page = first; page < tabs->count(); ++page)
        if (tabs->isTabEnabled(page))
            usable.append(page);
    if (!usable.isEmpty())
        tabs->setCurrentIndex(pick(usable));
    return !usable.isEmpty();
}

QString RandomHands::use(QWidget *control)
{
    // Before the click, which may do away with the control.
    QString did = nameOf(control);
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        button->click();
    } else if (auto *box = qobject_cast<QComboBox *>(control)) {
        QList<int> items;
        for (int item = 0; item < box->count(); ++item)
            if (item != box->currentIndex() &&
                (box->model()->index(item, 0).flags() & Qt::ItemIsEnabled))
                items.append(item);
        if (items.isEmpty())
            return {};
        const int item = pick(items);
        did += ": " + box->itemText(item);
        box->setCurrentIndex(item);
    } else if (auto *edit = qobject_cast<QLineEdit *>(control)) {
        const QString text = pick(texts);
        did += ": type " + text;
        edit->selectAll();
        edit->insert(text); // as pasted: validated, and told as edited
    } else if (auto *edit = qobject_cast<QTextEdit *>(control)) {
        edit->setPlainText(pick(texts));
    } else if (auto *slider = qobject_cast<QSlider *>(control)) {
        const int value = slider->minimum() + below(slider->maximum() - slider->minimum() + 1);
        did += QString(": %1").arg(value);
        slider->setValue(value);
    } else if (auto *table = qobject_cast<QTableWidget *>(control)) {
        const int row = below(table->rowCount());
        did += ": " + table->item(row, 0)->text();
        table->setCurrentCell(row, 0);
    } else if (auto *label = qobject_cast<QLabel *>(control)) {
        did = "link in " + did;
        emit label->linkActivated("#");
    }
    return did;
}
