#pragma once

#include "windowactivator.h"

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QObject>
#include <QPointer>

class QLocalSocket;

/// Carries out lines of a script that come in on a local socket, in order of arrival, also in the
/// nested event loop of a modal dialog. One client at a time.
///
/// A line is a step of useractions.h, "ask WIDGET PROPERTY", "page WIDGET" (the number of the page
/// in the background that it is on, or -1), or "state". An answer is "ok" or
/// "error: REASON", then lines of its own, then a line with a single dot. "state" is answered when
/// the panel has come to rest, with the lines of windowState(); a step is answered before it acts.
/// The panel is at rest when the step is through, or stays in the event loop of a dialog. What it
/// waits for itself, and shows that it does, is waited for too, though not for long.
class DriverServer : public QObject
{
    Q_OBJECT

public:
    explicit DriverServer(const QString &socketPath);

private:
    void acceptClient();
    void readLines();
    void handle(const QString &line);
    void sendStateWhenIdle(int quietRounds, int roundsLeft, const QDeadlineTimer &patience);
    void send(const QString &outcome, const QStringList &lines = {});

    QLocalServer m_server;
    QPointer<QLocalSocket> m_client; ///< owned by m_server
    WindowActivator m_activator;
    int m_actionLevel = 0; ///< the event loop that the latest step under way began in, 0 for none
};
