#include "pages/job/jobtexts.h"

#include <QLabel>

void JobTexts::setRichText(QLabel *label, const QString &text)
{
    const QString html = text.toHtmlEscaped().replace(QLatin1String("\\n"), QLatin1String("<br>"));
    // Named, so that a mark doesn't take the tags for text.
    label->setTextFormat(Qt::RichText);
    label->setText(QStringLiteral("<font>") + html + QStringLiteral("</font>"));
}
