// A picture box: shows a picture of its own and, over it, another one at a constant opacity.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "platform/Picture.h"
#include "platform/Pressable.h"

namespace kv {

class FadeTarget final : public QWidget, public Pressable {
 public:
  explicit FadeTarget(QWidget* parent = nullptr);

  std::function<void()> Click;
  std::function<void()> DblClick;
  std::function<void()> MouseMove;

  /// Its own picture, drawn from the top left corner at its layout size; forgets what was blended over it.
  void setPicture(const Picture& picture);
  [[nodiscard]] const Picture& picture() const { return picture_; }
  /// Shows `source` over its own picture, with `alpha` from 0 to 255, in place of what was blended before.
  void Blend(const Picture& source, int alpha);
  /// The opacity of the last Blend, -1 when nothing is blended.
  [[nodiscard]] int alpha() const { return alpha_; }

  /// For a picture that is one of several of which one is chosen: whether it is this one.
  void setSelected(bool selected) { selected_ = selected; }
  [[nodiscard]] std::optional<bool> selected() const { return selected_; }
  /// A picture that the keyboard reaches, or that can be chosen, is there to be clicked.
  [[nodiscard]] bool pressable() const override {
    return Click && (selected_ || focusPolicy() != Qt::NoFocus);
  }
  void DoPress() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  Picture picture_;
  Picture source_;
  int alpha_ = -1;
  std::optional<bool> selected_;
};

}  // namespace kv
