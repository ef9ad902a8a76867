#pragma once

#include <QTimer>

class QNetworkReply;

/// Ends a request whose answer's header doesn't come to its end: after 30 seconds, or when the
/// process has grown by 64 megabytes meanwhile, since Qt keeps a header whatever its length and
/// tells of no part of it. The request then ends as one that was called off.
class HeaderWait : public QTimer
{
public:
    /// Begins to wait; `reply` owns it.
    explicit HeaderWait(QNetworkReply *reply);

private:
    int ticks = 0;
};
