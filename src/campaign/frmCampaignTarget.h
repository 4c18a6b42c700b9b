// The click target over an opponent's tile: transparent, reached by pointer and keyboard. It only tells what
// happens to it; what that looks like is the screen's business.
#pragma once

#include <QAbstractButton>
#include <functional>

namespace kv {

class frmCampaignTarget final : public QAbstractButton {
 public:
  explicit frmCampaignTarget(QWidget* parent);

  std::function<void()> Entered;  // by the pointer, or by Tab; once each time
  std::function<void()> Pressed;
  std::function<void()> Left;  // the pointer or the focus went elsewhere, or a press ended in nothing
  /// The screen may close in it, but must not delete the target before the handler has returned.
  std::function<void()> Click;

 protected:
  void paintEvent(QPaintEvent*) override {}
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kv
