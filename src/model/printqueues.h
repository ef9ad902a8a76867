#pragma once

#include <QList>
#include <QSet>
#include <QString>

/// A print queue of the scheduler.
struct PrintQueue
{
    QString name;
    QString deviceUri; ///< where its jobs go, such as "socket://192.0.2.7"
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

/// All queues of the scheduler, by name as cupsGetDests() sorts them; empty unless it answers.
///
/// Asks for names and addresses only (CUPS-Get-Printers): cupsGetDests() would also look round the
/// network for printers that have no queue here, and no PPD, for a quarter of a second. A scheduler
/// that says nothing for two seconds counts as silent, and isn't asked again for five.
QList<PrintQueue> printQueues(PrintSystem *state = nullptr);
/// The names alone, which take half the time: this runs after nearly every click.
QSet<QString> queueNames(PrintSystem *state = nullptr);
/// Whether the scheduler answers at all.
bool isPrintSystemReachable();
