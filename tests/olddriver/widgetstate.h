#pragma once

#include "outcome.h"

/// "state" of the target, shown or hidden: class, name, text and what its class has to tell.
/// Rectangles are [x, y, width, height] in the coordinates of the widget's window.
Outcome queryState(const QJsonObject &request);

/// "headers", "rows" (texts by row and column), "currentRow" and "currentColumn" (-1 if none),
/// "selectedRows" and "columnWidths" of the target, an item view.
Outcome queryTable(const QJsonObject &request);

/// "tabs" of the target, or of the first shown tab bar: text, enabled, current, rect. A page that
/// takes no room in the bar has an empty rectangle.
Outcome queryTabs(const QJsonObject &request);

/// "windows", from front to back: class, title, visible, active, modal, rect on the screen.
Outcome queryWindows(const QJsonObject &request);

/// "messageBox" on the screen: title, text, informativeText, buttons without mnemonics; an empty
/// object if there is none.
Outcome queryMessageBox(const QJsonObject &request);

/// Saves a picture as the PNG file "path"; "size" is what was saved, in pixels.
Outcome grabToFile(const QJsonObject &request);
