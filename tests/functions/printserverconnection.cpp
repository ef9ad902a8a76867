// How a scheduler takes a question.

#include "model/printserverconnection.h"

#include "functiontests.h"

#include <cups/cups.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// A socket that a scheduler might listen at, but doesn't answer.
class Socket
{
public:
    Socket()
    {
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path().constData(), sizeof address.sun_path);
        bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address);
        cupsSetServer(path().constData());
    }
    ~Socket()
    {
        cupsSetServer(nullptr);
        for (const int client : clients)
            close(client);
        close(socket);
    }

    void listen() { ::listen(socket, 0); }
    /// Connects until there is no room for more.
    void crowd()
    {
        while (clients.size() < 100) {
            clients.append(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0));
            if (connect(clients.last(), reinterpret_cast<sockaddr *>(&address), sizeof address) < 0)
                return;
        }
    }

private:
    QByteArray path() const { return directory.filePath("cups.sock").toLocal8Bit(); }

    QTemporaryDir directory;
    sockaddr_un address{};
    QVector<int> clients;
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
};

PrintSystem ask(qint64 longest)
{
    PrintServerConnection connection([longest](qint64 waited) { return waited < longest; });
    PrintSystem state = PrintSystem::Answers;
    connection.queues({"printer-name"}, &state);
    return state;
}

} // namespace

class TestPrintServerConnection : public QObject
{
    Q_OBJECT

private slots:
    void silence();
};

void TestPrintServerConnection::silence()
{
    Socket server;
    QCOMPARE(ask(300), PrintSystem::Refuses);
    QVERIFY(!PrintServerConnection::isServerSilent());
    server.listen();
    QCOMPARE(ask(300), PrintSystem::Silent);
    QVERIFY(PrintServerConnection::isServerSilent());
    // One that hangs for long has as many clients that wait as its socket takes.
    server.crowd();
    QCOMPARE(ask(300), PrintSystem::Silent);
}

static const FunctionTests::Entry<TestPrintServerConnection> entry;

#include "printserverconnection.moc"
