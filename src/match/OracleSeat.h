// A seat with an oracle on it: the strategy, the adviser it asks, and the follower that knows the match.
// Before each match it must be told who sits where, and it must be told what happens in it.
#pragma once

#include "ai/clsAI_Oracle.h"
#include "match/PositionFollower.h"
#include "platform/Random.h"

namespace kv {

class OracleSeat final : public MatchObserver, private MoveAdviser {
 public:
  /// So many simulated matches a decision.
  explicit OracleSeat(int matches) : matches_(matches) {}
  OracleSeat(OracleSeat&&) = delete;

  /// A match is about to begin; `seed` decides its simulations. `otherDeck` is what the other side
  /// is dealt from, if that is known.
  void SitDown(Seat seat, const std::optional<clsDeckArray>& otherDeck, int turnMode, std::uint64_t seed);
  void Happened(const MatchEvent& event) override { follower_.Happened(event); }
  [[nodiscard]] Strategy& strategy() { return strategy_; }

 private:
  [[nodiscard]] TurnMove Advise() override;

  int matches_;
  PositionFollower follower_;
  SeededRandom random_{0};
  clsAI_Oracle strategy_{*this};
};

}  // namespace kv
