// Moving a panel over its screen by the mouse, within the screen and below its title bar.
#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <optional>

namespace kv {

class PanelDrag {
 public:
  void Press(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton) grip_ = event.position().toPoint();
  }
  /// `highest`: where the panel's upper edge may be at most, in layout pixels of the screen.
  void Move(QWidget& panel, const QMouseEvent& event, int highest) const {
    if (!grip_) return;
    const QPoint corner = panel.mapToParent(event.position().toPoint()) - *grip_;
    const QSize room = panel.parentWidget()->size() - panel.size();
    panel.move(std::clamp(corner.x(), 0, std::max(0, room.width())),
               std::clamp(corner.y(), highest, std::max(highest, room.height())));
  }
  void Release() { grip_.reset(); }

  /// The three lines that tell that a panel can be moved by this place.
  static void Paint(QPainter& painter, const QRect& place, const QColor& color) {
    painter.setPen(color);
    for (int line = 0; line < 3; ++line) {
      const int y = place.center().y() - 3 + 3 * line;
      painter.drawLine(place.left() + 12, y, place.right() - 12, y);
    }
  }

 private:
  std::optional<QPoint> grip_;  // where on the panel the button went down
};

}  // namespace kv
