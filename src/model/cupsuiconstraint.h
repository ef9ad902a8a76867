#pragma once

#include <string_view>

class ValueIndex;

/// One three-way rule in the form of the PPD attribute cupsUIConstraints (a CUPS PPD extension):
/// "*Option Choice *Option Choice *Option Choice". Other numbers of values make no rule.
void addCupsUiConstraint(const ValueIndex &values, std::string_view rule);
