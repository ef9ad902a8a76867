#pragma once

#include <QString>

/// Measures of a made-up PPD; by default those of the largest printers.
struct GeneratedPpd
{
    int options = 400;
    int choicesPerOption = 10;
    int constraints = 8000;
    /// Rules of three random values each.
    int threeWayRules = 0;
    /// Three-way rules that all have one value as a condition, "Bench5" with "Value0". At most
    /// 5 * (options - 11) * choicesPerOption are there.
    int rulesOnOneValue = 0;
};

/// The keyword of the option of this number, from 0; the first ones are such that every printer
/// has.
QString generatedOption(int option);
/// The key of each option's choice of this number.
QString generatedChoice(int choice);

/// Writes the PPD (PPD 4.3 format) to `path`, the same for the same measures. False if the file
/// can't be written.
bool writeGeneratedPpd(const QString &path, const GeneratedPpd &measures = {});
