#pragma once

#include <QString>

class QLabel;

/// The error mark that tells of a conflict: an image behind the text of a label.
///
/// A label shows plain text until it is first marked; its text is escaped at that moment, so that
/// what comes from a PPD never acts as rich text. setPlainText() makes it plain again.
///
/// The image is put in with a blank before it. Most removals take it out without that blank, which
/// stays behind until the text is set anew; both kinds are needed.
namespace ConstraintMark {

/// The icon ":/icons/error" for widgets other than labels.
constexpr char icon[] = ":/icons/error";

/// Shows the text as it is, whatever characters it holds, without a mark.
void setPlainText(QLabel *label, const QString &text);
/// What a person reads in the label, marks left out.
QString plainText(const QLabel *label);
void append(QLabel *label);
/// Takes the image out with the blank before it.
void remove(QLabel *label);
/// Takes the image out and leaves the blank.
void removeImage(QLabel *label);
/// A tool tip that explains the mark, in the panel's colours; an empty text takes it away. The
/// style sheet of the label, if it has one, must name its selectors.
void explain(QLabel *label, const QString &toolTip);

} // namespace ConstraintMark
