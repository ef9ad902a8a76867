#include "model/printerstatus.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <poll.h>
#include <unistd.h>

namespace {

// More at once make the scheduler refuse connections, and are no faster.
constexpr size_t mostPipes = 8;
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

/// A call under way.
struct Call
{
    std::FILE *stream = nullptr;
    QElapsedTimer running;
};

Call start(const QString &queue)
{
    Call call;
    call.running.start();
    call.stream = popen(statusCommand(queue).constData(), "re");
    return call;
}

/// Reads to the end of the output, keeping its beginning without line feeds. False if the call has
/// no end in time, or can't be read.
bool readToEnd(const Call &call, QByteArray *output)
{
    const int descriptor = fileno(call.stream);
    int taken = 0;
    for (;;) {
        const int left = std::max(0, longestWait - int(call.running.elapsed()));
        pollfd waiting = {descriptor, POLLIN, 0};
        const int ready = poll(&waiting, 1, left);
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            return false;
        char buffer[1024];
        const ssize_t got = read(descriptor, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0;
        const int kept = std::min(int(got), longestOutput - taken);
        output->append(buffer, kept);
        taken += kept;
    }
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

QStringList PrinterStatusReader::statuses(const QStringList &queues)
{
    // A queue may have several rows; one call serves them all.
    QStringList toAsk;
    for (const QString &queue : queues) {
        if (!unresponsive_.contains(queue) && !toAsk.contains(queue))
            toAsk.append(queue);
    }

    QHash<QString, QString> answers;
    std::deque<Call> calls;
    int started = 0;
    for (const QString &queue : qAsConst(toAsk)) {
        while (started < toAsk.size() && calls.size() < mostPipes)
            calls.push_back(start(toAsk[started++]));
        const Call call = calls.front();
        calls.pop_front();
        if (!call.stream)
            continue;
        QByteArray output;
        if (readToEnd(call, &output)) {
            pclose(call.stream);
            answers.insert(queue, statusFromOutput(QString::fromUtf8(output.replace('\n', ""))));
        } else {
            abandoned_.push_back(call.stream);
            unresponsive_.insert(queue);
        }
    }

    QStringList texts;
    for (const QString &queue : queues)
        texts.append(answers.value(queue, failureText()));
    return texts;
}

QString printerStatus(const QString &queue)
{
    return PrinterStatusReader().statuses({queue}).first();
}
