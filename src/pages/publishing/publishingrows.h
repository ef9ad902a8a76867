#pragma once

#include <QCoreApplication>

/// Names, keywords and texts of the widgets of the page "Publishing", each table in the order of
/// its enumeration in PublishingTab.
namespace PublishingRows {

/// A catalogue may shorten a caption, but not the heading with the same words.
struct CaptionText
{
    const char *text;
    const char *comment;
};

struct ModeRow
{
    const char *headingName;
    const char *buttonName;
    const char *keyword;
    const char *text; // of the heading
    CaptionText caption;
    const char *icon;
    const char *mediaLabelName;
    const char *mediaBoxName;
    const char *mediaKeyword;
    const char *mediaText;
};

constexpr ModeRow modeRows[] = {
    {"lblCvrMode", "chkButCvr", "cCovBut", QT_TRANSLATE_NOOP("PublishingTab", "Cover mode:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Cover mode:", "caption"), ":/icons/covermode", "lblCvrM",
     "cmbBxCvrM", "CvrM", QT_TRANSLATE_NOOP("PublishingTab", "Media for cover:")},
    {"lblPins", "chkButPins", "cInsBut", QT_TRANSLATE_NOOP("PublishingTab", "Page insert:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Page insert:", "caption"), ":/icons/pageinsert",
     "lblPMed", "cmbBxPMed", "Pmed", QT_TRANSLATE_NOOP("PublishingTab", "Media for page:")},
    {"lblTint", "chkButTint", "cIntBut",
     QT_TRANSLATE_NOOP("PublishingTab", "Transparency interleaving:"),
     QT_TRANSLATE_NOOP3("PublishingTab", "Transparency interleaving:", "caption"),
     ":/icons/transparency", "lblTMed", "cmbBxTMed", "Tmed",
     QT_TRANSLATE_NOOP("PublishingTab", "Media for backing:")},
};

struct TextRow
{
    const char *name;
    const char *text;
};

constexpr TextRow sidesRows[] = {
    {"rdButCvrFront", QT_TRANSLATE_NOOP("PublishingTab", "Front")},
    {"rdButCvrFrontBack", QT_TRANSLATE_NOOP("PublishingTab", "Front and back")},
};

// The first four are the bits of the code for the sides of a cover, from 1 upwards; the next two
// those of the code for inserted sheets.
constexpr TextRow printRows[] = {
    {"chkBxCvrFrontOut", QT_TRANSLATE_NOOP("PublishingTab", "Outside")},
    {"chkBxCvrFrontIn", QT_TRANSLATE_NOOP("PublishingTab", "Inside")},
    {"chkBxCvrBackOut", QT_TRANSLATE_NOOP("PublishingTab", "Outside")},
    {"chkBxCvrBackIn", QT_TRANSLATE_NOOP("PublishingTab", "Inside")},
    {"chkBxPinsPrintOntoFront", QT_TRANSLATE_NOOP("PublishingTab", "Print onto front")},
    {"chkBxPinsPrintOntoBack", QT_TRANSLATE_NOOP("PublishingTab", "Print onto back")},
    {"chkBxTintPrintOnto", QT_TRANSLATE_NOOP("PublishingTab", "Print onto backing")},
};

constexpr TextRow captionRows[] = {
    {"lblCvrPrintOnto", QT_TRANSLATE_NOOP("PublishingTab", "Print onto:")},
    {"lblCvrFront", QT_TRANSLATE_NOOP("PublishingTab", "Front")},
    {"lblCvrBack", QT_TRANSLATE_NOOP("PublishingTab", "Back")},
    {"lblPinsPage", QT_TRANSLATE_NOOP("PublishingTab", "Insert before pages:")},
    {"lblPinsPageError", QT_TRANSLATE_NOOP("PublishingTab", "Generic error message")},
};

} // namespace PublishingRows
