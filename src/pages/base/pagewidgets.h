#pragma once

#include <QLatin1String>
#include <QString>

class BixButtonGroup;
class ComboBoxEx;
class QDialog;
class QLabel;
class QWidget;

/// What several option pages do alike when they make their widgets. Nothing is registered here:
/// the order of a page's registrations is its own.
namespace PageWidgets {

/// A page's own tr(), for texts that stand in a table.
using Translate = QString (*)(const char *text, const char *disambiguation, int n);

/// A button of a group: the name that equals the text of its choice, marked for translation in the
/// page's context, its picture, and the keys of the choices that it may stand for where no text is
/// known, separated by blanks.
struct ButtonRow
{
    const char *name;
    const char *icon;
    const char *choiceKeys = "";
};

/// A combo box and the label above it.
struct LabeledComboBox
{
    QLabel *label = nullptr;
    ComboBoxEx *box = nullptr;
};

/// Gives a new widget its accessible name and hands it on.
template <typename Widget>
Widget *named(Widget *widget, const char *accessibleName)
{
    widget->setAccessibleName(QLatin1String(accessibleName));
    return widget;
}

QString withColon(const QString &text);
/// Without the colon and the blanks at its end.
QString withoutColon(const QString &text);

/// `width` in pixels is the box's usual one; with 0 it is as wide as its longest item.
LabeledComboBox labeledComboBox(QWidget *page, const char *labelName, const char *boxName,
                                const QString &labelText, int width = 0);

/// Appends one button.
void addButton(BixButtonGroup *group, const ButtonRow &row, Translate tr);

/// Appends a button for each row of a table.
template <int N>
void addButtons(BixButtonGroup *group, const ButtonRow (&rows)[N], Translate tr)
{
    for (const ButtonRow &row : rows)
        addButton(group, row, tr);
}

/// Leaves the close button alone in a dialog's title bar.
void simplifyTitleBar(QDialog *dialog);

} // namespace PageWidgets
