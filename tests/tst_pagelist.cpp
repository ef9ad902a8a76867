#include "pages/publishing/pagelist.h"
#include "support/testhelpers.h"

class TestPageList : public QObject
{
    Q_OBJECT

private slots:
    void check_data();
    void check();
};

void TestPageList::check_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("alone");
    QTest::addColumn<QString>("behindCover"); // empty: the same
    const auto row = [](const char *name, const QString &text, const QString &alone,
                        const char *behindCover = "") { addRow(name, text, alone, behindCover); };
    row("sorted, each page once", "2,5-7,3", "good 2,3,5,6,7", "cover");
    row("range backwards", "9-5", "good 5,6,7,8,9");
    row("one page several times", "2,3,3,3", "good 2,3", "cover");
    row("blanks around everything", " 4 , 007 - 9 ", "good 4,7,8,9");
    row("last page", "511", "good 511");
    row("nothing typed", "", "empty");
    row("only blanks", "   ", "no pages");
    row("letter", "5a", "malformed");
    row("other digits", QStringLiteral("٣"), "out of range", "cover");
    row("two numbers with a blank", "5 7", "malformed");
    row("three numbers with blanks", "5 7 9", "out of range", "cover");
    row("two commas", "2,,3", "malformed");
    row("comma first", ",3", "malformed");
    row("only a dash", "-", "malformed");
    row("comma last", "2,", "ends in comma", "cover");
    row("open range", "12-", "no pages");
    row("open range of one digit", "5-", "malformed");
    row("open range from zero", "05-", "malformed");
    row("open range behind a page", "2,12-", "good 2", "cover");
    row("open range behind a blank", "2, 12-", "malformed");
    row("open range in the middle", "12-,14", "malformed");
    row("page 3", "3", "good 3");
    row("page behind the last", "3,512", "out of range");
    row("51 pages in range", "2-52", "too many");
    row("51 pages out of range", "1-51", "too many");
    row("range that goes on and on", "1-999999999", "too many");
    row("up to the biggest number", "2147483600-2147483647", "out of range");
    row("range beyond all numbers", "1-99999999999", "out of range", "cover");
    row("100,000 digits", QString(100000, '7'), "out of range", "cover");
    row("100,000 dashes", QString(100000, '-'), "malformed");
    row("100,000 characters of one page", QString("44,").repeated(33333), "ends in comma");
    row("100,000 characters of ranges", QString("9-999999999,").repeated(8333), "too many");
    QString fifty = "good 2";
    for (int page = 3; page <= 51; ++page)
        fifty += ',' + QString::number(page);
    row("50 pages", "2-51", fifty, "cover");
}

void TestPageList::check()
{
    static const char *const words[] = {"empty", "malformed",    "no pages",      "too many",
                                        "cover", "out of range", "ends in comma", "good"};
    QFETCH(QString, text);
    QFETCH(QString, alone);
    QFETCH(QString, behindCover);
    for (const bool cover : {false, true}) {
        const PageList::Result result = PageList::check(text, cover);
        const QString verdict = QLatin1String(words[int(result.verdict)]) +
                                QLatin1String(result.pages.isEmpty() ? "" : " ") + result.pages;
        QCOMPARE(verdict, cover && !behindCover.isEmpty() ? behindCover : alone);
    }
}

QTEST_APPLESS_MAIN(TestPageList)

#include "tst_pagelist.moc"
