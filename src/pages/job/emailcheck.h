#pragma once

#include <QString>

/// What is wrong with an e-mail address.
enum class EmailFault
{
    None,
    DoubleQuote, ///< would end the option text of a print command
    Empty,
    Format, ///< no "name@host.domain", or a dot at a wrong place
    Blank,
    NotAscii,
};

/// The first fault of an address in the order in which they are worth telling. A quote is found
/// anywhere; of a longer text only the first 128 bytes in UTF-8 count for the rest. This keeps out
/// slips of the keyboard and is no full check of the syntax.
EmailFault checkEmail(const QString &address);
