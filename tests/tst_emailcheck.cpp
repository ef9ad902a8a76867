#include "pages/emailcheck.h"

#include <QtTest>

class TestEmailCheck : public QObject
{
    Q_OBJECT

private slots:
    void finds_data();
    void finds();
};

void TestEmailCheck::finds_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("fault");
    const auto row = [](const char *name, const QString &address, EmailFault fault) {
        QTest::newRow(name) << address << int(fault);
    };
    const QString longName(120, QLatin1Char('n'));

    row("ordinary", "jo@office.example.com", EmailFault::None);
    row("shortest", "a@b.c", EmailFault::None);
    row("dot behind the at", "a@.b", EmailFault::None);

    row("quote", "\"jo\"@x.y", EmailFault::DoubleQuote);
    row("quote behind the limit", longName + "@host.y 12\"", EmailFault::DoubleQuote);
    row("nothing", "", EmailFault::Empty);
    row("no at", "jo.example.com", EmailFault::Format);
    row("no at is told before a blank", "jo example", EmailFault::Format);
    row("blank", "jo doe@x.y", EmailFault::Blank);
    row("blank is told before an umlaut", QString::fromUtf8("jö doe@x.y"), EmailFault::Blank);
    row("umlaut", QString::fromUtf8("jö@x.y"), EmailFault::NotAscii);
    row("umlaut is told before the format", QString::fromUtf8("@jö"), EmailFault::NotAscii);
    row("at first", "@x.y", EmailFault::Format);
    row("at last", "jo.doe@", EmailFault::Format);
    row("two ats", "jo@x@y.z", EmailFault::Format);
    row("dot before the at", "jo.@x.y", EmailFault::Format);
    row("leading dot", ".jo@x.y", EmailFault::Format);
    row("two dots in the name", "jo..doe@x.y", EmailFault::Format);
    row("no dot behind the at", "jo.doe@host", EmailFault::Format);
    row("trailing dot", "jo@x.y.", EmailFault::Format);

    row("as long as can be", longName + "@host.yy", EmailFault::None);
    row("cut at its last dot", longName + "@hosts..y", EmailFault::Format);
    row("at behind the limit", QString(200, QLatin1Char('n')) + "@x.y", EmailFault::Format);
    row("limit within a letter", longName + QString::fromUtf8("@xx.yyyé"), EmailFault::NotAscii);
    row("endless", QString(1000000, QLatin1Char('.')) + "@", EmailFault::Format);
}

void TestEmailCheck::finds()
{
    QFETCH(QString, address);
    QFETCH(int, fault);
    QCOMPARE(int(checkEmail(address)), fault);
}

QTEST_APPLESS_MAIN(TestEmailCheck)

#include "tst_emailcheck.moc"
