#pragma once

#include "pages/base/binding.h"

class BixButtonGroup;

/// A group of picture buttons: a button stands for the choice whose text is its name.
///
/// A PPD may lack the user's language. If no text of the option is the name of any button, the
/// names before their translation count instead, and if those aren't found either the choice keys
/// that the buttons were given.
class GroupBinding : public Binding
{
public:
    const char *className() const override { return "BixButtonGroup"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    void load(Tab &page, QWidget *widget, bOption *option) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    bool enable(Tab &page, QWidget *widget, bOption *option) const override;
    void explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                 const QString &grey) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
    void choose(QWidget *widget, const OptionChoice &choice) const override;
    QString label(const QWidget *widget) const override;
    bool marksAnother() const override { return true; }
    void mark(QWidget *widget) const override;
    void clearMark(QWidget *widget) const override;
    void markWithToolTip(QWidget *widget, const QString &toolTip, bool on) const override;

    static bool enableButtons(BixButtonGroup *group, bOption *option);

    /// The choice that the button at this position stands for, or null. Of several with keys of the
    /// button it is the saved one or the default, else the first.
    static OptionChoice *choiceAt(const BixButtonGroup *group, int position, const bOption *option);
    /// The position of the button that shows a choice of the option; -1 if none does.
    static int positionOf(const OptionChoice *choice, const BixButtonGroup *group,
                          const bOption *option);
};
