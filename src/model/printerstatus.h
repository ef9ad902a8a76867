#pragma once

#include <QSet>
#include <QStringList>

#include <cstdio>
#include <vector>

/// What `lpstat -p` says of a queue as one translated word ("Idle", "Paused", "Printing"); words of
/// the six languages that the panel speaks are known. Text with none of them comes back as it is.
QString statusFromOutput(const QString &output);

/// Asks `lpstat` for the status of queues, several at a time.
///
/// The calls run through a shell and block until all have ended. One that has no end after five
/// seconds is given up: it counts as failed, and its queue isn't asked again until startOver().
class PrinterStatusReader
{
public:
    PrinterStatusReader() = default;
    PrinterStatusReader(const PrinterStatusReader &) = delete;
    PrinterStatusReader &operator=(const PrinterStatusReader &) = delete;

    /// One text for each queue, in the same order.
    QStringList statuses(const QStringList &queues);
    /// Asks every queue again from now on.
    void startOver() { unresponsive_.clear(); }

private:
    QSet<QString> unresponsive_;
    /// Streams of calls without an end. pclose() would wait for them, so they stay open.
    std::vector<std::FILE *> abandoned_;
};

/// The status of one queue; an error text if no shell can be started or `lpstat` doesn't end, and
/// empty if there is no `lpstat`.
QString printerStatus(const QString &queue);
