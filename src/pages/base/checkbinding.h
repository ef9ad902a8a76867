#pragma once

#include "pages/base/binding.h"

class BixCheckBoxButton;
class QCheckBox;

/// A check box: on stands for the choice "True", off for "False".
class CheckBinding : public Binding
{
public:
    const char *className() const override { return "QCheckBox"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    void load(Tab &page, QWidget *widget, bOption *option) const override;
    int value(const QWidget *widget) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    void choose(QWidget *widget, const OptionChoice &choice) const override;
    bool enable(Tab &page, QWidget *widget, bOption *option) const override;
    void explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                 const QString &grey) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
    bool marksItself() const override { return true; }
    QString label(const QWidget *widget) const override;
    void showOption(QWidget *widget, const bOption *option) const override;
    void mark(QWidget *widget) const override;
    void clearMark(QWidget *widget) const override;

    /// By the places of the choices in the list, not by their keys.
    static bool enableBox(Tab &page, QCheckBox *box, const bOption *option);
};

/// A radio button: as a check box, but nothing loads, greys or collects it.
class RadioBinding : public Binding
{
public:
    const char *className() const override { return "QRadioButton"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    int value(const QWidget *widget) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    void choose(QWidget *widget, const OptionChoice &choice) const override;
    QString label(const QWidget *widget) const override;
};

/// A check box with a picture button, and dependents that it switches. It shows no mark.
class CheckButtonBinding : public Binding
{
public:
    const char *className() const override { return "BixCheckBoxButton"; }
    void connectTo(Tab &page, QWidget *widget) const override;
    void load(Tab &page, QWidget *widget, bOption *option) const override;
    int value(const QWidget *widget) const override;
    OptionChoice *choice(const QWidget *widget, int value, const bOption *option) const override;
    void choose(QWidget *widget, const OptionChoice &choice) const override;
    bool enable(Tab &page, QWidget *widget, bOption *option) const override;
    void explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                 const QString &grey) const override;
    QString savedValue(const QWidget *widget, const bOption *option) const override;
    bool marksItself() const override { return true; }
    QString label(const QWidget *widget) const override;

    static bool enableButton(Tab &page, BixCheckBoxButton *button, const bOption *option);
};
