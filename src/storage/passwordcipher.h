#pragma once

#include <QByteArray>
#include <QString>

/// How secrets are written to settings files: as hexadecimal text of AES-256-CBC output.
///
/// The key and initialisation vector come from a fixed pass phrase and salt by OpenSSL's
/// EVP_BytesToKey() with SHA-1, so they are the same for every user. This keeps a secret from
/// casual eyes, no more.

/// The bytes of the text and of a zero byte behind it, encrypted: the next multiple of 16 above the
/// text's length + 1. A zero byte in the text ends it. Empty if OpenSSL lacks the algorithms.
QByteArray encryptText(const QByteArray &text);
/// Encrypted bytes as settings files hold them: two lower-case digits a byte.
QString toHex(const QByteArray &bytes);
/// The text that encryptText() was given, from its toHex() form in either case. Null if there are
/// no digits or an odd number of them. Text that is damaged or made with another key yields
/// rubbish or an empty text; characters that aren't hexadecimal digits count as 0.
QByteArray decryptText(const QString &hex);
