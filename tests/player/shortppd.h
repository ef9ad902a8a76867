#pragma once

#include <QStringList>

/// The text of a PPD (4.3) of the maker's, from a short form with a part a line:
///   "Keyword/Text 10: Choice/Text Other*": an option in the order of the lines; a star marks the
///       default, else it is the first; a blank in a text is "_"; "Keyword InstallableOptions: ..."
///       puts it into that group
///   "Name=Value": an attribute
///   "*Option Choice *Option Choice": a pair rule; with three values a three-way rule
///   any other line that begins with "*": as it stands
QString ppdText(const QStringList &parts);
