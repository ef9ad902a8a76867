#pragma once

#include <QRegExpValidator>

/// Accepts what a pattern does, in one line.
///
/// A line edit shows the line breaks of a pasted text as blanks but keeps them, and in a settings
/// file they would begin lines of their own. Here each becomes a blank; where the pattern has no
/// place for one, it goes.
class OneLineValidator : public QRegExpValidator
{
public:
    /// `pattern` in the syntax of QRegExp; the beginning of a match may be typed too.
    OneLineValidator(const QString &pattern, QObject *parent);

    /// Changes the text and its cursor position where there are line breaks.
    State validate(QString &text, int &cursor) const override;
};
