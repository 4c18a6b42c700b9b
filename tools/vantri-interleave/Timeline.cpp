#include "vantri-interleave/Timeline.h"

#include <algorithm>
#include <utility>

namespace kv::interleave {
namespace {

constexpr std::size_t kStackSize = 256 * 1024;

struct Later {
  template <typename Call>
  bool operator()(const Call& a, const Call& b) const {
    return std::pair(a.due, a.order) > std::pair(b.due, b.order);
  }
};

}  // namespace

// --- Fiber -----------------------------------------------------------------------------------------------

Fiber::Fiber() : stack_(new char[kStackSize]) {
  ::getcontext(&inside_);
  inside_.uc_stack.ss_sp = stack_.get();
  inside_.uc_stack.ss_size = kStackSize;
  inside_.uc_link = nullptr;
  const auto self = reinterpret_cast<std::uintptr_t>(this);
  // makecontext passes on nothing but ints.
  ::makecontext(&inside_, reinterpret_cast<void (*)()>(&Fiber::Enter), 2, static_cast<unsigned>(self >> 32U),
                static_cast<unsigned>(self));
}

void Fiber::Enter(unsigned high, unsigned low) {
  reinterpret_cast<Fiber*>((static_cast<std::uintptr_t>(high) << 32U) | low)->Loop();
}

void Fiber::Loop() {
  for (;;) {
    try {
      std::exchange(work_, {})();
    } catch (...) {
      fault_ = std::current_exception();
    }
    SwitchOut();
  }
}

void Fiber::SwitchIn() {
  ::swapcontext(&outside_, &inside_);
}

void Fiber::SwitchOut() {
  ::swapcontext(&inside_, &outside_);
}

void Fiber::Resume(std::function<void()> work) {
  work_ = std::move(work);
  SwitchIn();
  if (fault_) std::rethrow_exception(std::exchange(fault_, {}));
}

bool Fiber::WorkUntil(const std::function<bool()>& done) {
  ++depth_;
  while (!ended_ && !done()) {
    SwitchOut();
    std::exchange(work_, {})();
  }
  --depth_;
  return !ended_;
}

void Fiber::End() {
  ended_ = true;
  if (depth_ > 0) Resume([] {});
}

// --- One side's scheduler --------------------------------------------------------------------------------

class SideScheduler::SideTimer final : public Timer {
 public:
  SideTimer(SideScheduler& scheduler, int interval, std::function<void()> tick)
      : scheduler_(scheduler),
        interval_(std::max(interval, 1)),
        tick_(std::make_shared<Tick>(std::move(tick))) {
    scheduler_.timers_.push_back(this);
  }
  ~SideTimer() override { std::erase(scheduler_.timers_, this); }
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

  /// A timer does not tick inside its own tick, unless that tick has started it anew.
  [[nodiscard]] bool Ready() const { return enabled_ && !ticking_; }
  [[nodiscard]] std::int64_t due() const { return due_; }
  [[nodiscard]] std::uint64_t order() const { return order_; }
  void Fire() {
    const std::shared_ptr<Tick> tick = tick_;  // outlives the timer, should the tick destroy it
    SideScheduler& scheduler = scheduler_;
    Start();
    const std::uint64_t started = order_;
    ticking_ = true;
    (*tick)();
    const auto& alive = scheduler.timers_;
    if (std::find(alive.begin(), alive.end(), this) == alive.end() || order_ != started) return;
    ticking_ = false;
    due_ = std::max(due_, scheduler.timeline_.now());  // ticks missed meanwhile are one tick
  }

 private:
  using Tick = std::function<void()>;
  void Start() {
    due_ = scheduler_.timeline_.now() + interval_;
    order_ = scheduler_.timeline_.NextOrder();
    ticking_ = false;
  }

  SideScheduler& scheduler_;
  int interval_;
  bool enabled_ = false;
  bool ticking_ = false;
  std::int64_t due_ = 0;
  std::uint64_t order_ = 0;
  std::shared_ptr<Tick> tick_;
};

SideScheduler::~SideScheduler() {
  timeline_.Remove(*this);
}

std::uint32_t SideScheduler::timeGetTime() const {
  return static_cast<std::uint32_t>(timeline_.now());
}

std::unique_ptr<Timer> SideScheduler::NewTimer(int intervalMs, std::function<void()> tick) {
  return std::make_unique<SideTimer>(*this, intervalMs, std::move(tick));
}

bool SideScheduler::Pause(int milliseconds, const Lifetime& owner) {
  if (owner.closing()) return false;
  const auto passed = std::make_shared<bool>(false);
  After(milliseconds, [passed] { *passed = true; });
  ++pauses_;
  const bool alive = fiber_.WorkUntil([&] { return *passed || owner.closing(); });
  --pauses_;
  return alive && !owner.closing();
}

void SideScheduler::Box(int milliseconds) {
  const auto answered = std::make_shared<bool>(false);
  After(milliseconds, [answered] { *answered = true; });
  static_cast<void>(fiber_.WorkUntil([&] { return *answered; }));
}

void SideScheduler::After(int milliseconds, std::function<void()> call) {
  auto& calls = timeline_.calls_;
  calls.push_back(
      {timeline_.now() + std::max(milliseconds, 0), timeline_.NextOrder(), this, std::move(call)});
  std::push_heap(calls.begin(), calls.end(), Later());
}

// --- The clock -------------------------------------------------------------------------------------------

void Timeline::Pass(int milliseconds, const std::function<void()>& afterEach) {
  const std::int64_t target = now_ + milliseconds;
  while (RunNext(target)) afterEach();
  now_ = std::max(now_, target);
}

bool Timeline::RunNext(std::int64_t target) {
  SideScheduler* side = nullptr;
  SideScheduler::SideTimer* timer = nullptr;
  std::pair<std::int64_t, std::uint64_t> first{target + 1, 0};
  for (SideScheduler* each : sides_) {
    for (SideScheduler::SideTimer* candidate : each->timers_) {
      if (!candidate->Ready() || std::pair(candidate->due(), candidate->order()) >= first) continue;
      first = {candidate->due(), candidate->order()};
      side = each;
      timer = candidate;
    }
  }
  if (!calls_.empty() && std::pair(calls_.front().due, calls_.front().order) < first) {
    std::pop_heap(calls_.begin(), calls_.end(), Later());
    Call call = std::move(calls_.back());
    calls_.pop_back();
    now_ = std::max(now_, call.due);
    call.side->fiber_.Resume(std::move(call.call));
    return true;
  }
  if (timer == nullptr) return false;
  now_ = std::max(now_, first.first);
  side->fiber_.Resume([timer] { timer->Fire(); });
  return true;
}

}  // namespace kv::interleave
