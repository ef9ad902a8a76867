#pragma once

#include <cups/ppd.h>

#include <memory>

class OptionStore;
class QString;

/// Fills an empty store from an open PPD: its options with their choices and defaults, the panel's
/// own options, all conflict rules and the priorities. Texts come in the user's language.
///
/// Touches nothing but the two arguments (the PPD's texts get localised in place). The caller opens
/// and closes the PPD; null is not handled. Reports nothing: what a PPD lacks is simply not there.
void importPpd(ppd_file_t *ppd, OptionStore *store);

/// A new store filled from a PPD file; null if libcups can't open it. The second form takes an open
/// file, which stays open.
std::unique_ptr<OptionStore> importPpdFile(const QString &path);
std::unique_ptr<OptionStore> importPpdFile(int descriptor);
