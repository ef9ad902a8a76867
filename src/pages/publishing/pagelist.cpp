#include "pages/publishing/pagelist.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <set>

namespace {

const QChar dash = QLatin1Char('-');

bool isListCharacter(QChar character)
{
    return character.isDigit() || character == dash || character == QLatin1Char(',') ||
           character == QLatin1Char(' ');
}

/// A part in outline: "n" for each row of digits, "-" for each dash, nothing for blanks.
QString outline(const QStringRef &part)
{
    QString shape;
    bool inNumber = false;
    for (const QChar character : part) {
        if (character == dash)
            shape += dash;
        else if (character.isDigit() && !inNumber)
            shape += QLatin1Char('n');
        inNumber = character.isDigit();
    }
    return shape;
}

/// A range that is still being typed: no blank before it and at least two digits, so that a dash
/// behind a single digit is an error at once.
bool isOpenRange(const QStringRef &part, const QString &shape)
{
    return shape == QLatin1String("n-") && part[0] >= QLatin1Char('1') &&
           part[0] <= QLatin1Char('9') && part[1].isDigit();
}

bool isWellFormed(const QStringRef &part, bool isLast)
{
    const QString shape = outline(part);
    if (shape.contains(dash))
        return shape == QLatin1String("n-n") || (isLast && isOpenRange(part, shape));
    if (shape == QLatin1String("nn"))
        return false; // a comma is missing
    return isLast || !shape.isEmpty();
}

/// Adds the pages of a well-formed part; stops when there are too many anyway. What is no number
/// after all, or too big for one, counts as page 0.
void addPages(const QStringRef &part, std::set<int> *pages)
{
    const QStringRef text = part.trimmed();
    if (text.isEmpty())
        return;
    const int dashAt = text.indexOf(dash);
    if (dashAt < 0) {
        pages->insert(text.toInt());
        return;
    }
    const QStringRef second = text.mid(dashAt + 1).trimmed();
    if (second.isEmpty())
        return;
    const auto [low, high] = std::minmax<qint64>({text.left(dashAt).trimmed().toInt(), //
                                                  second.toInt()});
    for (qint64 page = low; page <= high && pages->size() <= PageList::mostPages; ++page)
        pages->insert(int(page));
}

QString joined(const std::set<int> &pages)
{
    QStringList numbers;
    for (const int page : pages)
        numbers.append(QString::number(page));
    return numbers.join(QLatin1Char(','));
}

} // namespace

PageList::Result PageList::check(const QString &text, bool coverPrintsBothFrontSides)
{
    if (text.isEmpty())
        return {Verdict::Empty, {}};
    if (!std::all_of(text.begin(), text.end(), isListCharacter))
        return {Verdict::Malformed, {}};
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char(','));
    for (int i = 0; i < parts.size(); ++i) {
        if (!isWellFormed(parts[i], i == parts.size() - 1))
            return {Verdict::Malformed, {}};
    }

    std::set<int> pages;
    for (const QStringRef &part : parts)
        addPages(part, &pages);
    if (pages.empty())
        return {Verdict::NoPages, {}};
    // The count comes first, so that it doesn't matter where a list that is too long broke off.
    if (pages.size() > mostPages)
        return {Verdict::TooMany, {}};
    if (coverPrintsBothFrontSides && *pages.begin() < firstPageBehindCover)
        return {Verdict::InsideCover, {}};
    if (*pages.begin() < firstPage || *pages.rbegin() > lastPage)
        return {Verdict::OutOfRange, {}};
    if (!outline(parts.last()).contains(QLatin1Char('n')))
        return {Verdict::EndsInComma, {}};
    return {Verdict::Good, joined(pages)};
}

const char *PageList::message(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Empty:
        return QT_TRANSLATE_NOOP("PublishingTab", "Please type a page range.");
    case Verdict::Malformed:
        return QT_TRANSLATE_NOOP("PublishingTab", "Please enter your specified pages.");
    case Verdict::TooMany:
        return QT_TRANSLATE_NOOP("PublishingTab", "You can only insert up to 50 pages.");
    case Verdict::InsideCover:
        return QT_TRANSLATE_NOOP("PublishingTab",
                                 "You can only enter page numbers between 3 and 511");
    case Verdict::OutOfRange:
        return QT_TRANSLATE_NOOP("PublishingTab",
                                 "You can only enter page numbers between 2 and 511");
    case Verdict::NoPages:
    case Verdict::EndsInComma:
    case Verdict::Good:
        break;
    }
    return nullptr;
}
