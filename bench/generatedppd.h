#pragma once

#include <QString>

/// Measures of a made-up PPD; by default those of the largest printers.
struct GeneratedPpd
{
    int options = 400;
    int choicesPerOption = 10;
    int constraints = 8000;
};

/// Writes the PPD (PPD 4.3 format) to `path`, the same for the same measures. False if the file
/// can't be written.
bool writeGeneratedPpd(const QString &path, const GeneratedPpd &measures = {});
