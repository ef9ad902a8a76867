#pragma once

#include <QLatin1String>
#include <QString>

class OptionChoice;
class bOption;

/// LeanPrint, which saves toner: one option whose first choice is off, followed by either a single
/// "On" or a row of levels, "Level1", "Level2" and so on. The page shows it as a switch and a list
/// of the levels; a level is meant by its position in that list, from 0.
namespace LeanPrint {

inline const QLatin1String keyword("Lnpr");

/// True if there is more to choose than off and on.
bool hasLevels(const bOption &option);
/// True for the key of a choice that saves toner.
bool isOn(const QString &key);
/// Where the list stands for a stored key: at its level, else at the third one, or at the last of
/// fewer.
int levelToShow(const bOption &option, const QString &key);
/// The choice that switch and list stand for together, with `level` the row of the list; null if
/// the printer has none. This is what the option is set to and what is stored.
OptionChoice *shownChoice(const bOption &option, bool on, int level);

} // namespace LeanPrint
