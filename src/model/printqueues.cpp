#include "model/printqueues.h"

#include "model/printserverconnection.h"

#include <algorithm>

QSet<QString> knownPrinters;

namespace {

/// That of the panel's own thread, which must not wait for long.
PrintServerConnection &connection()
{
    static PrintServerConnection connection(
        [](qint64 waited) { return waited < PrintServerConnection::longestWait; });
    return connection;
}

QList<PrintQueue> askForQueues(std::initializer_list<const char *> attributes, PrintSystem *state)
{
    PrintSystem ignored;
    if (!state)
        state = &ignored;
    *state = PrintSystem::Silent;
    if (PrintServerConnection::isServerSilent())
        return {};
    return connection().queues(attributes, state);
}

} // namespace

QList<PrintQueue> printQueues(PrintSystem *state)
{
    QList<PrintQueue> queues =
        askForQueues({"printer-name", "device-uri", "printer-config-change-time"}, state);
    std::stable_sort(queues.begin(), queues.end(), [](const PrintQueue &a, const PrintQueue &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return queues;
}

QSet<QString> namesOf(const QList<PrintQueue> &queues)
{
    QSet<QString> names;
    names.reserve(queues.size());
    for (const PrintQueue &queue : queues)
        names.insert(queue.name);
    return names;
}

QSet<QString> queueNames(PrintSystem *state)
{
    return namesOf(askForQueues({"printer-name"}, state));
}

bool isPrintSystemReachable()
{
    PrintSystem state;
    queueNames(&state);
    return state == PrintSystem::Answers;
}

QByteArray fetchPpd(const QString &queue)
{
    return connection().fetchPpd(queue);
}
