#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

/// What the two adjustment dialogs are put together from.
namespace AdjustmentWidgets {

/// What a row accepts.
struct Limits
{
    int sliderEnd;       ///< the slider goes from minus this to this
    int maxLength;       ///< of the text
    const char *pattern; ///< regular expression for the text; accepts every prefix too
};

/// The two widgets of a value. Nothing is connected yet.
struct Row
{
    QLineEdit *edit = nullptr;
    QSlider *slider = nullptr;
};

/// `name` is what a screen reader calls both widgets.
Row makeRow(QWidget *parent, const QString &name, const Limits &limits);
/// Puts label and text into a row of the grid and the slider into the next one.
void place(QGridLayout *grid, int gridRow, QLabel *label, const Row &row);

} // namespace AdjustmentWidgets
