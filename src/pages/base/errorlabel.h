#pragma once

class QLabel;
class QWidget;

/// A label for an error message under a field: red, with an invisible border, hidden until there is
/// something to say. `page` becomes its parent.
QLabel *makeErrorLabel(QWidget *page);

/// Gives a label on a page the look of an error message; `fontSize` is in pixels, of type of the
/// usual size.
void styleErrorLabel(QLabel *label, int fontSize);
