#pragma once

class QProcess;
class QString;

/// External commands that the panel runs and waits for.
///
/// A command is a program and its arguments in one text, split at blanks; double quotes keep blanks
/// together and vanish. No shell is involved. These are all, with what each may hold:
///
/// - `lpoptions -p QUEUE -o KEY=VALUE ...`: a queue that is one word; the user's keys and values
/// - `find HOME`: a home directory that is one word
/// - `rm -f PATH`, `cp PATH.tmp PATH`: paths below the home directory that are one word
/// - `rm -f "PATH"`, `mv "PATH" "PATH"`: profiles, double quotes in them tripled
///
/// What is to be one word and isn't, by isOneWord(), is passed over. lpstat and the root-only tool
/// go through a shell: see PrinterStatusReader and PpdWriter.

/// How long the panel waits for a command, in ms.
constexpr int longestCommandWait = 30000;

/// What a process is waited for.
enum class Until
{
    Output, ///< that can be read, or its end
    End
};

/// Whether a text comes out of the splitting as it went in: others could have named a file so that
/// its pieces are arguments of their own.
bool isOneWord(const QString &text);

/// Starts the command with its input and output connected. A command that can't be started leaves
/// the process not running.
void startCommand(QProcess *process, const QString &command);
/// Waits in an event loop, so that windows are drawn meanwhile. Whoever calls it sees to it that
/// nothing else gets in between: see BusyGuard.
/// \param longest in ms
void waitInLoop(QProcess *process, Until until, int longest);
/// Runs the command to its end, and kills it after `longestCommandWait`. False if it could not be
/// started or had to be killed; the exit status is not looked at.
bool runCommand(QProcess *process, const QString &command);
/// The same with waitInLoop().
bool runCommandInLoop(QProcess *process, const QString &command);
