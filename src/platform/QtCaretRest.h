// The caret of a text box stops blinking when nobody has pressed anything for a while, as on other desktops,
// so that a program that waits does nothing at all. It stays to be seen.
#pragma once

#include <QObject>
#include <memory>

#include "platform/Scheduler.h"

namespace kv {

class QtCaretRest final : public QObject {
 public:
  static constexpr int kAfter = 10'000;  // milliseconds

  /// Once the application exists, for all of its windows. `scheduler` must outlive it.
  explicit QtCaretRest(Scheduler& scheduler);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void Blink();
  void Rest();

  int flashTime_;
  std::unique_ptr<Timer> tmrRest_;
};

}  // namespace kv
