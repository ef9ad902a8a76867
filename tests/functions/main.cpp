// Functions that need neither window nor print server, a table of cases for each.

#include "functiontests.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    int failures = 0;
    for (const auto &run : FunctionTests::all())
        failures += run(application.arguments());
    return failures == 0 && !FunctionTests::all().empty() ? 0 : 1;
}
