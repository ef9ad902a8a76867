#pragma once

#include "pages/base/binding.h"

/// A label that names an option and shows its marks.
class LabelBinding : public Binding
{
public:
    const char *className() const override { return "QLabel"; }
    void showOption(QWidget *widget, const bOption *option) const override;
    QString label(const QWidget *widget) const override;
    /// Tool tips of labels belong to marks.
    void explain(QWidget *, const bOption *, const Reasons &, const QString &) const override {}
    bool marksAnother() const override { return true; }
    void mark(QWidget *widget) const override;
    void clearMark(QWidget *widget) const override;
    void markWithToolTip(QWidget *widget, const QString &toolTip, bool on) const override;
};
