#include "generatedppd.h"
#include "googlebench.h"
#include "measures.h"
#include "ratiotable.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

namespace {

/// Shows the usual table and remembers the CPU times, for the ratios.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
            // It has said why. Versions of the library call this by different names.
            hasFailed_ = hasFailed_ || run.iterations == 0;
        }
        ConsoleReporter::ReportRuns(runs);
    }

    bool hasFailed() const { return hasFailed_; }

    /// Nothing if one of them was left out by --benchmark_filter.
    void addRatio(RatioTable *table, const char *ours, const char *theirs, double limit) const
    {
        if (medians_.count(ours) && medians_.count(theirs))
            table->add(RatioTable::Figure::Cpu, QStringLiteral("%1 / %2").arg(ours, theirs),
                       medians_.at(ours) / medians_.at(theirs), limit);
    }

private:
    std::map<std::string, double> medians_;
    bool hasFailed_ = false;
};

bool write(const QString &path, const GeneratedPpd &measures)
{
    if (writeGeneratedPpd(path, measures))
        return true;
    std::fprintf(stderr, "can't write %s\n", qPrintable(path));
    return false;
}

} // namespace

bool measureModel(RatioTable *table, int argc, char **argv)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("bench.ppd"));
    const QString busyPath = directory.filePath(QStringLiteral("busy.ppd"));
    GeneratedPpd large;
    large.threeWayRules = 1000;
    GeneratedPpd busy;
    busy.constraints = 0;
    busy.rulesOnOneValue = 19000;
    if (!write(path, large) || !write(busyPath, busy))
        return false;
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    if (QProcess::execute(QStringLiteral(PRESSDESK_SOURCE_DIR "/demo/printserver.sh"),
                          {QStringLiteral("add"), server, QStringLiteral("Bench"), path}) != 0)
        return false; // it has said why

    registerPpdRows(QFile::encodeName(path), QFile::encodeName(busyPath));
    registerPanelRows();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.addRatio(table, "importPpd", "ppdOpenFile", 0.5);
    reporter.addRatio(table, "select+isBlocked", "ppdMarkOption+ppdConflicts", 0.1);
    return !reporter.hasFailed();
}
