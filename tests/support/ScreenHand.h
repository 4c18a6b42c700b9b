// A person's hand on a screen: real pointer and key events, sent to its window as the window system sends
// them. What they lead to has been handled when a call returns.
#pragma once

#include <QAbstractButton>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace kv::test {

class ScreenHand {
 public:
  /// `screen` is a window that has been shown, or the content of one; it must outlive this.
  explicit ScreenHand(QWidget& screen) : screen_(screen) {}

  [[nodiscard]] QPoint CentreOf(const QWidget& widget) const {
    return widget.mapTo(screen_.window(), widget.rect().center());
  }
  void MoveTo(QPoint point) { QTest::mouseMove(window(), point); }
  void Press(QPoint point) { QTest::mousePress(window(), Qt::LeftButton, {}, point); }
  void Release(QPoint point) { QTest::mouseRelease(window(), Qt::LeftButton, {}, point); }
  void Click(const QWidget& widget) {
    MoveTo(CentreOf(widget));
    QTest::mouseClick(window(), Qt::LeftButton, {}, CentreOf(widget));
  }
  void DoubleClick(const QWidget& widget) {
    MoveTo(CentreOf(widget));
    QTest::mouseDClick(window(), Qt::LeftButton, {}, CentreOf(widget));
  }
  /// Takes hold of the widget at `grip` (within it) and moves its top left corner to `corner` of the screen.
  void Drag(const QWidget& widget, QPoint grip, QPoint corner) {
    const QPoint from = widget.mapTo(screen_.window(), grip);
    const QPoint to = screen_.mapTo(screen_.window(), corner + grip);
    MoveTo(from);
    Press(from);
    MoveTo((from + to) / 2);
    MoveTo(to);
    Release(to);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(window(), key, held); }

 private:
  [[nodiscard]] QWindow* window() const { return screen_.window()->windowHandle(); }

  QWidget& screen_;
};

}  // namespace kv::test
