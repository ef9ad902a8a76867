#pragma once

#include <QProcess>
#include <QSet>
#include <QStringList>

/// The private scheduler that a test runs on (demo/printserver.sh with): its queues go and come
/// back, it falls silent, it starts anew. What fails is a warning.
class Scheduler
{
public:
    Scheduler();
    ~Scheduler();
    Q_DISABLE_COPY(Scheduler)

    /// The queues that it has now: none while it is stopped.
    const QSet<QString> &queues() const { return queues_; }
    /// Those that it had at first, sorted.
    const QStringList &allQueues() const { return allQueues_; }

    void remove(const QString &queue);
    /// Sets a removed queue up again, with the same PPD.
    void add(const QString &queue);
    void stop();
    void start();
    /// Lets it say nothing from now on, to wake up by itself after so many seconds or by wakeUp().
    void fallSilent(double seconds);
    void wakeUp();

private:
    static void run(const QString &command, const QStringList &arguments = {});

    QSet<QString> queues_;
    QSet<QString> stoppedQueues_;
    QStringList allQueues_;
    QProcess waker_;
};
