#pragma once

#include "model/printqueues.h"
#include "model/printserverconnection.h"

#include <QObject>
#include <QThread>

#include <atomic>

/// Looks at the scheduler's queues without keeping anybody waiting: a thread of its own asks, and
/// the event loop brings the answer.
///
/// One look is under way at a time; whoever asks meanwhile gets one more after it. A silent
/// scheduler is told of once, and waited for until it says something. The thread ends with the
/// object, within a moment, unless it is just connecting to a silent scheduler.
class QueueWatch : public QObject
{
    Q_OBJECT

public:
    explicit QueueWatch(QObject *parent = nullptr);
    ~QueueWatch() override;

    void look();
    /// Whether an answer, or the news that there is none, is due.
    bool isLooking() const { return underWay_ && !silent_; }

signals:
    /// \param names of all queues; empty unless the scheduler answers
    void answered(PrintSystem state, const QSet<QString> &names);

private:
    void askUntilAnswered();
    bool waitOn(qint64 waited);
    void tellSilence();
    void tell(PrintSystem state, const QSet<QString> &names);
    void take(PrintSystem state, const QSet<QString> &names);

    // Of the object's thread.
    bool underWay_ = false;
    bool due_ = false; ///< one more look
    bool silent_ = false;

    std::atomic<bool> ending_{false};

    // Of the thread that asks.
    PrintServerConnection connection_;
    bool silenceTold_ = false;

    QThread thread_;
    QObject *const worker_; ///< lives in the thread, and goes with it
};
