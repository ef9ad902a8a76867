#include "pages/base/combobinding.h"

#include "model/boption.h"
#include "model/optionchoice.h"
#include "pages/base/reasons.h"
#include "pages/base/reasontip.h"
#include "pages/base/tab.h"
#include "widgets/comboboxex.h"

#include <QHash>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace {

ComboBoxEx *toBox(QWidget *widget)
{
    return static_cast<ComboBoxEx *>(widget);
}

const ComboBoxEx *toBox(const QWidget *widget)
{
    return static_cast<const ComboBoxEx *>(widget);
}

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

} // namespace

void ComboBinding::connectTo(Tab &page, QWidget *widget) const
{
    page.connectComboBox(toBox(widget));
}

void ComboBinding::load(Tab &page, QWidget *widget, bOption *option) const
{
    page.fillComboBox(toBox(widget), option);
}

int ComboBinding::value(const QWidget *widget) const
{
    return toBox(widget)->currentIndex();
}

OptionChoice *ComboBinding::choice(const QWidget *widget, int, const bOption *option) const
{
    return option->findChoiceByText(toBox(widget)->currentText());
}

bool ComboBinding::enable(Tab &page, QWidget *widget, bOption *option) const
{
    return page.enableOptionsForComboBox(toBox(widget), option);
}

void ComboBinding::explain(QWidget *widget, const bOption *option, const Reasons &reasons,
                           const QString &grey) const
{
    ComboBoxEx *box = toBox(widget);
    ReasonTip::setIfGrey(box, grey.isEmpty() ? Reasons::offersNothingElse() : grey);
    for (int i = 0; i < box->count(); ++i) {
        const bool usable = box->model()->flags(box->model()->index(i, 0)) & Qt::ItemIsEnabled;
        const OptionChoice *choice =
            usable || !option ? nullptr : option->findChoiceByText(box->itemText(i));
        QString reason = choice ? reasons.blocked(*choice) : QString();
        // The items of a greyed box stay as they were when it was greyed.
        if (!usable && reason.isEmpty())
            reason = ReasonTip::of(box);
        ReasonTip::setItem(box, i, reason);
    }
}

QString ComboBinding::savedValue(const QWidget *widget, const bOption *option) const
{
    return Tab::keywordForText(option, toBox(widget)->currentText());
}

void ComboBinding::choose(QWidget *widget, const OptionChoice &choice) const
{
    const int index = itemIndex(toBox(widget), choice.text());
    if (index >= 0)
        toBox(widget)->setCurrentIndex(index);
}

void ComboBinding::fill(Tab &page, ComboBoxEx *box, bOption *option)
{
    box->clear();
    box->setEnabled(option);
    if (!option)
        return;
    page.addComboBoxItems(box, option);
    for (const OptionChoice *choice :
         {Tab::savedOrDefaultChoice(option), option->defaultChoice()}) {
        const int index = choice ? itemIndex(box, choice->text()) : -1;
        if (index >= 0) {
            box->setCurrentIndex(index);
            return;
        }
    }
}

void ComboBinding::addItems(ComboBoxEx *box, const bOption *option)
{
    const QList<OptionChoice *> choices = option->choiceList();
    for (const OptionChoice *choice : choices)
        box->addItem(choice->text());
}

bool ComboBinding::enableItems(Tab &page, ComboBoxEx *box, bOption *option)
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
        setItemEnabled(index, box, blocked);
    }
    if (!mustMove) {
        // A box that had nothing left to choose has posted no blocks; now it does again.
        if (option->isArmed() || !option->current())
            return false;
        const OptionChoice *shown = option->findChoiceByText(box->currentText());
        if (!shown || shown->isBlocked())
            return false;
        page.applyWidgetValue(box->currentIndex(), box);
        return true;
    }

    const QSignalBlocker silent(box);
    if (replacement < 0) {
        // Nothing is left to choose; what can't be printed must not hold up other options either.
        // Whatever that frees has to be looked at once more.
        const bool freesOthers = option->isArmed();
        option->setCurrent(nullptr);
        box->setCurrentIndex(0);
        return freesOthers;
    }
    box->setCurrentIndex(replacement);
    page.applyWidgetValue(replacement, box);
    return true;
}

void ComboBinding::setItemEnabled(int index, ComboBoxEx *box, bool disabled)
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
