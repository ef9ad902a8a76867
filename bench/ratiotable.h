#pragma once

#include <QString>

/// Collects what was measured, each with the limit that it has to keep, and says what missed it.
///
/// A limit has head room for noise: a quarter beyond it misses. In the short form, which is for
/// machines with more than this to do, half beyond it misses, and no wall-clock figure is judged.
class RatioTable
{
public:
    /// How a figure was taken.
    enum class Figure
    {
        Exact, ///< bytes or counts: judged always, without head room
        Cpu,   ///< CPU time, compared within the run: judged always
        Clock, ///< wall-clock time, judged in the full form only
    };

    explicit RatioTable(bool isShort)
        : isShort_(isShort)
    {
    }

    bool isShort() const { return isShort_; }
    /// Judges a figure and prints its line; PRESSDESK_BENCH_ROWS may name a file that gets it too.
    /// \param unit behind both numbers, such as " ms", or empty for a ratio
    void add(Figure figure, const QString &name, double seen, double limit, const char *unit = "");
    bool hasMissed() const { return hasMissed_; }

private:
    bool isShort_;
    bool hasMissed_ = false;
};
