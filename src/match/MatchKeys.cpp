#include "match/MatchKeys.h"

namespace kv {
namespace {

// Rows of the key table.
constexpr int kTurnRow = 1;  // column 1 end turn, column 2 stand
constexpr int kPlayRow = 2;
constexpr int kFirstFlipRow = 3;
constexpr int kSecondFlipRow = 4;

/// The first hand card whose button is shown and bound to the key; 0 if none.
int FlipSlot(const clsCardArray& keys, int row, int keyCode, const std::array<bool, kHandSize>& shown) {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (shown.at(static_cast<std::size_t>(slot) - 1) && keys.Value(row, slot) == keyCode) return slot;
  }
  return 0;
}

KeyAction FlipAction(KeyCommand command, int slot) {
  return slot == 0 ? KeyAction{} : KeyAction{command, slot};
}

KeyAction PlayKey(const clsCardArray& keys, int slot, KeyModifiers held, const FlipsShown& flips) {
  const bool first = (held.shift && !IsBoundKey(keys, KeyShift)) || (held.alt && !IsBoundKey(keys, KeyAlt));
  const bool second = held.control && !IsBoundKey(keys, KeyControl);
  // The slot is named by its play key: whatever its flip keys are, and whether it has any, is of no concern.
  const std::size_t at = static_cast<std::size_t>(slot) - 1;
  if (first) return FlipAction(KeyCommand::FirstFlip, flips.first.at(at) ? slot : 0);
  if (second) return FlipAction(KeyCommand::SecondFlip, flips.second.at(at) ? slot : 0);
  return {KeyCommand::Play, slot};
}

}  // namespace

bool IsBoundKey(const clsCardArray& keys, int keyCode) {
  bool found = false;
  if (keyCode > 0 && keyCode <= INT16_MAX) keys.searchFor(static_cast<std::int16_t>(keyCode), found);
  return found;
}

KeyAction KeyActionOf(const clsCardArray& keys, int keyCode, KeyModifiers held, const FlipsShown& flips) {
  if (!IsBoundKey(keys, keyCode)) return {};
  if (keys.Value(kTurnRow, 1) == keyCode) return {KeyCommand::EndTurn};
  if (keys.Value(kTurnRow, 2) == keyCode) return {KeyCommand::Stand};
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (keys.Value(kPlayRow, slot) == keyCode) return PlayKey(keys, slot, held, flips);
  }
  const int first = FlipSlot(keys, kFirstFlipRow, keyCode, flips.first);
  if (first != 0) return {KeyCommand::FirstFlip, first};
  return FlipAction(KeyCommand::SecondFlip, FlipSlot(keys, kSecondFlipRow, keyCode, flips.second));
}

}  // namespace kv
