#pragma once

#include <QList>
#include <QString>

class QLabel;
class QVariant;
class QWidget;

// The words that a screen reader gets for a widget, taken from what the widget is right now.

namespace Spoken {

/// What a person calls the widget. Null for a kind of widget that is named well without this, empty
/// for one that has no name.
QString nameOf(const QWidget *widget);
/// Reasons, explanations and marks of the widget and its labels; empty if there are none.
QString descriptionOf(const QWidget *widget);
/// The widgets that name this one: those of setLabels(). For a field that nothing is known of, the
/// label that stands right above it, or before it in its row.
QList<QWidget *> labelsOf(const QWidget *widget);
/// The text of setName(); invalid if there was none.
QVariant givenName(const QWidget *widget);

/// Whether the label is a picture without words.
bool isPicture(const QLabel *label);
/// Without the colon and the blanks at its end.
QString withoutColon(const QString &text);

} // namespace Spoken
