// The eyes and the hand of the person whom the demonstration plays: sees the open screen, waits for what it
// should show, moves the pointer, presses keys and takes pictures. It never calls the game itself.
#pragma once

#include <QWidget>
#include <functional>
#include <stdexcept>
#include <string>

#include "app/Program.h"
#include "platform/Scheduler.h"
#include "support/ScreenHand.h"

namespace kv {

inline constexpr int kLookInterval = 40;  // milliseconds between two looks at the screen

/// Something did not happen that should have.
class DemoFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class DemoPerson {
 public:
  /// Pictures go into `folder`, which must exist; their names begin with `prefix`.
  DemoPerson(Program& program, Scheduler& scheduler, std::string folder, std::string prefix);

  void Wait(int milliseconds);
  /// Looks again and again until it is so; DemoFailure with `what` when it does not come true.
  void WaitFor(const std::string& what, const std::function<bool()>& isSo);
  void WaitForScreen(const char* name);
  static void Expect(bool isSo, const std::string& what);

  /// The control of the open screen with this name; DemoFailure when there is none.
  template <typename Kind = QWidget>
  [[nodiscard]] Kind& Find(const std::string& name) {
    QWidget* found = program_.screen()->findChild<QWidget*>(QString::fromStdString(name));
    auto* control = dynamic_cast<Kind*>(found);
    if (control == nullptr) throw DemoFailure("there is no " + name);
    return *control;
  }
  [[nodiscard]] bool Sees(const std::string& name);

  void Hover(const std::string& name);
  void Click(const QWidget& widget);
  /// Waits until the control can be used, and clicks it.
  void Click(const std::string& name);
  /// The same; a question that it brings up is answered.
  void ClickAndSayYes(const std::string& name);
  /// Clicks a line of a list.
  void ClickRow(const std::string& list, int row);
  void Key(Qt::Key key);
  void Type(const std::string& text);

  void TakePicture(const std::string& what);
  [[nodiscard]] int pictures() const { return pictures_; }
  [[nodiscard]] Program& program() { return program_; }

 private:
  [[nodiscard]] test::ScreenHand Hand() { return test::ScreenHand(*program_.screen()); }

  Program& program_;
  Scheduler& scheduler_;
  const std::string folder_;
  const std::string prefix_;
  Lifetime lifetime_;
  int pictures_ = 0;
};

}  // namespace kv
