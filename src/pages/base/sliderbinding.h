#pragma once

#include "pages/base/binding.h"

/// A slider: its position reads as the text of a choice.
class SliderBinding : public Binding
{
public:
    const char *className() const override { return "QSlider"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    int value(const QWidget *widget) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
};
