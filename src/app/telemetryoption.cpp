#include "app/telemetryoption.h"

#include "storage/ownfile.h"
#include "storage/settingsfile.h"

#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

bool isTelemetryOption(std::string_view argument)
{
    return argument == "--telemetry" || argument == "-t";
}

/// The line to record; null for an answer that is none of the four words.
const char *lineForAnswer(std::string_view answer)
{
    if (answer == "True" || answer == "true")
        return "Telemetry=True\n";
    if (answer == "False" || answer == "false")
        return "Telemetry=False\n";
    return nullptr;
}

/// Replaces the "Settings" file by the answer. The directory is made for any answer. False if the
/// file, or the directory, is somebody else's: root must not write there for them.
bool record(std::string_view answer)
{
    const QString path = settingsPath();
    const char *line = lineForAnswer(answer);
    if (!line)
        return true;
    if (OwnFile::isForeign(path)) {
        std::fprintf(stderr, "%s is no file of your own: nothing is written\n", qPrintable(path));
        return false;
    }
    OwnFile::replace(path, line);
    return true;
}

} // namespace

void runTelemetryOption(int argc, char **argv)
{
    char **const end = argv + argc;
    char **const option = argc < 2 ? end : std::find_if(argv + 1, end, isTelemetryOption);
    if (option == end)
        return;
    char **const answer = option + 1;
    if (answer == end)
        std::exit(0);

    std::exit(record(*answer) ? 0 : 1);
}
