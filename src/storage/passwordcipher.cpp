#include "storage/passwordcipher.h"

#include <openssl/err.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cctype>
#include <memory>

namespace {

enum class Direction
{
    Decrypt = 0,
    Encrypt = 1 // as EVP_CipherInit_ex() wants them
};

constexpr unsigned char passPhrase[] = {'Q', 'U', 'I', 'L', 'T', 'M', 'A', 'R', 'E'};
// The numbers 24680 and 86420 as 32-bit little-endian integers.
constexpr unsigned char salt[] = {0x68, 0x60, 0x00, 0x00, 0x94, 0x51, 0x01, 0x00};
constexpr int derivationCount = 5;
constexpr int keyLength = 32;

struct CipherContextDeleter
{
    void operator()(EVP_CIPHER_CTX *context) const { EVP_CIPHER_CTX_free(context); }
};
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, CipherContextDeleter>;

/// Null if the key can't be derived.
CipherContext makeContext(Direction direction)
{
    unsigned char key[EVP_MAX_KEY_LENGTH];
    unsigned char iv[EVP_MAX_IV_LENGTH];
    if (EVP_BytesToKey(EVP_aes_256_cbc(), EVP_sha1(), salt, passPhrase, sizeof passPhrase,
                       derivationCount, key, iv) != keyLength)
        return nullptr;
    CipherContext context(EVP_CIPHER_CTX_new());
    if (!context ||
        !EVP_CipherInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, key, iv, int(direction)))
        return nullptr;
    return context;
}

QByteArray transformed(const QByteArray &input, Direction direction)
{
    // Errors left in OpenSSL's queue would make the next TLS connection of this thread fail.
    ERR_set_mark();
    QByteArray output;
    if (const CipherContext context = makeContext(direction)) {
        output = QByteArray(input.size() + EVP_MAX_BLOCK_LENGTH, '\0');
        const auto in = reinterpret_cast<const unsigned char *>(input.constData());
        const auto out = reinterpret_cast<unsigned char *>(output.data());
        int length = 0;
        int lastLength = 0;
        EVP_CipherUpdate(context.get(), out, &length, in, input.size());
        // Fails for damaged text; what came before it is still the best there is.
        EVP_CipherFinal_ex(context.get(), out + length, &lastLength);
        output.truncate(length + lastLength);
    }
    ERR_pop_to_mark();
    return output;
}

} // namespace

QByteArray encryptText(const QByteArray &text)
{
    QByteArray input(text.constData());
    input.append('\0');
    return transformed(input, Direction::Encrypt);
}

QString toHex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex());
}

QByteArray decryptText(const QString &hex)
{
    if (hex.isEmpty() || hex.size() % 2 != 0)
        return QByteArray();
    QByteArray digits = hex.toLatin1();
    std::replace_if(
        digits.begin(), digits.end(), [](unsigned char digit) { return !std::isxdigit(digit); },
        '0');
    const QByteArray output = transformed(QByteArray::fromHex(digits), Direction::Decrypt);
    // Damaged text may lack the zero byte; QByteArray keeps one behind its content.
    return QByteArray(output.constData(), int(qstrlen(output.constData())));
}
