#include "pages/base/errorlabel.h"

#include "widgets/panellook.h"

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
            .arg(qRound(fontSize * PanelLook::typeFactor(page->font())))
            .arg(page->palette().color(page->backgroundRole()).name()));
}
