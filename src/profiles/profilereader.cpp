#include "profiles/profilereader.h"

#include "model/boption.h"
#include "model/keys.h"
#include "model/maker.h"
#include "model/optionchoice.h"
#include "model/optionstore.h"
#include "model/ppdimport.h"
#include "profiles/profilerules.h"
#include "profiles/profilestore.h"
#include "storage/ownfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <memory>

namespace {

/// A row of the tree, or the heading that the rows below it stand under.
struct TreeRow
{
    const char *keyword; ///< null for a heading
    const char *text;
    const char *unless = nullptr; ///< a keyword that takes the whole section away
};

const QLatin1String descriptionKeyword("ProfileDescription");
const QLatin1String textWithoutPpd("ERROR 3");
constexpr qint64 largestPpd = 8 << 20; // bytes
constexpr char genericKeyword[] = "Generic";
constexpr char policyKeyword[] = "FKP_enabled";

constexpr TreeRow treeRows[] = {
    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Profiles")},
    {"ProfileDescription", QT_TRANSLATE_NOOP("ProfileReader", "Description")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Basic")},
    {"PageSize", QT_TRANSLATE_NOOP("ProfileReader", "Print size")},
    {"MediaType", QT_TRANSLATE_NOOP("ProfileReader", "Media type")},
    {"InputSlot", QT_TRANSLATE_NOOP("ProfileReader", "Source")},
    {"OutputBin", QT_TRANSLATE_NOOP("ProfileReader", "Destination")},
    {"Coll", QT_TRANSLATE_NOOP("ProfileReader", "Collate")},
    {"Duplex", QT_TRANSLATE_NOOP("ProfileReader", "Duplex")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Layout")},
    {"BXBooklet", QT_TRANSLATE_NOOP("ProfileReader", "Booklet")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Finishing")},
    {"Sep", QT_TRANSLATE_NOOP("ProfileReader", "Separation")},
    {"FldA", QT_TRANSLATE_NOOP("ProfileReader", "Folding mode")},
    {"FldB", QT_TRANSLATE_NOOP("ProfileReader", "Folding side")},
    {"FldC", QT_TRANSLATE_NOOP("ProfileReader", "Folding direction")},
    {"FldD", QT_TRANSLATE_NOOP("ProfileReader", "Folding method")},
    {"Stpl", QT_TRANSLATE_NOOP("ProfileReader", "Staple")},
    {"Scnt", QT_TRANSLATE_NOOP("ProfileReader", "Staple method")},
    {"Pnch", QT_TRANSLATE_NOOP("ProfileReader", "Punch")},
    {"Rotate", QT_TRANSLATE_NOOP("ProfileReader", "Rotate")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Imaging")},
    {"Trap", QT_TRANSLATE_NOOP("ProfileReader", "Trapping")},
    {"BXGlossmode", QT_TRANSLATE_NOOP("ProfileReader", "Gloss mode")},
    {"CIE", QT_TRANSLATE_NOOP("ProfileReader", "CIE optimization")},
    {"BSCREENMODE", QT_TRANSLATE_NOOP("ProfileReader", "Halftone screen")},
    {"Resolution", QT_TRANSLATE_NOOP("ProfileReader", "Resolution")},
    {"Lnpr", QT_TRANSLATE_NOOP("ProfileReader", "LeanPrint")},
    {"CaColorSpace", QT_TRANSLATE_NOOP("ProfileReader", "HSL/Color Balance")},
    {"Cadj", QT_TRANSLATE_NOOP("ProfileReader", "Color adjustment")},
    {"Madj", QT_TRANSLATE_NOOP("ProfileReader", "Monochrome adjustment")},
    {"ColorModel", QT_TRANSLATE_NOOP("ProfileReader", "Color mode")},
    {"Crep", QT_TRANSLATE_NOOP("ProfileReader", "Color reproduction")},
    {"RCM", QT_TRANSLATE_NOOP("ProfileReader", "Color conversion")},
    {"Smoothing", QT_TRANSLATE_NOOP("ProfileReader", "VRS")},
    {"GBTn", QT_TRANSLATE_NOOP("ProfileReader", "Print grays with black toner")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Publishing"), genericKeyword},
    {"BqCoverModeEnabled", QT_TRANSLATE_NOOP("ProfileReader", "Cover mode")},
    {"BqPageInsertEnabled", QT_TRANSLATE_NOOP("ProfileReader", "Page insert")},
    {"BqIntLvEnabled", QT_TRANSLATE_NOOP("ProfileReader", "Transparency interleaving")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Job")},
    {"BXCollate1", QT_TRANSLATE_NOOP("ProfileReader", "Job settings")},
    {"BqManagment", QT_TRANSLATE_NOOP("ProfileReader", "Job accounting")},
    {"CustomJobName", QT_TRANSLATE_NOOP("ProfileReader", "Job name")},
    {"EMailNotification", QT_TRANSLATE_NOOP("ProfileReader", "Job e-mail notification")},
    {"UserLogin", QT_TRANSLATE_NOOP("ProfileReader", "User login")},

    {nullptr, QT_TRANSLATE_NOOP("ProfileReader", "Watermark")},
    {"Wren", QT_TRANSLATE_NOOP("ProfileReader", "Watermark")},
    {"Wtxt", QT_TRANSLATE_NOOP("ProfileReader", "Text")},
};

// A name, the same in every language; heading and label alike.
constexpr char policyName[] = "Fleet Keeper";

/// A key of the pages that is no option: its value is shown as on or off.
struct Switch
{
    const char *keyword;
    const char *on; ///< the value that stands for on
};

constexpr Switch switches[] = {
    {"BqCoverModeEnabled", "True"}, {"BqPageInsertEnabled", "True"}, {"BqIntLvEnabled", "True"},
    {"UserLogin", "True"},          {policyKeyword, "ON"},
};

/// What the factory settings leave off without any option to say so.
constexpr const char *offByDefault[] = {"BqCoverModeEnabled", "BqPageInsertEnabled",
                                        "BqIntLvEnabled", "UserLogin"};

QString translated(const char *text)
{
    return QCoreApplication::translate("ProfileReader", text);
}

QString onOrOff(bool on)
{
    return translated(on ? QT_TRANSLATE_NOOP("ProfileReader", "On")
                         : QT_TRANSLATE_NOOP("ProfileReader", "Off"));
}

/// The text of a value that its option doesn't list: one that a page writes in place of a choice.
QString textOfOwnValue(const QString &key, const QString &value)
{
    if (key == QLatin1String("BXCollate1") && value == QLatin1String("Custom1"))
        return translated(QT_TRANSLATE_NOOP("ProfileReader", "Private print"));
    if (key == QLatin1String("BXCollate1") && value == QLatin1String("Custom2"))
        return translated(QT_TRANSLATE_NOOP("ProfileReader", "Custom box"));
    if (key == QLatin1String("BqManagment") && value != QLatin1String("Default"))
        return onOrOff(true);
    if (key == QLatin1String("JobName") && value != QLatin1String("off"))
        return onOrOff(true);
    if (key == QLatin1String("Wtxt"))
        return translated(QT_TRANSLATE_NOOP("ProfileReader", "Custom watermark"));
    return QStringLiteral("ERROR 1");
}

/// The text of a value of no option.
QString textWithoutOption(const QString &key, const QString &value)
{
    for (const Switch &each : switches) {
        if (key == QLatin1String(each.keyword))
            return onOrOff(value == QLatin1String(each.on));
    }
    if (key == descriptionKeyword)
        return value;
    if (key == QLatin1String("EMailNotification"))
        return value == QLatin1String("off") ? onOrOff(false) : value;
    if (key == QLatin1String("CustomJobName"))
        return onOrOff(true);
    if (key == QLatin1String("ColorModel"))
        return translated(QT_TRANSLATE_NOOP("ProfileReader", "Black & white"));
    return QStringLiteral("ERROR 2");
}

/// `store` is null for a printer without a PPD.
QString shownText(const OptionStore *store, const QString &key, const QString &value)
{
    if (!store)
        return textWithoutPpd;
    const bOption *option = store->find(key);
    if (!option)
        return textWithoutOption(key, value);
    const OptionChoice *choice = option->findChoice(value);
    return choice ? choice->text() : textOfOwnValue(key, value);
}

bool namesModel(const QString &line)
{
    return !line.contains(QLatin1String("Profile")) && line.endsWith(QLatin1Char(']')) &&
           std::any_of(
               std::begin(Maker::modelLineStarts), std::end(Maker::modelLineStarts),
               [&line](const char *start) { return line.startsWith(QLatin1String(start)); });
}

std::unique_ptr<OptionStore> importModel(const QString &modelLine)
{
    QFile ppd;
    const bool counts = OwnFile::openToRead(&ppd, profilePpdPath(modelLine), largestPpd);
    return counts ? importPpdFile(ppd.handle()) : nullptr;
}

struct Entry
{
    QString line;
    QString key; ///< empty unless the line has a key and a value
    QString value;
};

void forEachLine(const QString &path, const std::function<void(const Entry &)> &use)
{
    QTextStream stream(readProfileText(path));
    stream.setCodec("UTF-8");
    Entry entry;
    while (stream.readLineInto(&entry.line)) {
        const int equals = entry.line.indexOf(QLatin1Char('='));
        entry.value = entry.line.mid(equals + 1);
        entry.key = equals < 0 || entry.value.isEmpty() ? QString() : entry.line.left(equals);
        use(entry);
    }
}

} // namespace

QString profilePpdPath(const QString &modelLine)
{
    QString name = modelLine;
    name.remove(QLatin1Char('['));
    name.remove(QLatin1Char(']'));
    name.replace(QLatin1Char(' '), QLatin1Char('_'));
    name.remove(QLatin1String("_BRXL"));
    name.replace(QLatin1String("B/W"), QLatin1String("Monochrome"));
    name.replace(QLatin1String("NV-RATEX"), QLatin1String("NV"));
    return QStringLiteral("/usr/share/brixola/ppd6/") + name + QStringLiteral(".ppd");
}

ProfileDetails readProfile(const QString &path, QString *missing)
{
    ProfileDetails details;
    QString model(QLatin1String(""));
    // By line, so that a file full of such lines has each PPD read once.
    std::map<QString, std::unique_ptr<OptionStore>> stores;
    const OptionStore *store = nullptr;
    forEachLine(path, [&](const Entry &entry) {
        if (namesModel(entry.line)) {
            if (entry.line.contains(QLatin1String(genericKeyword)))
                details.insert(QLatin1String(genericKeyword), Keys::yes);
            if (stores.find(entry.line) == stores.end())
                stores[entry.line] = importModel(entry.line);
            store = stores[entry.line].get();
            model = entry.line.mid(1).chopped(1);
        }
        if (entry.key.isEmpty())
            return;
        if (!store && missing && missing->isNull())
            *missing = model;
        details.insert(entry.key, shownText(store, entry.key, entry.value));
    });
    // A later line of the same key may have found its PPD.
    if (missing && !details.values().contains(textWithoutPpd))
        *missing = QString();
    return details;
}

ProfileDetails factoryDefaults()
{
    ProfileDetails details;
    if (!currentStore)
        return details;
    const QList<bOption *> options = currentStore->optionList();
    for (const bOption *option : options) {
        if (option->isPpdOption())
            details.insert(option->key(),
                           option->defaultChoice() ? option->defaultChoice()->text() : QString());
    }
    if (!currentStore->rasterOrPdfFilter())
        details.insert(QLatin1String(genericKeyword), Keys::yes);
    for (const char *keyword : offByDefault)
        details.insert(QLatin1String(keyword), onOrOff(false));
    return details;
}

QList<ProfileSection> profileSections(const ProfileDetails &details)
{
    QList<ProfileSection> sections;
    QString heading;
    bool shown = true;
    for (const TreeRow &row : treeRows) {
        if (!row.keyword) {
            heading = translated(row.text);
            shown = !row.unless || !details.contains(QLatin1String(row.unless));
            continue;
        }
        const auto detail = details.constFind(QLatin1String(row.keyword));
        if (!shown || detail == details.constEnd())
            continue;
        // The heading comes with its first row.
        if (!heading.isNull())
            sections.append({heading, {}});
        heading.clear();
        const QString text =
            row.keyword == descriptionKeyword ? shownDescription(*detail) : *detail;
        sections.last().rows.append({translated(row.text), text});
    }
    const QString policy = details.value(QLatin1String(policyKeyword), onOrOff(false));
    sections.append({QLatin1String(policyName), {{QLatin1String(policyName), policy}}});
    return sections;
}

QString profileDescription(const QString &path)
{
    QString description;
    forEachLine(path, [&description](const Entry &entry) {
        if (entry.key == descriptionKeyword)
            description = entry.value;
    });
    return description;
}
