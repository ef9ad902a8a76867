#pragma once

#include "storage/settingsfile.h"

#include <array>

/// How the page "Publishing" is kept in the settings file: each of its three modes is a switch and
/// a number whose bits say what is printed.
namespace PublishingSettings {

/// Outside and inside of the front, then of the back.
constexpr int coverSides = 4;

struct Cover
{
    bool on;
    bool bothSides; ///< front and back, not the front alone
    bool hasCode;   ///< `printed` was saved
    std::array<bool, coverSides> printed;
};
struct PageInsert
{
    bool on, front, back;
    QString pages; ///< "2,5,9"
};
struct Interleaving
{
    bool on, backing;
};

// From the file of the selected printer or profile.
Cover savedCover();
PageInsert savedPageInsert();
Interleaving savedInterleaving();

// To the file. `media` is the text that a list shows.
void addCover(Settings *settings, bool on, const bool (&printed)[coverSides], bool front,
              bool frontAndBack, const QString &media);
void addPageInsert(Settings *settings, bool on, bool front, bool back, const QString &pages,
                   const QString &media);
void addInterleaving(Settings *settings, bool on, bool backing, const QString &media);

} // namespace PublishingSettings
