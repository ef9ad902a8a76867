#include "pages/tab.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"
#include "widgets/paneldialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QSlider>
#include <QStandardItemModel>

namespace {

const QLatin1String onKey("True");
const QLatin1String offKey("False");

/// Box items carry no data: the text is the link to the choice.
int itemIndex(const ComboBoxEx *box, const QString &text)
{
    return box->findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
}

/// The first index of each item text.
QHash<QString, int> itemIndexes(const ComboBoxEx *box)
{
    QHash<QString, int> indexes;
    for (int i = box->count() - 1; i >= 0; --i)
        indexes.insert(box->itemText(i), i);
    return indexes;
}

/// How a slider's position reads as a choice of its option: the master hue goes in tens, all
/// others carry a decimal.
QString sliderText(const QString &keyword, int value)
{
    if (keyword == QLatin1String("CaHueMaster"))
        return QString::number(value * 10);
    return value == 0 ? QStringLiteral("0") : QString::number(value) + QStringLiteral(".0");
}

bool isBlocked(const OptionChoice *choice)
{
    return choice && choice->isBlocked();
}

/// Check boxes read an ampersand as the mark of a shortcut.
QString captionText(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

Tab::Tab(PanelDialog *dialog)
    : QWidget(dialog)
    , dialog(dialog)
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

QIcon Tab::tabIcon()
{
    return QIcon(QStringLiteral(":/icons/tab-basic"));
}

QIcon Tab::tabConstraintIcon()
{
    return QIcon(QStringLiteral(":/icons/tab-basic-constraint"));
}

bOption *Tab::findOption(const QString &keyword)
{
    return currentStore ? currentStore->find(keyword) : nullptr;
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
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            if (option)
                ConstraintMark::setPlainText(label, option->text() + QLatin1Char(':'));
            label->setEnabled(option);
        } else if (auto *box = qobject_cast<QCheckBox *>(widget)) {
            if (option)
                box->setText(captionText(option->text()));
            else
                box->setChecked(false);
            box->setEnabled(option);
        }
    }
}

void Tab::loadOptions()
{
    for (const auto &[keyword, widget] : boundWidgets) {
        bOption *option = findOption(keyword);
        if (auto *box = qobject_cast<ComboBoxEx *>(widget))
            fillComboBox(box, option);
        else if (auto *check = qobject_cast<QCheckBox *>(widget))
            loadCheckable(check, option);
        else if (auto *group = qobject_cast<BixButtonGroup *>(widget))
            loadButtonGroup(group, option);
        else if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
            loadCheckable(button, option);
    }
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
    box->clear();
    box->setEnabled(option);
    if (!option)
        return;
    addComboBoxItems(box, option);
    for (const OptionChoice *choice : {savedOrDefaultChoice(option), option->defaultChoice()}) {
        const int index = choice ? itemIndex(box, choice->text()) : -1;
        if (index >= 0) {
            box->setCurrentIndex(index);
            return;
        }
    }
}

void Tab::addComboBoxItems(ComboBoxEx *box, bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices)
        box->addItem(choice->text());
}

template <typename Checkable>
void Tab::loadCheckable(Checkable *box, const bOption *option)
{
    box->setEnabled(option);
    if (!option)
        return;
    const OptionChoice *choice = savedOrDefaultChoice(option);
    box->setChecked(choice && choice->key() == onKey);
}

void Tab::loadButtonGroup(BixButtonGroup *group, bOption *option)
{
    const OptionChoice *choice = option ? savedOrDefaultChoice(option) : nullptr;
    group->setGroupEnabled(choice);
    if (choice)
        group->setButtonByValue(choice->text());
}

// From the widgets to the model

void Tab::connectBoundWidgets()
{
    for (const auto &[keyword, widget] : boundWidgets) {
        if (auto *box = qobject_cast<ComboBoxEx *>(widget)) {
            connectComboBox(box);
        } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
            connectCheckBox(check);
        } else if (auto *slider = qobject_cast<QSlider *>(widget)) {
            connectSlider(slider);
        } else if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
            connectButtonGroup(group);
        } else if (auto *button = qobject_cast<BixCheckBoxButton *>(widget)) {
            const auto toggled = qOverload<int>(&BixCheckBoxButton::toggled);
            connect(button, toggled, this, qOverload<int>(&Tab::markOption), Qt::UniqueConnection);
            connect(button, toggled, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
        } else if (auto *radio = qobject_cast<QRadioButton *>(widget)) {
            connect(radio, &QRadioButton::toggled, this, qOverload<bool>(&Tab::markOption),
                    Qt::UniqueConnection);
            connect(radio, &QRadioButton::toggled, dialog, &PanelDialog::setConstraints,
                    Qt::UniqueConnection);
        }
    }
    for (BixCheckBoxButton *button : qAsConst(checkBoxButtons)) {
        const auto toggled = qOverload<bool>(&BixCheckBoxButton::toggled);
        connect(button, toggled, this, &Tab::CheckBoxMarkConstraints, Qt::UniqueConnection);
        connect(button, toggled, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
    }
}

void Tab::connectComboBox(ComboBoxEx *box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(box, changed, this, qOverload<int>(&Tab::markOption), Qt::UniqueConnection);
    connect(box, changed, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
}

void Tab::connectCheckBox(QCheckBox *box)
{
    connect(box, &QCheckBox::stateChanged, this, qOverload<int>(&Tab::markOption),
            Qt::UniqueConnection);
    connect(box, &QCheckBox::stateChanged, dialog, &PanelDialog::setConstraints,
            Qt::UniqueConnection);
}

void Tab::connectSlider(QSlider *slider)
{
    connect(slider, &QSlider::valueChanged, this, qOverload<int>(&Tab::markOption),
            Qt::UniqueConnection);
    connect(slider, &QSlider::valueChanged, dialog, &PanelDialog::setConstraints,
            Qt::UniqueConnection);
}

void Tab::connectButtonGroup(BixButtonGroup *group)
{
    const auto clicked = qOverload<int>(&BixButtonGroup::buttonClicked);
    connect(group, clicked, this, qOverload<int>(&Tab::markOption), Qt::UniqueConnection);
    connect(group, clicked, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
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
    const QString keyword = boundWidgets.key(widget, QString());
    bOption *option = findOption(keyword);
    if (!option)
        return;

    // By the exact class: a page's own subclass handles its values itself.
    const QLatin1String type(widget->metaObject()->className());
    OptionChoice *choice = nullptr;
    if (type == QLatin1String("BixCheckBoxButton"))
        choice = option->findChoice(static_cast<BixCheckBoxButton *>(widget)->isChecked() ? onKey
                                                                                          : offKey);
    else if (type == QLatin1String("QCheckBox") || type == QLatin1String("QRadioButton"))
        choice = option->findChoice(value != 0 ? onKey : offKey);
    else if (type == QLatin1String("ComboBoxEx"))
        choice = option->findChoiceByText(static_cast<ComboBoxEx *>(widget)->currentText());
    else if (type == QLatin1String("QSlider"))
        choice = option->findChoiceByText(sliderText(keyword, value));
    else if (type == QLatin1String("BixButtonGroup"))
        choice = option->findChoiceByText(static_cast<BixButtonGroup *>(widget)->currentText());
    else
        return;
    option->setCurrent(choice ? choice : option->defaultChoice());
}

void Tab::applyAllWidgets()
{
    for (const auto &[keyword, widget] : boundWidgets) {
        int value = 0;
        if (auto *box = qobject_cast<ComboBoxEx *>(widget))
            value = box->currentIndex();
        else if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
            value = button->isChecked();
        else if (auto *plain = qobject_cast<QAbstractButton *>(widget))
            value = plain->isChecked();
        else if (auto *slider = qobject_cast<QSlider *>(widget))
            value = slider->value();
        applyWidgetValue(value, widget);
    }
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

// From the model to the widgets

bool Tab::enableOptions()
{
    bool changed = false;
    for (const auto &[keyword, widget] : boundWidgets) {
        if (bOption *option = findOption(keyword))
            changed = enableOptionsForWidget(widget, option) || changed;
    }
    return changed;
}

bool Tab::enableOptionsForWidget(QWidget *widget, bOption *option)
{
    if (auto *box = qobject_cast<ComboBoxEx *>(widget))
        return enableOptionsForComboBox(box, option);
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return enableOptionsForCheckBox(check, option);
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        return enableOptionsForCheckBoxButton(button, option);
    if (auto *group = qobject_cast<BixButtonGroup *>(widget))
        return enableOptionsForButtonGroup(group, option);
    return false;
}

bool Tab::enableOptionsForComboBox(ComboBoxEx *box, bOption *option)
{
    if (!box->isEnabled())
        return false;

    const QHash<QString, int> indexes = itemIndexes(box);
    bool mustMove = false;
    int replacement = -1;
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices) {
        const int index = indexes.value(choice->text(), -1);
        if (index < 0)
            continue;
        const bool blocked = choice->isBlocked();
        if (blocked && index == box->currentIndex())
            mustMove = true;
        if (!blocked && replacement < 0)
            replacement = index;
        setChoiceEnabled(index, box, blocked);
    }
    if (!mustMove)
        return false;

    const QSignalBlocker silent(box);
    if (replacement < 0) {
        // Nothing is left to choose; what can't be printed must not hold up other options either.
        option->setCurrent(nullptr);
        box->setCurrentIndex(0);
        return false;
    }
    box->setCurrentIndex(replacement);
    applyWidgetValue(replacement, box);
    return true;
}

void Tab::setChoiceEnabled(int index, ComboBoxEx *box, bool disabled)
{
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    QStandardItem *item = model ? model->item(index) : nullptr;
    if (!item)
        return;
    const Qt::ItemFlags usable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    item->setFlags(disabled ? item->flags() & ~usable : usable);
    item->setData(disabled ? QVariant(box->palette().color(QPalette::Disabled, QPalette::Text))
                           : QVariant(),
                  Qt::ForegroundRole);
}

/// Switches the box to the state that is left, or frees it. True if it had to be switched.
template <typename Checkable>
bool Tab::forceState(Checkable *box, bool offBlocked, bool onBlocked)
{
    if (!offBlocked && !onBlocked) {
        box->setEnabled(true);
        return false;
    }
    const bool state = !onBlocked;
    const bool moved = box->isChecked() != state;
    box->setEnabled(false);
    box->setChecked(state);
    if (moved)
        applyWidgetValue(state, box);
    return moved;
}

bool Tab::enableOptionsForCheckBox(QCheckBox *box, bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    return forceState(box, isBlocked(choices.value(0)), isBlocked(choices.value(1)));
}

bool Tab::enableOptionsForCheckBoxButton(BixCheckBoxButton *button, bOption *option)
{
    return forceState(button, isBlocked(option->findChoice(offKey)),
                      isBlocked(option->findChoice(onKey)));
}

bool Tab::enableOptionsForButtonGroup(BixButtonGroup *group, bOption *option)
{
    group->setGroupEnabled(true);

    int constrainedCount = 0;
    int firstFree = -1;
    bool mustMove = false;
    const QStringList names = group->buttonNames();
    for (int i = 0; i < names.size(); ++i) {
        const OptionChoice *choice = option->findChoiceByText(names[i]);
        if (!choice)
            continue;
        const bool blocked = choice->isBlocked();
        group->setEnabledAt(i, !blocked);
        if (blocked) {
            ++constrainedCount;
            mustMove = mustMove || choice == option->current();
        } else if (firstFree < 0) {
            firstFree = i;
        }
    }
    if (mustMove) {
        option->setCurrent(firstFree < 0 ? nullptr : option->findChoiceByText(names[firstFree]));
        if (firstFree >= 0)
            group->setButton(firstFree);
    }

    const int left = option->choiceCount() - constrainedCount;
    if (left == 0 || left == 1) {
        // One value that can't be changed is no conflict: the label reads as always.
        group->setGroupEnabled(false);
        group->setLabelEnabled(true);
    }
    if (left == 0) {
        option->setCurrent(option->choiceList().value(0));
        group->setButton(0);
    }
    return mustMove;
}

// Collecting

QString Tab::keywordForText(const bOption *option, const QString &text)
{
    const OptionChoice *choice = option->findChoiceByText(text);
    return choice ? choice->key() : QString();
}

QString Tab::widgetValue(QWidget *widget, bOption *option) const
{
    if (!option)
        return QString();
    if (auto *box = qobject_cast<ComboBoxEx *>(widget))
        return keywordForText(option, box->currentText());
    if (auto *group = qobject_cast<BixButtonGroup *>(widget))
        return keywordForText(option, group->currentText());
    if (auto *check = qobject_cast<QCheckBox *>(widget))
        return check->isChecked() ? onKey : offKey;
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        return button->isChecked() ? onKey : offKey;
    if (auto *slider = qobject_cast<QSlider *>(widget))
        return sliderText(option->key(), slider->value());
    return QString();
}

QHash<QString, QString> Tab::collectSettings()
{
    savedSettings.clear();
    for (const auto &[keyword, widget] : boundWidgets) {
        const QString value = widgetValue(widget, findOption(keyword));
        if (!value.isEmpty())
            savedSettings.insert(keyword, value);
    }
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
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        ConstraintMark::remove(label);
        if (on)
            ConstraintMark::append(label);
        ConstraintMark::explain(label, on ? tooltip : QString());
    } else if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
        if (on)
            group->markWithToolTip(tooltip);
        else
            group->clearMark();
    }
}

void Tab::markWidget(QWidget *widget)
{
    marked = true;
    if (auto *label = qobject_cast<QLabel *>(widget)) {
        ConstraintMark::remove(label);
        ConstraintMark::append(label);
    } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
        check->setIcon(QIcon(QLatin1String(ConstraintMark::icon)));
    } else if (auto *group = qobject_cast<BixButtonGroup *>(widget)) {
        group->markConstrained(true);
    }
}

void Tab::markKeyword(const QString &keyword, const QString &)
{
    QWidget *mark = markWidgets.value(keyword);
    QWidget *bound = boundWidgets.value(keyword);
    if (qobject_cast<QLabel *>(mark)) {
        markWidget(mark);
    } else if (qobject_cast<QCheckBox *>(bound)) {
        // The adjustment is no value that could be chosen wrongly.
        if (keyword != QLatin1String("Cadj"))
            markWidget(bound);
    } else if (qobject_cast<BixButtonGroup *>(mark)) {
        markWidget(mark);
    } else if (qobject_cast<BixCheckBoxButton *>(bound)) {
        marked = true;
    }
}

void Tab::clearMarks()
{
    for (const auto &[keyword, widget] : markWidgets) {
        if (auto *label = qobject_cast<QLabel *>(widget))
            ConstraintMark::removeImage(label);
        else if (auto *check = qobject_cast<QCheckBox *>(widget))
            check->setIcon(QIcon());
        else if (auto *group = qobject_cast<BixButtonGroup *>(widget))
            group->markConstrained(false);
    }
}

void Tab::markConstraintWidgets()
{
    for (const auto &[key, widget] : constraintWidgets)
        markWidget(widget);
}
