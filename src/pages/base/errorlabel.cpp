#include "pages/base/errorlabel.h"

#include <QLabel>

QLabel *makeErrorLabel(QWidget *page)
{
    auto *label = new QLabel(page);
    label->setStyleSheet(
        QStringLiteral("QLabel{color: red; font-family: Sans; font-size: 12px; border-width: 1px; "
                       "border-color: %1; border-style: solid}")
            .arg(page->palette().color(page->backgroundRole()).name()));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}
