#include "storage/passwordcipher.h"

#include <QTest>

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
class tst_PasswordCipher : public QObject
{
    Q_OBJECT

private slots:
    void storedText_data();
    void storedText();
    void unusualText_data();
    void unusualText();
    void damagedText();
};

namespace {

const QString storedSecret = QStringLiteral("3350ee6c7dc32ab1eea0f0a3d6e27b25");

} // namespace

void tst_PasswordCipher::storedText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("stored");
    QTest::newRow("empty") << QByteArray("") << "f769557eb432ed5f8d02489e1e508ec9";
    QTest::newRow("short") << QByteArray("secret") << storedSecret;
    QTest::newRow("UTF-8") << QByteArray("Größe €") << "4ba4436c50a5e8f48145e49de72853cc";
    QTest::newRow("fills a block but for the padding")
        << QByteArray("12345678901234") << "6ed7a357bf7cb8c6218733e55ccaa119";
    QTest::newRow("fills a block")
        << QByteArray("123456789012345")
        << "e9e6741f10d8afc2936b23cd49b52b13cc0c398ef7cca17df9281a4ec797bcee";
    QTest::newRow("two blocks")
        << QByteArray("1234567890123456")
        << "9442451db6ed980d85ab4660fb45c892372de461cb2b5bd06e73aecd50a74223";
}

void tst_PasswordCipher::storedText()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, stored);
    QCOMPARE(toHex(encryptText(text)), stored);
    QCOMPARE(decryptText(stored), text);
    QCOMPARE(decryptText(stored.toUpper()), text);
    QVERIFY(!decryptText(stored).isNull());
}

void tst_PasswordCipher::unusualText_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("null") << QString() << QByteArray();
    QTest::newRow("empty") << "" << QByteArray();
    QTest::newRow("31 digits") << storedSecret.left(31) << QByteArray();
    // The last block is held back until its padding has been seen to be right.
    QTest::newRow("half a block") << storedSecret.left(16) << QByteArray("");
    QTest::newRow("foreign key") << "9ffe45480ad9bece1e17ae5535c53b29" << QByteArray("");
    QTest::newRow("one byte too many") << storedSecret + "00" << QByteArray("secret");
    QTest::newRow("other characters are zeros")
        << QStringLiteral("335€ee6c7dc32ab1eeagfxa3d6e27b25") << QByteArray("secret");
    QTest::newRow("nothing but other characters") << QString(32, QChar(0x6771)) << QByteArray("");
}

void tst_PasswordCipher::unusualText()
{
    QFETCH(QString, stored);
    QFETCH(QByteArray, text);
    const QByteArray decrypted = decryptText(stored);
    QCOMPARE(decrypted, text);
    QCOMPARE(decrypted.isNull(), text.isNull());
    // A damaged password must not make the next TLS connection fail.
    QCOMPARE(ERR_peek_error(), 0ul);
}

void tst_PasswordCipher::damagedText()
{
    QCOMPARE(decryptText(toHex(encryptText(QByteArray("cut\0off", 7)))), QByteArray("cut"));

    // Each digit damaged in turn, then rubbish of all lengths up to a very long one: whatever comes
    // out ends within what went in.
    const QByteArray text(100, 'x');
    const QString stored = toHex(encryptText(text));
    for (int i = 0; i < stored.size(); ++i) {
        QString damaged = stored;
        damaged[i] = damaged[i] == QLatin1Char('5') ? QLatin1Char('6') : QLatin1Char('5');
        const QByteArray decrypted = decryptText(damaged);
        QVERIFY(decrypted != text);
        QVERIFY(decrypted.size() <= stored.size() / 2);
    }
    QString rubbish;
    for (int i = 0; i < 200; ++i) {
        rubbish += QChar('0' + (i * 7 + i / 16) % 10);
        QVERIFY(decryptText(rubbish).size() <= rubbish.size() / 2);
        QCOMPARE(decryptText(rubbish).isNull(), rubbish.size() % 2 == 1);
    }
    QVERIFY(decryptText(rubbish.repeated(50000)).size() <= rubbish.size() * 25000);
}

QTEST_GUILESS_MAIN(tst_PasswordCipher)
#include "tst_passwordcipher.moc"
