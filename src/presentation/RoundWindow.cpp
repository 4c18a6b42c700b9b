#include "presentation/RoundWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>

namespace kv {
namespace {

// The square in one corner of a window, outside whose quarter circle nothing may be seen. On a window with
// transparency it wipes that part out smoothly; elsewhere the window's mask cuts it, and a thin dark line
// hides the steps.
class Corner final : public QWidget {
 public:
  Corner(QWidget* window, bool right, bool bottom) : QWidget(window), right_(right), bottom_(bottom) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
  }

  void Place(int size) {
    setGeometry(right_ ? parentWidget()->width() - size : 0, bottom_ ? parentWidget()->height() - size : 0,
                size, size);
    raise();
    show();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double diameter = 2.0 * width();
    const QRectF circle(right_ ? -width() : 0.0, bottom_ ? -height() : 0.0, diameter, diameter);
    const bool full = window()->isFullScreen();
    if (full || window()->testAttribute(Qt::WA_TranslucentBackground)) {
      QPainterPath outside;
      outside.addRect(rect());
      outside.addEllipse(circle);  // odd-even: the square without the circle
      if (!full) painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
      painter.fillPath(outside, window()->palette().color(QPalette::Window));
    } else {
      painter.setPen(QPen(QColor(0, 0, 0, 200), 2));
      painter.drawEllipse(circle);
    }
  }

 private:
  bool right_;
  bool bottom_;
};

// Keeps the shape of its window, to which it belongs, through every resize.
class Rounding final : public QObject {
 public:
  Rounding(QWidget& window, int radius) : QObject(&window), window_(window), radius_(radius) {
    for (std::size_t i = 0; i < corners_.size(); ++i) corners_[i] = new Corner(&window, i % 2 == 1, i >= 2);
    window.installEventFilter(this);
    Apply();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) Apply();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Apply() {
    const int radius = std::min({radius_, window_.width() / 2, window_.height() / 2});
    // Off screen there is nothing to cut, and the toolkit would only complain.
    if (shaped_ && window_.isWindow()) window_.setMask(RoundedShape(window_.size(), radius));
    for (Corner* corner : corners_) corner->Place(radius);
  }

  QWidget& window_;
  int radius_;
  bool shaped_ = QGuiApplication::platformName() != QStringLiteral("offscreen");
  std::array<Corner*, 4> corners_{};  // children of the window
};

}  // namespace

QRegion RoundedShape(QSize size, int radius) {
  QRegion shape(QRect(QPoint(0, 0), size));
  for (int y = 0; y < radius; ++y) {
    const double rise = radius - (y + 1);
    const int cut = static_cast<int>(radius - std::sqrt(static_cast<double>(radius) * radius - rise * rise));
    for (const int line : {y, size.height() - 1 - y}) {
      shape -= QRect(0, line, cut, 1);
      shape -= QRect(size.width() - cut, line, cut, 1);
    }
  }
  return shape;
}

void RoundWindow(QWidget& window, int radius) {
  if (!window.testAttribute(Qt::WA_WState_Created)) {
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_TranslucentBackground);
  }
  new Rounding(window, radius / 2);  // owned by the window
}

}  // namespace kv
