#include "presentation/WindowDrag.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace kv {
namespace {

constexpr int kLeastWay = 3;  // pixels; a hand that only clicks trembles less

}  // namespace

void WindowDrag::Press(QWidget& window, const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return;
  grab_ = event.globalPosition().toPoint() - window.pos();
  moving_ = true;
}

void WindowDrag::Move(QWidget& window, const QMouseEvent& event) {
  // A release that went elsewhere must not leave the window hanging on the pointer.
  if (!event.buttons().testFlag(Qt::LeftButton)) moving_ = false;
  const QPoint corner = event.globalPosition().toPoint() - grab_;
  if (!moving_ || (corner - window.pos()).manhattanLength() < kLeastWay) return;
  // Not at the press: a quick click would be over before the window system takes hold, and the window would
  // hang on the pointer until the next one.
  QWindow* handle = window.windowHandle();
  if (handle != nullptr && handle->startSystemMove()) {
    moving_ = false;
  } else {
    window.move(corner);
  }
}

}  // namespace kv
