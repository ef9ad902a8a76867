#include "widgets/constraintmark.h"

#include <QLabel>
#include <QTextDocumentFragment>

namespace {

const QLatin1String imageText("<img src=':/icons/error'> ");
const QLatin1String spacedImageText(" <img src=':/icons/error'> ");

void takeOut(QLabel *label, QLatin1String part)
{
    label->setText(label->text().remove(part));
}

} // namespace

namespace ConstraintMark {

void setPlainText(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
}

QString plainText(const QLabel *label)
{
    if (label->textFormat() != Qt::RichText)
        return label->text();
    QString text = label->text();
    text.remove(spacedImageText).remove(imageText);
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

void append(QLabel *label)
{
    if (label->textFormat() != Qt::RichText) {
        label->setText(label->text().toHtmlEscaped());
        label->setTextFormat(Qt::RichText);
    }
    label->setText(label->text() + spacedImageText);
}

void remove(QLabel *label)
{
    takeOut(label, spacedImageText);
}

void removeImage(QLabel *label)
{
    takeOut(label, imageText);
}

void explain(QLabel *label, const QString &toolTip)
{
    label->setToolTip(toolTip);
    const QLatin1String colors("QToolTip { color: #ffffff; background-color: #2a82da; "
                               "border: 1px solid white; }");
    if (!toolTip.isEmpty() && !label->styleSheet().contains(colors))
        label->setStyleSheet(label->styleSheet() + colors);
}

} // namespace ConstraintMark
