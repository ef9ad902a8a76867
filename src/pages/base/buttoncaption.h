#pragma once

#include <QString>

class BixCheckBoxButton;

/// The words below the picture of a check box button. Two columns of inputs leave them little room.
namespace ButtonCaption {

/// A longer caption in two lines as even as can be, broken at a blank or behind a hyphen.
QString inTwoLines(const QString &caption);
/// Shows a caption, in two lines if it is long. Screen readers get `name`, or the whole caption.
void set(BixCheckBoxButton *button, const QString &caption, const QString &name = QString());

} // namespace ButtonCaption
