// The chance to win a match at the moment when a set has ended, by the sets won and the cards that are left:
// what saves an oracle from playing every simulated match to its end. It is an estimate, fitted to matches of
// the standard strategy against itself (vantri-strength --fit), and never decides anything that is booked.
#pragma once

#include <array>

#include "cards/clsDeckArray.h"

namespace kv {

using HandCards = std::array<CardCode, kHandSize>;  // played slots empty, or "00"

struct BetweenSets {
  int ownWins = 0;
  int otherWins = 0;
  HandCards own;
  HandCards other;
  bool ownStarts = false;
};

/// What the estimate looks at: of either side how many cards of each of ten kinds, whether there are two,
/// three, four, and how many changes up and down one of them can make; then both sides' changes down
/// together, who starts, and one.
inline constexpr std::size_t kBetweenTerms = 35;
using BetweenTerms = std::array<double, kBetweenTerms>;
[[nodiscard]] BetweenTerms TermsOf(const BetweenSets& at);

/// 1 or 0 once a side has three sets.
[[nodiscard]] double ChanceToWin(const BetweenSets& at);

}  // namespace kv
