#include "support/scheduler.h"

#include "support/testhelpers.h"

#include <QDir>

#include <csignal>

namespace {

QString serverFolder()
{
    return QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
}

pid_t process()
{
    return fileText(serverFolder() + "/cupsd.pid").trimmed().toInt();
}

QString ppdCopy(const QString &queue)
{
    return "/tmp/" + queue + ".ppd";
}

} // namespace

Scheduler::Scheduler()
{
    for (const QFileInfo &ppd : QDir("/etc/cups/ppd").entryInfoList({"*.ppd"}, QDir::Files)) {
        allQueues_ << ppd.baseName();
        QFile::copy(ppd.filePath(), ppdCopy(ppd.baseName()));
    }
    queues_ = {allQueues_.begin(), allQueues_.end()};
}

Scheduler::~Scheduler()
{
    wakeUp(); // or nothing can stop it
}

void Scheduler::run(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(PRESSDESK_SOURCE_DIR "/demo/printserver.sh",
                  QStringList{command, serverFolder()} + arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qWarning("printserver.sh %s: %s", qPrintable(command),
                 process.readAllStandardError().constData());
}

void Scheduler::remove(const QString &queue)
{
    run("remove", {queue});
    queues_.remove(queue);
}

void Scheduler::add(const QString &queue)
{
    run("add", {queue, ppdCopy(queue)});
    queues_.insert(queue);
}

void Scheduler::stop()
{
    waker_.waitForFinished();
    run("stop");
    queues_.swap(stoppedQueues_);
}

void Scheduler::start()
{
    run("start");
    queues_.swap(stoppedQueues_);
}

void Scheduler::fallSilent(double seconds)
{
    waker_.waitForFinished(); // or it would end this silence
    kill(process(), SIGSTOP);
    waker_.start("sh", {"-c", QString("sleep %1; kill -CONT %2").arg(seconds).arg(process())});
}

void Scheduler::wakeUp()
{
    if (const pid_t scheduler = process())
        kill(scheduler, SIGCONT);
    waker_.kill();
    waker_.waitForFinished();
}
