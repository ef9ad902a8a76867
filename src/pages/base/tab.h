#pragma once

#include "pages/base/pagehead.h"
#include "pages/base/paneldialog.h"
#include "pages/base/widgetmap.h"
#include "storage/settingsfile.h"

#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>
#include <QWidget>

class BixButtonGroup;
class BixCheckBoxButton;
class ComboBoxEx;
class OptionChoice;
class OptionLabels;
class QCheckBox;
class QSlider;
class Reasons;
class bOption;

/// Base of the option pages: binds widgets to option keywords.
///
/// A page makes its widgets in createWidgets() and registers each under its keyword: in
/// `boundWidgets` what the user sets, in `markWidgets` what shows the option's name and marks, in
/// `companionWidgets` what is only enabled along with the option. A combo box item and a button of
/// a group stand for the choice whose translated text they show; a check box stands for "True" and
/// "False". All the rest (loading, moving changes into the model, greying what is blocked, marks,
/// collecting) works on these registrations, in their order. A keyword that the printer lacks is
/// the ordinary case: its widgets are disabled.
///
/// The main dialog drives all pages through the virtual operations, in tab order.
class Tab : public QWidget
{
    Q_OBJECT

public:
    explicit Tab(PanelDialog *dialog, const PageHead &head = {});

    /// Sets the translated title of the page.
    virtual void setTabName();
    /// Brings every bound widget in line with the selected printer's options and its saved values.
    virtual void loadOptions();
    virtual void fillComboBox(ComboBoxEx *box, bOption *option);
    virtual void addComboBoxItems(ComboBoxEx *box, bOption *option);
    /// Builds the widgets and registers them.
    virtual void createWidgets() = 0;
    virtual void afterLoad() {}
    virtual void connectComboBox(ComboBoxEx *box);
    virtual void connectCheckBox(QCheckBox *box);
    virtual void connectSlider(QSlider *slider);
    virtual void connectButtonGroup(BixButtonGroup *group);
    /// Marks a label or button group with a tool tip that says why, or takes the mark away.
    virtual void setWidgetMark(QWidget *widget, const QString &tooltip, bool on);
    virtual void beforeLoad() {}
    virtual QIcon tabIcon();
    /// Shown instead of tabIcon() while the page has a mark.
    virtual QIcon tabConstraintIcon();
    /// Whether the page can be used for the selected printer; its tab shows only then.
    virtual bool isAvailable();
    /// Loads the page after a change of the printer or profile. The bound widgets are silent
    /// meanwhile, so that no constraint pass runs before the page stands.
    virtual void reload();
    /// The page's settings: keyword and choice key, "True" or "False", or a number.
    virtual QHash<QString, QString> collectSettings();
    /// Settings that are no option of the PPD, or that must stay out of the walk over options.
    virtual Settings extraSettings() { return {}; }
    /// Marks the widget of a keyword. `value` is what the mark is about, for pages that need it.
    virtual void markKeyword(const QString &keyword, const QString &value);
    virtual void clearMarks();
    /// Runs in each constraint pass before marks are set.
    virtual void beforeConstraints() {}
    virtual bool hasMarks() { return marked; }
    /// Sets the texts that depend on the printer.
    virtual void retranslate() {}
    /// Moves a widget's value into the model. `value` counts for check boxes, radio buttons and
    /// sliders; the others are asked for what they show. Unknown widgets are passed over.
    virtual void applyWidgetValue(int value, QObject *widget);
    virtual void applyAllWidgets();
    /// Marks the widgets that addConstraintWidget() named.
    virtual void markConstraintWidgets();
    /// Runs instead of reload() while the page is not available.
    virtual void resetForDisabled() {}

public slots:
    virtual void markOption(bool value);
    virtual void markOption(int value);
    /// Greys what is blocked and moves widgets off blocked values. True if a value had to be moved,
    /// so that the constraint pass has to run again. So do the four below for one widget.
    virtual bool enableOptions();
    virtual bool enableOptionsForComboBox(ComboBoxEx *box, bOption *option);
    virtual bool enableOptionsForCheckBox(QCheckBox *box, bOption *option);
    virtual bool enableOptionsForCheckBoxButton(BixCheckBoxButton *button, bOption *option);
    virtual bool enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option);

    /// Brings the dependents of the sending BixCheckBoxButton in line with it.
    void CheckBoxMarkConstraints();
    /// A checked button gives its dependent combo boxes' values to the model, an unchecked one the
    /// choices that their off-values name.
    void CheckBoxMarkConstraintsWithSender(BixCheckBoxButton *button);

public:
    /// The title in the list of pages.
    QString tabName();
    /// Says in tool tips and accessible descriptions why what is greyed is greyed. Runs for the
    /// page that shows, once after each click, when all passes are through.
    virtual void explain(const OptionLabels &labels);
    /// Gives the focus to the control of the page that had it last, or to the first one.
    void takeFocus();
    /// What the page calls the option of a keyword, without a colon; empty if it has no name for
    /// it.
    virtual QString label(const QString &keyword) const;
    /// The keywords that follow the switch of this keyword: those of its dependents. Whoever hears
    /// of the switch knows of them.
    virtual QStringList followersOf(const QString &keyword) const;
    /// The keywords of the page's controls and marks, in the order of registration.
    QStringList keywords() const;
    /// The keyword of a control; empty for what is none.
    virtual QString keywordOf(const QObject *control) const;
    /// Selects a value as the user would, through the control; a switch that it hangs under is
    /// switched with it. Without effect for an option that the page has no control for.
    virtual void choose(const OptionChoice &choice);
    /// False for the Printer page: installed options are the printer's and no user's.
    virtual bool hasUserSettings() const { return true; }
    /// Forgets marks of the pass before.
    void setMarked(bool on) { marked = on; }

    // For the bindings of the kinds of controls.

    /// Lets a change reach a slot of the page and then the constraint pass; a second time adds
    /// nothing.
    template <typename Widget, typename Signal, typename Slot>
    void connectChange(Widget *widget, Signal signal, Slot slot)
    {
        connect(widget, signal, this, slot, Qt::UniqueConnection);
        connect(widget, signal, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
    }
    /// The choice to show: the saved one if the printer still has it, else the default. May be
    /// null.
    static OptionChoice *savedOrDefaultChoice(const bOption *option);
    /// The key of the choice with this text; null text if there is none.
    static QString keywordForText(const bOption *option, const QString &text);

protected:
    /// The controls that the Tab key visits now, in their order: down the columns.
    virtual QList<QWidget *> focusOrder() const;
    /// Walks within the page and never leaves it.
    bool focusNextPrevChild(bool next) override;

    /// The option of a keyword for the selected printer, or null.
    static bOption *findOption(const QString &keyword);

    /// Connects all bound widgets to this page and to the constraint pass; a second run adds
    /// nothing.
    void connectBoundWidgets();
    void setBoundSignalsBlocked(bool blocked);
    /// Shows the options' translated names, and greys what the printer lacks.
    void applyLabels();
    void setChoiceEnabled(int index, ComboBoxEx *box, bool disabled);
    /// What collectSettings() stores for a widget; empty for a null option.
    QString widgetValue(QWidget *widget, bOption *option) const;
    /// Fills `savedSettings` with what the bound widgets hold.
    void collectBoundWidgets();

    /// Says on a control, bound or not, why it or a value of it is greyed.
    void explainControl(QWidget *widget, const Reasons &reasons) const;
    /// Why a control as a whole is greyed, if it isn't for the options' rules: its switch is off,
    /// or the printer lacks it. Empty if the page knows of nothing.
    virtual QString greyReason(const QWidget *widget) const;
    /// Why what follows a switch that is off is greyed.
    QString switchReason(const BixCheckBoxButton *button) const;

    /// Names a widget that the next passes mark, until it is removed again.
    void addConstraintWidget(const QString &key, QWidget *widget);
    void removeConstraintWidget(const QString &key);

    PanelDialog *const dialog;
    const PageHead head;
    QString tabName_;
    bool marked = false; ///< the page has at least one mark
    WidgetMap constraintWidgets;
    WidgetMap boundWidgets;
    WidgetMap markWidgets;
    WidgetMap companionWidgets;
    QList<BixCheckBoxButton *> checkBoxButtons;
    QHash<QString, QString> savedSettings; ///< what collectSettings() found last

private:
    void markWidget(QWidget *widget);

    bool enabling = false; ///< enableOptions() is running
};
