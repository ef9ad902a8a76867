#pragma once

#include <QString>

/// The secrets of a print job (access code, passwords, login name) as the printer's settings file
/// holds them: each backslash doubled, in the local 8-bit encoding, encrypted, in hexadecimal.
///
/// What can't be decrypted reads as rubbish or as an empty text; see decryptText().
namespace SecretSetting {

/// Empty for an empty text: what isn't there is not stored.
QString encrypted(const QString &text);
/// As it was encrypted, backslashes still doubled.
QString decrypted(const QString &stored);
/// Makes each double backslash a single one again.
QString withSingleBackslashes(QString text);

} // namespace SecretSetting
