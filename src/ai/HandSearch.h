// Searching a hand for the card that makes a wanted change, over plain values: what the operations of a
// strategy compute, without a match behind them.
#pragma once

#include <span>
#include <string_view>

#include "cards/clsDeckArray.h"

namespace kv {

/// A played slot: "00" in the opponent's hand, empty in the player's.
[[nodiscard]] inline bool IsEmptySlot(const CardCode& code) {
  return code.noCard();
}

/// Cards left in entries 1 to 4.
[[nodiscard]] int CountHand(const clsDeckArray& hand);

/// The first of entries 1 to 4 that begins with `type`, to the letter; 0 if none.
[[nodiscard]] int FindHandType(const clsDeckArray& hand, std::string_view type);

/// `total` with twice every table value of absolute value a or b taken off. Every card of that value turns
/// here, also those that a real 2&4 or 3&6 card leaves alone.
[[nodiscard]] int TestInvert(std::span<const CardCode> table, int total, int a, int b);

/// The first of entries 1 to 4 that would change the total by `change`, or 0. Its code is rewritten to the
/// sign that makes this change; a minus card written without its sign counts as written.
[[nodiscard]] int FindHandCard(clsDeckArray& hand, std::span<const CardCode> table, int total, int change);

}  // namespace kv
