// The result banner over the match screen: what happened, and the button that goes on.
#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>
#include <functional>

#include "presentation/Layout.h"
#include "presentation/ctlButton.h"

namespace kv {

class ctlBust final : public QWidget {
 public:
  /// Lays itself out by the controls "ctlBust", "lblBust" and "cmdBust" of the layout. `context` must outlive
  /// it.
  ctlBust(QWidget* parent, Layout& layout, ButtonContext& context);

  /// The button was clicked (it is disabled then).
  std::function<void()> Click;

  /// "Slate" or "Ember"; any other text keeps the style.
  [[nodiscard]] const QString& Style() const { return style_; }
  void setStyle(const QString& style);

  [[nodiscard]] QLabel& lblBust() const { return *message_; }
  [[nodiscard]] ctlButton& cmdBust() const { return *button_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  ButtonContext& context_;
  QString style_ = QStringLiteral("Slate");
  const PropertyBag look_;
  QLabel* message_;  // children
  ctlButton* button_;
};

}  // namespace kv
