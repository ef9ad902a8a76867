#include "model/queuewatch.h"

namespace {

// A connection whose other end has vanished without a word is made anew then.
constexpr qint64 longestSilence = 60000; // ms
constexpr unsigned long pause = 100;     // ms

} // namespace

QueueWatch::QueueWatch(QObject *parent)
    : QObject(parent)
    , connection_([this](qint64 waited) { return waitOn(waited); })
    , worker_(new QObject)
{
    worker_->moveToThread(&thread_);
    connect(&thread_, &QThread::finished, worker_, &QObject::deleteLater);
    thread_.start();
}

QueueWatch::~QueueWatch()
{
    ending_ = true;
    thread_.quit();
    thread_.wait();
}

void QueueWatch::look()
{
    // A silent scheduler will answer what it was asked as it finds its queues when it wakes.
    due_ = isLooking();
    if (underWay_)
        return;
    underWay_ = true;
    QMetaObject::invokeMethod(worker_, [this] { askUntilAnswered(); });
}

// In the thread

void QueueWatch::askUntilAnswered()
{
    silenceTold_ = false;
    PrintSystem state = PrintSystem::Silent;
    QSet<QString> names;
    while (state == PrintSystem::Silent && !ending_) {
        names = namesOf(connection_.queues({"printer-name"}, &state));
        if (state == PrintSystem::Silent && !ending_) {
            tellSilence();
            QThread::msleep(pause);
        }
    }
    tell(state, names);
}

bool QueueWatch::waitOn(qint64 waited)
{
    if (waited >= PrintServerConnection::longestWait)
        tellSilence();
    return !ending_ && waited < longestSilence;
}

void QueueWatch::tellSilence()
{
    if (!silenceTold_)
        tell(PrintSystem::Silent, {});
    silenceTold_ = true;
}

void QueueWatch::tell(PrintSystem state, const QSet<QString> &names)
{
    QMetaObject::invokeMethod(
        this, [this, state, names] { take(state, names); }, Qt::QueuedConnection);
}

// In the thread of the object

void QueueWatch::take(PrintSystem state, const QSet<QString> &names)
{
    silent_ = state == PrintSystem::Silent;
    underWay_ = silent_;
    if (due_ && !silent_)
        look();
    emit answered(state, names);
}
