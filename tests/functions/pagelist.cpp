#include "pages/publishing/pagelist.h"

#include "functiontests.h"

/// The verdict; then the one behind a cover that takes up two pages, if it is another.
static QStringList verdicts(const QStringList &in)
{
    static const char *const words[] = {"empty", "malformed",    "no pages",      "too many",
                                        "cover", "out of range", "ends in comma", "good"};
    QStringList found;
    for (const bool cover : {false, true}) {
        const PageList::Result result = PageList::check(in[0], cover);
        const int count = result.pages.count(',') + 1;
        const QString pages = count > 10 ? QString("%1 pages").arg(count) : result.pages;
        found << QString("%1 %2").arg(words[int(result.verdict)], pages).trimmed();
    }
    return {found[0], found[1] == found[0] ? QString() : found[1]};
}

static const FunctionTests::Table table("TestPageList", 1, verdicts, R"(
sorted, each page once          | 2,5-7,3               | good 2,3,5,6,7 | cover
range backwards                 | 9-5                   | good 5,6,7,8,9 | 
one page several times          | 2,3,3,3               | good 2,3       | cover
blanks within                   | 4 , 007 - 9           | good 4,7,8,9   | 
last page                       | 511                   | good 511       | 
first page behind a cover       | 3                     | good 3         | 
letter                          | 5a                    | malformed      | 
other digits                    | ٣                     | out of range   | cover
two numbers with a blank        | 5 7                   | malformed      | 
three numbers with blanks       | 5 7 9                 | out of range   | cover
two commas                      | 2,,3                  | malformed      | 
comma first                     | ,3                    | malformed      | 
only a dash                     | -                     | malformed      | 
comma last                      | 2,                    | ends in comma  | cover
open range                      | 12-                   | no pages       | 
open range of one digit         | 5-                    | malformed      | 
open range from zero            | 05-                   | malformed      | 
open range behind a page        | 2,12-                 | good 2         | cover
open range behind a blank       | 2, 12-                | malformed      | 
open range in the middle        | 12-,14                | malformed      | 
page behind the last            | 3,512                 | out of range   | 
51 pages in range               | 2-52                  | too many       | 
51 pages out of range           | 1-51                  | too many       | 
range that goes on and on       | 1-999999999           | too many       | 
up to the biggest number        | 2147483600-2147483647 | out of range   | 
range beyond all numbers        | 1-99999999999         | out of range   | cover
nothing typed                   |                       | empty          |
only blanks                     | ( ){3}                | no pages       |
blanks around everything        | ( ){1}4( ){1}         | good 4         |
50 pages                        | 2-51                  | good 50 pages  | cover
100,000 digits                  | 7{100000}             | out of range   | cover
100,000 dashes                  | -{100000}             | malformed      |
one page over and over          | (44,){33333}          | ends in comma  |
long ranges                     | (9-999999999,){8333}  | too many       |
)");
