#include "model/printerstatus.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace {

// More at once make the scheduler refuse connections, and are no faster.
constexpr int mostCalls = 8;
constexpr int longestWait = 5000; // ms
constexpr int longestOutput = 1023;

struct StatusRow
{
    const char *status;
    std::initializer_list<const char *> words;
};

// Tested from top to bottom. Some words end in a blank, so that "impression" in a queue's
// description, say, does not count.
const StatusRow statusRows[] = {
    {QT_TRANSLATE_NOOP("PrinterStatus", "Idle"),
     {"idle", "inactiva", "inattiva", "inativa", "inactive", "inaktiv", "in attesa", "Leerlauf",
      "leerlauf", "ociosa"}},
    {QT_TRANSLATE_NOOP("PrinterStatus", "Paused"),
     {"Paused", "désactivée", "deaktiviert", "disabilitata", "desativada"}},
    {QT_TRANSLATE_NOOP("PrinterStatus", "Printing"),
     {"printing", "stampando ", "imprimiendo ", "impression ", "druckt ", "imprimindo "}},
};

QString failureText()
{
    return QCoreApplication::translate("PrinterStatus",
                                       "Error: Printer does not exist or lpstat failed.");
}

/// The name stands between double quotes in a shell command: nothing in it may end them or be
/// carried out.
QByteArray statusCommand(const QString &queue)
{
    QByteArray command = "lpstat -p \"";
    for (const char c : queue.toUtf8()) {
        if (c == '"' || c == '\\' || c == '$' || c == '`')
            command += '\\';
        command += c;
    }
    return command + '"';
}

} // namespace

QString statusFromOutput(const QString &output)
{
    for (const StatusRow &row : statusRows) {
        for (const char *word : row.words) {
            if (output.contains(QString::fromUtf8(word)))
                return QCoreApplication::translate("PrinterStatus", row.status);
        }
    }
    return output;
}

/// A call under way.
class PrinterStatusReader::Call : public QObject
{
public:
    Call(const QString &queue, std::FILE *stream, QObject *parent)
        : QObject(parent)
        , queue(queue)
        , stream(stream)
        , notifier(fileno(stream), QSocketNotifier::Read, this)
    {
        limit.setSingleShot(true);
        limit.start(longestWait);
    }

    QString queue;
    std::FILE *stream;
    QByteArray output; ///< its beginning
    QSocketNotifier notifier;
    QTimer limit;
    bool isStale = false; ///< its answer is of no use any more
};

PrinterStatusReader::PrinterStatusReader(QObject *parent)
    : QObject(parent)
{
}

// What is still running is left alone: pclose() would wait for it.
PrinterStatusReader::~PrinterStatusReader() = default;

void PrinterStatusReader::ask(const QStringList &queues)
{
    waiting_.clear();
    // A queue may have several rows; one call serves them all.
    for (const QString &queue : queues) {
        if (!unresponsive_.contains(queue) && !isAsking(queue))
            waiting_.append(queue);
    }
    startCalls();
}

bool PrinterStatusReader::isAsking(const QString &queue) const
{
    return waiting_.contains(queue) ||
           std::any_of(calls_.begin(), calls_.end(), [&queue](const Call *call) {
               return call->queue == queue && !call->isStale;
           });
}

void PrinterStatusReader::startOver()
{
    unresponsive_.clear();
    waiting_.clear();
    for (Call *call : qAsConst(calls_))
        call->isStale = true;
}

void PrinterStatusReader::startCalls()
{
    while (calls_.size() < mostCalls && !waiting_.isEmpty())
        start(waiting_.takeFirst());
}

void PrinterStatusReader::start(const QString &queue)
{
    std::FILE *stream = popen(statusCommand(queue).constData(), "re");
    if (!stream) {
        emit answered(queue, failureText());
        return;
    }
    auto *call = new Call(queue, stream, this);
    calls_.append(call);
    connect(&call->notifier, &QSocketNotifier::activated, this, [this, call] { read(call); });
    connect(&call->limit, &QTimer::timeout, this, [this, call] { giveUp(call); });
}

void PrinterStatusReader::read(Call *call)
{
    char buffer[1024];
    const ssize_t got = ::read(fileno(call->stream), buffer, sizeof buffer);
    if (got > 0) {
        call->output.append(buffer, std::min(int(got), longestOutput - call->output.size()));
    } else if (got == 0) {
        pclose(call->stream);
        finish(call, statusFromOutput(QString::fromUtf8(call->output.replace('\n', ""))));
    } else if (errno != EINTR) { // after which it is told of again
        giveUp(call);
    }
}

void PrinterStatusReader::giveUp(Call *call)
{
    abandoned_.push_back(call->stream);
    if (!call->isStale)
        unresponsive_.insert(call->queue);
    finish(call, failureText());
}

void PrinterStatusReader::finish(Call *call, const QString &status)
{
    call->notifier.setEnabled(false);
    call->limit.stop();
    calls_.removeOne(call);
    call->deleteLater(); // one of its parts has sent the signal that led here
    startCalls();
    if (!call->isStale)
        emit answered(call->queue, status);
}
