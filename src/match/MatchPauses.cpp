#include "match/MatchPauses.h"

#include <utility>

namespace kv {

bool MatchPauses::Wait(double milliseconds) {
  const std::uint32_t epoch = epoch_;
  ++open_;
  const bool passed = view_.Pause(static_cast<int>(milliseconds));
  --open_;
  return passed && !closed_ && epoch == epoch_;
}

void MatchPauses::WhenQuiet(std::function<void()> act) {
  if (open_ == 0) {
    act();
    return;
  }
  whenQuiet_ = std::move(act);
  view_.RunTimer(MatchTimer::Quiet, true);
}

void MatchPauses::QuietTick() {
  if (open_ > 0) return;
  view_.RunTimer(MatchTimer::Quiet, false);
  if (!closed_ && whenQuiet_) std::exchange(whenQuiet_, {})();
}

void MatchPauses::Close() {
  closed_ = true;
  MoveOn();
}

}  // namespace kv
