#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QVector>

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

Q_DECLARE_TYPEINFO(OptionRef, Q_PRIMITIVE_TYPE);

inline uint qHash(const OptionRef &ref, uint seed = 0)
{
    return qHash(qMakePair(ref.option, ref.choice), seed);
}

/// A three-way rule: conditions first, the value that they block last. Equal when the same values
/// stand at the same places.
using OptionRefList = QVector<OptionRef>;

/// Entries in the order in which they came, each of them once.
///
/// A printer's values take part in a few rules each, but nothing keeps a PPD from naming one value
/// in tens of thousands: from a number of entries on, an index tells where each stands, so that
/// adding and removing take the same time however many there are.
template <typename T>
class UniqueList
{
public:
    /// Appends the entry unless it is there. An empty T is no entry.
    void append(const T &entry)
    {
        if (positions.isEmpty()) {
            if (entries.contains(entry))
                return;
            entries.append(entry);
            indexIfLong();
            return;
        }
        // One look into the index, which grows only by what is new.
        const int known = positions.size();
        int &position = positions[entry];
        if (positions.size() == known)
            return;
        position = entries.size();
        entries.append(entry);
    }
    /// Removes the entry if it is there; the others keep their order.
    void remove(const T &entry)
    {
        const int position = indexOf(entry);
        if (position < 0)
            return;
        if (positions.isEmpty()) {
            entries.removeAt(position);
            return;
        }
        positions.remove(entry);
        entries[position] = T();
        // Gaps are closed all at once, when most of the list is gaps.
        if (2 * positions.size() < entries.size()) {
            entries = list();
            positions.clear();
            indexIfLong();
        }
    }
    bool isEmpty() const { return entries.isEmpty(); }
    QVector<T> list() const
    {
        QVector<T> present = entries;
        if (!positions.isEmpty() && positions.size() < entries.size())
            present.removeAll(T());
        return present;
    }

private:
    static constexpr int longestUnindexed = 16;

    int indexOf(const T &entry) const
    {
        return positions.isEmpty() ? entries.indexOf(entry) : positions.value(entry, -1);
    }
    void indexIfLong()
    {
        for (int i = 0; i < entries.size() && entries.size() > longestUnindexed; ++i)
            positions.insert(entries[i], i);
    }

    QVector<T> entries;      ///< an empty T for each one that an indexed list has lost
    QHash<T, int> positions; ///< of all entries; empty while they are few
};

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
    QList<OptionRef> pairConstraintList() const { return pairConstraints.list().toList(); }
    /// Every three-way rule that names this value.
    QList<OptionRefList> groupConstraintList() const { return groupConstraints.list().toList(); }
    /// The selected values that forbid this one now.
    QList<OptionRef> pairBlockList() const { return activePairBlocks.list().toList(); }
    /// The three-way rules that forbid this value now.
    QList<OptionRefList> groupBlockList() const { return activeGroupBlocks.list().toList(); }

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
    UniqueList<OptionRef> pairConstraints;
    UniqueList<OptionRef> activePairBlocks;
    UniqueList<OptionRefList> groupConstraints;
    UniqueList<OptionRefList> activeGroupBlocks;
};
