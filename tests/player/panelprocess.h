#pragma once

#include <QLocalSocket>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

/// What the windows say: see windowState() of the driver.
using PanelState = QMap<QString, QString>;

/// The unchanged panel as a process of its own, with the driver plugin in it.
class PanelProcess
{
public:
    PanelProcess();
    ~PanelProcess() { stop(); }

    /// Of the next start.
    QProcessEnvironment environment;

    /// Starts the panel and waits for its first window. False with error(); also if it ended before
    /// it had one.
    bool start(const QStringList &command);
    void stop();
    bool isRunning() const { return process.state() != QProcess::NotRunning; }
    /// Waits for the end; "with status N", or how else it ended.
    QString end();

    /// Lets the driver carry out a step or answer a question; lines of the answer.
    /// False with error() if it can't be done.
    bool send(const QString &line, QStringList *answer = nullptr);
    /// What the windows say when the panel has come to rest; empty if it has ended.
    PanelState state();
    /// What it has written to its error output since the last call, a line each.
    QStringList complaints();

    QString error() const { return error_; }

private:
    QTemporaryDir directory;
    QProcess process;
    QLocalSocket socket;
    QString error_;
    int startCount = 0;
    qint64 complaintsRead = 0;
};
