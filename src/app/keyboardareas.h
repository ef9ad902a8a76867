#pragma once

#include <QList>

class BixTabWidget;
class NoticeLine;
class QPushButton;
class QWidget;

/// The ways of the keyboard through the main window: F6 goes round the list of pages, the page and
/// the rows below it, the Tab key walks within the rows. Within a page it is the page's own.
///
/// The buttons of the rows take no focus by the mouse, so that a click on them leaves it where it
/// was.
class KeyboardAreas
{
public:
    /// All are borrowed. `buttons` are in the order of the walk; the line comes first, while it has
    /// a link.
    KeyboardAreas(BixTabWidget *tabs, NoticeLine *notice, const QList<QPushButton *> &buttons);

    /// To the next area, or the one before.
    void goRound(bool next) const;
    /// Moves on within the rows; false if the focus is elsewhere.
    bool walk(bool next) const;
    /// Presses the push button that has the focus; false if none has.
    static bool pressFocused();

private:
    enum Area
    {
        List,
        Page,
        Rows,
        AreaCount
    };

    QList<QWidget *> stops() const;
    Area current() const;

    BixTabWidget *const tabs;
    NoticeLine *const notice;
    const QList<QPushButton *> buttons;
};
