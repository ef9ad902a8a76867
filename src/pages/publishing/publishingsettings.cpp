#include "pages/publishing/publishingsettings.h"

#include "model/keys.h"

namespace {

// A cover without any printed side, by the chosen sides.
constexpr int blankFront = 16;
constexpr int blankFrontAndBack = 32;

bool isSavedOn(const char *key)
{
    return readSetting(QLatin1String(key)) == Keys::yes;
}

int coverCode(const bool (&printed)[PublishingSettings::coverSides], bool front, bool frontAndBack)
{
    int code = 0;
    for (int side = 0; side < PublishingSettings::coverSides; ++side) {
        if (printed[side])
            code |= 1 << side;
    }
    if (code != 0)
        return code;
    return front ? blankFront : frontAndBack ? blankFrontAndBack : 0;
}

} // namespace

namespace PublishingSettings {

Cover savedCover()
{
    const QString code = readSetting(QStringLiteral("BqCoverModeValue"));
    Cover cover{};
    cover.on = isSavedOn("BqCoverModeEnabled");
    cover.bothSides =
        readSetting(QStringLiteral("BqCovermodeRadioButtonState")) == QLatin1String("2");
    cover.hasCode = !code.isEmpty();
    for (int side = 0; side < coverSides; ++side)
        cover.printed[side] = code.toInt() & 1 << side;
    return cover;
}

PageInsert savedPageInsert()
{
    const int code = qMax(0, readSetting(QStringLiteral("BqPageinsertValue")).toInt());
    return {isSavedOn("BqPageInsertEnabled"), bool(code & 1), bool(code & 2),
            readSetting(QStringLiteral("BqPageinsertNums"))};
}

Interleaving savedInterleaving()
{
    return {isSavedOn("BqIntLvEnabled"),
            readSetting(QStringLiteral("BqIntLvValue")) == QLatin1String("2")};
}

void addCover(Settings *settings, bool on, const bool (&printed)[coverSides], bool front,
              bool frontAndBack, const QString &media)
{
    settings->insert(QStringLiteral("BqCoverModeEnabled"), Keys::yesOrNo(on));
    if (!on)
        return;
    const char *chosen = front ? "1" : frontAndBack ? "2" : "-1";
    settings->insert(QStringLiteral("BqCoverModeValue"),
                     QString::number(coverCode(printed, front, frontAndBack)));
    settings->insert(QStringLiteral("BqCovermodeRadioButtonState"), QLatin1String(chosen));
    settings->insert(QStringLiteral("BQCoverMedia"), media);
}

void addPageInsert(Settings *settings, bool on, bool front, bool back, const QString &pages,
                   const QString &media)
{
    const int code = int(front) + 2 * int(back);
    settings->insert(QStringLiteral("BqPageInsertEnabled"), Keys::yesOrNo(on));
    settings->insert(QStringLiteral("Pins"), Keys::onOrOff(on));
    settings->insert(QStringLiteral("BqPageinsertValue"), QString::number(on ? code : -1));
    if (!on)
        return;
    settings->insert(QStringLiteral("BqPageinsertNums"), pages);
    settings->insert(QStringLiteral("BQPageinsertMedia"), media);
}

void addInterleaving(Settings *settings, bool on, bool backing, const QString &media)
{
    const int code = !on ? 0 : backing ? 2 : 1;
    settings->insert(QStringLiteral("BqIntLvEnabled"), Keys::yesOrNo(on));
    settings->insert(QStringLiteral("BqIntLvValue"), QString::number(code));
    if (on)
        settings->insert(QStringLiteral("BQTransparencyinterleavingMedia"), media);
}

} // namespace PublishingSettings
