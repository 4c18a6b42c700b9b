// One of the small buttons of a title bar. It knows how it looks and when it was pressed, not what it is
// for.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <functional>

namespace kv {

class TitleButton final : public QAbstractButton {
 public:
  enum class Sign { Close, Minimise, Help };

  TitleButton(QWidget* parent, Sign sign);

  /// Pointer over it, button down on it, button up again.
  std::function<void()> Moved;
  std::function<void()> Pressed;
  std::function<void()> Released;
  std::function<void()> Left;

  [[nodiscard]] QColor Color() const { return color_; }
  /// The colour of its filled shape; the sign on it contrasts.
  void setColor(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Sign sign_;
  QColor color_;
};

}  // namespace kv
