#pragma once

#include "windowactivator.h"

#include <QLocalServer>
#include <QObject>
#include <QPointer>

class QJsonObject;
class QLocalSocket;

/// Answers requests on a local socket: one JSON object per line each way, in order of arrival.
///
/// A request is {"id": n, "command": c, ...}, its reply {"id": n, ...} with an "error" text if it
/// failed. Requests run from the event loop, also from the nested one of a modal dialog. One
/// client at a time.
///
/// Commands, with their arguments beyond a target (see findWidget()):
/// - click:  "tab" (title or index), "row" (index or text) and "column", "button" (name or index in
///           a button group), "double"
/// - choose: "item" (text or index) of a combo box
/// - type:   "text";  key: "keys" in the notation of QKeySequence, such as "Ctrl+A"
/// - activate, close: the target's window, or the front window
/// - state, table, tabs, windows, messageBox: see widgetstate.h
/// - grab:   "path" of a PNG file; "screen": true for all of the screen; without a target the
///           front window
/// - sync:   answered when all events have been handled, whatever loop is running then
class DriverServer : public QObject
{
    Q_OBJECT

public:
    explicit DriverServer(const QString &socketPath);

private:
    void acceptClient();
    void readRequests();
    void handle(const QJsonObject &request);
    void answerWhenIdle(const QJsonObject &reply, int quietRounds, int roundsLeft);
    void send(const QJsonObject &reply);

    QLocalServer m_server;
    QPointer<QLocalSocket> m_client; ///< owned by m_server
    WindowActivator m_activator;
};
