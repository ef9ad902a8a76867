#pragma once

#include <QString>

class OptionChoice;
class QObject;
class QWidget;
class Reasons;
class Tab;
class bOption;

/// What one kind of control does in the walks of Tab: how it is connected, loaded, given to the
/// model, greyed, collected and marked.
///
/// Bindings have no state; there is one for each kind, in a file of its own, and of() knows them
/// all: a new kind of control is one more class there. What pages may do otherwise goes through the
/// virtual operations of Tab, whose own versions call the bindings back.
///
/// Every widget that comes in is of the binding's kind. What a kind does not do, it passes over.
class Binding
{
public:
    /// The binding of a widget's class or base class; for any other widget, and null, one that does
    /// nothing.
    static const Binding &of(const QObject *widget);

    virtual ~Binding() = default;

    /// The class that this is the binding of.
    virtual const char *className() const { return ""; }

    // Of a control that the user sets.

    /// Lets changes reach the page and the constraint pass; a second time adds nothing.
    virtual void connectTo(Tab &, QWidget *) const {}
    /// Shows the saved value or the default; null disables the control.
    virtual void load(Tab &, QWidget *, bOption *) const {}
    /// What the control shows, as its signal would say it.
    virtual int value(const QWidget *) const { return 0; }
    /// The choice that stands for what the control shows, or null. `value` counts for those whose
    /// signal says it.
    virtual OptionChoice *choice(const QWidget *, int /*value*/, const bOption *) const
    {
        return nullptr;
    }
    /// Greys what is blocked and moves off it; true if a value had to be moved.
    virtual bool enable(Tab &, QWidget *, bOption *) const { return false; }
    /// Says why the control is greyed and which of its values are, and takes back what is so no
    /// longer. `option` is null for what the printer lacks; `grey` is the reason that the page
    /// knows for the control as a whole, empty for none.
    virtual void explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                         const QString &grey) const;
    /// What the settings file keeps; empty for nothing.
    virtual QString savedValue(const QWidget *, const bOption *) const { return {}; }
    /// Whether marks for the control's option go on the control itself.
    virtual bool marksItself() const { return false; }

    /// Selects a value as the user would; nobody who listens can tell the difference.
    virtual void choose(QWidget *, const OptionChoice &) const {}

    // Of what shows an option's name and marks.

    /// What the widget calls itself, as it shows it; empty if it has no name.
    virtual QString label(const QWidget *) const { return {}; }

    /// Shows the option's name; null greys it.
    virtual void showOption(QWidget *, const bOption *) const {}
    /// Whether it can show a mark for a control beside it.
    virtual bool marksAnother() const { return false; }
    virtual void mark(QWidget *) const {}
    virtual void clearMark(QWidget *) const {}
    /// Sets or removes a mark with a tool tip that says why.
    virtual void markWithToolTip(QWidget *, const QString &, bool /*on*/) const {}

protected:
    /// The text that the page gave the widget, before an option's name took its place: `text` as it
    /// is at the first call.
    static QString ownText(QWidget *widget, const QString &text);
};
