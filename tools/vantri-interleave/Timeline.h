// One clock for two programs in one process, each on a stack of its own: a pause or a box of the one never
// holds up the other, as between two real processes. Nothing sleeps; the clock jumps from event to event.
#pragma once

#include <ucontext.h>

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Scheduler.h"

namespace kv::interleave {

class Timeline;

/// The stack of one side and the work that is handed to it.
class Fiber {
 public:
  Fiber();
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  /// From outside: runs `work` on this stack until it has returned or waits. What it throws comes out here.
  void Resume(std::function<void()> work);
  /// From inside: does the work that is handed over until `done` says so. False when the fiber is ended.
  bool WorkUntil(const std::function<bool()>& done);
  /// Every wait under way and to come returns false at once.
  void End();
  [[nodiscard]] bool waits() const { return depth_ > 0; }

 private:
  static void Enter(unsigned high, unsigned low);
  void Loop();
  void SwitchIn();
  void SwitchOut();

  std::unique_ptr<char[]> stack_;
  ucontext_t inside_{};
  ucontext_t outside_{};
  std::function<void()> work_;
  std::exception_ptr fault_;
  int depth_ = 0;
  bool ended_ = false;
};

/// The scheduler of one side.
class SideScheduler final : public Scheduler {
 public:
  SideScheduler(Timeline& timeline, Fiber& fiber) : timeline_(timeline), fiber_(fiber) {}
  ~SideScheduler() override;

  [[nodiscard]] std::uint32_t timeGetTime() const override;
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int intervalMs, std::function<void()> tick) override;
  [[nodiscard]] bool Pause(int milliseconds, const Lifetime& owner) override;
  [[nodiscard]] int PauseDepth() const override { return pauses_; }
  /// Waits as a box does: until `milliseconds` have passed, whatever is closed meanwhile.
  void Box(int milliseconds);
  /// A call on this side's stack in `milliseconds`.
  void After(int milliseconds, std::function<void()> call);

 private:
  class SideTimer;
  friend class Timeline;

  Timeline& timeline_;
  Fiber& fiber_;
  std::vector<SideTimer*> timers_;
  int pauses_ = 0;
};

class Timeline {
 public:
  [[nodiscard]] std::int64_t now() const { return now_; }
  [[nodiscard]] std::uint64_t NextOrder() { return ++order_; }
  void Add(SideScheduler& side) { sides_.push_back(&side); }
  void Remove(SideScheduler& side) { std::erase(sides_, &side); }
  /// Runs everything that is due within `milliseconds`, calling `afterEach` behind every event.
  void Pass(int milliseconds, const std::function<void()>& afterEach);

 private:
  friend class SideScheduler;
  struct Call {
    std::int64_t due;
    std::uint64_t order;
    SideScheduler* side;
    std::function<void()> call;
  };
  /// Runs what is due next, at the latest at `target`; false when nothing is.
  bool RunNext(std::int64_t target);

  std::int64_t now_ = 0;
  std::uint64_t order_ = 0;
  std::vector<SideScheduler*> sides_;
  std::vector<Call> calls_;  // a heap, the earliest first
};

}  // namespace kv::interleave
