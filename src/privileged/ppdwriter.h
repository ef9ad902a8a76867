#pragma once

#include <QByteArray>
#include <QString>

/// How the root-only tool `bixPPDWrite_F` is reached: a shell line for `sudo` or `su`.
///
/// The tool takes the printer and "keyword=value" pairs, rewrites the defaults of the queue's PPD
/// and ends with 0. It has to be on the search path that root gets.
namespace PpdWriter {

constexpr char tool[] = "bixPPDWrite_F";

/// True if shell and tool take printer and pairs for what they are: letters, digits and
/// "_-.+@:,/%=" alone, no "-" in front of the printer, and every pair with a "=". `arguments`: the
/// pairs, a blank after each. Else `culprit` is what they don't, if it is given.
bool areHarmless(const QString &printer, const QString &arguments, QString *culprit = nullptr);

/// Whether the tool lies where root's search path usually leads, or this user's.
bool isToolInstalled();

/// The shell line. The password stands between double quotes as it is, so the shell acts on
/// quotes, dollar signs, backslashes and backquotes in it.
/// \param prefix what runs the tool as root: with "sudo" in it the tool's words follow it, else
///        they become one word behind it
/// \return with the password in the local 8-bit encoding and all else in UTF-8, in a buffer with no
///         copy of it left elsewhere
QByteArray commandLine(const QString &password, const QString &prefix, const QString &printer,
                       const QString &arguments);

/// Runs a shell line and waits for its end. Reads at most three lines of what it writes, then
/// closes its output.
/// \return the exit status; 1 if the line can't be run or a signal ends its shell
int run(const char *line);

} // namespace PpdWriter
