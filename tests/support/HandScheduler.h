// A clock that the test turns by hand. Nothing sleeps: Advance and every Pause move the clock themselves and
// fire what falls due on the way, in order. A test acts in the middle of a pause by At or Post:
//
//   scheduler.At(300, [&] { life.Close(); });
//   EXPECT_FALSE(scheduler.Pause(1000, life));  // ends at 300
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Scheduler.h"

namespace kv::test {

class HandScheduler final : public Scheduler {
 public:
  /// Milliseconds since the scheduler was made.
  [[nodiscard]] std::uint32_t timeGetTime() const override { return static_cast<std::uint32_t>(now_); }
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int intervalMs, std::function<void()> tick) override {
    auto timer = std::make_unique<HandTimer>(*this, intervalMs, std::move(tick));
    timers_.push_back(timer.get());
    return timer;
  }
  [[nodiscard]] bool Pause(int milliseconds, const Lifetime& owner) override {
    pauses.push_back(milliseconds);
    ++depth_;
    RunUntil(now_ + std::max(milliseconds, 0), &owner);
    --depth_;
    return !owner.closing() && !ended_;
  }
  [[nodiscard]] int PauseDepth() const override { return depth_; }

  /// Lets time pass: posted calls first, then timers and timed calls as they fall due.
  void Advance(int milliseconds) { RunUntil(now_ + milliseconds, nullptr); }
  /// A call at the next Advance or Pause, as an event that waits in the queue.
  void Post(std::function<void()> call) { At(0, std::move(call)); }
  /// A call in `milliseconds` from now.
  void At(int milliseconds, std::function<void()> call) {
    calls_.push_back({now_ + milliseconds, next_++, std::move(call)});
  }
  /// The program ends: every pause under way and to come returns false.
  void End() { ended_ = true; }
  [[nodiscard]] int RunningTimers() const {
    return static_cast<int>(
        std::count_if(timers_.begin(), timers_.end(), [](const HandTimer* t) { return t->Enabled(); }));
  }

  std::vector<int> pauses;  // every length asked for, in order

 private:
  class HandTimer final : public Timer {
   public:
    HandTimer(HandScheduler& scheduler, int intervalMs, std::function<void()> tick)
        : scheduler_(scheduler), interval_(intervalMs), tick_(std::make_shared<Tick>(std::move(tick))) {}
    ~HandTimer() override { std::erase(scheduler_.timers_, this); }
    void setInterval(int milliseconds) override {
      interval_ = std::max(milliseconds, 1);
      if (enabled_) Start();
    }
    [[nodiscard]] int Interval() const override { return interval_; }
    void setEnabled(bool enabled) override {
      enabled_ = enabled;
      if (enabled) Start();
    }
    [[nodiscard]] bool Enabled() const override { return enabled_; }

   private:
    friend class HandScheduler;
    using Tick = std::function<void()>;

    void Start() {
      due_ = scheduler_.now_ + interval_;
      order_ = scheduler_.next_++;
      tickUnderWay_ = false;
    }
    // A timer does not tick inside its own tick, unless that tick has started it anew.
    [[nodiscard]] bool Ready() const { return enabled_ && !tickUnderWay_; }
    void Fire() {
      const std::shared_ptr<Tick> tick = tick_;  // outlives the timer, should the tick destroy it
      HandScheduler& scheduler = scheduler_;
      Start();
      const std::uint64_t started = order_;
      tickUnderWay_ = true;
      (*tick)();
      const auto& alive = scheduler.timers_;
      if (std::find(alive.begin(), alive.end(), this) != alive.end() && order_ == started) {
        tickUnderWay_ = false;
        due_ = std::max(due_, scheduler.now_);  // ticks missed meanwhile are one tick
      }
    }

    HandScheduler& scheduler_;
    int interval_;
    bool enabled_ = false;
    bool tickUnderWay_ = false;
    std::int64_t due_ = 0;
    std::uint64_t order_ = 0;
    std::shared_ptr<Tick> tick_;
  };

  struct Call {
    std::int64_t due;
    std::uint64_t order;
    std::function<void()> call;
  };

  void RunUntil(std::int64_t target, const Lifetime* owner) {
    while (!ended_ && (owner == nullptr || !owner->closing()) && FireNext(target)) {
    }
    const bool cut = ended_ || (owner != nullptr && owner->closing());
    if (!cut) now_ = std::max(now_, target);
  }

  // Fires what is due next, at the latest at `target`; false when nothing is.
  bool FireNext(std::int64_t target) {
    HandTimer* timer = nullptr;
    for (HandTimer* t : timers_) {
      if (t->Ready() &&
          (timer == nullptr || std::pair(t->due_, t->order_) < std::pair(timer->due_, timer->order_))) {
        timer = t;
      }
    }
    const auto call = std::min_element(calls_.begin(), calls_.end(), [](const Call& a, const Call& b) {
      return std::pair(a.due, a.order) < std::pair(b.due, b.order);
    });
    const bool callFirst =
        call != calls_.end() &&
        (timer == nullptr || std::pair(call->due, call->order) < std::pair(timer->due_, timer->order_));
    if (!callFirst && timer == nullptr) return false;
    const std::int64_t due = callFirst ? call->due : timer->due_;
    if (due > target) return false;
    now_ = std::max(now_, due);
    if (!callFirst) {
      timer->Fire();
      return true;
    }
    const std::function<void()> run = std::move(call->call);
    calls_.erase(call);
    run();
    return true;
  }

  std::int64_t now_ = 0;
  std::uint64_t next_ = 0;
  std::vector<HandTimer*> timers_;
  std::vector<Call> calls_;
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace kv::test
