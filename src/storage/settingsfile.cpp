#include "storage/settingsfile.h"

#include "model/optionstore.h"
#include "storage/ownfile.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

QString userDir;
QString currentCfgPath;

namespace {

constexpr int longestLine = 1024;

void makeDirectory(const QByteArray &path)
{
    if (access(path.constData(), F_OK) != 0)
        mkdir(path.constData(), 0775);
}

/// Calls `use` with the value of each line of `currentCfgPath` that has the key, until it answers
/// false or the file ends.
void forEachValue(const QString &key, const std::function<bool(const QString &)> &use)
{
    QFile file;
    if (!OwnFile::openToRead(&file, currentCfgPath))
        return;
    file.setTextModeEnabled(true);
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    while (!stream.atEnd()) {
        const QString line = stream.readLine(longestLine);
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals >= 0 && line.leftRef(equals) == key && !use(line.mid(equals + 1)))
            return;
    }
}

/// A line break in a value would begin an entry of its own.
QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

/// What stands before the entries of a file.
enum class Heading
{
    None,
    Model,
    Profile
};

bool writeFile(const QString &path, const Settings &settings, Heading heading,
               const QString *description)
{
    QByteArray text;
    QTextStream stream(&text);
    stream.setCodec("UTF-8");
    if (heading == Heading::Profile)
        stream << "[Profile]\n";
    if (heading != Heading::None)
        stream << '[' << oneLine(currentStore ? currentStore->modelName() : QString()) << "]\n";
    if (description)
        stream << "ProfileDescription=" << oneLine(*description) << '\n';
    for (auto entry = settings.cbegin(); entry != settings.cend(); ++entry)
        stream << oneLine(entry.key()) << '=' << oneLine(entry.value()) << '\n';
    stream.flush();
    ensureUserDir();
    return OwnFile::replace(path, text);
}

} // namespace

QString userDirectory()
{
    return QStringLiteral("/usr/share/brixola/%1/")
        .arg(QString::fromLocal8Bit(std::getenv("USER")));
}

QString settingsPath()
{
    const QString directory = userDirectory();
    if (!QDir(directory).exists())
        QDir().mkdir(directory);
    return directory + QStringLiteral("Settings");
}

void ensureUserDir()
{
    QByteArray path = QFile::encodeName(userDir);
    if (path.endsWith('/'))
        path.chop(1);
    for (int slash = path.indexOf('/', 1); slash > 0; slash = path.indexOf('/', slash + 1))
        makeDirectory(path.left(slash));
    makeDirectory(path);
}

QString cfgPath(const QString &printer)
{
    return userDir + printer + QStringLiteral(".cfg");
}

bool cfgExists(const QString &printer)
{
    struct stat status;
    return stat(QFile::encodeName(cfgPath(printer)).constData(), &status) == 0;
}

bool writeCfg(const QString &path, const Settings &settings, bool plain)
{
    return writeFile(path, settings, plain ? Heading::None : Heading::Profile, nullptr);
}

bool writeProfile(const QString &path, const Settings &settings, bool plain,
                  const QString &description)
{
    return writeFile(path, settings, plain ? Heading::Model : Heading::Profile, &description);
}

QString readSetting(const QString &key)
{
    QString found;
    forEachValue(key, [&found](const QString &value) {
        found = value;
        return false;
    });
    return found.isEmpty() ? QString() : found;
}

QStringList readSettingValues(const QString &key)
{
    QStringList found;
    forEachValue(key, [&found](const QString &value) {
        found.append(value);
        return true;
    });
    return found;
}

bool updateSetting(const QString &key, const QString &value)
{
    const QString path = settingsPath();
    const QString temporaryPath = path + QStringLiteral("_tmp");
    QFile settings;
    if (!OwnFile::openToRead(&settings, path)) {
        OwnFile::replace(temporaryPath, QByteArray()); // so a lone empty copy may stay behind
        return false;
    }
    QTextStream in(&settings);
    QByteArray text;
    QTextStream out(&text);
    bool found = false;
    while (!in.atEnd()) {
        QString line = in.readLine();
        if (line.contains(key)) {
            line = key + QLatin1Char('=') + value;
            found = true;
        }
        out << line << '\n';
    }
    if (!found)
        out << key << '=' << value << '\n';
    out.flush();
    return settings.error() == QFileDevice::NoError && OwnFile::replace(temporaryPath, text) &&
           std::rename(QFile::encodeName(temporaryPath).constData(),
                       QFile::encodeName(path).constData()) == 0;
}
