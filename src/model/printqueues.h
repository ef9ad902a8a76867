#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

/// A print queue of the scheduler.
struct PrintQueue
{
    QString name;
    QString deviceUri;     ///< where its jobs go, such as "socket://192.0.2.7"
    qint64 configured = 0; ///< when it was set up or changed last, in s since 1970; 0 if unknown
};

/// All queue names that the scheduler had when the printer table was last built, those of other
/// makers too. Written by the Printer page alone.
extern QSet<QString> knownPrinters;

/// How the scheduler took a question.
enum class PrintSystem
{
    Answers,
    Refuses, ///< there is none, or it can't be reached
    Silent,  ///< no answer in time, which is no news of its queues
};

// These wait for the scheduler; after clicks that change an option there is QueueWatch. They belong
// to the main thread. A scheduler that says nothing for two seconds counts as silent, and isn't
// asked again for five, unless a QueueWatch hears of it before.

/// All queues of the scheduler, by name as cupsGetDests() sorts them; empty unless it answers.
///
/// Asks for what PrintQueue holds only (CUPS-Get-Printers): cupsGetDests() would also look round
/// the network for printers that have no queue here, and no PPD, for a quarter of a second.
QList<PrintQueue> printQueues(PrintSystem *state = nullptr);
/// The names alone, which take two thirds of the time.
QSet<QString> queueNames(PrintSystem *state = nullptr);
/// Whether the scheduler answers at all.
bool isPrintSystemReachable();
/// A temporary copy of the queue's PPD (cupsGetPPD2), which is the caller's to remove; empty if it
/// has none.
QByteArray fetchPpd(const QString &queue);

QSet<QString> namesOf(const QList<PrintQueue> &queues);
