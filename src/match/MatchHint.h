// What the person could do in this turn: the move that wins most of the matches that are played on from here,
// with what the person can know. It follows the match by its events and never touches it, nor its chance.
#pragma once

#include <string>

#include "match/PositionFollower.h"
#include "match/Weigh.h"

namespace kv {

class clsGame;

class MatchHint final : public MatchObserver {
 public:
  /// `turnMode` is TurnMode_Opt. It must be told of the match from its beginning on.
  MatchHint(const clsGame& game, int turnMode);

  void Happened(const MatchEvent& event) override { follower_.Happened(event); }
  /// While it is the person's turn and a move of it is due; takes some ten milliseconds.
  [[nodiscard]] WeighedMove Best() const;

 private:
  PositionFollower follower_;
};

/// "Hint: play plus 2 and stand; that wins about 64 % of such matches."
[[nodiscard]] std::string HintText(const WeighedMove& best);

}  // namespace kv
