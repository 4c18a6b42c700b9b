#include "match/ctlShape.h"

#include <QPainter>
#include <QPainterPath>

namespace kv {
namespace {

/// A lit disc with a tick on it, so that a won set is told by its form too.
void DrawMarker(QPainter& painter, const QRectF& area, const QColor& color) {
  const QRectF disc = area.adjusted(0.75, 0.75, -0.75, -0.75);
  QRadialGradient light(disc.center() - QPointF(disc.width() / 6, disc.height() / 5), disc.width() * 0.65);
  light.setColorAt(0, color.lighter(150));
  light.setColorAt(1, color.darker(150));
  painter.setPen(QPen(color.lighter(130), 1));
  painter.setBrush(light);
  painter.drawEllipse(disc);
  const qreal w = area.width();
  painter.setPen(QPen(QColor(20, 16, 0), w / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  const QPointF tick[] = {{w * 0.29, w * 0.53}, {w * 0.44, w * 0.68}, {w * 0.72, w * 0.34}};
  painter.drawPolyline(tick, 3);
}

/// A line that fades out to both sides.
void DrawFooter(QPainter& painter, const QRectF& area, const QColor& color) {
  QColor clear = color;
  clear.setAlpha(0);
  QLinearGradient rail(area.topLeft(), area.topRight());
  rail.setColorAt(0, clear);
  rail.setColorAt(0.1, color);
  rail.setColorAt(0.9, color);
  rail.setColorAt(1, clear);
  painter.fillRect(area, rail);
}

void DrawFrame(QPainter& painter, const QRectF& area, const QColor& color) {
  const qreal half = kFrameWidth / 2.0;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, kFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(area.adjusted(half, half, -half, -half));
}

/// Slats of metal, closed, with light from above.
void DrawShutter(QPainter& painter, const QRectF& area, const QColor& metal) {
  constexpr double kCorner = 5;
  constexpr double kRim = 5;
  constexpr int kSlats = 9;
  QLinearGradient rim(area.topLeft(), area.bottomRight());
  rim.setColorAt(0, metal.lighter(150));
  rim.setColorAt(1, metal.darker(190));
  painter.setPen(QPen(metal.darker(330), 1));
  painter.setBrush(rim);
  painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  const QRectF inner = area.adjusted(kRim, kRim, -kRim, -kRim);
  const double height = inner.height() / kSlats;
  for (int i = 0; i < kSlats; ++i) {
    const QRectF slat(inner.left(), inner.top() + i * height, inner.width(), height);
    QLinearGradient light(slat.topLeft(), slat.bottomLeft());
    light.setColorAt(0, metal.lighter(112));
    light.setColorAt(0.75, metal.darker(160));
    light.setColorAt(1, metal.darker(360));
    painter.fillRect(slat, light);
  }
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(inner);
}

}  // namespace

ctlShape::ctlShape(QWidget* parent, Kind kind, const QColor& color)
    : QWidget(parent), kind_(kind), color_(color) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ctlShape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = rect();
  if (kind_ == Kind::Marker) DrawMarker(painter, area, color_);
  if (kind_ == Kind::Footer) DrawFooter(painter, area, color_);
  if (kind_ == Kind::Frame) DrawFrame(painter, area, color_);
  if (kind_ == Kind::Shutter) DrawShutter(painter, area, color_);
}

}  // namespace kv
