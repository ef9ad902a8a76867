#include "measures.h"
#include "model/optionstore.h"
#include "pages/printer/printertab.h"
#include "pages/printer/printertable.h"
#include "ratiotable.h"
#include "support/recordingdialog.h"
#include "usage.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

namespace {

constexpr int statusColumn = 2;
constexpr int longestWait = 30000; // ms

bool isComplete(const PrinterTable *table, const QString &asking)
{
    const auto [first, last] = table->rowsInView();
    for (int row = first; row <= last; ++row)
        if (table->item(row, statusColumn)->text() == asking)
            return false;
    return true;
}

} // namespace

bool measureTable(RatioTable *table)
{
    const Usage before = usageNow();
    RecordingDialog dialog;
    PrinterTab page(&dialog);
    page.resize(600, 600); // as in the window
    dialog.resize(800, 735);
    dialog.show();
    auto *printers = qobject_cast<PrinterTable *>(page.table());
    const int count = printers->rowCount();
    const QString asking = count > 0 ? printers->item(0, statusColumn)->text() : QString();
    QElapsedTimer clock;
    clock.start();
    while (!isComplete(printers, asking) && !clock.hasExpired(longestWait))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
    const Usage ours = usageNow() - before;
    if (count == 0 || !isComplete(printers, asking)) {
        std::fprintf(stderr, "the table stays without status\n");
        return false;
    }
    Usage theirs;
    for (int row = 0; row < count; ++row) {
        const Usage one = usageOfProgram({"lpstat", "-p", page.queueInRow(row)});
        if (one.wall < 0) {
            std::fprintf(stderr, "lpstat fails\n");
            return false;
        }
        theirs = theirs + one;
    }
    const double limit = count <= 100 ? 0.21 : 0.05;
    const QString name =
        QStringLiteral("table with status, %1 queues / lpstat for each").arg(count);
    table->add(RatioTable::Figure::Clock, name, ours.wall / theirs.wall, limit);
    // Of a hundred queues making the window itself is a third.
    table->add(RatioTable::Figure::Cpu, name + ", CPU", ours.cpu() / theirs.cpu(), 1.5 * limit);
    return true;
}
