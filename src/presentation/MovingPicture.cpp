#include "presentation/MovingPicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kv {
namespace {

constexpr double kShadowFall = 9;  // layout pixels below a picture that is at its highest
constexpr double kShadowStrength = 0.38;
constexpr double kTurnedAt = 0.85;      // the part of the way on which a picture has turned over
constexpr double kNarrowest = 0.04;     // of its width, when it is seen from the edge
constexpr double kShakes = 2.5;         // to and fro
constexpr double kEdgeDarkness = 0.45;  // of a picture that turns away from the light

/// Its outline alone, which is drawn dark; a quarter of the picture's memory.
QImage ShadeOf(const QImage& picture) {
  return picture.convertToFormat(QImage::Format_Alpha8);
}

double Between(double from, double to, double way) {
  return from + (to - from) * way;
}

}  // namespace

FlyingPicture::FlyingPicture(Flight flight)
    : flight_(std::move(flight)),
      frontShade_(ShadeOf(flight_.front)),
      backShade_(flight_.back.isNull() ? QImage() : ShadeOf(flight_.back)),
      size_(flight_.size.isEmpty() ? flight_.front.deviceIndependentSize() : flight_.size) {}

double FlyingPicture::Height(double way) const {
  return std::sin(std::numbers::pi * std::clamp(way, 0.0, 1.0));
}

QRectF FlyingPicture::Place(double way) const {
  const double scale = Between(flight_.fromScale, 1, way) * (1 + flight_.lift * Height(way));
  const QPointF middle =
      flight_.from + (flight_.to - flight_.from) * way + QPointF(size_.width() / 2, size_.height() / 2);
  const QSizeF size = size_ * scale;
  return {middle - QPointF(size.width() / 2, size.height() / 2), size};
}

QRegion FlyingPicture::Area(double way) const {
  const double fall = flight_.lift > 0 ? kShadowFall : 0;
  return Place(way).adjusted(-1, -1, fall + 1, fall + 1).toAlignedRect();
}

void FlyingPicture::Paint(QPainter& painter, double way) const {
  const QRectF place = Place(way);
  const double turn = flight_.back.isNull() ? 1 : std::clamp(way / kTurnedAt, 0.0, 1.0);
  const double seen = std::abs(std::cos(std::numbers::pi * turn));
  const double width = place.width() * std::max(seen, kNarrowest);
  const QRectF face(place.center().x() - width / 2, place.top(), width, place.height());
  const bool front = turn >= 0.5;
  const QImage& shade = front ? frontShade_ : backShade_;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (flight_.lift > 0) {
    const double fall = kShadowFall * Height(way);
    painter.setOpacity(kShadowStrength * Height(way));
    painter.drawImage(face.translated(fall / 2, fall), shade);
    painter.setOpacity(1);
  }
  painter.drawImage(face, front ? flight_.front : flight_.back);
  if (seen > 0.99) return;
  painter.setOpacity(kEdgeDarkness * (1 - seen));
  painter.drawImage(face, shade);
}

QRegion UnfoldingPicture::Area(double) const {
  return place_;
}

void UnfoldingPicture::Paint(QPainter& painter, double way) const {
  const double height = place_.height() * std::clamp(way, 0.02, 1.0);
  const QRectF open(place_.left(), place_.top() + (place_.height() - height) / 2, place_.width(), height);
  painter.setOpacity(std::min(1.0, 0.3 + way));
  painter.setClipRect(open);
  painter.drawImage(place_.topLeft(), picture_);
}

ShakingPictures::ShakingPictures(std::vector<PlacedPicture> pictures, double reach)
    : pictures_(std::move(pictures)), reach_(reach) {
  for (const PlacedPicture& each : pictures_) place_ |= each.place;
}

QRegion ShakingPictures::Area(double) const {
  const int reach = static_cast<int>(std::ceil(reach_));
  return place_.adjusted(-reach, 0, reach, 0);
}

void ShakingPictures::Paint(QPainter& painter, double way) const {
  const double aside = reach_ * (1 - way) * std::sin(2 * std::numbers::pi * kShakes * way);
  for (const PlacedPicture& each : pictures_) {
    painter.drawImage(QPointF(each.place.topLeft()) + QPointF(aside, 0), each.picture);
  }
}

}  // namespace kv
