#pragma once

#include "outcome.h"

// What a user does with mouse and keyboard. Each function checks that a user could do it now
// (the widget is shown, enabled, not covered, not behind a modal window), and gives the action to
// run after the reply. Events go to the target's window, as the window system sends them.

/// One mouse click, or two with "double", on the target or a part of it.
Outcome prepareClick(const QJsonObject &request);

/// Opens the target, a combo box, and clicks the item in the list.
Outcome prepareChoose(const QJsonObject &request);

/// Types "text" into the widget that has the keyboard.
Outcome prepareType(const QJsonObject &request);

/// Presses the key combination "keys".
Outcome prepareKey(const QJsonObject &request);

/// Makes the window of the target, or the front window, the active one.
Outcome prepareActivate(const QJsonObject &request);

/// Closes the window of the target, or the front window, as its frame's close button would.
Outcome prepareClose(const QJsonObject &request);
