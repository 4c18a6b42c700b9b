#include "platform/QtShrunken.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsEffect>
#include <QPainter>
#include <QWidget>

namespace kv {
namespace {

/// Paints a window as it is laid out, and that reduced to the pixels that the window has.
class Reduction final : public QGraphicsEffect {
 public:
  explicit Reduction(QWidget& window) : QGraphicsEffect(&window), window_(window) {}

 protected:
  void draw(QPainter* painter) override {
    QImage picture(window_.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    window_.render(&picture, {}, {}, QWidget::DrawChildren);
    const QSizeF pixels = QSizeF(window_.size()) * window_.devicePixelRatioF();
    painter->save();
    painter->resetTransform();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(QRectF({}, pixels), picture);
    painter->restore();
  }

 private:
  QWidget& window_;
};

void Suit(QWidget& window) {
  const bool smaller = window.devicePixelRatioF() < 1;
  if (smaller && window.graphicsEffect() == nullptr) window.setGraphicsEffect(new Reduction(window));
  if (!smaller && dynamic_cast<Reduction*>(window.graphicsEffect()) != nullptr)
    window.setGraphicsEffect(nullptr);
}

}  // namespace

QtShrunken::QtShrunken() {
  qApp->installEventFilter(this);
}

void QtShrunken::Refresh() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) Suit(*window);
  }
}

bool QtShrunken::eventFilter(QObject* watched, QEvent* event) {
  if ((event->type() != QEvent::Show && event->type() != QEvent::UpdateRequest) || !watched->isWidgetType()) {
    return false;
  }
  auto* widget = static_cast<QWidget*>(watched);
  if (!widget->isWindow()) return false;
  if (event->type() == QEvent::Show) {
    Suit(*widget);
  } else if (widget->graphicsEffect() != nullptr) {
    widget->update();  // a part would be cut out in the pixels of the layout
  }
  return false;
}

}  // namespace kv
