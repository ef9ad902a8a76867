#include "profiles/profilerules.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int longestName = 251; // bytes; with ".cfg" it is the longest name that Linux takes
constexpr int longestDescription = 1024;

// The factory entry's translations, so that no profile looks like it under another language.
constexpr const char *reservedNames[] = {
    "Factory Default",       "Paramètres du fabricant",         "Werkseinstellung",
    "Impostazioni fabbrica", "Valor predeterminado de fábrica", "Padrão de fábrica",
};

constexpr char forbiddenCharacters[] = "/\"`;";

const QLatin1String storedLineFeed("\\n");

} // namespace

bool isReservedProfileName(const QString &name)
{
    const QString simplified = name.simplified();
    return std::any_of(
        std::begin(reservedNames), std::end(reservedNames), [&simplified](const char *reserved) {
            return simplified.compare(QString::fromUtf8(reserved), Qt::CaseInsensitive) == 0;
        });
}

ProfileFault profileFault(const QString &name, const QString &description,
                          const QStringList &queues)
{
    const auto forbidden = [](QChar character) {
        return QLatin1String(forbiddenCharacters).contains(character);
    };
    if (name.isEmpty())
        return ProfileFault::NoName;
    if (isReservedProfileName(name) || queues.contains(name, Qt::CaseInsensitive))
        return ProfileFault::Reserved;
    if (name.startsWith(QLatin1Char('.')) || std::any_of(name.begin(), name.end(), forbidden))
        return ProfileFault::Characters;
    if (description.size() > longestDescription || name.toUtf8().size() > longestName)
        return ProfileFault::TooLong;
    return ProfileFault::None;
}

QString storedDescription(QString description)
{
    return description.replace(QLatin1Char('\n'), storedLineFeed);
}

QString shownDescription(QString stored)
{
    return stored.replace(storedLineFeed, QLatin1String("\n"));
}
