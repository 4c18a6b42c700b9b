// The result banner over the match screen: what happened and why, and the button that goes on. It can be
// moved aside.
#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>
#include <functional>

#include "presentation/Layout.h"
#include "presentation/PanelDrag.h"
#include "presentation/ctlButton.h"

namespace kv {

class ctlBust final : public QWidget {
 public:
  /// Lays itself out by the controls "ctlBust", "lblBust", "lblReason" and "cmdBust" of the layout. `context`
  /// must outlive it.
  ctlBust(QWidget* parent, Layout& layout, ButtonContext& context);

  /// The button was clicked (it is disabled then).
  std::function<void()> Click;

  /// "Slate" or "Ember"; any other text keeps the style.
  [[nodiscard]] const QString& Style() const { return style_; }
  void setStyle(const QString& style);

  [[nodiscard]] QLabel& lblBust() const { return *message_; }
  [[nodiscard]] QLabel& lblReason() const { return *reason_; }
  [[nodiscard]] ctlButton& cmdBust() const { return *button_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  ButtonContext& context_;
  QString style_ = QStringLiteral("Slate");
  const PropertyBag look_;
  const int highest_;  // the screen's title bar ends here
  PanelDrag drag_;
  QLabel* message_;  // children
  QLabel* reason_;
  ctlButton* button_;
};

}  // namespace kv
