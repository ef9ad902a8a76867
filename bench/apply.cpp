#include "benchpanel.h"
#include "measures.h"
#include "model/boption.h"
#include "model/optionstore.h"
#include "ratiotable.h"
#include "usage.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QThread>

#include <cstdio>
#include <sys/wait.h>

namespace {

/// So that the panel's look at the status doesn't slow down what it is compared with.
void waitForCommands()
{
    siginfo_t child;
    while (waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0) {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    }
}

} // namespace

bool measureApply(RatioTable *table)
{
    DialogCloser closer;
    BenchPanel panel;
    auto *apply = panel.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply);
    std::vector<double> walls;
    std::vector<double> cpus;
    std::vector<double> commandWalls;
    std::vector<double> commandCpus;
    for (int round = 0; round < 15; ++round) {
        const int closed = closer.closed;
        const Usage before = usageNow();
        apply->click();
        if (closer.closed != closed + 1) {
            std::fprintf(stderr, "Apply says nothing\n");
            return false;
        }
        walls.push_back(closer.wallAtLast - before.wall);
        cpus.push_back(closer.cpuAtLast - before.own);
        panel.painted(0);
        waitForCommands();
        QStringList lpoptions = {"lpoptions", "-p", currentStore->printerName()};
        const QList<bOption *> options = currentStore->optionList();
        for (const bOption *option : options)
            lpoptions << "-o" << option->key() + '=' + option->currentKey();
        const Usage commands =
            usageOfProgram(lpoptions) + usageOfProgram({"find", QDir::homePath()});
        commandWalls.push_back(commands.wall);
        commandCpus.push_back(commands.children);
    }
    const QString name = QStringLiteral("Apply's own part / lpoptions + find");
    const double commands = median(commandWalls);
    std::printf("Apply to its message: %.1f ms, the commands %.1f ms; CPU of its own %.1f ms, "
                "theirs %.1f ms\n",
                median(walls) * 1000, commands * 1000, median(cpus) * 1000,
                median(commandCpus) * 1000);
    table->add(RatioTable::Figure::Clock, name, (median(walls) - commands) / commands, 0.25);
    table->add(RatioTable::Figure::Cpu, name + ", CPU", median(cpus) / median(commandCpus), 0.25);
    return true;
}
