#pragma once

#include <QStringList>

class QWidget;

/// What all shown windows say, a line "KEY<tab>VALUE" each: the front window's title and text, the
/// tabs that take room in the bar, and each widget with an accessible name, on pages in the
/// background too. Two texts in one value are parted by "|", line feeds are blanks.
///
/// "NAME" is a control's value, in quotes if a user can type it, with "grey", "hidden" and "marked"
/// behind it as they fit; "NAME.items" and "NAME.blocked" are all items of a combo box or buttons
/// of a group, and those that can't be picked, or the lines of a tree. "nameless" are the classes
/// of a dialog's controls that a screen reader has no name for.
QStringList windowState();

/// A property of a widget as text; "color" is that of its text, of a button group its label;
/// "heading" is the first line of a long text, "toolTip of VALUE" that of an item or a button of a
/// group.
QString propertyText(const QWidget *widget, const QString &property);
