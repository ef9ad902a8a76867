#include "pages/base/labelbinding.h"

#include "model/boption.h"
#include "widgets/constraintmark.h"

#include <QLabel>

namespace {

QLabel *toLabel(QWidget *widget)
{
    return static_cast<QLabel *>(widget);
}

} // namespace

void LabelBinding::showOption(QWidget *widget, const bOption *option) const
{
    QLabel *label = toLabel(widget);
    const QString ownText = Binding::ownText(label, label->text());
    ConstraintMark::setPlainText(label, option ? option->text() + QLatin1Char(':') : ownText);
    widget->setEnabled(option);
}

QString LabelBinding::label(const QWidget *widget) const
{
    return ConstraintMark::plainText(static_cast<const QLabel *>(widget));
}

void LabelBinding::mark(QWidget *widget) const
{
    ConstraintMark::remove(toLabel(widget));
    ConstraintMark::append(toLabel(widget));
}

void LabelBinding::clearMark(QWidget *widget) const
{
    ConstraintMark::removeImage(toLabel(widget));
}

void LabelBinding::markWithToolTip(QWidget *widget, const QString &toolTip, bool on) const
{
    ConstraintMark::remove(toLabel(widget));
    if (on)
        ConstraintMark::append(toLabel(widget));
    ConstraintMark::explain(toLabel(widget), on ? toolTip : QString());
}
