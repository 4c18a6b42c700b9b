// Time: the clock, the timers and the pauses of the whole program. Nothing else owns a timer or sleeps.
// One form is driven by Qt's event loop (QtScheduler), one by hand in tests (tests/support/HandScheduler).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kv {

/// A repeating timer. It stands still until Enabled is set; each tick runs on the user-interface thread.
class Timer {
 public:
  virtual ~Timer() = default;

  /// Milliseconds between ticks, at least 1. Setting it restarts a running timer.
  virtual void setInterval(int milliseconds) = 0;
  [[nodiscard]] virtual int Interval() const = 0;

  /// Setting it to true (re)starts the interval; a tick handler may stop its own timer.
  virtual void setEnabled(bool enabled) = 0;
  [[nodiscard]] virtual bool Enabled() const = 0;

  /// Free text for the owner of the timer.
  std::string Tag;
};

/// The life of a screen, as its pauses see it: once closed, every pause that names it ends.
class Lifetime {
 public:
  Lifetime() = default;
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

  /// For good: a closed life never opens again. Wakes the pauses that wait for it.
  void Close() {
    closing_ = true;
    for (const Waker* waker : std::vector<const Waker*>(wakers_)) waker->wake_();
  }
  [[nodiscard]] bool closing() const { return closing_; }

  /// What a scheduler hangs on a life for the time of one pause; it must go before the life does.
  class Waker {
   public:
    /// `wake` only notes that it was called: it must not end the life or the waker.
    Waker(const Lifetime& life, std::function<void()> wake) : life_(life), wake_(std::move(wake)) {
      life_.wakers_.push_back(this);
    }
    Waker(const Waker&) = delete;
    Waker& operator=(const Waker&) = delete;
    ~Waker() { std::erase(life_.wakers_, this); }

   private:
    friend class Lifetime;
    const Lifetime& life_;
    std::function<void()> wake_;
  };

 private:
  bool closing_ = false;
  mutable std::vector<const Waker*> wakers_;
};

class Scheduler {
 public:
  virtual ~Scheduler() = default;

  /// Milliseconds of a clock that never runs backwards; wraps after 49 days.
  [[nodiscard]] virtual std::uint32_t timeGetTime() const = 0;

  /// A stopped timer that calls `tick` every `intervalMs` once enabled. Destroying it inside its own tick is
  /// allowed. The scheduler must outlive it.
  [[nodiscard]] virtual std::unique_ptr<Timer> NewTimer(int intervalMs, std::function<void()> tick) = 0;

  /// Waits while events go on being handled, sleeping between them. Returns true when the whole time has
  /// passed, false as soon as `owner` is closing or the program ends: the caller then returns at once.
  /// `owner` must stay alive until Pause has returned (see PauseDepth).
  [[nodiscard]] virtual bool Pause(int milliseconds, const Lifetime& owner) = 0;

  /// How many pauses are under way, nested. A closed screen is destroyed only while this is 0.
  [[nodiscard]] virtual int PauseDepth() const = 0;
};

}  // namespace kv
