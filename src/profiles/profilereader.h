#pragma once

#include <QHash>
#include <QList>
#include <QString>

/// Turns profiles into text that a user can read: what the detail tree of the profile list shows.
///
/// The printer that a profile was saved for names its options and values; its PPD is looked for in
/// "/usr/share/brixola/ppd6/". The options of the selected printer are never touched.

/// Keyword and shown text of what a profile holds. The keyword "Generic" marks a printer of the
/// generic kind, which has no publishing modes.
using ProfileDetails = QHash<QString, QString>;

/// A row of the tree; the label is translated.
struct ProfileRow
{
    QString label;
    QString text;
};

/// A heading of the tree with its rows.
struct ProfileSection
{
    QString heading;
    QList<ProfileRow> rows;
};

/// The details of a profile's file; empty if it can't be read. The texts of values that can't be
/// named say why: "ERROR 1" for one that its option lacks, "ERROR 2" for one of an unknown option,
/// "ERROR 3" for all of a profile whose printer has no PPD here. Of several lines with a key the
/// last one shows.
/// \param missing becomes the first model that has values but no PPD here, such as "Brixola
/// PX-4500"; empty, but not null, for values before any model
ProfileDetails readProfile(const QString &path, QString *missing = nullptr);

/// The details of the selected printer's default settings; empty with no printer.
ProfileDetails factoryDefaults();

/// The sections of the tree, in order, with those rows that the profile has something for; the last
/// one is always there.
QList<ProfileSection> profileSections(const ProfileDetails &details);

/// A profile's description as its file holds it, also when the profile's printer has no PPD here;
/// null without one.
QString profileDescription(const QString &path);

/// The PPD file that belongs to the line of a profile that names the printer's model, such as
/// "[Brixola PX-4500]".
QString profilePpdPath(const QString &modelLine);
