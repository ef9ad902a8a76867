#pragma once

#include <QString>

#include <array>

/// Watermark texts and looks in the forms in which settings files and PPDs have them.
namespace Watermark {

/// What a look consists of, in the order in which it is stored.
enum Feature
{
    Font,
    Size,
    Color,
    Angle,
    Style,
    Fill,
    Repeat,
    FeatureCount
};

/// How a watermark looks: for each feature the position in its list; for Repeat 1 or 0.
using Look = std::array<int, FeatureCount>;

/// A custom watermark.
struct Record
{
    QString name;
    Look look{};
};

/// One line of a settings file: "NAME=FONT SIZE COLOR ANGLE STYLE FILL REPEAT".
QString toLine(const Record &record);
/// Reads such a line from its end, since a name may hold "=". Missing numbers, and what is none or
/// too big for one, are 0.
Record fromLine(const QString &line);

/// A custom text as the value of the option: with a backslash before what a PPD or a command would
/// take for its own, in double quotation marks. Marks within the text stay as they are.
QString quotedText(const QString &text);

/// True for a text that comes with every printer, in its usual words. A PPD may word or translate
/// it otherwise; then it is a text of that printer's own.
bool isBuiltInText(const QString &text);
/// The text in a choice that stands for a custom value, "Custom.TEXT" (a CUPS PPD extension); empty
/// for any other key, the names of the built-in texts among them.
QString customText(const QString &key);

} // namespace Watermark
