#include "driverserver.h"

#include "outcome.h"
#include "useractions.h"
#include "widgetstate.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QScreen>
#include <QTimer>

namespace {

struct Command
{
    const char *name;
    Outcome (*run)(const QJsonObject &request);
};

constexpr Command commands[] = {
    {"click", prepareClick},   {"choose", prepareChoose},       {"type", prepareType},
    {"key", prepareKey},       {"activate", prepareActivate},   {"close", prepareClose},
    {"state", queryState},     {"table", queryTable},           {"tabs", queryTabs},
    {"windows", queryWindows}, {"messageBox", queryMessageBox}, {"grab", grabToFile},
};

Outcome run(const QJsonObject &request)
{
    const QString name = request.value("command").toString();
    for (const Command &command : commands)
        if (name == QLatin1String(command.name))
            return command.run(request);
    return Outcome::failure(QString("unknown command \"%1\"").arg(name));
}

// Long enough for the X server to answer what the panel has just asked of it.
constexpr int roundMs = 10;
constexpr int quietRoundsWanted = 2;
constexpr int maxRounds = 300;

} // namespace

DriverServer::DriverServer(const QString &socketPath)
{
    connect(&m_server, &QLocalServer::newConnection, this, &DriverServer::acceptClient);
    if (!m_server.listen(socketPath))
        qWarning("Panel driver: %s: %s", qPrintable(socketPath),
                 qPrintable(m_server.errorString()));
}

void DriverServer::acceptClient()
{
    m_client = m_server.nextPendingConnection();
    connect(m_client, &QLocalSocket::readyRead, this, &DriverServer::readRequests);
    connect(m_client, &QLocalSocket::disconnected, m_client, &QObject::deleteLater);
    // A window that opens under the pointer would be told of it and could highlight what it hits.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
}

void DriverServer::readRequests()
{
    while (m_client && m_client->canReadLine()) {
        const QByteArray line = m_client->readLine();
        // Carried out only after this slot has returned: a socket tells of new data in a nested
        // event loop only when the slot of the outer one is through.
        QTimer::singleShot(0, this, [this, line] {
            QJsonParseError error;
            const QJsonDocument document = QJsonDocument::fromJson(line, &error);
            if (document.isObject())
                handle(document.object());
            else
                send(Outcome::failure(error.errorString()).reply);
        });
    }
}

void DriverServer::handle(const QJsonObject &request)
{
    const QString id = "id";
    if (request.value("command") == "sync") {
        answerWhenIdle({{id, request.value(id)}}, 0, maxRounds);
        return;
    }
    Outcome outcome = run(request);
    outcome.reply.insert(id, request.value(id));
    send(outcome.reply);
    if (outcome.action)
        outcome.action();
}

void DriverServer::answerWhenIdle(const QJsonObject &reply, int quietRounds, int roundsLeft)
{
    if (quietRounds == quietRoundsWanted) {
        send(reply);
    } else if (roundsLeft == 0) {
        QJsonObject failed = reply;
        failed.insert("error", "the event loop never came to rest");
        send(failed);
    } else {
        QTimer::singleShot(roundMs, this, [=] {
            const bool busy = QAbstractEventDispatcher::instance()->hasPendingEvents();
            answerWhenIdle(reply, busy ? 0 : quietRounds + 1, roundsLeft - 1);
        });
    }
}

void DriverServer::send(const QJsonObject &reply)
{
    if (!m_client)
        return;
    m_client->write(QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n');
    m_client->flush();
}
