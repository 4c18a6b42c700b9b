// A clock that runs several times as fast as the one behind it: two peers that hurry alike play a match in a
// second or two, with everything in its order.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>

#include "platform/Scheduler.h"

namespace kv {

class HastyScheduler final : public Scheduler {
 public:
  /// `behind` must outlive it; `times` is at least 1. Timers keep the interval they are made with.
  HastyScheduler(Scheduler& behind, int times) : behind_(behind), times_(times) {}

  [[nodiscard]] std::uint32_t timeGetTime() const override {
    return behind_.timeGetTime() * static_cast<std::uint32_t>(times_);
  }
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int intervalMs, std::function<void()> tick) override {
    return behind_.NewTimer(std::max(1, intervalMs / times_), std::move(tick));
  }
  [[nodiscard]] bool Pause(int milliseconds, const Lifetime& owner) override {
    return behind_.Pause(milliseconds / times_, owner);
  }
  [[nodiscard]] int PauseDepth() const override { return behind_.PauseDepth(); }

 private:
  Scheduler& behind_;
  int times_;
};

}  // namespace kv
