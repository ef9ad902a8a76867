#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What a step of a script leads to: why a user could not do it now, or what is done after the
/// answer has left. A click can open a modal dialog and so come back much later.
struct Step
{
    QString error;
    std::function<void()> action; ///< empty if nothing is left to do
};

/// What a user does with mouse and keyboard: click, doubleclick, check, uncheck, tab, row,
/// doublerow, pick, choose, type, press, paste, close, activate, grab. CONTRIBUTING says what each
/// takes.
///
/// Checks that a user could do it now (the widget is shown, enabled, not covered, not behind a
/// modal window). Events go to the target's window, as the window system sends them.
Step prepareStep(const QStringList &words);
