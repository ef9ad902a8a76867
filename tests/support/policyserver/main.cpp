// An HTTPS server on loopback whose answers are what a shell command writes.
//
//   policyserver PORT COMMAND
//
// The command gets each request on its standard input, headers and body. What it writes goes out as
// it comes, so that the client meets it piece by piece; when it ends, the connection is closed.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTemporaryDir>

namespace {

/// Whether headers and body are all there.
bool isWhole(const QByteArray &request)
{
    const int end = request.indexOf("\r\n\r\n");
    const QByteArray field = "\r\nContent-Length: ";
    const int length =
        request.mid(request.indexOf(field) + field.size(), 10).split('\r')[0].toInt();
    return end >= 0 && request.size() >= end + 4 + length;
}

class PolicyServer : public QTcpServer
{
public:
    explicit PolicyServer(const QString &command)
        : command(command)
    {
        // Neither the name nor the signature is one that a careful client would accept.
        QProcess::execute("openssl", QString("req -x509 -newkey ec -pkeyopt "
                                             "ec_paramgen_curve:P-256 -nodes -subj "
                                             "/CN=somebody.invalid -keyout %1/key -out %1/cert")
                                         .arg(folder.path())
                                         .split(' '));
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QSslSocket(this);
        auto *answer = new QProcess(socket);
        socket->setSocketDescriptor(descriptor);
        socket->setPrivateKey(folder.filePath("key"), QSsl::Ec);
        socket->setLocalCertificate(folder.filePath("cert"));
        connect(socket, &QSslSocket::readyRead, this, [=] {
            request[socket] += socket->readAll();
            if (isWhole(request[socket])) {
                answer->start("sh", {"-c", command});
                answer->write(request.take(socket));
                answer->closeWriteChannel();
            }
        });
        connect(answer, &QProcess::readyRead, socket, [=] {
            socket->write(answer->readAll());
            socket->flush();
        });
        const auto ended = qOverload<int, QProcess::ExitStatus>(&QProcess::finished);
        connect(answer, ended, socket, &QSslSocket::disconnectFromHost); // after all is sent
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        socket->startServerEncryption();
    }

private:
    const QString command;
    QTemporaryDir folder;
    QHash<QSslSocket *, QByteArray> request;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    PolicyServer server(arguments.value(2));
    if (!server.listen(QHostAddress::LocalHost, quint16(arguments.value(1).toUInt()))) {
        qWarning("policyserver: %s", qPrintable(server.errorString()));
        return 1;
    }
    return application.exec();
}
