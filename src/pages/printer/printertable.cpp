#include "pages/printer/printertable.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

PrinterTable::PrinterTable(int rows, int columns, QWidget *parent)
    : QTableWidget(rows, columns, parent)
    , explanation(new QLabel(viewport()))
{
    explanation->setAccessibleName(QStringLiteral("lblNoPrinters"));
    explanation->setWordWrap(true);
    explanation->setAlignment(Qt::AlignCenter);
    explanation->setTextFormat(Qt::RichText); // of plain text and a link
    explanation->setTextInteractionFlags(Qt::LinksAccessibleByMouse |
                                         Qt::LinksAccessibleByKeyboard);
    explanation->hide();
    connect(explanation, &QLabel::linkActivated, this, &PrinterTable::lookAgain);
    auto *layout = new QVBoxLayout(viewport());
    layout->addWidget(explanation);
}

void PrinterTable::explainEmptiness(const QString &text, const QString &link)
{
    const QString line = QStringLiteral("<p>%1</p>");
    explanation->setText(
        line.arg(text.toHtmlEscaped()) +
        line.arg(QStringLiteral("<a href=\"#\">%1</a>").arg(link.toHtmlEscaped())));
    explanation->setVisible(!text.isEmpty());
}

std::pair<int, int> PrinterTable::rowsInView() const
{
    const int last = rowAt(viewport()->height() - 1);
    return {std::max(0, rowAt(0)), last < 0 ? rowCount() - 1 : last};
}

void PrinterTable::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    emit viewPainted();
}

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
