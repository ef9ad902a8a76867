#pragma once

/// Looks for "--telemetry" or "-t" on the command line and, if it stands there, records the answer
/// that follows ("True", "true", "False" or "false") as the only line of the user's "Settings" file
/// and ends the process with status 0, whatever comes of it. Needs no display and no application
/// object. Returns if the option is not there.
void runTelemetryOption(int argc, char **argv);
