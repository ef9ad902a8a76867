#pragma once

#include <QList>
#include <QString>

class OptionChoice;

/// One option of a printer: a main keyword of its PPD, or one that the panel adds itself.
///
/// Owns its choices. `current` and `defaultChoice` are null until somebody selects a value, or the
/// PPD names a default that exists. An option's priority is its rank in conflicts: the lower
/// number wins, and one that nobody ranks keeps 99.
class bOption
{
public:
    static constexpr int lowestPriority = 99;

    /// An invalid option: key and text are "BNULL".
    bOption();
    bOption(const QString &key, const QString &text);
    bOption(const bOption &) = delete;
    bOption &operator=(const bOption &) = delete;
    ~bOption();

    /// False only while both key and text are "BNULL".
    bool isValid() const;

    const QString &key() const { return key_; }
    const QString &text() const { return text_; }
    void setKey(const QString &key) { key_ = key; }
    void setText(const QString &text) { text_ = text; }

    /// Appends a new choice, also when the key is there already: look-ups find the first.
    void addChoice(const QString &key, const QString &text);
    /// Appends a ready-made choice and takes it over.
    void addChoice(OptionChoice *choice);

    QList<OptionChoice *> choiceList() const { return choices; }
    int choiceCount() const { return choices.size(); }
    bool hasChoice(const QString &key) const { return findChoice(key) != nullptr; }
    /// The first choice with this key, or null.
    OptionChoice *findChoice(const QString &key) const;
    /// The first choice with this label, or null: the way from a widget's text to the model.
    OptionChoice *findChoiceByText(const QString &text) const;

    OptionChoice *current() const { return current_; }
    OptionChoice *defaultChoice() const { return defaultChoice_; }

    /// Withdraws the blocks of the selected value, then selects `choice` and posts its blocks.
    ///
    /// A pointer that is none of this option's choices, null included, ends it after the
    /// withdrawal: `current` stays, without effect on others. Selecting the same value again is
    /// wanted: it looks at the three-way rules anew.
    void setCurrent(OptionChoice *choice);
    /// Without effect for a pointer that is none of this option's choices.
    void setDefaultChoice(OptionChoice *choice);

    /// False while the selected value, if there is one, holds up no other: see setCurrent().
    bool isArmed() const;

    /// The selected value's key; the option's key followed by "NULL" when nothing is selected, so
    /// that it equals no real key.
    QString currentKey() const;

    int priority() const { return priority_; }
    void setPriority(int priority) { priority_ = priority; }

    /// True only for what was read from the groups of a PPD.
    bool isPpdOption() const { return isPpdOption_; }
    void setPpdOption(bool ppdOption) { isPpdOption_ = ppdOption; }

private:
    bool isPpdOption_ = false;
    QString key_;
    QString text_;
    QList<OptionChoice *> choices;
    OptionChoice *current_ = nullptr;
    OptionChoice *defaultChoice_ = nullptr;
    int priority_ = lowestPriority;
};
