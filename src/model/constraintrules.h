#pragma once

class OptionStore;

/// The rules that the panel adds to those of a printer's PPD. A rule whose option or value the
/// printer lacks vanishes. importPpd() runs them in a fixed order, since some copy others and
/// three-way rules are sorted by the priorities of the moment.

/// Cover, page insert and interleaving among themselves.
void addPublishingRules(OptionStore *store);
/// Everything else that excludes one another, one to one.
void addFixedPairRules(OptionStore *store);
/// Ranks the options: hardware and policy above media, layout, finishing, job modes, collation.
void setPriorities(OptionStore *store);
/// Stapling against booklets and short paper.
void addFixedGroupRules(OptionStore *store);
/// Rules that copy those of other values: storage behind collation, forced duplex behind duplex.
void addDerivedRules(OptionStore *store);
