#include "benchpanel.h"
#include "measures.h"
#include "ratiotable.h"

#include <QCoreApplication>
#include <QTableWidget>

#include <cstdio>
#include <malloc.h>

bool measureMemory(RatioTable *table)
{
    DialogCloser closer;
    BenchPanel panel;
    const int printers = panel.printers()->rowCount();
    if (printers < 2) {
        std::fprintf(stderr, "there are no two printers to change between\n");
        return false;
    }
    const auto allocatedAfter = [&](int changes) {
        for (int change = 0; change < changes; ++change) {
            panel.printers()->setCurrentCell((panel.printers()->currentRow() + 1) % printers, 0);
            panel.painted(0);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const auto allocated = mallinfo2();
        return double(allocated.uordblks + allocated.hblkhd);
    };
    // Counts at the same printer each, since they are of different sizes.
    const int first = 50 / printers * printers;
    const double before = allocatedAfter(first);
    const double after = allocatedAfter((200 - first) / printers * printers);
    table->add(RatioTable::Figure::Exact, "bytes after 200 printer changes / after 50",
               after / before, 1.01);
    return true;
}
