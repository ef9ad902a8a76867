#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>

/// The HTTPS client of the print-policy server: sends a login and hands the answer on.
///
/// Requests neither wait for each other nor can be called back, and have no time limit. Every
/// message begins with a tag that names its request, "<https://HOST:PORT USER>". Certificates are
/// not checked: the line is encrypted, but nobody vouches for who is at its other end.
///
/// What a server does, and what comes of it with Qt 5.15:
/// - An answer: one message, with as much of it as has arrived when the first piece has. The rest
///   is dropped.
/// - No connection, or a connection that ends before the answer: one error.
/// - An answer that is cut off: a message with its first piece, and an error as well if the end
///   comes hard on its heels.
/// - An HTTP error status with a body: a message with the body; if it came in one piece, an error
///   as well. Without a body: one error.
/// - Success without a body: nothing at all.
class bcurl : public QObject
{
    Q_OBJECT

public:
    explicit bcurl(QObject *parent = nullptr);

    /// Starts a login. `url` is scheme, host and port alone; the answer comes through the signals.
    /// Name and password go into the body as they are, but for a "%" with two hexadecimal digits,
    /// which stands for the byte that they name.
    void post(const QString &url, const QString &user, const QString &password);

signals:
    /// The tag, then the body up to its first zero byte.
    void messageReady(const QString &message);
    /// The tag, then Qt's description of the failure.
    void errorReady(const QString &message);

private slots:
    void slotReadyRead();
    void slotError(QNetworkReply::NetworkError error);

private:
    QNetworkAccessManager *manager; ///< owns the replies
};
