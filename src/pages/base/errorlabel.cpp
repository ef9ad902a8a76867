#include "pages/base/errorlabel.h"

#include <QLabel>

QLabel *makeErrorLabel(QWidget *page)
{
    auto *label = new QLabel(page);
    styleErrorLabel(label, 12);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

void styleErrorLabel(QLabel *label, int fontSize)
{
    const QWidget *page = label->parentWidget();
    // A border in the colour of the page can't be seen.
    label->setStyleSheet(
        QStringLiteral("QLabel{color: red; font-family: Sans; font-size: %1px; border-width: 1px; "
                       "border-color: %2; border-style: solid}")
            .arg(fontSize)
            .arg(page->palette().color(page->backgroundRole()).name()));
}
