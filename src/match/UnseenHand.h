// The hand that a side cannot see, drawn as it may be: from the other side's deck without what it has played.
#pragma once

#include <vector>

#include "match/MatchPosition.h"
#include "platform/Random.h"

namespace kv {

class UnseenHand {
 public:
  /// Of the side that is not to move. Without a known deck it is the one that a network player starts with.
  explicit UnseenHand(const MatchPosition& position);
  /// Deals the cards that are left in that hand anew, sorted as a strategy's hand is.
  void Deal(MatchPosition& position, Random& random);

 private:
  std::vector<CardCode> rest_;  // of the deck
  int held_ = 0;                // cards in the hand
};

/// A minus card written without its sign gets it, so that a strategy finds it.
[[nodiscard]] CardCode Signed(const CardCode& card);

}  // namespace kv
