#pragma once

#include <QCoreApplication>
#include <QString>

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
    /// Shows a translated text in which "\n", written as two characters, breaks the line.
    static void setRichText(QLabel *label, const QString &text);
};
