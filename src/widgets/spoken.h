#pragma once

#include <QList>

class QString;
class QWidget;

/// What a screen reader says of the panel's controls: what a person calls them.
///
/// The accessible names of many widgets are identifiers that the code compares. They stay; what a
/// reader asks for is answered beside them, from what stands on the page: a field is called by its
/// label, a button by its text, a picture button by its value. Nothing of it runs, or is kept,
/// while no reader asks.
namespace Spoken {

/// Answers for all widgets from now on, and tells of them while they show. In a debug build of Qt,
/// which does not bear two answers for a widget, the answers stay Qt's own.
void install();

/// Names a control by other widgets, such as a heading and a label, in this order. A field that has
/// a label right above it or before it needs none of this; a button says them before its own text.
/// With the name come their marks and tool tips, which are all that a BixCheckBoxButton takes: it
/// is named already.
void setLabels(QWidget *control, const QList<QWidget *> &labels);
/// Names a control that no label stands for. A picture without a name decorates and is left out.
void setName(QWidget *control, const QString &name);

/// What a mark says that has no explanation of its own.
QString conflict();

} // namespace Spoken
