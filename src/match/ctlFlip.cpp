#include "match/ctlFlip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "platform/QtKeys.h"

namespace kv {
namespace {

constexpr QColor kUnusable{0x80, 0x80, 0x80};

/// A half-circle arrow whose head points to the right (or, mirrored, to the left).
void DrawArrow(QPainter& painter, QPointF centre, qreal size, bool mirrored) {
  painter.save();
  painter.translate(centre);
  if (mirrored) painter.rotate(180);
  painter.drawLine(QPointF(-size, 0), QPointF(size, 0));
  const QPointF head[] = {{size * 0.5, -size * 0.5}, {size, 0}, {size * 0.5, size * 0.5}};
  painter.drawPolyline(head, 3);
  painter.restore();
}

}  // namespace

ctlFlip::ctlFlip(QWidget* parent, Kind kind, const PropertyBag& bag)
    : QAbstractButton(parent),
      kind_(kind),
      color_(bag.colour(u"color")),
      hoverColor_(bag.colour(u"hover_color")),
      fillColor_(bag.colour(u"fill_color")) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (Click) Click();
  });
}

void ctlFlip::Plain() {
  if (!hovered_) return;
  hovered_ = false;
  update();
}

QColor ctlFlip::Line() const {
  if (!isEnabled()) return kUnusable;
  return hovered_ || hasFocus() ? hoverColor_ : color_;
}

void ctlFlip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor line = Line();
  painter.setPen(QPen(line, hasFocus() ? 2 : 1));
  painter.setBrush(isDown() ? line.darker(300) : fillColor_);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  const QPointF centre = QRectF(rect()).center();
  const qreal unit = height() / 5.0;
  painter.setPen(QPen(line, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  DrawArrow(painter, centre - QPointF(0, unit * 0.8), unit * 1.3, false);
  DrawArrow(painter, centre + QPointF(0, unit * 0.8), unit * 1.3, true);
  QFont label = FontOf(QStringLiteral("BankGothic Md BT"), height() * 0.45, true);
  painter.setFont(label);
  const qreal side = width() / 2.0 - unit * 1.6;
  const bool sign = kind_ == Kind::Sign;
  painter.drawText(QRectF(0, 0, side, height()), Qt::AlignCenter,
                   sign ? QStringLiteral("+") : QStringLiteral("1"));
  painter.drawText(QRectF(width() - side, 0, side, height()), Qt::AlignCenter,
                   sign ? QStringLiteral("\u2212") : QStringLiteral("2"));
}

void ctlFlip::mouseMoveEvent(QMouseEvent* event) {
  if (!hovered_) {
    hovered_ = true;
    update();
  }
  QAbstractButton::mouseMoveEvent(event);
  event->accept();  // the panel below would take the highlight away again
}

void ctlFlip::leaveEvent(QEvent* event) {
  Plain();
  QAbstractButton::leaveEvent(event);
}

void ctlFlip::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace kv
