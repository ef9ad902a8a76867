#pragma once

#include "widgets/spokeninterface.h"

class QComboBox;

/// A list box without a field to type in. It goes by its value, as Qt's do on X11 and Wayland, and
/// by its label as a relation; the value is its text, too, since versions of Orca differ in where
/// they look. While it is closed they hear of another value as of the focus on that item.
class SpokenComboBox : public SpokenInterface, public QAccessibleTextInterface
{
public:
    SpokenComboBox(QComboBox *box, QAccessibleInterface *qt);

    /// Tells readers of the value of a box that has the focus, if there is another one than before
    /// once it has been filled. To be called for each change of any box.
    static void noteValue(QComboBox *box);

    QString text(QAccessible::Text t) const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    int characterCount() const override { return value().size(); }
    QString text(int start, int end) const override { return value().mid(start, end - start); }
    int cursorPosition() const override { return characterCount(); }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 0; }
    void selection(int index, int *start, int *end) const override;
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int *start, int *end) const override;

private:
    QString value() const;
};
