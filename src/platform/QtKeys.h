// From the toolkit's keys to the virtual-key codes of the key bindings, and from those to names.
#pragma once

#include <QString>

class QAbstractButton;
class QKeyEvent;

namespace kv {

/// The virtual-key code of a pressed key, or 0 for a key that has none. Letters and digits go by their place
/// on the keyboard where the layout gives another character (a shifted digit, a Cyrillic letter).
[[nodiscard]] int VirtualKey(const QKeyEvent& event);
/// The same for a Qt::Key alone; `keypad` tells whether it is on the number block.
[[nodiscard]] int VirtualKey(int qtKey, bool keypad);
/// What the key is called on the options screen ("A", "Space", "Num 4"); empty for a code without a key.
[[nodiscard]] QString KeyName(int virtualKey);

/// The Return key and the keypad's Enter.
[[nodiscard]] bool IsEnter(int qtKey);
/// What a pressed key does to a button that has the focus: Enter clicks it, Space too if `spaceToo` (the
/// toolkit would wait for its release), once for each press. False for any other key: nothing is done then.
[[nodiscard]] bool ClickByKey(QAbstractButton& button, const QKeyEvent& event, bool spaceToo = false);

}  // namespace kv
