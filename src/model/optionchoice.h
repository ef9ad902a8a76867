#pragma once

#include <QList>
#include <QString>

class bOption;
class OptionChoice;

/// Names one value of one option. Borrows both; equal when both pointers are equal.
struct OptionRef
{
    bOption *option = nullptr;
    OptionChoice *choice = nullptr;

    bool operator==(const OptionRef &other) const
    {
        return option == other.option && choice == other.choice;
    }
    bool operator!=(const OptionRef &other) const { return !(*this == other); }
};

/// A three-way rule: conditions first, the value that they block last. Equal when the same values
/// stand at the same places.
using OptionRefList = QList<OptionRef>;

/// One selectable value of a bOption, with the rules it takes part in and the blocks on it.
///
/// The rule lists are filled while a printer's PPD is imported and never change afterwards; the
/// block lists follow the selection. Between any two calls of bOption::setCurrent() every entry of
/// the list of pair blocks names a value that is selected.
class OptionChoice
{
public:
    /// An invalid choice: key and text are "BNULL".
    OptionChoice();
    /// `key` is the PPD choice keyword, `text` what the user reads. The option is borrowed.
    OptionChoice(bOption *option, const QString &key, const QString &text);
    OptionChoice(const OptionChoice &) = delete;
    OptionChoice &operator=(const OptionChoice &) = delete;

    const QString &key() const { return key_; }
    const QString &text() const { return text_; }
    bOption *option() const { return option_; }
    void setKey(const QString &key) { key_ = key; }
    void setText(const QString &text) { text_ = text; }
    void setOption(bOption *option) { option_ = option; }

    /// False only while both key and text are "BNULL".
    bool isValid() const;

    /// Every value that this one excludes, one to one.
    QList<OptionRef> pairConstraintList() const { return pairConstraints; }
    /// Every three-way rule that names this value.
    QList<OptionRefList> groupConstraintList() const { return groupConstraints; }
    /// The selected values that forbid this one now.
    const QList<OptionRef> &pairBlockList() const { return activePairBlocks; }
    /// The three-way rules that forbid this value now.
    const QList<OptionRefList> &groupBlockList() const { return activeGroupBlocks; }

    /// Adds one direction of a pair rule, unless it is there. OptionStore::addConstraint() adds
    /// both. Posts no block.
    void addPairConstraint(bOption *option, OptionChoice *choice);
    /// Adds a three-way rule, unless an equal one is there. Posts no block.
    void addGroupConstraint(const OptionRefList &rule);

    /// True while the present selection forbids this value. Advice to the pages: the model accepts
    /// a blocked value all the same.
    bool isBlocked() const { return !activePairBlocks.isEmpty() || !activeGroupBlocks.isEmpty(); }

    /// Posts this value's blocks; bOption::setCurrent() runs it on the value that comes in.
    void arm();
    /// Withdraws this value's blocks; bOption::setCurrent() runs it on the value that goes.
    void release();
    /// True from arm() to release(). A selected value may be released: when nothing of an option
    /// could be chosen, its value must not hold up others.
    bool isArmed() const { return armed; }

private:
    QString key_;
    QString text_;
    bool armed = false;
    bOption *option_ = nullptr;
    QList<OptionRef> pairConstraints;
    QList<OptionRef> activePairBlocks;
    QList<OptionRefList> groupConstraints;
    QList<OptionRefList> activeGroupBlocks;
};
