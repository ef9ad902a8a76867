#pragma once

class QProcess;
class QString;

/// External commands that the panel runs and waits for.
///
/// A command is a program and its arguments in one text, split at blanks; double quotes keep blanks
/// together and vanish. No shell is involved.

/// How long the panel waits for a command, in ms.
constexpr int longestCommandWait = 30000;

/// Starts the command with its input and output connected. A command that can't be started leaves
/// the process not running.
void startCommand(QProcess *process, const QString &command);
/// Runs the command to its end, and kills it after `longestCommandWait`. False if it could not be
/// started or had to be killed; the exit status is not looked at.
bool runCommand(QProcess *process, const QString &command);
