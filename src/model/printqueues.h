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

/// All queues of the scheduler, by name as cupsGetDests() sorts them; empty if it doesn't answer,
/// and `answered`, if it is given, tells the two apart.
///
/// Asks for names and addresses only (CUPS-Get-Printers): this runs after nearly every click, and
/// cupsGetDests() would also look round the network for printers that have no queue here, and no
/// PPD, for a quarter of a second.
QList<PrintQueue> printQueues(bool *answered = nullptr);
QSet<QString> queueNames();
/// Whether the scheduler answers at all.
bool isPrintSystemReachable();
