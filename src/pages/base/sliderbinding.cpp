#include "pages/base/sliderbinding.h"

#include "model/boption.h"
#include "pages/base/tab.h"

#include <QSlider>

namespace {

/// The master hue goes in tens, all others carry a decimal.
QString sliderText(const QString &keyword, int value)
{
    if (keyword == QLatin1String("CaHueMaster"))
        return QString::number(value * 10);
    return value == 0 ? QStringLiteral("0") : QString::number(value) + QStringLiteral(".0");
}

} // namespace

void SliderBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectSlider(static_cast<QSlider *>(widget));
}

int SliderBinding::value(const QWidget *widget) const
{
    return static_cast<const QSlider *>(widget)->value();
}

OptionChoice *SliderBinding::choice(const QWidget *, int value, const bOption *option) const
{
    return option->findChoiceByText(sliderText(option->key(), value));
}

QString SliderBinding::savedValue(const QWidget *widget, const bOption *option) const
{
    return sliderText(option->key(), value(widget));
}
