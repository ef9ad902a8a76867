#pragma once

class QAbstractButton;
template <typename T>
class QList;

namespace Mnemonics {

/// Gives each of the buttons a letter of its text to be pressed with Alt, no letter twice, in
/// whatever language they are. One without a free letter has none. Buttons in front choose first.
void give(const QList<QAbstractButton *> &buttons);

} // namespace Mnemonics
