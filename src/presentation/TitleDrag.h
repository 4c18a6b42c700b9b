// The area of a title bar by which its window is dragged. It lies over the bar and draws nothing.
#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>

#include "presentation/WindowDrag.h"

namespace kv {

class TitleDrag final : public QWidget {
 public:
  explicit TitleDrag(QWidget* parent) : QWidget(parent) { setMouseTracking(true); }

  std::function<void()> Moved;

 protected:
  void mousePressEvent(QMouseEvent* event) override { drag_.Press(*window(), *event); }
  void mouseMoveEvent(QMouseEvent* event) override {
    drag_.Move(*window(), *event);
    if (Moved) Moved();
  }
  void mouseReleaseEvent(QMouseEvent*) override { drag_.Release(); }

 private:
  WindowDrag drag_;
};

}  // namespace kv
