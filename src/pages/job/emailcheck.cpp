#include "pages/job/emailcheck.h"

#include <QByteArray>

#include <algorithm>

namespace {

constexpr int longestAddress = 128; // bytes

bool isNotAscii(char byte)
{
    return static_cast<unsigned char>(byte) > 127;
}

/// The rules for "@" and the dots, for an address that has an "@".
bool isWellFormed(const QByteArray &address)
{
    const int at = address.indexOf('@');
    const QByteArray local = address.left(at);
    const QByteArray host = address.mid(at + 1);
    return !local.isEmpty() && !host.isEmpty() && !host.contains('@') && !local.endsWith('.') &&
           !local.startsWith('.') && !address.contains("..") && host.contains('.') &&
           !host.endsWith('.');
}

} // namespace

EmailFault checkEmail(const QString &address)
{
    if (address.contains(QLatin1Char('"')))
        return EmailFault::DoubleQuote;
    const QByteArray bytes = address.toUtf8().left(longestAddress);
    if (bytes.isEmpty())
        return EmailFault::Empty;
    if (!bytes.contains('@'))
        return EmailFault::Format;
    if (bytes.contains(' '))
        return EmailFault::Blank;
    if (std::any_of(bytes.begin(), bytes.end(), isNotAscii))
        return EmailFault::NotAscii;
    return isWellFormed(bytes) ? EmailFault::None : EmailFault::Format;
}
