// Settings files and profiles: real files, in the user's folder.

#include "fuzz.h"
#include "profiles/profilereader.h"
#include "profiles/profilerules.h"
#include "storage/settingsfile.h"

#include <QDir>
#include <QFile>

namespace {

constexpr int longestEntry = 1000; // characters: a longer line is read as several
constexpr int mostKeys = 4;        // for each of them the files are read anew

/// Makes a file in the user's folder hold just this text, and answers its path.
QString laidFile(const char *name, const QByteArray &text)
{
    userDir = userDirectory();
    ensureUserDir();
    QFile file(userDir + QLatin1String(name));
    Fuzz::mustHold(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(),
                   "a file can be laid");
    return file.fileName();
}

/// What stands in a text as entries that a file can hold, as they would be collected from pages.
Settings entries(const QString &text)
{
    Settings found;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals >= 0 && line.size() <= longestEntry && !line.contains(QLatin1Char('\r')) &&
            !line.startsWith(QChar(QChar::ByteOrderMark))) // which Qt drops where a text begins
            found.insert(line.left(equals), line.mid(equals + 1));
    }
    return found;
}

} // namespace

void Fuzz::settings(const QByteArray &input)
{
    currentCfgPath = laidFile("found.cfg", input);
    const Settings written = entries(QString::fromUtf8(input));
    const QStringList keys = written.uniqueKeys().mid(0, mostKeys);
    for (const QString &key : keys) {
        const QStringList values = readSettingValues(key);
        mustHold(readSetting(key) == values.value(0), "the first line with a key wins");
        mustHold(readSetting(key).isNull() == values.value(0).isEmpty(), "an empty value is null");
    }

    currentCfgPath = userDir + QStringLiteral("written.cfg");
    mustHold(writeCfg(currentCfgPath, written, input.size() % 2), "settings can be written");
    for (const QString &key : keys)
        mustHold(readSettingValues(key) == written.values(key), "what was written is read again");

    const QString key = QStringLiteral("FKP_server");
    // Readers pass over carriage returns within a line, updateSetting() copies them.
    laidFile("Settings", QByteArray(input).replace('\r', ""));
    currentCfgPath = settingsPath();
    mustHold(updateSetting(key, QStringLiteral("new")), "the panel's settings can be written");
    mustHold(readSetting(key) == QLatin1String("new"), "updateSetting() sets a key");
}

void Fuzz::profile(const QByteArray &input)
{
    const QString path = laidFile("found.cfg", input);
    QString missing;
    const QList<ProfileSection> sections = profileSections(readProfile(path, &missing));
    mustHold(!sections.isEmpty(), "the last section is always there");
    for (const ProfileSection &section : sections)
        mustHold(!section.rows.isEmpty(), "a section has something to show");
    profileDescription(path);

    QString description = storedDescription(QString::fromUtf8(input));
    description.remove(QLatin1Char('\r'));
    mustHold(writeProfile(path, {}, false, description), "a profile can be written");
    mustHold(profileDescription(path) == description, "the description is as the file holds it");
}
