#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <cstdio>
#include <vector>

/// What `lpstat -p` says of a queue as one translated word ("Idle", "Paused", "Printing"); words of
/// the six languages that the panel speaks are known. Text with none of them comes back as it is.
QString statusFromOutput(const QString &output);

/// Asks `lpstat` for the status of queues, several at a time, and tells the answers as the event
/// loop brings them.
///
/// The calls run through a shell. One that has no end after five seconds is given up: it counts as
/// failed, and its queue isn't asked again until startOver().
class PrinterStatusReader : public QObject
{
    Q_OBJECT

public:
    explicit PrinterStatusReader(QObject *parent = nullptr);
    ~PrinterStatusReader() override;

    /// Asks for each of the queues, in their order, and no more for those that wait for their turn
    /// since an earlier call; one that is being asked for is not asked twice.
    void ask(const QStringList &queues);
    /// Forgets what is not answered, and asks every queue again from now on.
    void startOver();

signals:
    /// The status; an error text if no shell can be started or `lpstat` doesn't end, and empty if
    /// there is no `lpstat`.
    void answered(const QString &queue, const QString &status);

private:
    class Call;

    bool isAsking(const QString &queue) const;
    void startCalls();
    void start(const QString &queue);
    void read(Call *call);
    void giveUp(Call *call);
    void finish(Call *call, const QString &status);

    QStringList waiting_; ///< queues to ask when a call has ended
    QList<Call *> calls_; ///< under way; children
    QSet<QString> unresponsive_;
    /// Streams of calls without an end. pclose() would wait for them, so they stay open.
    std::vector<std::FILE *> abandoned_;
};
