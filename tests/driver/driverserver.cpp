#include "driverserver.h"

#include "useractions.h"
#include "widgetfinder.h"
#include "windowstate.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QLocalSocket>
#include <QProcess>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace {

// An X server takes a while to answer what the panel has just asked of it.
int roundMs()
{
    return QGuiApplication::platformName() == "xcb" ? 10 : 1;
}

/// Event loops that run within each other now.
int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

// Longer than commands take that are well.
constexpr int patienceMs = 3000;
constexpr int statusPatienceMs = 1000;
constexpr int lookPatienceMs = 500;

/// Whether the panel waits for something: for a command, which it shows by its pointer, for the
/// status of a printer, for the print server that it looks at, or for a button that a letter has
/// pressed and that goes up by itself.
bool isWaiting(const QDeadlineTimer &patience)
{
    if (QGuiApplication::overrideCursor())
        return !patience.hasExpired();
    const qint64 waited = patienceMs - patience.remainingTime();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (waited < lookPatienceMs && window->property("looking").toBool())
            return true;
        const auto buttons = window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            if (waited < lookPatienceMs && button->isDown())
                return true;
        const auto notifiers = window->findChildren<QSocketNotifier *>();
        for (const QSocketNotifier *notifier : notifiers)
            if (waited < statusPatienceMs && notifier->isEnabled())
                return true;
    }
    return false;
}

constexpr int quietRoundsWanted = 2;
constexpr int maxRounds = 3000;

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
    connect(m_client, &QLocalSocket::readyRead, this, &DriverServer::readLines);
    connect(m_client, &QLocalSocket::disconnected, m_client, &QObject::deleteLater);
    // A window that opens under the pointer would be told of it and could highlight what it hits.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
}

void DriverServer::readLines()
{
    while (m_client && m_client->canReadLine()) {
        const QString line = QString::fromUtf8(m_client->readLine()).trimmed();
        // Carried out only after this slot has returned: a socket tells of new data in a nested
        // event loop only when the slot of the outer one is through.
        QTimer::singleShot(0, this, [this, line] { handle(line); });
    }
}

void DriverServer::handle(const QString &line)
{
    const QStringList words = QProcess::splitCommand(line);
    if (words.value(0) == "state") {
        sendStateWhenIdle(0, maxRounds, QDeadlineTimer(patienceMs));
    } else if (words.value(0) == "ask") {
        const QWidget *widget = findWidget(words.value(1));
        if (widget)
            send("ok", {propertyText(widget, words.value(2))});
        else
            send("error: there is no widget " + words.value(1));
    } else if (words.value(0) == "page") {
        send("ok", {QString::number(backgroundPage(words.value(1)))});
    } else {
        const Step step = prepareStep(words);
        send(step.error.isEmpty() ? "ok" : "error: " + step.error);
        if (step.action) {
            const QScopedValueRollback<int> level(m_actionLevel, loopLevel());
            step.action();
        }
    }
}

void DriverServer::sendStateWhenIdle(int quietRounds, int roundsLeft,
                                     const QDeadlineTimer &patience)
{
    if (quietRounds == quietRoundsWanted) {
        send("ok", windowState());
    } else if (roundsLeft == 0) {
        send("error: the event loop never came to rest");
    } else {
        QTimer::singleShot(roundMs(), this, [=] {
            // Events run between the keys of a step too.
            const bool acting = m_actionLevel == loopLevel() || isWaiting(patience);
            const bool busy = acting || QAbstractEventDispatcher::instance()->hasPendingEvents();
            sendStateWhenIdle(busy ? 0 : quietRounds + 1, acting ? roundsLeft : roundsLeft - 1,
                              patience);
        });
    }
}

void DriverServer::send(const QString &outcome, const QStringList &lines)
{
    if (!m_client)
        return;
    m_client->write((QStringList(outcome) + lines + QStringList(".\n")).join('\n').toUtf8());
    m_client->flush();
}
