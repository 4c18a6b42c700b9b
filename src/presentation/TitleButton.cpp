#include "presentation/TitleButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "platform/QtKeys.h"

namespace kv {
namespace {

void Call(const std::function<void()>& handler) {
  if (handler) handler();
}

void DrawQuestionMark(QPainter& painter, const QRectF& area) {
  const QRectF hook(area.left(), area.top() - area.height() * 0.3, area.width(), area.height());
  QPainterPath path;
  path.arcMoveTo(hook, 180);
  path.arcTo(hook, 180, -225);
  path.quadTo(area.center() + QPointF(0, area.height() * 0.25),
              area.center() + QPointF(0, area.height() * 0.45));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  painter.drawPoint(QPointF(area.center().x(), area.bottom() + area.height() * 0.25));
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
  switch (sign_) {
    case Sign::Close:
      painter.drawLine(sign.topLeft(), sign.bottomRight());
      painter.drawLine(sign.topRight(), sign.bottomLeft());
      break;
    case Sign::Minimise:
      painter.drawLine(sign.bottomLeft(), sign.bottomRight());
      break;
    case Sign::Help:
      DrawQuestionMark(painter, sign);
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
