#include "presentation/WindowDrag.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace kv {

void WindowDrag::Press(QWidget& window, const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return;
  QWindow* handle = window.windowHandle();
  if (handle != nullptr && handle->startSystemMove()) return;
  grab_ = event.globalPosition().toPoint() - window.pos();
  moving_ = true;
}

void WindowDrag::Move(QWidget& window, const QMouseEvent& event) {
  // A release that went elsewhere must not leave the window hanging on the pointer.
  if (!event.buttons().testFlag(Qt::LeftButton)) moving_ = false;
  if (moving_) window.move(event.globalPosition().toPoint() - grab_);
}

}  // namespace kv
