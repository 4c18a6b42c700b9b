// The review of a recorded match: its turns as positions, and a thread that weighs the person's decisions
// beside the window. The thread ends with its owner, at once and wherever it is.
#pragma once

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "history/MatchRecord.h"
#include "match/Review.h"

namespace kv {

inline constexpr int kReviewMatches = 4000;  // for each decision

/// The turns of both sides as far as the record can be played again. Of the opponent's hand nothing is used.
[[nodiscard]] std::vector<PlayedTurn> TurnsOf(const MatchRecord& record);
/// What the review takes for the deck of an opponent whose deck is not known, in a sentence; empty: it is
/// known.
[[nodiscard]] std::string AssumptionText(const MatchRecord& record);
/// How many of them are the person's: the decisions of a review.
[[nodiscard]] std::size_t DecisionsIn(const std::vector<PlayedTurn>& turns);

/// "Set 2. Stood on 17 against a standing 18: 0 %; playing +2 wins 41 %. 95 % intervals: 0 to 1 %, 38 to 44
/// %."
[[nodiscard]] std::string DecisionText(const MatchPosition& position, const ReviewedTurn& turn);
/// "41 %", "2 %, within chance", or "none" for the best move.
[[nodiscard]] std::string CostText(const ReviewedTurn& turn);
/// The rows of a list: the dear decisions first, the dearest of all at the top; the others follow by cost.
[[nodiscard]] std::vector<std::size_t> ByCost(const std::vector<ReviewedTurn>& turns);

class BackgroundReview {
 public:
  /// Begins at once.
  BackgroundReview(std::vector<PlayedTurn> turns, int matches);
  /// Stops the thread and waits for its end: a simulated match at the most.
  ~BackgroundReview() { stop_ = true; }

  /// What was weighed since it was last asked, in the order of the match.
  [[nodiscard]] std::vector<ReviewedTurn> Take();
  /// Nothing will come any more; asked before Take, that has all the rest.
  [[nodiscard]] bool done() const { return done_; }
  /// Waits until everything is weighed.
  void Wait() { thread_.join(); }

 private:
  std::atomic<bool> stop_ = false;
  std::atomic<bool> done_ = false;
  std::mutex mutex_;
  std::vector<ReviewedTurn> weighed_;  // under the mutex
  std::jthread thread_;                // the last: it ends before what it uses
};

}  // namespace kv
