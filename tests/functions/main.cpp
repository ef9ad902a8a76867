// Functions that need neither window nor print server, a table of cases for each.
//
//   tst_functions [CLASS] [ARGUMENT...]    CLASS: only this class of tests; the arguments are Qt
//   Test's

#include "functiontests.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments();
    const QString wanted = arguments.value(1);
    const bool one = FunctionTests::all().contains(wanted);
    if (one)
        arguments.removeAt(1);
    int ran = 0;
    int failures = 0;
    for (auto test = FunctionTests::all().cbegin(); test != FunctionTests::all().cend(); ++test) {
        if (one && test.key() != wanted)
            continue;
        ++ran;
        failures += test.value()(arguments);
    }
    return failures == 0 && ran > 0 ? 0 : 1;
}
