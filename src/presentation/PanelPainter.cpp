#include "presentation/PanelPainter.h"

#include <QPainterPath>
#include <algorithm>

namespace kv {
namespace {

constexpr int kOpaque = 255;
constexpr int kSheenAlpha = 30;       // of the light at the upper edge
constexpr int kInnerFrameAlpha = 40;  // of the second frame, inside the first
constexpr int kRimWidth = 4;
constexpr double kRivet = 1.5;  // radius
constexpr int kMark = 14;       // length of the lit corners of a frame

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

QPainterPath Rounded(const QRectF& area, double corner) {
  QPainterPath path;
  path.addRoundedRect(area, std::max(corner, 0.0), std::max(corner, 0.0));
  return path;
}

void PaintBody(QPainter& painter, const QRectF& area, int corners, const PropertyBag& bag) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(bag.colour(u"fill_color", Qt::black), bag.number(u"fill_alpha", kOpaque)));
  painter.drawRoundedRect(area, corners, corners);
  const QColor light = bag.colour(u"border_color", Qt::white);
  QLinearGradient sheen(area.topLeft(), area.bottomLeft());
  sheen.setColorAt(0, Faint(light, kSheenAlpha));
  sheen.setColorAt(0.6, Faint(light, 0));
  sheen.setColorAt(1, Faint(Qt::black, kSheenAlpha * 2));
  painter.setBrush(sheen);
  painter.drawRoundedRect(area, corners, corners);
}

void PaintFrame(QPainter& painter, const QRectF& area, int corners, const QColor& border) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Faint(border, kInnerFrameAlpha));
  painter.drawRoundedRect(area.adjusted(2, 2, -2, -2), corners - 1, corners - 1);
  painter.setPen(border);
  painter.drawRoundedRect(area, corners, corners);
}

/// A metal rim, lit from the upper left, with its shadow on the ground and on the pane that it holds.
void PaintRim(QPainter& painter, const QRectF& area, int corners, const QColor& metal, int width) {
  const QRectF inner = area.adjusted(width, width, -width, -width);
  painter.setBrush(Qt::NoBrush);
  for (int i = 1; i <= 3; ++i) {
    painter.setPen(QPen(Faint(Qt::black, 46), 2 * i));
    painter.drawPath(Rounded(inner.translated(1, 1), corners - width));
    painter.drawPath(Rounded(area.translated(0.7, 1.2), corners));
  }
  QLinearGradient light(area.topLeft(), area.bottomRight());
  light.setColorAt(0, metal.lighter(175));
  light.setColorAt(0.3, metal);
  light.setColorAt(0.62, metal.darker(150));
  light.setColorAt(1, metal.darker(210));
  QPainterPath ring = Rounded(area, corners);
  ring.addPath(Rounded(inner, corners - width));  // the inner one is left out of what the outer one fills
  painter.fillPath(ring, light);
  painter.setPen(QPen(Faint(metal.lighter(230), 150), 0.8));
  painter.drawPath(Rounded(area.adjusted(0.9, 0.9, -0.9, -0.9), corners - 1));
  painter.setPen(QPen(metal.darker(400), 1));
  painter.drawPath(Rounded(area, corners));
  painter.drawPath(Rounded(inner, corners - width));
}

void PaintRivets(QPainter& painter, const QRectF& area, const QColor& metal, double inset) {
  const QRectF at = area.adjusted(inset, inset, -inset, -inset);
  for (const QPointF& centre : {at.topLeft(), at.topRight(), at.bottomLeft(), at.bottomRight()}) {
    QRadialGradient dome(centre - QPointF(kRivet, kRivet) * 0.4, kRivet * 1.6);
    dome.setColorAt(0, metal.lighter(240));
    dome.setColorAt(1, metal.darker(200));
    painter.setPen(QPen(metal.darker(330), 0.7));
    painter.setBrush(dome);
    painter.drawEllipse(centre, kRivet, kRivet);
  }
}

/// The frame's corners, brighter than its sides.
void PaintMarks(QPainter& painter, const QRectF& area, const QColor& border) {
  const double long_ = std::min<double>(kMark, area.height() / 4);
  painter.setPen(QPen(border.lighter(140), 1.6, Qt::SolidLine, Qt::FlatCap));
  for (const double x : {area.left(), area.right()}) {
    const double right = x == area.left() ? long_ : -long_;
    for (const double y : {area.top(), area.bottom()}) {
      const double down = y == area.top() ? long_ : -long_;
      painter.drawLine(QPointF(x, y + down * 0.4), QPointF(x, y + down));
      painter.drawLine(QPointF(x + right * 0.4, y), QPointF(x + right, y));
    }
  }
}

}  // namespace

void PaintPanel(QPainter& painter, const QRect& area, const PropertyBag& bag) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const int corners = bag.number(u"corners");
  const QColor border = bag.colour(u"border_color", Qt::white);
  const QRectF outer = QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5);
  PaintBody(painter, outer, corners, bag);
  if (!bag.has(u"rim")) {
    PaintFrame(painter, outer, corners, border);
  } else {
    const QColor metal = bag.colour(u"rim");
    const int width = bag.number(u"rim_width", kRimWidth);
    PaintRim(painter, outer, corners, metal, width);
    const QRectF held = outer.adjusted(width, width, -width, -width);
    if (bag.flag(u"rivets")) {
      PaintRivets(painter, outer, metal, width * 0.9 + corners * 0.12);
      painter.setPen(QPen(Faint(border, 110), 1));
    } else {
      PaintMarks(painter, held, border);
      painter.setPen(QPen(Faint(border, 150), 0.8));
    }
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(Rounded(held, corners - width));
  }
  painter.restore();
}

}  // namespace kv
