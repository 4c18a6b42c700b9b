#include "presentation/TitleButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "platform/QtKeys.h"

namespace kv {
namespace {

void Call(const std::function<void()>& handler) {
  if (handler) handler();
}

}  // namespace

TitleButton::TitleButton(QWidget* parent, Sign sign) : QAbstractButton(parent), sign_(sign) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

void TitleButton::setColor(const QColor& color) {
  color_ = color;
  update();
}

void TitleButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(hasFocus() ? QPen(Qt::white, 1) : QPen(color_.darker(160), 1));
  painter.setBrush(color_);
  painter.drawRoundedRect(shape, 3, 3);
  const bool dark = color_.lightness() > (sign_ == Sign::Close ? 200 : 90);
  painter.setPen(
      QPen(dark ? QColor(20, 20, 24) : QColor(255, 255, 255, 220), 1.6, Qt::SolidLine, Qt::RoundCap));
  const double inset = width() * 0.3;
  const QRectF sign = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  if (sign_ == Sign::Close) {
    painter.drawLine(sign.topLeft(), sign.bottomRight());
    painter.drawLine(sign.topRight(), sign.bottomLeft());
  } else {
    painter.drawLine(sign.bottomLeft(), sign.bottomRight());
  }
}

void TitleButton::mouseMoveEvent(QMouseEvent*) {
  Call(Moved);
}

void TitleButton::mousePressEvent(QMouseEvent*) {
  Call(Pressed);
}

void TitleButton::mouseReleaseEvent(QMouseEvent* event) {
  Call(Released);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) click();
}

void TitleButton::leaveEvent(QEvent* event) {
  Call(Left);
  QAbstractButton::leaveEvent(event);
}

void TitleButton::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace kv
