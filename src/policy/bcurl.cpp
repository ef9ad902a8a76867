#include "policy/bcurl.h"

#include "policy/headerwait.h"

#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace {

const QLatin1String loginPath("/ws/user_manager/MobileAccess/MobileAccessRestService/loginPost");
constexpr int firstErrorStatus = 400;     // of HTTP: RFC 9110, section 15
constexpr qint64 longestAnswer = 1 << 20; // bytes; policies take far less

/// The text of a query (RFC 3986, section 3.4) with nothing in it encoded. QUrlQuery would decode
/// what was typed, "%41" to "A" say, and leave out the "=" before a null text.
QByteArray loginBody(const QString &user, const QString &password)
{
    return "userID=" + user.toUtf8() + "&userPWD=" + password.toUtf8();
}

} // namespace

bcurl::bcurl(QObject *parent)
    : QObject(parent)
    , manager(new QNetworkAccessManager(this))
    , waiting(std::make_unique<QObject>())
{
    qRegisterMetaType<QNetworkReply::NetworkError>("QNetworkReply::NetworkError");
}

void bcurl::post(const QString &url, const QString &user, const QString &password)
{
    QNetworkRequest request(QUrl(url + loginPath));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/*"));
    request.setRawHeader("charsets", "utf-8");
    request.setRawHeader("User-Agent", "BQP");
    // A few bytes could unfold into gigabytes.
    request.setRawHeader("Accept-Encoding", "identity");

    QNetworkReply *reply = manager->post(request, loginBody(user, password));
    reply->setReadBufferSize(longestAnswer);
    new HeaderWait(reply);
    reply->setObjectName(QStringLiteral("<%1 %2>").arg(url, user));
    connect(reply, &QNetworkReply::readyRead, this, &bcurl::slotReadyRead);
    connect(reply, SIGNAL(error(QNetworkReply::NetworkError)), this,
            SLOT(slotError(QNetworkReply::NetworkError)));
    connect(reply, &QNetworkReply::sslErrors, reply, qOverload<>(&QNetworkReply::ignoreSslErrors));
}

void bcurl::forgetRequests()
{
    const auto replies = manager->findChildren<QNetworkReply *>();
    for (QNetworkReply *reply : replies) {
        disconnect(reply, nullptr, this, nullptr);
        reply->deleteLater();
    }
    waiting = std::make_unique<QObject>();
}

void bcurl::slotReadyRead()
{
    auto *reply = qobject_cast<QNetworkReply *>(sender());
    if (!reply)
        return;
    // The reply itself calls a status an error only at its end, which may be far off.
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const qint64 size = qMax(reply->header(QNetworkRequest::ContentLengthHeader).toLongLong(),
                             reply->bytesAvailable());
    if (reply->error() != QNetworkReply::NoError || status >= firstErrorStatus ||
        size > longestAnswer)
        tell(reply, &bcurl::errorReady, reply->errorString());
    else
        // The pointer, so that the text ends at a zero byte.
        tell(reply, &bcurl::messageReady, QString::fromUtf8(reply->readAll().constData()));
}

void bcurl::slotError(QNetworkReply::NetworkError)
{
    if (auto *reply = qobject_cast<QNetworkReply *>(sender()))
        tell(reply, &bcurl::errorReady, reply->errorString());
}

void bcurl::tell(QNetworkReply *reply, void (bcurl::*signal)(const QString &), const QString &text)
{
    // What comes later would count as an answer of its own.
    disconnect(reply, nullptr, this, nullptr);
    reply->deleteLater();
    // Whoever hears of it may open a dialog, behind which the rest of an answer without end would
    // pile up: the reply goes first.
    const QString message = reply->objectName() + text;
    QTimer::singleShot(0, waiting.get(), [=] { (this->*signal)(message); });
}
