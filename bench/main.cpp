#include "benchpanel.h"
#include "measures.h"
#include "ratiotable.h"
#include "widgets/panellook.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

// pressdesk-bench SUBJECT [--short] [arguments of Google Benchmark]
//
// How fast the panel is, a subject at a time. bench/run calls it: it needs the sandbox, since the
// panel refuses root, and for each subject a print server with the queues that it is about.

namespace {

struct Subject
{
    const char *name;
    bool (*measure)(RatioTable *table);
};

const Subject subjects[] = {
    {"click", measureClicks}, {"silent", measureSilentServer}, {"table", measureTable},
    {"apply", measureApply},  {"memory", measureMemory},       {"start", measureStart},
};

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    PanelLook::use();
    const char *name = argc > 1 ? argv[1] : "";
    const bool isShort = argc > 2 && std::strcmp(argv[2], "--short") == 0;
    RatioTable table(isShort);
    if (!prepareUser())
        return 1;
    // What comes after them goes to Google Benchmark, whose first one is the program.
    const int known = isShort ? 2 : 1;
    bool isMeasured = false;
    if (std::strcmp(name, "model") == 0)
        isMeasured = measureModel(&table, argc - known, argv + known);
    for (const Subject &subject : subjects)
        if (std::strcmp(name, subject.name) == 0)
            isMeasured = subject.measure(&table);
    if (!isMeasured)
        std::fprintf(stderr, "pressdesk-bench: \"%s\" is not measured\n", name);
    return isMeasured && !table.hasMissed() ? 0 : 1;
}
