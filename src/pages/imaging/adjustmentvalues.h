#pragma once

#include <QPair>
#include <QString>
#include <QVector>

/// What the two adjustment dialogs store, and how they turn slider positions into texts and back.
///
/// Each value is stored twice: coarse, in the whole steps that the printer knows, and exact, under
/// the same key with an "f" before it, which the dialogs load again.
namespace AdjustmentValues {

/// Keys and texts to be stored, in order.
using Pairs = QVector<QPair<QString, QString>>;

QString exactKey(const QString &key);

/// True if the printer has this adjustment option and it is on.
bool isCustom(const QString &keyword);
/// Selects a choice; without effect if the printer lacks it.
void select(const QString &keyword, const QString &key);
/// Selects what the current settings file holds for the option, `otherwise` if it holds nothing.
void selectSaved(const QString &keyword, const QString &otherwise);

/// What a text means; 0 for anything but a finite number.
double number(const QString &text);
/// `value` times `scale` without its fraction; beyond what a slider can hold, the nearest end.
int sliderPosition(double value, int scale);
/// Up to six significant digits, without zeros at the end.
QString exactText(double value);
QString exactText(int position, int scale);
/// The whole steps of `scale` in a position, and `tail` behind them: 250 in hundreds with ".0" is
/// "2.0".
QString coarseText(int position, int scale, const char *tail);

} // namespace AdjustmentValues
