#include "policy/bcurl.h"

#include <QNetworkRequest>
#include <QPointer>
#include <QUrl>
#include <QUrlQuery>

namespace {

const QLatin1String loginPath("/ws/user_manager/MobileAccess/MobileAccessRestService/loginPost");

QByteArray loginBody(const QString &user, const QString &password)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("userID"), user);
    query.addQueryItem(QStringLiteral("userPWD"), password);
    return query.query(QUrl::FullyDecoded).toUtf8();
}

} // namespace

bcurl::bcurl(QObject *parent)
    : QObject(parent)
    , manager(new QNetworkAccessManager(this))
{
    qRegisterMetaType<QNetworkReply::NetworkError>("QNetworkReply::NetworkError");
}

void bcurl::post(const QString &url, const QString &user, const QString &password)
{
    QNetworkRequest request(QUrl(url + loginPath));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/*"));
    request.setRawHeader("charsets", "utf-8");
    request.setRawHeader("User-Agent", "BQP");

    QNetworkReply *reply = manager->post(request, loginBody(user, password));
    reply->setObjectName(QStringLiteral("<%1 %2>").arg(url, user));
    connect(reply, &QNetworkReply::readyRead, this, &bcurl::slotReadyRead);
    connect(reply, SIGNAL(error(QNetworkReply::NetworkError)), this,
            SLOT(slotError(QNetworkReply::NetworkError)));
    connect(reply, &QNetworkReply::sslErrors, reply, qOverload<>(&QNetworkReply::ignoreSslErrors));
}

void bcurl::slotReadyRead()
{
    // Whoever hears of the message may open a dialog, and the reply may end while it is open.
    const QPointer<QNetworkReply> reply = qobject_cast<QNetworkReply *>(sender());
    if (!reply)
        return;
    // What comes later would count as an answer of its own.
    disconnect(reply, &QNetworkReply::readyRead, this, &bcurl::slotReadyRead);
    if (reply->error() != QNetworkReply::NoError)
        emit errorReady(reply->objectName() + reply->errorString());
    else
        // The pointer, so that the text ends at a zero byte.
        emit messageReady(reply->objectName() + QString::fromUtf8(reply->readAll().constData()));
    if (reply)
        reply->deleteLater();
}

void bcurl::slotError(QNetworkReply::NetworkError)
{
    const auto *reply = qobject_cast<QNetworkReply *>(sender());
    if (reply)
        emit errorReady(reply->objectName() + reply->errorString());
}
