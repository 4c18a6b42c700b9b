#include "presentation/PanelPainter.h"

namespace kv {
namespace {

constexpr int kOpaque = 255;
constexpr int kSheenAlpha = 26;       // of the light at the upper edge
constexpr int kInnerFrameAlpha = 40;  // of the second frame, inside the first

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

}  // namespace

void PaintPanel(QPainter& painter, const QRect& area, const PropertyBag& bag) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const int corners = bag.number(u"corners");
  const QColor border = bag.colour(u"border_color", Qt::white);
  const QRectF outer = QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5);

  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(bag.colour(u"fill_color", Qt::black), bag.number(u"fill_alpha", kOpaque)));
  painter.drawRoundedRect(outer, corners, corners);

  QLinearGradient sheen(outer.topLeft(), outer.bottomLeft());
  sheen.setColorAt(0, Faint(border, kSheenAlpha));
  sheen.setColorAt(0.6, Faint(border, 0));
  painter.setBrush(sheen);
  painter.drawRoundedRect(outer, corners, corners);

  painter.setBrush(Qt::NoBrush);
  painter.setPen(Faint(border, kInnerFrameAlpha));
  painter.drawRoundedRect(outer.adjusted(2, 2, -2, -2), corners - 1, corners - 1);
  painter.setPen(border);
  painter.drawRoundedRect(outer, corners, corners);
  painter.restore();
}

}  // namespace kv
