// Weighing moves: how often each of them wins the match, by matches of the real engine that are played on
// from a position. What the side to move cannot know is drawn anew for each deal: the other hand and the
// order of the main deck. Nothing of a hand that it does not see is looked at.
#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "ai/TurnMove.h"
#include "match/MatchPosition.h"
#include "platform/Interval.h"
#include "platform/Random.h"

namespace kv {

struct WeighedMove {
  TurnMove move;
  std::int64_t matches = 0;  // played with it
  double wins = 0;           // an estimate counts as a part of one
  double lead = 0;           // wins more than the move that was made, over the same deals
  double leadSquares = 0;    // the sum of the squares of that, deal by deal

  [[nodiscard]] double Chance() const { return matches == 0 ? 0 : wins / static_cast<double>(matches); }
  [[nodiscard]] Interval Within() const { return WilsonInterval(wins, matches); }
  /// How many standard errors it is ahead of the move that was made.
  [[nodiscard]] double Ahead() const;
};

struct WeighTask {
  const MatchPosition& position;
  int matches = 4000;                           // of all moves together
  std::optional<TurnMove> made = std::nullopt;  // a move that is weighed to the end, whatever it is worth
  bool toTheSetOnly = false;  // then an estimate takes the place of the sets to come: quicker, and less even
  const std::atomic<bool>* stop = nullptr;  // set from another thread: no further match is played
};

/// The side to move's possible moves, the best first; `made` among them. Every deal is played with all moves
/// that are still in question, by the same random numbers; half of the moves drop out after each of some
/// equal shares of the matches, so that those near the best are weighed longest. Both sides play on as the
/// standard strategy does. Equal random numbers give equal weights.
[[nodiscard]] std::vector<WeighedMove> Weigh(const WeighTask& task, Random& random);

}  // namespace kv
