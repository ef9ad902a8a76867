#pragma once

#include <QString>

/// The list of pages before which sheets are inserted, as the user types it.
///
/// Parts stand between commas; a part is a number or two numbers with a dash between, in either
/// order. Blanks may stand around numbers and dashes. The last part may be unfinished.
namespace PageList {

constexpr int mostPages = 50;
constexpr int firstPage = 2;
/// A cover that is printed on both sides of its front takes up pages 1 and 2.
constexpr int firstPageBehindCover = 3;
constexpr int lastPage = 511;

/// What a text is, in the order of the tests: the first that fits is the answer.
enum class Verdict
{
    Empty,
    Malformed,
    NoPages,     ///< nothing wrong, but no page yet either, as in "12-"
    TooMany,     ///< more than mostPages different ones
    InsideCover, ///< begins before firstPageBehindCover, with such a cover
    OutOfRange,
    EndsInComma, ///< good so far, but one more page has to follow
    Good
};

struct Result
{
    Verdict verdict;
    /// Only for a good list: the pages in ascending order, each once, with "," between.
    QString pages;
};

/// Takes time in proportion to the text, whatever ranges it names.
Result check(const QString &text, bool coverPrintsBothFrontSides);

/// What to tell the user, in the context PublishingTab; null for nothing.
const char *message(Verdict verdict);

} // namespace PageList
