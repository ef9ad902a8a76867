#include "functiontests.h"

#include <QRegularExpression>

namespace {

QString expanded(QString text)
{
    static const QRegularExpression repeated("(?:\\(([^)]*)\\)|(.))\\{(\\d+)\\}");
    for (auto match = repeated.match(text); match.hasMatch(); match = repeated.match(text))
        text.replace(match.capturedStart(), match.capturedLength(),
                     (match.captured(1) + match.captured(2)).repeated(match.captured(3).toInt()));
    return text;
}

} // namespace

FunctionTests::Table::Table(const char *subject, int argumentCount, const Function &function,
                            const char *rows)
{
    all().insert(subject, [=](const QStringList &) {
        int failures = 0;
        for (const QString &row : QString(rows).split('\n', Qt::SkipEmptyParts)) {
            QStringList cells;
            for (const QString &cell : row.split('|'))
                cells << expanded(cell.trimmed());
            const QString found = function(cells.mid(1, argumentCount)).join(" | ");
            const QString wanted = cells.mid(1 + argumentCount).join(" | ");
            if (found == wanted)
                continue;
            ++failures;
            qWarning("FAIL: %s, %s: found %s", subject, qPrintable(row.left(200)),
                     qPrintable(found.left(200)));
        }
        return failures;
    });
}
