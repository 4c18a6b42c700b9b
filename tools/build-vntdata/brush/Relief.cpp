#include "brush/Relief.h"

#include <algorithm>
#include <cmath>

#include "brush/Brush.h"

namespace kv::datafile {
namespace {

constexpr int kMargin = 2;
constexpr int kSweeps = 14;
constexpr int kCoarsest = 12;

QRect AreaOf(const QPainter& painter, const QPainterPath& path) {
  const QRect device(0, 0, painter.device()->width(), painter.device()->height());
  const QRect shape = painter.deviceTransform().mapRect(path.boundingRect()).toAlignedRect();
  return shape.adjusted(-kMargin, -kMargin, kMargin, kMargin).intersected(device.adjusted(-24, -24, 24, 24));
}

Field Half(const Field& fine) {
  Field coarse((fine.width + 1) / 2, (fine.height + 1) / 2);
  for (int y = 0; y < coarse.height; ++y) {
    for (int x = 0; x < coarse.width; ++x) {
      coarse.At(x, y) = (fine.Near(2 * x, 2 * y) + fine.Near(2 * x + 1, 2 * y) + fine.Near(2 * x, 2 * y + 1) +
                         fine.Near(2 * x + 1, 2 * y + 1)) /
                        4;
    }
  }
  return coarse;
}

/// The shape of a skin that is blown up over the mask and held at its border; `reach` flattens the middle.
/// Coarse grids first, so that few sweeps are enough.
Field Inflate(const Field& mask, double reach) {
  Field height(mask.width, mask.height);
  if (std::min(mask.width, mask.height) > kCoarsest) {
    const Field coarse = Inflate(Half(mask), reach / 2);
    for (int y = 0; y < height.height; ++y)
      for (int x = 0; x < height.width; ++x) height.At(x, y) = 4 * coarse.Near(x / 2, y / 2);
  }
  const auto hold = static_cast<float>(4 + 1 / (reach * reach));
  for (int sweep = 0; sweep < kSweeps; ++sweep) {
    for (int y = 1; y + 1 < height.height; ++y) {
      for (int x = 1; x + 1 < height.width; ++x) {
        float& here = height.At(x, y);
        const float pull =
            height.At(x - 1, y) + height.At(x + 1, y) + height.At(x, y - 1) + height.At(x, y + 1);
        here = mask.At(x, y) < 0.5F ? 0.0F : here + 1.15F * ((pull + 1) / hold - here);
      }
    }
  }
  return height;
}

void SoftenRow(const float* from, float* to, int count, int step, int radius) {
  float sum = 0;
  const auto at = [&](int i) { return from[std::clamp(i, 0, count - 1) * step]; };
  for (int i = -radius; i <= radius; ++i) sum += at(i);
  for (int i = 0; i < count; ++i) {
    to[i * step] = sum / static_cast<float>(2 * radius + 1);
    sum += at(i + radius + 1) - at(i - radius);
  }
}

}  // namespace

float Field::Near(int x, int y) const {
  return At(std::clamp(x, 0, width - 1), std::clamp(y, 0, height - 1));
}

void Soften(Field& field, int radius) {
  if (radius < 1 || field.values.empty()) return;
  Field other(field.width, field.height);
  for (int pass = 0; pass < 2; ++pass) {
    for (int y = 0; y < field.height; ++y)
      SoftenRow(&field.At(0, y), &other.At(0, y), field.width, 1, radius);
    for (int x = 0; x < field.width; ++x)
      SoftenRow(&other.At(x, 0), &field.At(x, 0), field.height, field.width, radius);
  }
}

Relief::Relief(const QPainter& painter, const QPainterPath& path, double round)
    : scale_(std::sqrt(std::abs(painter.deviceTransform().determinant()))), mask_(0, 0), height_(0, 0) {
  const QRect area = AreaOf(painter, path);
  if (area.width() < 3 || area.height() < 3) return;
  origin_ = area.topLeft();
  toMap_ = painter.deviceTransform() * QTransform::fromTranslate(-origin_.x(), -origin_.y());
  mask_ = Field(area.width(), area.height());
  height_ = mask_;
  Raise(1, 0, [&](QPainter& map) { map.fillPath(path, Qt::white); });
  mask_ = height_;
  height_ = Inflate(mask_, std::max(0.5, round * scale_));
  for (float& value : height_.values) value = std::sqrt(3 * value);
  Soften(height_, 1);  // the border follows cells; it shall not show
  pigment_ = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
  pigment_.fill(Qt::transparent);
}

void Relief::Raise(double height, double soft, const std::function<void(QPainter&)>& paint) {
  QImage image(height_.width, height_.height, QImage::Format_Grayscale8);
  image.fill(Qt::black);
  QPainter map(&image);
  map.setRenderHint(QPainter::Antialiasing);
  map.setTransform(toMap_);
  paint(map);
  map.end();
  Field raised(height_.width, height_.height);
  for (int y = 0; y < raised.height; ++y) {
    const uchar* line = image.constScanLine(y);
    for (int x = 0; x < raised.width; ++x) raised.At(x, y) = static_cast<float>(line[x]) / 255;
  }
  Soften(raised, static_cast<int>(std::lround(soft * scale_)));
  const auto strength = static_cast<float>(height * (soft > 0 ? scale_ : 1));
  for (std::size_t i = 0; i < raised.values.size(); ++i) height_.values[i] += strength * raised.values[i];
}

void Relief::Bump(QPointF at, double halfWidth, double halfHeight, double height) {
  if (Empty()) return;
  const QPointF centre = toMap_.map(at);
  const double w = halfWidth * scale_;
  const double h = halfHeight * scale_;
  const int left = std::max(0, static_cast<int>(centre.x() - 2.4 * w));
  const int right = std::min(height_.width - 1, static_cast<int>(centre.x() + 2.4 * w));
  const int top = std::max(0, static_cast<int>(centre.y() - 2.4 * h));
  const int bottom = std::min(height_.height - 1, static_cast<int>(centre.y() + 2.4 * h));
  for (int y = top; y <= bottom; ++y) {
    for (int x = left; x <= right; ++x) {
      const double dx = (x - centre.x()) / w;
      const double dy = (y - centre.y()) / h;
      height_.At(x, y) += static_cast<float>(height * scale_ * std::exp(-dx * dx - dy * dy));
    }
  }
}

void Relief::Line(const QPainterPath& line, double width, double height, double soft) {
  if (Empty()) return;
  const QPen pen(Qt::white, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  Raise(height, soft, [&](QPainter& map) { map.strokePath(line, pen); });
}

void Relief::Area(const QPainterPath& area, double height, double soft) {
  if (Empty()) return;
  Raise(height, soft, [&](QPainter& map) { map.fillPath(area, Qt::white); });
}

void Relief::Roughen(std::uint64_t seed, double size, double height) {
  if (Empty()) return;
  Field ground(height_.width, height_.height);
  Chance chance(seed);
  for (float& value : ground.values) value = static_cast<float>(chance.Unit() - 0.5);
  const int radius = std::max(1, static_cast<int>(std::lround(size * scale_ / 2)));
  Soften(ground, radius);
  const auto strength = static_cast<float>(height * scale_ * radius * 3);
  for (std::size_t i = 0; i < ground.values.size(); ++i) height_.values[i] += strength * ground.values[i];
}

void Relief::Pigment(const std::function<void(QPainter&)>& paint) {
  if (Empty()) return;
  QPainter map(&pigment_);
  map.setRenderHint(QPainter::Antialiasing);
  map.setTransform(toMap_);
  paint(map);
}

}  // namespace kv::datafile
