#include "app/bixdialog.h"
#include "generatedppd.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "profiles/profiledialog.h"
#include "sketch/sheetpainter.h"
#include "storage/settingsfile.h"
#include "support/recordingdialog.h"
#include "widgets/comboboxex.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cups/ppd.h>

#include <cstdio>
#include <map>
#include <memory>

// How fast the panel reads a large PPD and answers a click, beside what libcups takes for the same
// file. bench/run calls it: it needs the sandbox, since the panel refuses root, and a print server
// without queues.

namespace {

QByteArray ppdPath;
/// Of a PPD with very many rules on one value.
QByteArray busyPpdPath;

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

Ppd openPpd(const QByteArray &path = ppdPath)
{
    return Ppd(ppdOpenFile(path.constData()));
}

void measureOpening(benchmark::State &state, const QByteArray &path)
{
    for (auto _ : state) {
        ppd_file_t *ppd = ppdOpenFile(path.constData());
        state.PauseTiming();
        ppdClose(ppd);
        state.ResumeTiming();
    }
}

void measureImport(benchmark::State &state, const QByteArray &path)
{
    for (auto _ : state) {
        state.PauseTiming();
        const Ppd ppd = openPpd(path);
        auto store = std::make_unique<OptionStore>();
        state.ResumeTiming();
        importPpd(ppd.get(), store.get());
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
}

void openFile(benchmark::State &state)
{
    measureOpening(state, ppdPath);
}

void openBusyFile(benchmark::State &state)
{
    measureOpening(state, busyPpdPath);
}

void import(benchmark::State &state)
{
    measureImport(state, ppdPath);
}

void importBusy(benchmark::State &state)
{
    measureImport(state, busyPpdPath);
}

/// The value with very many rules is selected and left again.
void selectBusy(benchmark::State &state)
{
    const Ppd ppd = openPpd(busyPpdPath);
    OptionStore store;
    importPpd(ppd.get(), &store);
    for (auto _ : state) {
        for (const char *value : {"Value0", "Value1"})
            store.setCurrentByKey(QStringLiteral("Bench5"), QLatin1String(value));
    }
}

void markAndConflicts(benchmark::State &state)
{
    const Ppd ppd = openPpd();
    ppdMarkDefaults(ppd.get());
    int value = 0;
    for (auto _ : state) {
        const QByteArray choice = "Value" + QByteArray::number(value++ % 10);
        ppdMarkOption(ppd.get(), "MediaType", choice.constData());
        benchmark::DoNotOptimize(ppdConflicts(ppd.get()));
    }
}

void selectAndAsk(benchmark::State &state)
{
    const Ppd ppd = openPpd();
    OptionStore store;
    importPpd(ppd.get(), &store);
    int value = 0;
    for (auto _ : state) {
        store.setCurrentByKey(QStringLiteral("MediaType"),
                              QStringLiteral("Value%1").arg(value++ % 10));
        int blocked = 0;
        const QList<bOption *> options = store.optionList();
        for (const bOption *option : options) {
            const QList<OptionChoice *> choices = option->choiceList();
            for (const OptionChoice *choice : choices)
                blocked += choice->isBlocked() ? 1 : 0;
        }
        benchmark::DoNotOptimize(blocked);
    }
}

/// One click of the user and all that follows: the option moves, the constraint pass runs over all
/// pages as often as it takes, and the print system is asked whether its queues are the same.
void click(benchmark::State &state)
{
    BixDialog panel;
    panel.show();
    const QList<QTableWidget *> tables = panel.findChildren<QTableWidget *>();
    for (QTableWidget *table : tables) {
        if (table->accessibleName() == QLatin1String("tblPrinters"))
            table->setCurrentCell(0, 0);
    }
    ComboBoxEx *paper = nullptr;
    const QList<ComboBoxEx *> boxes = panel.findChildren<ComboBoxEx *>();
    for (ComboBoxEx *box : boxes) {
        if (box->accessibleName() == QLatin1String("cmbBxPageSize"))
            paper = box;
    }
    if (!currentStore || !paper || paper->count() < 2) {
        state.SkipWithError("the panel shows no printer");
        return;
    }
    for (auto _ : state)
        paper->setCurrentIndex((paper->currentIndex() + 1) % paper->count());
}

/// After a click: the settings of the largest sample printer are sketched and drawn for a dense
/// screen.
void drawSheets(benchmark::State &state)
{
    const Ppd ppd = openPpd(PRESSDESK_SOURCE_DIR "/demo/ppd/px4500.ppd");
    OptionStore store;
    importPpd(ppd.get(), &store);
    for (const auto &[option, choice] : {std::pair("PageSize", "A4"),
                                         {"Duplex", "DuplexNoTumble"},
                                         {"cTriFld", "True"},
                                         {"FldC", "ZFold"},
                                         {"cStpl", "True"},
                                         {"Stpl", "Center"},
                                         {"cHole", "True"},
                                         {"Pnch", "Hole4"},
                                         {"Sep", "Jog"},
                                         {"Coll", "True"},
                                         {"Wren", "True"},
                                         {"Wsze", "72"},
                                         {"Wang", "50"},
                                         {"Wclr", "Red"}})
        store.setCurrentByKey(QLatin1String(option), QLatin1String(choice));
    const SheetPages pages = {QStringLiteral("CONFIDENTIAL"),
                              {QStringLiteral("cCovBut"), QStringLiteral("cInsBut")}};
    QImage image(360, 400, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    for (auto _ : state) {
        QPainter painter(&image);
        paintSheets(&painter, QRectF(0, 0, 180, 200), sheetSketch(store, pages), SheetSketch());
    }
}

/// A row of the profile list becomes current: the PPD of the profile's printer is read, what 150
/// options hold is put into words and drawn.
void showProfile(benchmark::State &state)
{
    constexpr GeneratedPpd measures = {150, 10, 3000};
    userDir = userDirectory();
    ensureUserDir();
    QFile profile(cfgPath(QStringLiteral("Bench")));
    if (!writeGeneratedPpd(QStringLiteral("/usr/share/brixola/ppd6/Brixola_Bench.ppd"), measures) ||
        !profile.open(QIODevice::WriteOnly)) {
        state.SkipWithError("can't write the profile");
        return;
    }
    profile.write("[Profile]\n[Brixola Bench]\nPageSize=Value1\nDuplex=Value2\nMediaType=Value3\n"
                  "InputSlot=Value4\nOutputBin=Value5\n");
    for (int option = 5; option < measures.options; ++option)
        profile.write("Bench" + QByteArray::number(option) + "=Value6\n");
    profile.close();

    RecordingDialog panel;
    ProfileDialog dialog(&panel, nullptr);
    dialog.fillProfileTable();
    dialog.show();
    auto *table = dialog.findChild<QTableWidget *>();
    for (auto _ : state) {
        state.PauseTiming();
        table->setCurrentCell(0, 0);
        state.ResumeTiming();
        table->setCurrentCell(1, 0);
        dialog.repaint();
    }
    profile.remove();
}

/// Shows the usual table and remembers the times, for the ratios.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatio(const char *ours, const char *theirs, double limit) const
    {
        if (!medians.count(ours) || !medians.count(theirs))
            return;
        std::printf("%s takes %.3f times as long as %s (at most %.1f is wanted)\n", ours,
                    medians.at(ours) / medians.at(theirs), theirs, limit);
    }

private:
    std::map<std::string, double> medians;
};

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("bench.ppd"));
    if (!writeGeneratedPpd(path)) {
        std::fprintf(stderr, "can't write %s\n", qPrintable(path));
        return 1;
    }
    ppdPath = QFile::encodeName(path);
    const QString busyPath = directory.filePath(QStringLiteral("busy.ppd"));
    GeneratedPpd busy;
    busy.constraints = 0;
    busy.rulesOnOneValue = 19000;
    if (!writeGeneratedPpd(busyPath, busy)) {
        std::fprintf(stderr, "can't write %s\n", qPrintable(busyPath));
        return 1;
    }
    busyPpdPath = QFile::encodeName(busyPath);
    // The question about data collection would wait for an answer.
    QFile answer(settingsPath());
    if (!answer.open(QIODevice::WriteOnly) || answer.write("Telemetry=False\n") < 0) {
        std::fprintf(stderr, "can't write %s: run this in the sandbox\n",
                     qPrintable(answer.fileName()));
        return 1;
    }
    answer.close();
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    if (QProcess::execute(QStringLiteral(PRESSDESK_SOURCE_DIR "/demo/printserver.sh"),
                          {QStringLiteral("add"), server, QStringLiteral("Bench"), path}) != 0)
        return 1; // it has said why

    const struct
    {
        const char *name;
        void (*run)(benchmark::State &);
        benchmark::TimeUnit unit;
    } benchmarks[] = {
        {"ppdOpenFile", openFile, benchmark::kMillisecond},
        {"importPpd", import, benchmark::kMillisecond},
        {"ppdMarkOption+ppdConflicts", markAndConflicts, benchmark::kMicrosecond},
        {"select+isBlocked", selectAndAsk, benchmark::kMicrosecond},
        {"click+constraintPass", click, benchmark::kMillisecond},
        {"drawSheets", drawSheets, benchmark::kMillisecond},
        {"showProfile", showProfile, benchmark::kMillisecond},
        {"ppdOpenFile of a busy value", openBusyFile, benchmark::kMillisecond},
        {"importPpd of a busy value", importBusy, benchmark::kMillisecond},
        {"select a busy value", selectBusy, benchmark::kMillisecond},
    };
    for (const auto &each : benchmarks)
        benchmark::RegisterBenchmark(each.name, each.run)
            ->Unit(each.unit)
            ->MinTime(0.2)
            ->Repetitions(5)
            ->ReportAggregatesOnly();

    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatio("importPpd", "ppdOpenFile", 0.5);
    reporter.printRatio("select+isBlocked", "ppdMarkOption+ppdConflicts", 0.1);
    return 0;
}
