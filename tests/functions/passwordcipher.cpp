#include "storage/passwordcipher.h"

#include "functiontests.h"
#include "support/testhelpers.h"

#include <openssl/err.h>

// The stored texts were made with the openssl command line, in bash:
//   material() { printf 'QUILTMARE\x68\x60\x00\x00\x94\x51\x01\x00'; }
//   sha() { openssl dgst -sha1 -binary; }
//   five() { sha | sha | sha | sha | sha; }
//   material | five >1; (cat 1; material) | five >2; (cat 2; material) | five >3
//   derived=$(cat 1 2 3 | xxd -p -c 60)
//   printf 'TEXT\0' | openssl enc -aes-256-cbc -K ${derived:0:64} -iv ${derived:64:32} | xxd -p -c
//   99
// The foreign one takes "f" for the first digit of the key.
static QStringList stored(const QStringList &in)
{
    const QString text = toHex(encryptText(in[0].toUtf8()));
    const bool back =
        decryptText(text) == in[0].toUtf8() && decryptText(text.toUpper()) == in[0].toUtf8();
    return {text, back && !decryptText(text).isNull() ? "comes back" : "is lost"};
}

// With its zero byte a text of 15 bytes fills a block, and the padding takes another one.
static const FunctionTests::Table table("TestPasswordCipher", 1, stored, R"(
empty    |                  | f769557eb432ed5f8d02489e1e508ec9 | comes back
short    | secret           | 3350ee6c7dc32ab1eea0f0a3d6e27b25 | comes back
UTF-8    | Größe €          | 4ba4436c50a5e8f48145e49de72853cc | comes back
14 bytes | 12345678901234   | 6ed7a357bf7cb8c6218733e55ccaa119 | comes back
15 bytes | 123456789012345  | e9e6741f10d8afc2936b23cd49b52b13cc0c398ef7cca17df9281a4ec797bcee | comes back
16 bytes | 1234567890123456 | 9442451db6ed980d85ab4660fb45c892372de461cb2b5bd06e73aecd50a74223 | comes back
)");

class TestPasswordCipher : public QObject
{
    Q_OBJECT

private slots:
    void unusualText_data();
    void unusualText();
    void damagedText();
};

void TestPasswordCipher::unusualText_data()
{
    addColumns<QString, QByteArray>("stored", "text");
    const QByteArray none;
    const QByteArray empty("");
    const QByteArray secret("secret");
    addRow("null", QString(), none);
    addRow("empty", "", none);
    addRow("31 digits", "3350ee6c7dc32ab1eea0f0a3d6e27b2", none);
    // The last block is held back until its padding has been seen to be right.
    addRow("half a block", "3350ee6c7dc32ab1", empty);
    addRow("foreign key", "9ffe45480ad9bece1e17ae5535c53b29", empty);
    addRow("one byte too many", "3350ee6c7dc32ab1eea0f0a3d6e27b2500", secret);
    addRow("other characters are zeros", "335€ee6c7dc32ab1eeagfxa3d6e27b25", secret);
    addRow("nothing but other characters", QString(32, QChar(0x6771)), empty);
}

void TestPasswordCipher::unusualText()
{
    QFETCH(QString, stored);
    QFETCH(QByteArray, text);
    const QByteArray decrypted = decryptText(stored);
    QCOMPARE(decrypted, text);
    QCOMPARE(decrypted.isNull(), text.isNull());
    // A damaged password must not make the next TLS connection fail.
    QCOMPARE(ERR_peek_error(), 0ul);
}

void TestPasswordCipher::damagedText()
{
    QCOMPARE(decryptText(toHex(encryptText(QByteArray("cut\0off", 7)))), QByteArray("cut"));

    // Each digit damaged in turn, then rubbish of all lengths up to a very long one: whatever comes
    // out ends within what went in.
    const QByteArray text(100, 'x');
    const QString stored = toHex(encryptText(text));
    for (int i = 0; i < stored.size(); ++i) {
        QString damaged = stored;
        damaged[i] = damaged[i] == '5' ? '6' : '5';
        const QByteArray decrypted = decryptText(damaged);
        QVERIFY(decrypted != text);
        QVERIFY(decrypted.size() <= stored.size() / 2);
    }
    QString rubbish;
    for (int i = 0; i < 200; ++i) {
        rubbish += QChar('0' + (i * 7 + i / 16) % 10);
        QVERIFY(decryptText(rubbish).size() <= rubbish.size() / 2);
    }
    QVERIFY(decryptText(rubbish.repeated(50000)).size() <= rubbish.size() * 25000);
}

static const FunctionTests::Entry<TestPasswordCipher> entry;

#include "passwordcipher.moc"
