#include "benchpanel.h"
#include "measures.h"
#include "ratiotable.h"
#include "usage.h"

#include <cstdio>

namespace {

/// What a program takes until its first window is drawn; the plugin ends it there.
bool startTimes(const QString &program, std::vector<double> *walls, std::vector<double> *cpus)
{
    const Usage used = usageOfProgram({program});
    walls->push_back(used.wall);
    cpus->push_back(used.children);
    return used.wall >= 0;
}

} // namespace

bool measureStart(RatioTable *table)
{
    qputenv("QT_PLUGIN_PATH", PRESSDESK_BUILD_DIR "/bench/plugins");
    qputenv("QT_QPA_GENERIC_PLUGINS", "firstpaint");
    std::vector<double> walls;
    std::vector<double> cpus;
    std::vector<double> emptyWalls;
    std::vector<double> emptyCpus;
    // Turn by turn, so that a busy moment of the machine meets both.
    for (int round = 0; round < 11; ++round)
        if (!startTimes(PRESSDESK_BUILD_DIR "/src/brixola-press-desk", &walls, &cpus) ||
            !startTimes(PRESSDESK_BUILD_DIR "/bench/emptyprogram", &emptyWalls, &emptyCpus)) {
            std::fprintf(stderr, "a program ends without a window\n");
            return false;
        }
    std::printf("start to first window: %.1f ms, an empty program %.1f ms; CPU %.1f ms, %.1f ms\n",
                median(walls) * 1000, median(emptyWalls) * 1000, median(cpus) * 1000,
                median(emptyCpus) * 1000);
    const QString name = QStringLiteral("start to first drawn window / empty Qt program");
    table->add(RatioTable::Figure::Clock, name, median(walls) / median(emptyWalls), 3.5);
    table->add(RatioTable::Figure::Cpu, name + ", CPU", median(cpus) / median(emptyCpus), 3.5);
    return true;
}
