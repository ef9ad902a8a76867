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
/// The choice that the switch selects as it goes on: "On", or else the third level. May be null.
OptionChoice *onChoice(const bOption &option);
QString levelKey(int level);
/// Where the list stands for a stored key: at its level, else at the third one, or at the last of
/// fewer.
int levelToShow(const bOption &option, const QString &key);
/// What is stored.
QString settingFor(const bOption &option, bool on, int level);

} // namespace LeanPrint
