#include "policy/headerwait.h"

#include <QFile>
#include <QNetworkReply>

#include <unistd.h>

namespace {

constexpr int tick = 100;                    // ms
constexpr int longestWait = 30000;           // ms
constexpr qint64 largestGrowth = 64LL << 20; // bytes

/// What the process holds in memory, in pages: the second number of proc(5)'s statm. 0 if the
/// system doesn't tell.
qint64 residentPages()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    return statm.open(QIODevice::ReadOnly) ? statm.readLine().split(' ').value(1).toLongLong() : 0;
}

} // namespace

HeaderWait::HeaderWait(QNetworkReply *reply)
    : QTimer(reply)
{
    const qint64 largest = residentPages() + largestGrowth / sysconf(_SC_PAGESIZE);
    connect(this, &QTimer::timeout, reply, [=] {
        if (++ticks * tick < longestWait && residentPages() <= largest)
            return;
        stop();
        reply->abort();
    });
    connect(reply, &QNetworkReply::metaDataChanged, this, &QTimer::stop);
    start(tick);
}
