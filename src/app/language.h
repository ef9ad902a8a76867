#pragma once

#include <QString>

class QTranslator;

/// The catalogue for a locale such as "de_DE": ":/strings/german". English for a language that the
/// panel has no catalogue for.
QString catalogueForLocale(const QString &localeName);

/// Makes libcups and the commands of the print system speak the language of the catalogue.
///
/// Buttons find their values by the translated texts of a PPD, so both must agree, also when the
/// environment names different languages (LANGUAGE against LANG), or one without a catalogue. Has
/// to run before the first call of libcups.
void alignPrintSystemLanguage(const QString &localeName);

/// Looks up the texts that Qt's standard buttons and message boxes ask a translator for. Nothing is
/// done with them: they stand in a source file so that the catalogues keep them.
void lookUpStandardButtons(const QTranslator &translator);
