// The real clock: timers and pauses on Qt's event loop. A pause sleeps between events and never spins; it
// ends early when its owner closes or the application quits.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <memory>

#include "platform/Scheduler.h"

namespace kv {

class QtScheduler final : public Scheduler {
 public:
  /// The application must exist already. One quit of the application ends this scheduler's pauses for good.
  QtScheduler();

  [[nodiscard]] std::uint32_t timeGetTime() const override;
  [[nodiscard]] std::unique_ptr<Timer> NewTimer(int intervalMs, std::function<void()> tick) override;
  [[nodiscard]] bool Pause(int milliseconds, const Lifetime& owner) override;
  [[nodiscard]] int PauseDepth() const override { return depth_; }

  /// Counts as a pause while it lives: for boxes, which handle events inside a call as pauses do.
  class Nested {
   public:
    explicit Nested(QtScheduler& scheduler) : scheduler_(scheduler) { ++scheduler_.depth_; }
    Nested(const Nested&) = delete;
    Nested& operator=(const Nested&) = delete;
    ~Nested() { --scheduler_.depth_; }

   private:
    QtScheduler& scheduler_;
  };

 private:
  QElapsedTimer clock_;
  QObject context_;  // ends the connection to the application with the scheduler
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace kv
