// A place of the main menu that resets a statistic by double-click, or by Enter once Tab has reached it. What
// lies over it must let the pointer through. A single click does nothing.
#pragma once

#include <QAbstractButton>
#include <functional>

#include "platform/QtPropertyBag.h"

namespace kv {

class frmMenuReset final : public QAbstractButton {
 public:
  /// `bag` gives "focus_color" and "tooltip".
  frmMenuReset(QWidget* parent, const PropertyBag& bag);

  std::function<void()> DblClick;
  std::function<void()> MouseMove;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QColor focusColor_;
};

}  // namespace kv
