// A match that was played, looked at again: what each decision of one side was worth, against the best it
// could have done with what it could know. It works on positions alone and can run beside a window, in a
// thread of its own.
#pragma once

#include <functional>
#include <string>

#include "match/Weigh.h"

namespace kv {

/// One turn of the match, of either side: the position after the draw and what was done.
struct PlayedTurn {
  MatchPosition position;
  TurnMove made;
};

struct ReviewedTurn {
  std::size_t turn = 0;            // index of the played turn
  std::vector<WeighedMove> moves;  // the best first
  std::size_t made = 0;            // index in moves

  [[nodiscard]] const WeighedMove& Made() const { return moves.at(made); }
  [[nodiscard]] const WeighedMove& Best() const { return moves.front(); }
  /// The chance to win that the decision gave away, 0 to 1.
  [[nodiscard]] double Cost() const { return Best().Chance() - Made().Chance(); }
  /// More than the matches' own chance makes of two moves that are equally good.
  [[nodiscard]] bool Dear() const { return Best().Ahead() > kDearErrors; }

  static constexpr double kDearErrors = 3;  // standard errors; a match has some forty decisions
};

struct ReviewPlan {
  Seat seat = Seat::Player;                 // whose decisions are weighed
  int matches = 4000;                       // for each decision
  std::uint64_t seed = 1;                   // equal seeds give equal reviews
  const std::atomic<bool>* stop = nullptr;  // set from another thread: the review ends within one match
  std::function<void(const ReviewedTurn&)> weighed{};  // told of each decision, in the reviewing thread
};

struct Review {
  std::vector<ReviewedTurn> turns;   // in the order of the match; what was weighed before a stop
  std::vector<std::size_t> dearest;  // indices of `turns` that are dear, the dearest first
  bool whole = false;                // not stopped
};

[[nodiscard]] Review ReviewMatch(const std::vector<PlayedTurn>& match, const ReviewPlan& plan);

/// "Ended on 17 against a standing 18: 0 %; playing +2 and standing wins 41 %." The second half is left out
/// where nothing was better.
[[nodiscard]] std::string ReviewWords(const MatchPosition& position, const ReviewedTurn& turn);

}  // namespace kv
