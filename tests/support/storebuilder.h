#pragma once

#include <QString>

#include <memory>

class OptionStore;

/// A store from a text block. A line is either an option or a rule; empty lines are passed over.
///
/// Option: `Keyword Priority Choice...`, for instance `Duplex 30 None/Off* Tumble/Short_edge`.
/// Keyword and choice may be followed by a slash and the text that the user reads, in which "_"
/// stands for a blank; without one the text is the key. "*" ends the default choice.
///
/// Rule: `Option=Choice Option=Choice...`: the first value and each of the others exclude each
/// other.
///
/// A line that fits neither, or a rule about what isn't there, ends the test program.
std::unique_ptr<OptionStore> makeStore(const QString &block);

/// Selects values, given as "Option=Choice" and separated by blanks, one after the other. A value
/// that isn't there ends the test program.
void selectValues(OptionStore &store, const QString &values);

/// Every blocked value as "Option=Choice", sorted, joined by blanks.
QString blockedValues(const OptionStore &store);
