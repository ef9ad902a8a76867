#include "generatedppd.h"
#include "googlebench.h"
#include "model/boption.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"

#include <random>

// How fast a large PPD is read and its model answers, beside what libcups takes for the same file.

namespace {

QByteArray ppdPath;
QByteArray busyPpdPath;

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
        const Ppd ppd = openPpd(path.constData());
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
    const Ppd ppd = openPpd(busyPpdPath.constData());
    OptionStore store;
    importPpd(ppd.get(), &store);
    for (auto _ : state) {
        for (const char *value : {"Value0", "Value1"})
            store.setCurrentByKey(QStringLiteral("Bench5"), QLatin1String(value));
    }
}

/// The same options in the same order for both sides.
class RandomValue
{
public:
    int option() { return int(random_() % unsigned(GeneratedPpd().options)); }
    int choice() { return int(random_() % unsigned(GeneratedPpd().choicesPerOption)); }

private:
    std::mt19937 random_{1};
};

void markAndConflicts(benchmark::State &state)
{
    const Ppd ppd = openPpd(ppdPath.constData());
    ppdMarkDefaults(ppd.get());
    RandomValue random;
    for (auto _ : state) {
        const QByteArray option = generatedOption(random.option()).toLatin1();
        const QByteArray choice = generatedChoice(random.choice()).toLatin1();
        ppdMarkOption(ppd.get(), option.constData(), choice.constData());
        benchmark::DoNotOptimize(ppdConflicts(ppd.get()));
    }
}

void selectAndAsk(benchmark::State &state)
{
    const Ppd ppd = openPpd(ppdPath.constData());
    OptionStore store;
    importPpd(ppd.get(), &store);
    RandomValue random;
    for (auto _ : state) {
        const QString option = generatedOption(random.option());
        store.setCurrentByKey(option, generatedChoice(random.choice()));
        int blocked = 0;
        const QList<bOption *> options = store.optionList();
        for (const bOption *each : options) {
            const QList<OptionChoice *> choices = each->choiceList();
            for (const OptionChoice *choice : choices)
                blocked += choice->isBlocked() ? 1 : 0;
        }
        benchmark::DoNotOptimize(blocked);
    }
}

} // namespace

void registerPpdRows(const QByteArray &path, const QByteArray &busyPath)
{
    ppdPath = path;
    busyPpdPath = busyPath;
    registerRow("ppdOpenFile", openFile);
    registerRow("importPpd", import);
    registerRow("ppdMarkOption+ppdConflicts", markAndConflicts, benchmark::kMicrosecond);
    registerRow("select+isBlocked", selectAndAsk, benchmark::kMicrosecond);
    registerRow("ppdOpenFile of a busy value", openBusyFile);
    registerRow("importPpd of a busy value", importBusy);
    registerRow("select a busy value", selectBusy);
}
