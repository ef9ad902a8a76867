#include "model/boption.h"
#include "model/keys.h"
#include "model/optionstore.h"
#include "pages/base/paneldialog.h"
#include "pages/printer/printertab.h"
#include "widgets/comboboxex.h"
#include "widgets/constraintmark.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

// The installed options of the selected printer, below the table.

void PrinterTab::createInstalledOptions()
{
    if (!currentStore)
        return;
    removeInstalledOptions();
    const QList<bOption *> options = currentStore->installedOptions();
    for (const bOption *option : options)
        addInstalledOption(option);
}

void PrinterTab::removeInstalledOptions()
{
    for (const WidgetMap *map : {&boundWidgets, &markWidgets}) {
        for (const auto &[keyword, widget] : *map) {
            widget->hide();
            installedGrid->removeWidget(widget);
            widget->deleteLater(); // one of them may have sent the signal that led here
        }
    }
    boundWidgets.clear();
    markWidgets.clear();
    installedRowCount = 0;
}

void PrinterTab::addInstalledOption(const bOption *option)
{
    // By name, or the tool tips would take it over.
    const QString margin = QStringLiteral("QCheckBox, ComboBoxEx { margin-bottom: 8px }");
    if (option->hasChoice(Keys::no) && option->hasChoice(Keys::yes)) {
        auto *box = new QCheckBox(option->text());
        box->setAccessibleName(QStringLiteral("chkBx") + option->key());
        box->setStyleSheet(margin);
        boundWidgets.insert(option->key(), box);
        markWidgets.insert(option->key(), box);
        installedGrid->addWidget(box, installedRowCount++, 0, Qt::AlignLeft);
        return;
    }
    auto *label = new QLabel;
    ConstraintMark::setPlainText(label, option->text());
    label->setAccessibleName(QStringLiteral("lbl") + option->key());
    auto *box = new ComboBoxEx;
    box->setAccessibleName(QStringLiteral("cmbBx") + option->key());
    box->setStyleSheet(margin);
    boundWidgets.insert(option->key(), box);
    markWidgets.insert(option->key(), label);
    installedGrid->addWidget(label, installedRowCount++, 0, Qt::AlignLeft | Qt::AlignBottom);
    installedGrid->addWidget(box, installedRowCount++, 0, Qt::AlignLeft | Qt::AlignTop);
}

void PrinterTab::connectComboBox(ComboBoxEx *box)
{
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const auto changed = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(box, changed, this, qOverload<int>(&Tab::markOption), Qt::UniqueConnection);
    connect(box, changed, this, &PrinterTab::checkForChanges, Qt::UniqueConnection);
    connect(box, changed, this, &Tab::enableOptions, Qt::UniqueConnection);
    connect(box, changed, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
}

void PrinterTab::connectCheckBox(QCheckBox *box)
{
    const auto changed = &QCheckBox::stateChanged;
    connect(box, changed, this, qOverload<int>(&Tab::markOption), Qt::UniqueConnection);
    connect(box, changed, this, &PrinterTab::checkForChanges, Qt::UniqueConnection);
    connect(box, changed, this, &Tab::enableOptions, Qt::UniqueConnection);
    connect(box, changed, dialog, &PanelDialog::setConstraints, Qt::UniqueConnection);
}

QString PrinterTab::installedValue(const QWidget *widget)
{
    if (const auto *check = qobject_cast<const QCheckBox *>(widget))
        return Keys::yesOrNo(check->isChecked());
    const auto *box = qobject_cast<const ComboBoxEx *>(widget);
    return box ? box->currentText() : QString();
}

void PrinterTab::recordInstalledValues()
{
    for (const auto &[keyword, widget] : boundWidgets)
        installedValues.insert(keyword, installedValue(widget));
    installedChanged = false;
    rootWarning->hide();
}

void PrinterTab::checkForChanges(int)
{
    installedChanged = std::any_of(
        boundWidgets.begin(), boundWidgets.end(), [this](const WidgetMap::Entry &entry) {
            return installedValue(entry.second) != installedValues.value(entry.first);
        });
    rootWarning->setVisible(installedChanged);
}
