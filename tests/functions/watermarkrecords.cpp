#include "pages/watermark/watermarkrecords.h"

#include "functiontests.h"
#include "support/testhelpers.h"

/// Name and look of a line, and whether the record makes a line of its own kind.
static QStringList record(const QStringList &in)
{
    const Watermark::Record record = Watermark::fromLine(in[0]);
    QStringList look;
    for (const int number : record.look)
        look.append(QString::number(number));
    const bool back = Watermark::toLine(record) == record.name + '=' + look.join(' ');
    return {record.name, back ? look.join(' ') : "lost"};
}

static const FunctionTests::Table table("TestWatermarkRecords", 1, record, R"(
two words           | Not for sale=1 8 3 23 1 0 1       | Not for sale  | 1 8 3 23 1 0 1
name with numbers   | x=9 9=1 2 3 4 5 6 0               | x=9 9         | 1 2 3 4 5 6 0
name with quotes    | #1 "top"=1 2 3 4 5 6 0            | #1 "top"      | 1 2 3 4 5 6 0
placeholders, emoji | %1 %2%9 🖨🔒=1 2 3 4 5 6 0         | %1 %2%9 🖨🔒   | 1 2 3 4 5 6 0
no numbers          | Secret=                           | Secret        | 0 0 0 0 0 0 0
no =                | Secret                            | Secret        | 0 0 0 0 0 0 0
no name             | =1 2 3 4 5 6 0                    |               | 1 2 3 4 5 6 0
numbers missing     | Secret=1 8                        | Secret        | 1 8 0 0 0 0 0
numbers left over   | Secret=1  2 3 4 5 6 0 7 8         | Secret        | 1 2 3 4 5 6 0
letters for numbers | Secret=a 2 3x 4 5 6 yes           | Secret        | 0 2 0 4 5 6 0
number too big      | Secret=99999999999 2 3 4 5 6 0    | Secret        | 0 2 3 4 5 6 0
1,000 digits        | Secret=7{1000}                    | Secret        | 0 0 0 0 0 0 0
)");

class TestWatermarkRecords : public QObject
{
    Q_OBJECT

private slots:
    void quotedText();
    void builtInTexts();
};

void TestWatermarkRecords::quotedText()
{
    const QString quoted = Watermark::quotedText("a@b$c#d!e f! !!! 🔒");
    QCOMPARE(quoted, QString("\"a\\@b\\$c\\#d\\!e\\ f\\!\\ \\!\\!\\!\\ 🔒\""));
    QCOMPARE(Watermark::quotedText("a\\b\"c'd=e&f*"), QString("\"a\\b\"c'd=e&f*\"")); // stays
}

void TestWatermarkRecords::builtInTexts()
{
    const QString ppd = fileText(PRESSDESK_SOURCE_DIR "/demo/ppd/px4500.ppd");
    int count = 0;
    for (const QString &line : ppd.split('\n')) {
        if (!line.startsWith("*Wtxt "))
            continue;
        const QString text = line.section('/', 1).section(':', 0, 0);
        QVERIFY2(Watermark::isBuiltInText(text), qPrintable(text));
        ++count;
    }
    QCOMPARE(count, 7);
    for (const char *other : {"Draft", "draft", "DRAFT ", ""})
        QVERIFY2(!Watermark::isBuiltInText(other), other);
}

static const FunctionTests::Entry<TestWatermarkRecords> entry;

#include "watermarkrecords.moc"
