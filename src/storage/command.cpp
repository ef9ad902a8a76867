#include "storage/command.h"

#include <QProcess>

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
