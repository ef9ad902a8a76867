#pragma once

#include <QString>

class QComboBox;
class QWidget;

/// Where a greyed control says why: in its tool tip, below the one that it has of its own, and in
/// its accessible description. Both are written only when something changes.
///
/// Texts are plain, whatever characters they hold.
namespace ReasonTip {

/// Shows the reason; an empty one takes it away.
void set(QWidget *widget, const QString &reason);
/// The same for a control that is greyed; one that can be used has no reason.
void setIfGrey(QWidget *widget, const QString &reason);
/// The same for each input below a widget, apart from what stands in windows of its own.
void setIfGreyBelow(QWidget *widget, const QString &reason);
/// The reason that a control shows; empty for none.
QString of(const QWidget *widget);

/// Shows the reason on an item of the list.
void setItem(QComboBox *box, int index, const QString &reason);
/// The reason that an item shows; empty for none.
QString ofItem(const QComboBox *box, int index);

} // namespace ReasonTip
