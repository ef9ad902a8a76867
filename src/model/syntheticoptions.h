#pragma once

#include <cups/ppd.h>

class OptionStore;

/// The options that no PPD has: modes and switches of the panel that stand for several PPD options
/// or for abilities that a PPD only announces. Each function adds those of one subject, if the PPD
/// offers what they need, with the rules that belong to them. importPpd() calls them in this order.

/// Any fold, any punch, any staple: they inherit the conflicts of the styles they stand for.
void addFinishingModes(ppd_file_t *ppd, OptionStore *store);
/// Covers, page inserts and transparency interleaving.
void addPublishingModes(ppd_file_t *ppd, OptionStore *store);
/// Job storage, accounting, login, notification and naming.
void addJobOptions(ppd_file_t *ppd, OptionStore *store);
void addSuperWatermark(ppd_file_t *ppd, OptionStore *store);
/// What a policy server forces; there for every printer.
void addPolicyOptions(OptionStore *store);
