#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>

#include <memory>

/// The HTTPS client of the print-policy server: sends a login and hands the answer on.
///
/// Requests don't wait for each other. Every message begins with a tag that names its request,
/// "<https://HOST:PORT USER>". Certificates are not checked: the line is encrypted, but nobody
/// vouches for who is at its other end.
///
/// What a server does, and what comes of it:
/// - An answer: one message, with as much of it as has arrived when the first piece has. The
/// request
///   ends there, so that nobody keeps the rest.
/// - No connection, a connection that ends before the answer, an HTTP error status (400 and up)
///   whatever comes with it, an answer of more than a megabyte, or no whole header within 30
///   seconds or 64 megabytes: one error.
/// - Success without a body: nothing at all.
class bcurl : public QObject
{
    Q_OBJECT

public:
    explicit bcurl(QObject *parent = nullptr);

    /// Starts a login. `url` is scheme, host and port alone; the answer comes through the signals.
    /// Name and password go into the body as they are, in UTF-8.
    void post(const QString &url, const QString &user, const QString &password);
    /// Nobody waits for the requests made so far any more: they end, and no signal tells of them.
    void forgetRequests();

signals:
    /// The tag, then the body up to its first zero byte.
    void messageReady(const QString &message);
    /// The tag, then Qt's description of the failure.
    void errorReady(const QString &message);

private slots:
    void slotReadyRead();
    void slotError(QNetworkReply::NetworkError error);

private:
    /// Ends a request and tells what came of it, which is the last that is heard of it.
    void tell(QNetworkReply *reply, void (bcurl::*signal)(const QString &), const QString &text);

    QNetworkAccessManager *manager;   ///< owns the replies
    std::unique_ptr<QObject> waiting; ///< what is still to be told goes with it
};
