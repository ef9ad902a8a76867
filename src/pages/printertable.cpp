#include "pages/printertable.h"

void PrinterTable::focusInEvent(QFocusEvent *event)
{
    if (currentIndex().isValid()) {
        QTableWidget::focusInEvent(event);
        return;
    }
    // Past the class that would make a row current.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

void PrinterTable::mousePressEvent(QMouseEvent *event)
{
    QTableWidget::mousePressEvent(event);
    // The click may have found its printer gone: then the table was rebuilt meanwhile, and what is
    // at that place now must not be shown as selected.
    if (!currentIndex().isValid())
        clearSelection();
}
