// SIGTERM, SIGINT and SIGHUP as an event of Qt's event loop: whoever logs out, presses Ctrl+C or ends the
// program from outside ends it in order. Nothing but one byte for a pipe happens inside the signal itself.
#pragma once

#include <QSocketNotifier>
#include <functional>

namespace kv {

class QtSignals {
 public:
  /// The application must exist already. One of these at a time; a SIGHUP that is ignored (nohup) stays so.
  QtSignals();
  QtSignals(const QtSignals&) = delete;
  QtSignals& operator=(const QtSignals&) = delete;
  /// The signals end the program as they do by themselves.
  ~QtSignals();

  /// The program was told to end: on the user-interface thread, also inside a pause or while a box is open.
  std::function<void()> Ended;
  /// Whether it was told so since this was made.
  [[nodiscard]] bool ended() const { return ended_; }

 private:
  void Read();

  QSocketNotifier notifier_;
  bool ended_ = false;
};

}  // namespace kv
