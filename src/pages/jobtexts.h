#pragma once

#include <QCoreApplication>
#include <QString>

class BixCheckBoxButton;
class QLabel;

/// What the groups of the page "Job" share in words.
class JobTexts
{
    Q_DECLARE_TR_FUNCTIONS(JobTab)

public:
    /// Accepts up to 64 characters without a double quote, the first of them no blank.
    static constexpr char nameOfAtMost64[] = "^[^\" ][^\"]{63}$";

    static QString doubleQuoteText()
    {
        return tr("Value cannot contain the double quote (\") character.");
    }
    /// A longer caption in two lines as even as can be, broken at a blank or behind a hyphen.
    static QString inTwoLines(const QString &caption);
    /// Puts a caption below the button's picture, in two lines if it is long: the captions would
    /// take the room of the inputs. Screen readers get it whole.
    static void setCaption(BixCheckBoxButton *button, const QString &caption);
    /// Shows a translated text in which "\n", written as two characters, breaks the line.
    static void setRichText(QLabel *label, const QString &text);
};
