#pragma once

#include <QByteArray>

#include <benchmark/benchmark.h>
#include <cups/ppd.h>

#include <memory>

// The rows that Google Benchmark takes the times of.

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// A PPD, which must be there.
inline Ppd openPpd(const char *path)
{
    return Ppd(ppdOpenFile(path));
}

/// A row of the usual kind: the median of five runs tells.
inline void registerRow(const char *name, void (*run)(benchmark::State &),
                        benchmark::TimeUnit unit = benchmark::kMillisecond)
{
    benchmark::RegisterBenchmark(name, run)
        ->Unit(unit)
        ->MinTime(0.2)
        ->Repetitions(5)
        ->ReportAggregatesOnly();
}

/// Reading PPDs and working on what they hold, beside libcups.
/// \param path of a large PPD
/// \param busyPath of one with very many rules on one value
void registerPpdRows(const QByteArray &path, const QByteArray &busyPath);
/// Pages, sketches and profiles.
void registerPanelRows();
