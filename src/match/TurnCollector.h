// Collects the turns of a match as it is played, or as its events are told again, for a review.
#pragma once

#include "match/PositionFollower.h"
#include "match/Review.h"

namespace kv {

class TurnCollector final : public MatchObserver {
 public:
  /// As PositionFollower::Tell.
  void Tell(const std::array<std::optional<clsDeckArray>, 2>& decks, int turnMode) {
    follower_.Tell(decks, turnMode);
  }
  void Happened(const MatchEvent& event) override;
  /// Closed turns of both sides, in order. Of a strategy that plays two cards in one, the first counts.
  [[nodiscard]] const std::vector<PlayedTurn>& turns() const { return turns_; }

 private:
  void Close(Seat seat, bool stands);

  PositionFollower follower_;
  std::vector<PlayedTurn> turns_;
  std::optional<PlayedTurn> open_;
};

}  // namespace kv
