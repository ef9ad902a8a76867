#include "panelprocess.h"

#include "world.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace {

constexpr int startTimeoutMs = 30000;
// The panel may wait 30 s for a command, and can't answer meanwhile.
constexpr int answerTimeoutMs = 45000;
constexpr int endTimeoutMs = 45000;

} // namespace

PanelProcess::PanelProcess()
    : environment(QProcessEnvironment::systemEnvironment())
    , directory("/tmp/panel-XXXXXX")
{
}

bool PanelProcess::start(const QStringList &command)
{
    const QString path = QString("%1/socket%2").arg(directory.path()).arg(++startCount);
    environment.insert("PRESSDESK_DRIVER_SOCKET", path);
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(directory.filePath("stderr"), QIODevice::Append);
    process.setWorkingDirectory(World::folder());
    process.start(command.first(), command.mid(1));
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < startTimeoutMs) {
        if (process.waitForFinished(1) || !isRunning()) {
            error_ = "the panel ended at once " + end();
            return false;
        }
        if (QFile::exists(path)) {
            socket.connectToServer(path);
            if (socket.waitForConnected(1000))
                break;
        }
        QThread::msleep(5);
    }
    while (clock.elapsed() < startTimeoutMs) {
        if (!state().value("title").isEmpty() || !isRunning())
            return true;
        QThread::msleep(5);
    }
    error_ = "the panel shows no window";
    return false;
}

void PanelProcess::stop()
{
    socket.abort();
    if (isRunning()) {
        process.terminate();
        if (!process.waitForFinished(5000))
            process.kill();
        process.waitForFinished(5000);
    }
}

QString PanelProcess::end()
{
    if (isRunning() && !process.waitForFinished(endTimeoutMs))
        return "not at all";
    return process.exitStatus() == QProcess::NormalExit
               ? QString("with status %1").arg(process.exitCode())
               : "by a crash";
}

bool PanelProcess::send(const QString &line, QStringList *answer)
{
    socket.write(line.toUtf8() + '\n');
    socket.flush();
    QStringList lines;
    QElapsedTimer clock;
    clock.start();
    while (!lines.endsWith(".")) {
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(200) && (socket.state() != QLocalSocket::ConnectedState ||
                                                  clock.elapsed() > answerTimeoutMs)) {
                error_ = isRunning() && !process.waitForFinished(200) ? "the panel does not answer"
                                                                      : "the panel has ended";
                return false;
            }
        }
        lines.append(QString::fromUtf8(socket.readLine()).chopped(1));
    }
    lines.removeLast();
    const QString outcome = lines.takeFirst();
    if (answer)
        *answer = lines;
    if (outcome != "ok")
        error_ = outcome.section(": ", 1);
    return outcome == "ok";
}

PanelState PanelProcess::state()
{
    PanelState state;
    QStringList lines;
    if (send("state", &lines)) {
        for (const QString &line : qAsConst(lines))
            state.insert(line.section('\t', 0, 0), line.section('\t', 1));
    }
    return state;
}

QStringList PanelProcess::complaints()
{
    QFile file(directory.filePath("stderr"));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(complaintsRead))
        return {};
    const QByteArray text = file.readAll();
    complaintsRead += text.size();
    return QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
}
