#pragma once

#include "pages/base/binding.h"

class ComboBoxEx;

/// A combo box: an item stands for the choice whose text it shows, and carries no data.
class ComboBinding : public Binding
{
public:
    const char *className() const override { return "ComboBoxEx"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    void load(Tab &page, QWidget *widget, bOption *option) const override;
    int value(const QWidget *widget) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    bool enable(Tab &page, QWidget *widget, bOption *option) const override;
    void explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                 const QString &grey) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
    void choose(QWidget *widget, const OptionChoice &choice) const override;

    // What Tab's own versions of its virtual operations do.
    static void fill(Tab &page, ComboBoxEx *box, bOption *option);
    static void addItems(ComboBoxEx *box, const bOption *option);
    static bool enableItems(Tab &page, ComboBoxEx *box, bOption *option);
    static void setItemEnabled(int index, ComboBoxEx *box, bool disabled);
};
