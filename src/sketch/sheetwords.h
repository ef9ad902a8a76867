#pragma once

#include "sketch/sheetsketch.h"

class OptionLabels;

/// What a sketch shows in words, in plain text: "A5, Plain paper, Long edge, Staple: Front corner".
/// Says also what no drawing can show.
QString sheetWords(const OptionStore &store, const SheetPages &pages, const OptionLabels &labels);
