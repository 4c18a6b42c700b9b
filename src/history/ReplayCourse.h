// A recorded match as a course of steps that one can go forth and back on: what a screen would show at each,
// and a sentence for it. It plays nothing on: whatever is done with it, no match changes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "history/MatchReplay.h"

namespace kv {

class ReplayCourse {
 public:
  explicit ReplayCourse(const MatchRecord& record);

  [[nodiscard]] std::size_t size() const { return steps_.size(); }
  [[nodiscard]] bool empty() const { return steps_.empty(); }
  /// From 0.
  [[nodiscard]] std::size_t at() const { return at_; }
  [[nodiscard]] bool AtStart() const { return at_ == 0; }
  [[nodiscard]] bool AtEnd() const { return at_ + 1 >= steps_.size(); }
  /// The step; there must be one, as in all that follow.
  [[nodiscard]] const ReplayStep& step() const { return steps_.at(at_); }
  /// "Orrin Vaal draws 4, total 14."
  [[nodiscard]] const std::string& sentence() const { return sentences_.at(at_); }
  /// Whose turn it is; nobody's between the sets.
  [[nodiscard]] std::optional<Seat> turn() const;

  /// Beyond an end it stays there.
  void GoTo(std::size_t step);
  void Forth() { GoTo(at_ + 1); }
  void Back() { GoTo(at_ - (AtStart() ? 0 : 1)); }
  /// To the next beginning of a set, or the end.
  void NextSet();
  /// How many sets there are, and the one that is shown; 0: none has begun.
  [[nodiscard]] std::size_t sets() const { return beginnings_.size(); }
  [[nodiscard]] std::size_t set() const;
  /// To the beginning of set 1 to sets(); any other is no set to go to.
  void GoToSet(std::size_t set);
  /// To the beginning of this set, or of the one before when it is there already.
  void SetBefore();

 private:
  [[nodiscard]] bool BeginsSet(std::size_t step) const;

  std::vector<ReplayStep> steps_;
  std::vector<std::string> sentences_;
  std::vector<std::size_t> beginnings_;  // of the sets, as steps
  std::size_t at_ = 0;
};

}  // namespace kv
