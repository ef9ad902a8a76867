#pragma once

#include "model/printqueues.h"

#include <QByteArray>

#include <functional>
#include <initializer_list>
#include <memory>

// Of libcups, which stays out of the headers that pages include.
struct _http_s; // NOLINT(bugprone-reserved-identifier)

/// A connection to the scheduler that knows a limit of time, which that of libcups doesn't. It is
/// made by the first question, and anew when the scheduler has gone and come back.
///
/// Belongs to one thread. What it finds out of a silent scheduler, the others know at once.
class PrintServerConnection
{
public:
    /// Asked ten times a second while no answer comes: whether to wait on. \param waited ms
    using WaitOn = std::function<bool(qint64 waited)>;

    /// From here on a scheduler that says nothing counts as silent (ms).
    static constexpr qint64 longestWait = 2000;

    explicit PrintServerConnection(WaitOn waitOn);
    PrintServerConnection(const PrintServerConnection &) = delete;
    PrintServerConnection &operator=(const PrintServerConnection &) = delete;
    ~PrintServerConnection();

    /// All queues, with those of the attributes that PrintQueue has room for (CUPS-Get-Printers);
    /// empty unless the scheduler answers.
    QList<PrintQueue> queues(std::initializer_list<const char *> attributes, PrintSystem *state);
    /// A temporary copy of the PPD of a queue, or a link to it (cupsGetPPD2); empty if there is
    /// none.
    QByteArray fetchPpd(const QString &queue);

    /// Whether one of the connections has met a silent scheduler within the last five seconds, and
    /// none an answer since.
    static bool isServerSilent();

private:
    struct Closer
    {
        void operator()(_http_s *http) const;
    };

    bool connect();
    bool waitsOn();
    void startClock();

    WaitOn waitOn_;
    std::unique_ptr<_http_s, Closer> http_;
    qint64 start_ = 0;
    bool timedOut_ = false;
};
