#include "storage/command.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

bool isOneWord(const QString &text)
{
    return QProcess::splitCommand(text) == QStringList(text);
}

void startCommand(QProcess *process, const QString &command)
{
    QStringList arguments = QProcess::splitCommand(command);
    if (arguments.isEmpty())
        return;
    const QString program = arguments.takeFirst();
    process->start(program, arguments, QIODevice::ReadWrite);
}

bool runCommand(QProcess *process, const QString &command)
{
    startCommand(process, command);
    const bool ended = process->waitForFinished(longestCommandWait);
    process->close();
    return ended;
}

void waitInLoop(QProcess *process, Until until, int longest)
{
    const QDeadlineTimer deadline(longest);
    QEventLoop loop;
    const auto finished = qOverload<int, QProcess::ExitStatus>(&QProcess::finished);
    QObject::connect(process, finished, &loop, &QEventLoop::quit);
    QObject::connect(process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    if (until == Until::Output)
        QObject::connect(process, &QProcess::readyRead, &loop, &QEventLoop::quit);
    QTimer::singleShot(longest, &loop, &QEventLoop::quit);
    if (process->state() == QProcess::NotRunning)
        return;
    // A program that has been told to end has no event loop any more, and the command still has its
    // time.
    const bool hasNoLoop = loop.exec() < 0;
    if (until == Until::Output && hasNoLoop)
        process->waitForReadyRead(int(deadline.remainingTime()));
    if (until == Until::End && process->state() != QProcess::NotRunning)
        process->waitForFinished(int(deadline.remainingTime()));
}

bool runCommandInLoop(QProcess *process, const QString &command)
{
    startCommand(process, command);
    waitInLoop(process, Until::End, longestCommandWait);
    const bool ended =
        process->state() == QProcess::NotRunning && process->error() != QProcess::FailedToStart;
    process->close();
    return ended;
}
