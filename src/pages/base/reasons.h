#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class OptionChoice;
class OptionLabels;
class bOption;

/// Puts into words why something can't be chosen now: plain text, a reason a line, each of them
/// once.
///
/// Of a switch and the options that follow it the switch alone is named: a PPD has a rule for every
/// style of stapling, the panel one for stapling as a whole. Of many reasons the first few stand
/// for all.
class Reasons
{
    Q_DECLARE_TR_FUNCTIONS(Reasons)

public:
    /// The labels are borrowed.
    explicit Reasons(const OptionLabels &labels)
        : labels(labels)
    {
    }

    /// Why the present selection forbids a value: "Not with Media type: Transparency". Empty for
    /// one that is free.
    QString blocked(const OptionChoice &choice) const { return ofBlocks({&choice}, Blocked); }
    /// Why a switch stays on, given its value for off: "Always on with Cover mode".
    QString alwaysOn(const OptionChoice &off) const { return ofBlocks({&off}, AlwaysOn); }
    /// Why a switch can't be moved, given its values, which may be null.
    QString ofSwitch(const OptionChoice *off, const OptionChoice *on) const;
    /// Why an option has one value left, or none: `left` is how the page calls it.
    QString nothingLeft(const bOption &option, const QString &left) const;
    /// Why none of these values can be chosen.
    QString noneOf(const QList<OptionChoice *> &choices) const;

    // What needs no option.

    /// The printer can't do it.
    static QString notOffered() { return tr("This printer does not offer it."); }
    /// The printer leaves no choice.
    static QString offersNothingElse() { return tr("This printer offers nothing else."); }
    /// What it belongs to is off.
    static QString switchOnFirst(const QString &name)
    {
        return tr("Switch on %1 first.").arg(name);
    }
    /// It belongs to another value of a list.
    static QString chooseFirst(const QString &value) { return tr("Choose %1 first.").arg(value); }
    /// Something excludes it, in the page's own words.
    static QString notWith(const QString &name) { return tr("Not with %1").arg(name); }

private:
    enum Outcome
    {
        Blocked,
        AlwaysOn
    };
    using Conditions = QList<const OptionChoice *>;

    QString ofBlocks(const Conditions &choices, Outcome outcome) const;
    /// What together blocks a value: lists of one for pairs, of two for three-way rules.
    QList<Conditions> blockers(const OptionChoice &choice) const;
    QString sentence(const OptionChoice &choice, const Conditions &conditions,
                     Outcome outcome) const;
    static QString sentence(const QStringList &on, const QStringList &off, bool installed,
                            Outcome outcome);

    const OptionLabels &labels;
};
