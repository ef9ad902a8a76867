#include "storage/secretsetting.h"

#include "storage/passwordcipher.h"

namespace {

const QLatin1String singleBackslash("\\");
const QLatin1String doubleBackslash("\\\\");

} // namespace

namespace SecretSetting {

QString encrypted(const QString &text)
{
    if (text.isEmpty())
        return QString();
    QString escaped = text;
    escaped.replace(singleBackslash, doubleBackslash);
    return toHex(encryptText(escaped.toLocal8Bit()));
}

QString decrypted(const QString &stored)
{
    return QString::fromLocal8Bit(decryptText(stored));
}

QString withSingleBackslashes(QString text)
{
    return text.replace(doubleBackslash, singleBackslash);
}

} // namespace SecretSetting
