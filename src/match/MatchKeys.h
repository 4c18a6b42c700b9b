// What a key press means in a match: the player's key table and the held modifiers turned into one action.
// It decides only what was meant; whether it may be done now is the match's business.
#pragma once

#include <array>
#include <cstdint>

#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"
#include "platform/Keys.h"

namespace kv {

enum class KeyCommand : std::uint8_t { None, EndTurn, Stand, Play, FirstFlip, SecondFlip };

struct KeyAction {
  KeyCommand command = KeyCommand::None;
  int slot = 0;  // hand card 1 to 4 of the last three commands
  friend bool operator==(const KeyAction&, const KeyAction&) = default;
};

/// Which flip buttons are shown, by hand card ([0] is hand card 1).
struct FlipsShown {
  std::array<bool, kHandSize> first{};
  std::array<bool, kHandSize> second{};
};

/// True when the key is bound to anything; then no other use of the key applies.
[[nodiscard]] bool IsBoundKey(const clsCardArray& keys, int keyCode);

/// The action of a key code of the key table. Shift or Alt with a play key means the first flip of that very
/// slot, Control its second, unless the modifier is itself bound to something.
[[nodiscard]] KeyAction KeyActionOf(const clsCardArray& keys, int keyCode, KeyModifiers held,
                                    const FlipsShown& flips);

}  // namespace kv
