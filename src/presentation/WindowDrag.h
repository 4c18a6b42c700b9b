// Moving a borderless window with the pointer: the window system does it where it can, the program otherwise.
#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace kv {

class WindowDrag {
 public:
  /// Left button down on a drag area of `window` (a top-level widget).
  void Press(QWidget& window, const QMouseEvent& event);
  /// The pointer moved: while the button is down the window goes with it.
  void Move(QWidget& window, const QMouseEvent& event);
  void Release() { moving_ = false; }

 private:
  bool moving_ = false;
  QPoint grab_;  // pointer position within the window
};

}  // namespace kv
