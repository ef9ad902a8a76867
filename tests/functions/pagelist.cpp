#include "pages/publishing/pagelist.h"

#include "functiontests.h"
#include "support/testhelpers.h"

namespace {

/// The numbers from `low` to `high` as a list.
QString pages(int low, int high)
{
    QStringList numbers;
    for (int page = low; page <= high; ++page)
        numbers.append(QString::number(page));
    return numbers.join(',');
}

} // namespace

class TestPageList : public QObject
{
    Q_OBJECT

private slots:
    void check_data();
    void check();
};

void TestPageList::check_data()
{
    // Behind a cover that takes up two pages the verdict is "cover" where page 2 is named.
    addRows({"text", "verdict", "behindCover"}, R"(
sorted, each page once          | 2,5-7,3        | good 2,3,5,6,7 | cover
range backwards                 | 9-5            | good 5,6,7,8,9 |
one page several times          | 2,3,3,3        | good 2,3       | cover
blanks within                   | 4 , 007 - 9    | good 4,7,8,9   |
last page                       | 511            | good 511       |
first page behind a cover       | 3              | good 3         |
letter                          | 5a             | malformed      |
other digits                    | ٣              | out of range   | cover
two numbers with a blank        | 5 7            | malformed      |
three numbers with blanks       | 5 7 9          | out of range   | cover
two commas                      | 2,,3           | malformed      |
comma first                     | ,3             | malformed      |
only a dash                     | -              | malformed      |
comma last                      | 2,             | ends in comma  | cover
open range                      | 12-            | no pages       |
open range of one digit         | 5-             | malformed      |
open range from zero            | 05-            | malformed      |
open range behind a page        | 2,12-          | good 2         | cover
open range behind a blank       | 2, 12-         | malformed      |
open range in the middle        | 12-,14         | malformed      |
page behind the last            | 3,512          | out of range   |
51 pages in range               | 2-52           | too many       |
51 pages out of range           | 1-51           | too many       |
range that goes on and on       | 1-999999999    | too many       |
up to the biggest number        | 2147483600-2147483647 | out of range |
range beyond all numbers        | 1-99999999999  | out of range   | cover
)");
    addRow("nothing typed", "", "empty", "");
    addRow("only blanks", "   ", "no pages", "");
    addRow("blanks around everything", " 4 ", "good 4", "");
    addRow("50 pages", "2-51", "good " + pages(2, 51), "cover");
    // Long texts take no time.
    addRow("100,000 digits", QString(100000, '7'), "out of range", "cover");
    addRow("100,000 dashes", QString(100000, '-'), "malformed", "");
    addRow("one page over and over", QString("44,").repeated(33333), "ends in comma", "");
    addRow("long ranges", QString("9-999999999,").repeated(8333), "too many", "");
}

void TestPageList::check()
{
    static const char *const words[] = {"empty", "malformed",    "no pages",      "too many",
                                        "cover", "out of range", "ends in comma", "good"};
    QFETCH(QString, text);
    QFETCH(QString, verdict);
    QFETCH(QString, behindCover);
    for (const bool cover : {false, true}) {
        const PageList::Result result = PageList::check(text, cover);
        const QString found = QString("%1 %2").arg(words[int(result.verdict)], result.pages);
        QCOMPARE(found.trimmed(), cover && !behindCover.isEmpty() ? behindCover : verdict);
    }
}

static const FunctionTests::Entry<TestPageList> entry;

#include "pagelist.moc"
