#include "pages/base/tab.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/sentinels.h"
#include "pages/base/checkbinding.h"
#include "pages/base/combobinding.h"
#include "pages/base/groupbinding.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/icons.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QSlider>

#include <algorithm>

Tab::Tab(PanelDialog *dialog, const PageHead &head)
    : QWidget(dialog->pageParent())
    , dialog(dialog)
    , head(head)
{
    setStyleSheet(QStringLiteral(
        "ComboBoxEx{ margin-bottom: 8px }BixButtonGroup{ margin-bottom: 8px }QCheckBox{ "
        "margin-bottom: 8px }BixCheckBoxButton{ margin-bottom: 8px }"));
    setContentsMargins(10, 10, 10, 10);
}

QString Tab::tabName()
{
    if (!tabName_.isEmpty())
        return tabName_;
    QMessageBox box;
    box.setText(QStringLiteral("ERROR: tabName not init'd!"));
    box.exec();
    return QStringLiteral("ERROR");
}

void Tab::setTabName()
{
    tabName_ = QCoreApplication::translate(metaObject()->className(), head.title);
}

QIcon Tab::tabIcon()
{
    return Icons::icon(QLatin1String(head.icon));
}

QIcon Tab::tabConstraintIcon()
{
    return Icons::icon(QLatin1String(head.icon) + QStringLiteral("-constraint"));
}

bool Tab::isAvailable()
{
    switch (head.availability) {
    case PageHead::Always:
        return true;
    case PageHead::WithPrinter:
        return currentStore != nullptr;
    case PageHead::WithAnOption:
        return std::any_of(boundWidgets.begin(), boundWidgets.end(),
                           [](const auto &entry) { return findOption(entry.first) != nullptr; });
    case PageHead::Never:
        break;
    }
    return false;
}

bOption *Tab::findOption(const QString &keyword)
{
    return currentOption(keyword);
}

// Loading

void Tab::reload()
{
    setBoundSignalsBlocked(true);
    setTabName();
    constraintWidgets.clear();
    beforeLoad();
    clearMarks();
    applyLabels();
    loadOptions();
    applyAllWidgets();
    afterLoad();
    enableOptions();
    setBoundSignalsBlocked(false);
}

void Tab::setBoundSignalsBlocked(bool blocked)
{
    for (const auto &[keyword, widget] : boundWidgets)
        widget->blockSignals(blocked);
}

void Tab::applyLabels()
{
    if (!currentStore)
        return;
    for (const auto &[keyword, widget] : markWidgets) {
        const bOption *option = findOption(keyword);
        if (QWidget *companion = companionWidgets.value(keyword))
            companion->setEnabled(option);
        Binding::of(widget).showOption(widget, option);
    }
}

void Tab::loadOptions()
{
    for (const auto &[keyword, widget] : boundWidgets)
        Binding::of(widget).load(*this, widget, findOption(keyword));
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons))
        button->refreshDependents();
}

OptionChoice *Tab::savedOrDefaultChoice(const bOption *option)
{
    const QString saved = readSetting(option->key());
    OptionChoice *choice = saved.isEmpty() ? nullptr : option->findChoice(saved);
    return choice ? choice : option->defaultChoice();
}

void Tab::fillComboBox(ComboBoxEx *box, bOption *option)
{
    ComboBinding::fill(*this, box, option);
}

void Tab::addComboBoxItems(ComboBoxEx *box, bOption *option)
{
    ComboBinding::addItems(box, option);
}

// From the widgets to the model

void Tab::connectBoundWidgets()
{
    for (const auto &[keyword, widget] : boundWidgets)
        Binding::of(widget).connectTo(*this, widget);
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons))
        connectChange(button, qOverload<bool>(&BixCheckBoxButton::toggled),
                      &Tab::CheckBoxMarkConstraints);
}

void Tab::connectComboBox(ComboBoxEx *box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connectChange(box, qOverload<int>(&QComboBox::currentIndexChanged),
                  qOverload<int>(&Tab::markOption));
}

void Tab::connectCheckBox(QCheckBox *box)
{
    connectChange(box, &QCheckBox::stateChanged, qOverload<int>(&Tab::markOption));
}

void Tab::connectSlider(QSlider *slider)
{
    connectChange(slider, &QSlider::valueChanged, qOverload<int>(&Tab::markOption));
}

void Tab::connectButtonGroup(BixButtonGroup *group)
{
    connectChange(group, qOverload<int>(&BixButtonGroup::buttonClicked),
                  qOverload<int>(&Tab::markOption));
}

void Tab::markOption(bool value)
{
    applyWidgetValue(value, qobject_cast<QWidget *>(sender()));
}

void Tab::markOption(int value)
{
    applyWidgetValue(value, qobject_cast<QWidget *>(sender()));
}

void Tab::applyWidgetValue(int value, QObject *widget)
{
    bOption *option = findOption(boundWidgets.key(widget, QString()));
    const Binding &binding = Binding::of(widget);
    // Only the exact class: a page's own subclass handles its values itself.
    if (!option || qstrcmp(widget->metaObject()->className(), binding.className()) != 0)
        return;
    OptionChoice *choice = binding.choice(static_cast<QWidget *>(widget), value, option);
    option->setCurrent(choice ? choice : option->defaultChoice());
}

void Tab::applyAllWidgets()
{
    for (const auto &[keyword, widget] : boundWidgets)
        applyWidgetValue(Binding::of(widget).value(widget), widget);
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons))
        CheckBoxMarkConstraintsWithSender(button);
}

void Tab::CheckBoxMarkConstraints()
{
    if (auto *button = qobject_cast<BixCheckBoxButton *>(sender()))
        CheckBoxMarkConstraintsWithSender(button);
}

void Tab::CheckBoxMarkConstraintsWithSender(BixCheckBoxButton *button)
{
    const QList<QWidget *> dependents = button->dependents();
    for (QWidget *dependent : dependents) {
        auto *box = qobject_cast<ComboBoxEx *>(dependent);
        if (!box)
            continue;
        if (button->isChecked()) {
            applyWidgetValue(box->currentIndex(), box);
        } else if (bOption *option = findOption(boundWidgets.key(box))) {
            option->setCurrent(option->findChoiceByText(button->offValue(box)));
        }
    }
}

// Collecting

QString Tab::keywordForText(const bOption *option, const QString &text)
{
    const OptionChoice *choice = option->findChoiceByText(text);
    return choice ? choice->key() : QString();
}

QString Tab::widgetValue(QWidget *widget, bOption *option) const
{
    return option ? Binding::of(widget).savedValue(widget, option) : QString();
}

QHash<QString, QString> Tab::collectSettings()
{
    collectBoundWidgets();
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        if (button->isChecked())
            continue;
        const QList<QWidget *> dependents = button->dependents();
        for (QWidget *dependent : dependents) {
            if (boundWidgets.key(dependent) == Sentinel::notBound)
                continue;
            const QString offValue = button->offValue(dependent);
            if (offValue == Sentinel::noDefault)
                continue;
            // Here the off-value names the option that takes the dependent's value instead.
            if (bOption *option = findOption(offValue))
                savedSettings.insert(option->key(), widgetValue(dependent, option));
        }
    }
    return savedSettings;
}

void Tab::collectBoundWidgets()
{
    savedSettings.clear();
    for (const auto &[keyword, widget] : boundWidgets) {
        const QString value = widgetValue(widget, findOption(keyword));
        if (!value.isEmpty())
            savedSettings.insert(keyword, value);
    }
}

// What a constraint pass does: what is blocked

bool Tab::enableOptions()
{
    // A box that has to move says so, and the Printer page answers with this very slot: the pass
    // that follows takes care of the rest.
    if (enabling)
        return false;
    const QScopedValueRollback<bool> once(enabling, true);
    dialog->beginMoves();
    bool changed = false;
    for (const auto &[keyword, widget] : boundWidgets) {
        if (bOption *option = findOption(keyword))
            changed = Binding::of(widget).enable(*this, widget, option) || changed;
    }
    dialog->endMoves();
    return changed;
}

bool Tab::enableOptionsForComboBox(ComboBoxEx *box, bOption *option)
{
    return ComboBinding::enableItems(*this, box, option);
}

void Tab::setChoiceEnabled(int index, ComboBoxEx *box, bool disabled)
{
    ComboBinding::setItemEnabled(index, box, disabled);
}

bool Tab::enableOptionsForCheckBox(QCheckBox *box, bOption *option)
{
    return CheckBinding::enableBox(*this, box, option);
}

bool Tab::enableOptionsForCheckBoxButton(BixCheckBoxButton *button, bOption *option)
{
    return CheckButtonBinding::enableButton(*this, button, option);
}

bool Tab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    return GroupBinding::enableButtons(group, option);
}

// Marks

void Tab::addConstraintWidget(const QString &key, QWidget *widget)
{
    constraintWidgets.insert(key, widget);
}

void Tab::removeConstraintWidget(const QString &key)
{
    constraintWidgets.remove(key);
}

void Tab::setWidgetMark(QWidget *widget, const QString &tooltip, bool on)
{
    Binding::of(widget).markWithToolTip(widget, tooltip, on);
}

void Tab::markWidget(QWidget *widget)
{
    marked = true;
    Binding::of(widget).mark(widget);
}

void Tab::markKeyword(const QString &keyword, const QString &)
{
    QWidget *mark = markWidgets.value(keyword);
    QWidget *bound = boundWidgets.value(keyword);
    if (Binding::of(mark).marksAnother())
        markWidget(mark);
    // The adjustment is no value that could be chosen wrongly.
    else if (Binding::of(bound).marksItself() && keyword != QLatin1String("Cadj"))
        markWidget(bound);
}

void Tab::clearMarks()
{
    for (const auto &[keyword, widget] : markWidgets)
        Binding::of(widget).clearMark(widget);
}

void Tab::markConstraintWidgets()
{
    for (const auto &[key, widget] : constraintWidgets)
        markWidget(widget);
}
