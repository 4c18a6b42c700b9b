// How a match is booked: by whoever keeps the book, and told as it is done. It decides neither who has won
// nor when.
#pragma once

#include <cstdint>
#include <functional>

#include "match/MatchPartners.h"
#include "match/MatchTeller.h"

namespace kv {

class MatchBook {
 public:
  /// All three must outlive this.
  MatchBook(clsGame& game, MatchBooking& booking, const MatchTeller& teller)
      : game_(game), booking_(booking), teller_(teller) {}

  /// A box may have been open, and the screen closed, when one of these returns.
  void Result(Seat winner);
  /// The last match, booked as lost, is won after all.
  void TurnLossIntoWin();
  /// The match ends without a winner; `settle` does what is to be done with the stake.
  void BrokenOff(const std::function<void()>& settle);

 private:
  template <typename Settle>
  void Book(event::Result result, const Settle& settle);
  [[nodiscard]] std::int32_t Credits() const;

  clsGame& game_;
  MatchBooking& booking_;
  const MatchTeller& teller_;
  std::int32_t stake_ = 0;  // of this match, in credits
};

}  // namespace kv
