#include "support/policyserver.h"

#include <QPointer>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTimer>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <memory>

namespace {

constexpr long certificateSeconds = 3600;

struct Identity
{
    QSslKey key;
    QSslCertificate certificate;
};

template <typename Write>
QByteArray pem(Write write)
{
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), &BIO_free);
    if (!write(memory.get()))
        qFatal("OpenSSL can't write PEM");
    char *data = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &data);
    return QByteArray(data, int(size));
}

Identity makeIdentity()
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"),
                                                                  &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> x509(X509_new(), &X509_free);
    X509_set_version(x509.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(x509.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(x509.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(x509.get()), certificateSeconds);
    X509_set_pubkey(x509.get(), key.get());
    X509_NAME *name = X509_get_subject_name(x509.get());
    // Neither the name nor the signature is one that a careful client would accept.
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char *>("somebody.invalid"), -1, -1,
                               0);
    X509_set_issuer_name(x509.get(), name);
    if (!X509_sign(x509.get(), key.get(), EVP_sha256()))
        qFatal("OpenSSL can't sign a certificate");
    return {QSslKey(pem([&](BIO *out) {
                        return PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0,
                                                        nullptr, nullptr);
                    }),
                    QSsl::Ec),
            QSslCertificate(pem([&](BIO *out) { return PEM_write_bio_X509(out, x509.get()); }))};
}

const Identity &identity()
{
    static const Identity made = makeIdentity();
    return made;
}

/// Whether headers and body are all there.
bool isWhole(const QByteArray &request)
{
    const int end = request.indexOf("\r\n\r\n");
    if (end < 0)
        return false;
    const QByteArray field = "\r\nContent-Length: ";
    const int at = request.indexOf(field);
    const int length = at < 0 ? 0 : request.mid(at + field.size(), 10).split('\r')[0].toInt();
    return request.size() >= end + 4 + length;
}

} // namespace

PolicyServer::PolicyServer()
{
    listen(QHostAddress::LocalHost);
}

QString PolicyServer::url() const
{
    return "https://127.0.0.1:" + port();
}

void PolicyServer::answerWith(const QList<QByteArray> &pieces, int pauseMs)
{
    replyPieces = pieces;
    pause = pauseMs;
}

QByteArray PolicyServer::httpReply(const QByteArray &status, const QByteArray &body, int length)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nContent-Length: " +
           QByteArray::number(length < 0 ? body.size() : length) + "\r\n\r\n" + body;
}

void PolicyServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setPrivateKey(identity().key);
    socket->setLocalCertificate(identity().certificate);
    const auto request = std::make_shared<QByteArray>();
    connect(socket, &QSslSocket::readyRead, this, [=] { read(socket, request.get()); });
    connect(socket, &QSslSocket::disconnected, this, [=] {
        ++closed;
        socket->deleteLater();
    });
    socket->startServerEncryption();
}

void PolicyServer::read(QSslSocket *socket, QByteArray *request)
{
    request->append(socket->readAll());
    if (!isWhole(*request))
        return;
    requests.append(*request);
    request->clear();
    answer(socket, replyPieces);
}

void PolicyServer::answer(QSslSocket *socket, const QList<QByteArray> &pieces)
{
    if (pieces.isEmpty()) {
        socket->disconnectFromHost(); // after all is sent
        return;
    }
    socket->write(pieces.first());
    socket->flush();
    if (pieces.size() == 1)
        answer(socket, {});
    else
        QTimer::singleShot(pause, socket, [=] { answer(socket, pieces.mid(1)); });
}
