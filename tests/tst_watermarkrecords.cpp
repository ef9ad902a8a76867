#include "pages/watermarkrecords.h"

#include <QtTest>

class TestWatermarkRecords : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void quotedText_data();
    void quotedText();
    void customText_data();
    void customText();
};

namespace {

QString numbers(const Watermark::Look &look)
{
    QStringList list;
    for (const int number : look)
        list.append(QString::number(number));
    return list.join(' ');
}

} // namespace

void TestWatermarkRecords::lines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("same"); // written as it was read
    const auto row = [](const char *name, const QString &line, const QString &recordName,
                        const QString &look,
                        bool same) { QTest::newRow(name) << line << recordName << look << same; };
    const QString zeros = "0 0 0 0 0 0 0";
    row("plain", "Secret=1 8 3 23 1 0 1", "Secret", "1 8 3 23 1 0 1", true);
    row("two words", "Not for sale=0 8 3 23 0 0 0", "Not for sale", "0 8 3 23 0 0 0", true);
    row("name with =", "a=b=1 2 3 4 5 6 1", "a=b", "1 2 3 4 5 6 1", true);
    row("name that looks like numbers", "x=9 9=1 2 3 4 5 6 0", "x=9 9", "1 2 3 4 5 6 0", true);
    row("name with # and quotes", "#1 \"top\"=1 2 3 4 5 6 0", "#1 \"top\"", "1 2 3 4 5 6 0", true);
    row("name with placeholders", "%1 %2%9=1 2 3 4 5 6 0", "%1 %2%9", "1 2 3 4 5 6 0", true);
    row("emoji", QStringLiteral("🖨🔒=1 2 3 4 5 6 0"), QStringLiteral("🖨🔒"),
        "1 2 3 4 5 6 0", true);
    row("no numbers", "Secret=", "Secret", zeros, false);
    row("no =", "Secret", "Secret", zeros, false);
    row("no name", "=1 2 3 4 5 6 0", "", "1 2 3 4 5 6 0", true);
    row("numbers missing", "Secret=1 8", "Secret", "1 8 0 0 0 0 0", false);
    row("numbers left over", "Secret=1 2 3 4 5 6 0 7 8", "Secret", "1 2 3 4 5 6 0", false);
    row("letters for numbers", "Secret=a 2 3x 4 5 6 yes", "Secret", "0 2 0 4 5 6 0", false);
    row("number too big", "Secret=99999999999 2 3 4 5 6 0", "Secret", "0 2 3 4 5 6 0", false);
    row("1,000 digits", "Secret=" + QString(1000, '7'), "Secret", zeros, false);
}

void TestWatermarkRecords::lines()
{
    QFETCH(QString, line);
    QFETCH(bool, same);
    const Watermark::Record record = Watermark::fromLine(line);
    QTEST(record.name, "name");
    QTEST(numbers(record.look), "look");
    QCOMPARE(Watermark::toLine(record) == line, same);
    // What was written comes back in any case.
    const Watermark::Record again = Watermark::fromLine(Watermark::toLine(record));
    QCOMPARE(again.name, record.name);
    QCOMPARE(numbers(again.look), numbers(record.look));
}

void TestWatermarkRecords::quotedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("quoted");
    QTest::newRow("one word") << "Secret"
                              << "\"Secret\"";
    QTest::newRow("two words") << "Top secret"
                               << R"("Top\ secret")";
    QTest::newRow("all that is escaped") << "a@b$c#d!e f"
                                         << R"("a\@b\$c\#d\!e\ f")";
    QTest::newRow("each time it occurs") << "!! !"
                                         << R"("\!\!\ \!")";
    QTest::newRow("the rest stays") << R"(a\b"c'd=e&f*)"
                                    << R"("a\b"c'd=e&f*")";
    QTest::newRow("emoji") << QStringLiteral("🔒 ä") << QStringLiteral("\"🔒\\ ä\"");
}

void TestWatermarkRecords::quotedText()
{
    QFETCH(QString, text);
    QTEST(Watermark::quotedText(text), "quoted");
}

void TestWatermarkRecords::customText_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("custom value") << "Custom.Top secret"
                                  << "Top secret";
    QTest::newRow("built-in text") << "DoNotPhotoCopy"
                                   << "";
    QTest::newRow("another text of the printer") << "StrictlyPrivate"
                                                 << "";
    QTest::newRow("entry without a text") << "Custom"
                                          << "";
    QTest::newRow("nothing selected") << "WtxtNULL"
                                      << "";
}

void TestWatermarkRecords::customText()
{
    QFETCH(QString, key);
    QTEST(Watermark::customText(key), "text");
}

QTEST_APPLESS_MAIN(TestWatermarkRecords)

#include "tst_watermarkrecords.moc"
