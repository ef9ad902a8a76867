#pragma once

#include "app/changewatch.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

class BixTabWidget;
class NoticeLine;
class OptionLabels;
class QObject;
class Tab;

/// Tells the user in words what a click, a printer or a profile led to on any page, and offers to
/// take it back once its cause is taken back.
///
/// The main window says when a pass begins and ends and what it is about; when the click is over,
/// settle() tells. A dot stands on the tab of each page on which something moved, until that page
/// is opened. What is told stays until the user does something else.
class ChangeReport
{
    Q_DECLARE_TR_FUNCTIONS(ChangeReport)

public:
    /// All of them are borrowed.
    ChangeReport(const QList<Tab *> &pages, const OptionLabels &labels, NoticeLine *notice,
                 BixTabWidget *tabs);

    /// Around a pass, or another stretch in which pages move values; one may lie within another.
    void beginMoves() { watch.beginPass(); }
    void endMoves() { watch.endPass(); }
    bool isMoving() const { return watch.isInPass(); }
    /// Who asks for a pass: a widget means that the user did something, unless a pass moved it.
    void noteSender(const QObject *sender);
    /// Another printer, none any more, or a profile: what settle() finds was adjusted to it.
    void startOver();
    /// Everything that the user's action led to has happened.
    void settle();
    /// Sets again what was lost, through the controls of the pages; without effect unless that is
    /// offered.
    void restore();
    /// The keywords of what the last action moved, with the keys that were selected before.
    QHash<QString, QString> moved() const;

private:
    using Moves = QList<ChangeWatch::Move>;

    /// What the user set, with the value before.
    struct Cause
    {
        bOption *option = nullptr;
        OptionChoice *from = nullptr;
        OptionChoice *to = nullptr;
    };

    Cause cause() const;
    QString causeText(const Cause &cause) const;
    Moves adjustments() const;
    /// In the order of the pages, without what follows a switch among them or no page shows.
    Moves toTell(const Moves &moves) const;
    Moves stillLost(const Cause &cause) const;
    QStringList items(const Moves &moves, bool before) const;
    /// "A6 switched off: LIST."
    static QString movesSentence(const QString &causeText, bool off, const QString &list);
    /// "LIST was switched off by A6."
    QString lostSentence(const QString &list) const;
    void tell(const Moves &moves, const QString &causeText);
    void markTabs(const Moves &moves);

    const QList<Tab *> pages;
    const OptionLabels &labels;
    NoticeLine *const notice;
    BixTabWidget *const tabs;
    ChangeWatch watch;
    bool startingOver = false; ///< since the last settle()
    bool userActed = false;    ///< since the last settle()
    QString causeKeyword;      ///< of the control that the user touched; empty if none is known
    bool causeIsSwitch = false;
    Cause lastCause; ///< of `lastMoves`
    Moves lastMoves; ///< all that the action before moved
    Moves offered;   ///< what restore() sets again
    QString lostBy;  ///< what has switched it off
};
