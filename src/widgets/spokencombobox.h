#pragma once

#include "widgets/spokeninterface.h"

class QComboBox;

/// A list box without a field to type in. Its value is the text of its item, all of it selected:
/// so readers say it with the box and each time another one is picked, of which they hear nothing
/// otherwise.
class SpokenComboBox : public SpokenInterface, public QAccessibleTextInterface
{
public:
    SpokenComboBox(QComboBox *box, QAccessibleInterface *qt);

    /// Tells readers that the box, which has the focus, has another value.
    static void tellValue(QComboBox *box);

    void *interface_cast(QAccessible::InterfaceType type) override;

    int characterCount() const override { return value().size(); }
    QString text(int start, int end) const override { return value().mid(start, end - start); }
    using SpokenInterface::text;
    int cursorPosition() const override { return characterCount(); }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 1; }
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
