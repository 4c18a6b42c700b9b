// The pauses of a match: they go on handling events, so while one is under way anything may happen. Whoever
// waits learns whether the match is still where it was; nothing here knows what is waited for.
#pragma once

#include <cstdint>
#include <functional>

#include "match/MatchView.h"

namespace kv {

class MatchPauses {
 public:
  /// `view` must outlive this.
  explicit MatchPauses(MatchView& view) : view_(view) {}

  /// False when the pause was cut short or the match has moved on meanwhile: the caller returns at once.
  [[nodiscard]] bool Wait(double milliseconds);
  /// Does `act` as soon as no pause is under way: at once, or when it has ended. A box that opened inside a
  /// pause would hold up the rules, and a peer with them, for as long as it is read.
  void WhenQuiet(std::function<void()> act);
  /// The tick of MatchTimer::Quiet.
  void QuietTick();
  /// Whatever runs or waits at the moment has lost its ground.
  void MoveOn() { ++epoch_; }
  /// The screen is closing for good: no pause goes on, and nothing waits any more.
  void Close();
  [[nodiscard]] bool closed() const { return closed_; }
  /// Changes whenever the match moves on.
  [[nodiscard]] std::uint32_t epoch() const { return epoch_; }

 private:
  MatchView& view_;
  std::uint32_t epoch_ = 0;
  int open_ = 0;                     // under way, one in another
  std::function<void()> whenQuiet_;  // what waits for their end
  bool closed_ = false;
};

}  // namespace kv
