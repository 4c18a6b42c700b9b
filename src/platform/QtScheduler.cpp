#include "platform/QtScheduler.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace kv {
namespace {

class QtTimer final : public Timer {
 public:
  QtTimer(int intervalMs, std::function<void()> tick) : work_(std::make_shared<Work>()), timer_(new QTimer) {
    work_->tick = std::move(tick);
    timer_->setTimerType(Qt::PreciseTimer);
    timer_->setInterval(std::max(intervalMs, 1));
    QObject::connect(timer_, &QTimer::timeout, timer_, [work = work_] {
      // Outlives the timer, should the tick destroy it.
      const std::shared_ptr<Work> kept = work;  // NOLINT(performance-unnecessary-copy-initialization)
      ++kept->depth;
      kept->tick();
      --kept->depth;
    });
  }
  QtTimer(const QtTimer&) = delete;
  QtTimer& operator=(const QtTimer&) = delete;
  ~QtTimer() override {
    timer_->stop();
    // Inside its own tick the toolkit still needs its object.
    if (work_->depth > 0) {
      timer_->deleteLater();
    } else {
      delete timer_;
    }
  }

  void setInterval(int milliseconds) override { timer_->setInterval(std::max(milliseconds, 1)); }
  [[nodiscard]] int Interval() const override { return timer_->interval(); }
  void setEnabled(bool enabled) override {
    if (enabled) {
      timer_->start();
    } else {
      timer_->stop();
    }
  }
  [[nodiscard]] bool Enabled() const override { return timer_->isActive(); }

 private:
  struct Work {
    std::function<void()> tick;
    int depth = 0;
  };

  std::shared_ptr<Work> work_;
  QTimer* timer_;  // owned; see the destructor
};

}  // namespace

QtScheduler::QtScheduler() {
  clock_.start();
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &context_,
                   [this] { ended_ = true; });
}

std::uint32_t QtScheduler::timeGetTime() const {
  return static_cast<std::uint32_t>(clock_.elapsed());
}

std::unique_ptr<Timer> QtScheduler::NewTimer(int intervalMs, std::function<void()> tick) {
  return std::make_unique<QtTimer>(intervalMs, std::move(tick));
}

bool QtScheduler::Pause(int milliseconds, const Lifetime& owner) {
  if (ended_ || owner.closing()) return false;
  const Nested nested(*this);
  QEventLoop loop;
  bool passed = false;
  const Lifetime::Waker waker(owner, [&loop] { loop.quit(); });
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &loop, [&loop, &passed] {
    passed = true;
    loop.quit();
  });
  timer.start(std::max(milliseconds, 0));
  loop.exec();
  if (owner.closing()) return false;
  // Neither the time nor the owner ended the loop: the application is quitting, and stays so.
  if (!passed) ended_ = true;
  return !ended_;
}

}  // namespace kv
