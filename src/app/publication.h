#pragma once

#include "storage/settingsfile.h"

#include <QString>

#include <memory>
#include <vector>

class QProcess;
class QueuePpd;

/// Makes settings the user's own defaults of a print queue by running `lpoptions`.
///
/// Keeps the processes that it has started, and the PPD of a publication that failed, as long as it
/// lives.
class Publication
{
public:
    Publication();
    Publication(const Publication &) = delete;
    Publication &operator=(const Publication &) = delete;
    ~Publication();

    /// Publishes those settings whose keywords the queue's PPD declares, and waits for the end, at
    /// most 30 seconds, in an event loop: see waitInLoop(). False if the PPD can't be read, if the
    /// name would come apart in the command, or if `lpoptions` can't be started or has no end in
    /// time; what it makes of the options is not looked at.
    bool run(const QString &printer, const Settings &settings);

    /// The command for a queue: "lpoptions -p NAME -o KEY=VALUE ..." in the order of the keywords.
    /// Settings without a value are left out. Nothing is quoted, so that a value with a blank comes
    /// apart.
    static QString command(const QString &printer, const QStringList &keywords,
                           const Settings &settings);

private:
    std::vector<std::unique_ptr<QProcess>> processes;
    std::vector<std::unique_ptr<QueuePpd>> failedPpds;
};
