#include "match/frmGameMoving.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kv {
namespace {

constexpr int kEdgeStrength = 170;  // 0 to 255: the cards are seen through the light

}  // namespace

CountingTotal::CountingTotal(const QLabel& label, QRect place, int from, int to, double reach)
    : font_(label.font()),
      colour_(label.palette().color(QPalette::WindowText)),
      alignment_(label.alignment()),
      place_(place),
      from_(from),
      to_(to),
      reach_(reach) {}

QRegion CountingTotal::Area(double) const {
  const int reach = static_cast<int>(std::ceil(reach_));
  return place_.adjusted(-reach, 0, reach, 0);
}

void CountingTotal::Paint(QPainter& painter, double way) const {
  painter.setFont(font_);
  painter.setPen(colour_);
  const int shown = from_ + static_cast<int>(std::lround((to_ - from_) * way));
  painter.translate(reach_ * (1 - way) * std::sin(6 * std::numbers::pi * way), 0);
  painter.drawText(place_, static_cast<int>(alignment_), QString::number(shown));
}

ClosingLid::ClosingLid(std::vector<PlacedPicture> cards, int arriving, QColor light, int edge)
    : cards_(std::move(cards)), arriving_(arriving), light_(std::move(light)), edge_(edge) {
  for (const PlacedPicture& each : cards_) place_ |= each.place;
}

int ClosingLid::Line(double way) const {
  return place_.top() + static_cast<int>(std::lround((place_.height() + edge_) * way));
}

QRegion ClosingLid::Area(double way) const {
  return QRect(place_.left(), Line(way) - edge_, place_.width(), edge_ + 1) & place_;
}

void ClosingLid::Paint(QPainter& painter, double way) const {
  const int line = Line(way);
  painter.setClipRect(place_);
  painter.save();
  painter.setClipRect(QRect(QPoint(place_.left(), line), place_.bottomRight()));
  const std::size_t lying = way > 0 ? cards_.size() : cards_.size() - static_cast<std::size_t>(arriving_);
  for (std::size_t i = 0; i < lying; ++i) painter.drawImage(cards_[i].place.topLeft(), cards_[i].picture);
  painter.restore();
  if (way <= 0) return;
  QLinearGradient light(0, line - edge_, 0, line);
  QColor dark = light_;
  dark.setAlpha(0);
  light.setColorAt(0, dark);
  QColor bright = light_;
  bright.setAlpha(kEdgeStrength);
  light.setColorAt(1, bright);
  painter.setClipRect(place_);
  // Only over the cards, not over the bare table between them.
  for (const PlacedPicture& each : cards_) {
    painter.fillRect(each.place & QRect(place_.left(), line - edge_, place_.width(), edge_), light);
  }
}

}  // namespace kv
