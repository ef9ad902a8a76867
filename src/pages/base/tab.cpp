#include "pages/base/tab.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "pages/base/paneldialog.h"
#include "storage/settingsfile.h"
#include "widgets/bixbuttongroup.h"
#include "widgets/bixcheckboxbutton.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QSlider>

namespace {

/// Box items carry no data: the text is the link to the choice.
int itemIndex(const ComboBoxEx *box, const QString &text)
{
    return box->findData(text, Qt::DisplayRole, Qt::MatchCaseSensitive);
}

/// How a slider's position reads as a choice of its option: the master hue goes in tens, all
/// others carry a decimal.
QString sliderText(const QString &keyword, int value)
{
    if (keyword == QLatin1String("CaHueMaster"))
        return QString::number(value * 10);
    return value == 0 ? QStringLiteral("0") : QString::number(value) + QStringLiteral(".0");
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
    box->setChecked(choice && choice->key() == Keys::yes);
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
        choice = option->findChoice(
            Keys::yesOrNo(static_cast<BixCheckBoxButton *>(widget)->isChecked()));
    else if (type == QLatin1String("QCheckBox") || type == QLatin1String("QRadioButton"))
        choice = option->findChoice(Keys::yesOrNo(value != 0));
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
        return Keys::yesOrNo(check->isChecked());
    if (auto *button = qobject_cast<BixCheckBoxButton *>(widget))
        return Keys::yesOrNo(button->isChecked());
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
