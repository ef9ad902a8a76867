#include "ratiotable.h"

#include <QFile>

#include <cstdio>

void RatioTable::add(Figure figure, const QString &name, double seen, double limit,
                     const char *unit)
{
    const double headRoom = figure == Figure::Exact ? 1 : isShort_ ? 1.5 : 1.25;
    const bool isJudged = figure != Figure::Clock || !isShort_;
    const bool isMissed = isJudged && !(seen <= limit * headRoom); // what is no number misses
    const char *word = seen <= limit ? "ok" : "over, within the head room";
    if (isMissed)
        word = "MISSED";
    else if (!isJudged)
        word = "not judged in the short form";
    hasMissed_ = hasMissed_ || isMissed;
    const QString line =
        QString::asprintf("%-58s %9.3f%s, at most %g%s (fails beyond %g): %s\n", qPrintable(name),
                          seen, unit, limit, unit, limit * headRoom, word);
    std::printf("%s", qPrintable(line));
    std::fflush(stdout);
    QFile rows(qEnvironmentVariable("PRESSDESK_BENCH_ROWS"));
    if (rows.open(QIODevice::Append))
        rows.write(line.toUtf8());
}
