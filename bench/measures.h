#pragma once

class RatioTable;

// A subject each, with the print server as bench/run sets it up. False, with a message, if it can't
// be measured.

/// Google Benchmark's rows: a large PPD read, its model used, pages drawn.
bool measureModel(RatioTable *table, int argc, char **argv);
/// Random clicks, each until its page is drawn, and passes for themselves.
bool measureClicks(RatioTable *table);
/// The same clicks while the scheduler is stopped.
bool measureSilentServer(RatioTable *table);
/// The table of printers with the status of each row in view.
bool measureTable(RatioTable *table);
/// What Apply takes beside the commands that it runs.
bool measureApply(RatioTable *table);
/// What stays allocated from one printer change to the next.
bool measureMemory(RatioTable *table);
/// From the start of the program to its first drawn window.
bool measureStart(RatioTable *table);
