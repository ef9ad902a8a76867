#include "pages/printer/printertable.h"

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

void PrinterTable::keyPressEvent(QKeyEvent *event)
{
    QTableWidget::keyPressEvent(event);
    dropStaleSelection();
}

void PrinterTable::mousePressEvent(QMouseEvent *event)
{
    QTableWidget::mousePressEvent(event);
    dropStaleSelection();
}

void PrinterTable::dropStaleSelection()
{
    // The printer may have been found gone or without a PPD: then no row is current any more, the
    // table may have been rebuilt, and what is at that place now must not be shown as selected.
    if (!currentIndex().isValid())
        clearSelection();
}
