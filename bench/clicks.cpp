#include "benchpanel.h"
#include "measures.h"
#include "model/printqueues.h"
#include "ratiotable.h"
#include "support/testhelpers.h"
#include "usage.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <sys/inotify.h>
#include <unistd.h>

namespace {

constexpr int clickCount = 400;
constexpr int passCount = 400;

/// Tells of files opened where the panel has any: PPDs, their copies and the user's settings.
class OpenedFiles
{
public:
    OpenedFiles()
    {
        for (const QByteArray &folder :
             {QByteArray("/etc/cups/ppd"), QByteArray("/tmp"), userDir.toLocal8Bit()})
            isWatching_ =
                inotify_add_watch(watch_, folder.constData(), IN_OPEN) >= 0 && isWatching_;
    }
    OpenedFiles(const OpenedFiles &) = delete;
    OpenedFiles &operator=(const OpenedFiles &) = delete;
    ~OpenedFiles() { close(watch_); }

    bool isWatching() const { return isWatching_; }
    bool any() const
    {
        alignas(inotify_event) char event[4096];
        return read(watch_, event, sizeof event) > 0;
    }

private:
    const int watch_ = inotify_init1(IN_NONBLOCK);
    bool isWatching_ = true;
};

/// In ms each.
std::vector<double> clickTimes(BenchPanel *panel, int pauseBetween)
{
    std::vector<double> times;
    for (int tries = 0; tries < 4 * clickCount && int(times.size()) < clickCount; ++tries) {
        panel->turnToAnyPage();
        panel->painted(0);
        const double before = usageNow().wall;
        if (panel->clickAnything())
            times.push_back(panel->painted(before) * 1000);
        if (pauseBetween > 0)
            QTest::qWait(pauseBetween);
    }
    return times;
}

bool isUsable(const BenchPanel &panel, const std::vector<double> &times)
{
    if (panel.showsPrinter() && int(times.size()) == clickCount)
        return true;
    std::fprintf(stderr, "the panel shows no printer, or nothing to click\n");
    return false;
}

} // namespace

bool measureClicks(RatioTable *table)
{
    DialogCloser closer;
    BenchPanel panel;
    const std::vector<double> times = clickTimes(&panel, 0);
    if (!isUsable(panel, times))
        return false;
    const int queues = knownPrinters.size();
    const QString suffix = QStringLiteral(", %1 queues").arg(queues);
    table->add(RatioTable::Figure::Clock, "click to drawn page, 99 %" + suffix, ninetyNine(times),
               queues <= 4 ? 8 : 16, " ms");

    std::vector<double> passes;
    OpenedFiles opened;
    for (int pass = 0; pass < passCount; ++pass) {
        const double before = usageNow().wall;
        panel.setConstraints();
        passes.push_back((usageNow().wall - before) * 1000);
    }
    if (!opened.isWatching()) {
        std::fprintf(stderr, "can't watch what is opened\n");
        return false;
    }
    const bool anyOpened = opened.any(); // before the table writes its own
    table->add(RatioTable::Figure::Clock, "a full pass" + suffix, median(passes), 0.3, " ms");
    table->add(RatioTable::Figure::Exact, "a file opened in passes" + suffix, anyOpened ? 1 : 0, 0);
    return true;
}

bool measureSilentServer(RatioTable *table)
{
    DialogCloser closer;
    BenchPanel panel;
    const QString server = QFileInfo(qEnvironmentVariable("CUPS_SERVER")).path();
    const int scheduler = fileText(server + "/cupsd.pid").trimmed().toInt();
    if (scheduler <= 0 || kill(scheduler, SIGSTOP) != 0) {
        std::fprintf(stderr, "can't stop the scheduler\n");
        return false;
    }
    // Long enough for the panel to find that there is no answer.
    const std::vector<double> times = clickTimes(&panel, 10);
    kill(scheduler, SIGCONT);
    if (!isUsable(panel, times))
        return false;
    table->add(RatioTable::Figure::Clock, "click to drawn page, 99 %, silent server",
               ninetyNine(times), 16, " ms");
    return true;
}
