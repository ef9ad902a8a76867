#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpServer>

class QSslSocket;

/// An HTTPS server on loopback, with a certificate that it has signed itself.
///
/// It answers every request with the same pieces, in the thread that made it: the event loop has to
/// run. Between two pieces it pauses, so that the client meets them one by one; after the last one
/// it closes the connection.
class PolicyServer : public QTcpServer
{
    Q_OBJECT

public:
    /// Listens on a free port of 127.0.0.1.
    PolicyServer();

    QString port() const { return QString::number(serverPort()); }
    /// "https://127.0.0.1:PORT"
    QString url() const;

    void answerWith(const QList<QByteArray> &pieces, int pauseMs = 200);
    /// Answers with success and this body, in one piece.
    void answerWithBody(const QByteArray &body) { answerWith({httpReply("200 OK", body)}); }
    /// A whole HTTP reply. `length`: what it says of the body, by default the truth.
    static QByteArray httpReply(const QByteArray &status, const QByteArray &body, int length = -1);

    /// Each whole request, headers and body, as it came.
    QList<QByteArray> requests;
    /// How many connections have ended, by the server after an answer or by the client before.
    int closed = 0;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void read(QSslSocket *socket, QByteArray *request);
    void answer(QSslSocket *socket, const QList<QByteArray> &pieces);

    QList<QByteArray> replyPieces;
    int pause = 0;
};
