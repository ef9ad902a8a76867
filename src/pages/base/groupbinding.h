#pragma once

#include "pages/base/binding.h"

class BixButtonGroup;

/// A group of picture buttons: a button stands for the choice whose text is its name.
class GroupBinding : public Binding
{
public:
    const char *className() const override { return "BixButtonGroup"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    void load(Tab &page, QWidget *widget, bOption *option) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    bool enable(Tab &page, QWidget *widget, bOption *option) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
    bool marksAnother() const override { return true; }
    void mark(QWidget *widget) const override;
    void clearMark(QWidget *widget) const override;
    void markWithToolTip(QWidget *widget, const QString &toolTip, bool on) const override;

    static bool enableButtons(BixButtonGroup *group, bOption *option);
};
