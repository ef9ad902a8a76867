#pragma once

#include <QString>
#include <QTemporaryDir>

/// A private print scheduler with queues of its own, for the life of this object.
///
/// Wraps demo/printserver.sh. While it runs, CUPS_SERVER and CUPS_SERVERROOT of this process point
/// to it: libcups calls of the test and of every program that the test starts afterwards meet its
/// queues only. One at a time; the machine's own scheduler is never touched.
///
/// Every operation returns false if it failed, with the reason in error().
class PrintServer
{
public:
    PrintServer();
    ~PrintServer(); ///< stops it, removes its files and puts the two variables back
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;

    /// Starts the scheduler, the first time without queues; a later start() finds those that were
    /// there at stop().
    bool start();
    bool stop();
    bool isRunning() const { return m_running; }

    /// The five queues of the demo: Office_C3, Warehouse_M1, Ratex_200, Dual_Path, Lobby_Generic.
    bool addSampleQueues();

    /// Adds or replaces a queue.
    /// \param ppd path of its PPD file; a relative one starts at the checkout
    bool addQueue(const QString &name, const QString &ppd,
                  const QString &deviceUri = "file:///dev/null");
    /// Adds a queue as other programs may, by a request of our own (CUPS-Add-Modify-Printer), since
    /// lpadmin refuses some of the names that the scheduler takes.
    /// \param name as its bytes go to the scheduler, usually UTF-8
    bool addQueueByRequest(const QByteArray &name, const QString &ppd);
    bool removeQueue(const QString &name);

    /// Name of the scheduler's folder, with its logs in "log".
    QString directory() const { return m_directory.path(); }
    /// What went wrong last.
    QString error() const { return m_error; }

    /// Path of a file of the checkout, such as "demo/ppd/px4500.ppd".
    static QString sourceFile(const QString &relativePath);

private:
    bool run(const QString &command, const QStringList &arguments, QByteArray *output = nullptr);

    QTemporaryDir m_directory;
    QByteArray m_outerServer; ///< CUPS_SERVER before start(), null if it was not set
    QByteArray m_outerRoot;   ///< CUPS_SERVERROOT before start()
    QString m_error;
    bool m_running = false;
};
