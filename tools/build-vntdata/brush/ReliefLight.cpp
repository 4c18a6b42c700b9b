// How the light falls on a relief.
#include <algorithm>
#include <array>
#include <cmath>

#include "brush/Brush.h"
#include "brush/Relief.h"

namespace kv::datafile {
namespace {

struct Vector {
  double x;
  double y;
  double z;
  [[nodiscard]] double Dot(const Vector& other) const { return x * other.x + y * other.y + z * other.z; }
};

constexpr Vector kKey{-0.53, -0.62, 0.58};         // the lamp, upper left and before the sitter
constexpr Vector kHalfway{-0.298, -0.349, 0.889};  // between the lamp and the eye
constexpr Vector kBehind{0.93, -0.30, -0.20};
constexpr double kDeepest = 0.16;  // of a hollow that gets no light at all

using Light = std::array<double, 3>;

/// Light adds up in squares of what is stored, near enough to how a screen shows it.
Light Linear(QColor colour) {
  const auto part = [](int value) { return value / 255.0 * (value / 255.0); };
  return {part(colour.red()), part(colour.green()), part(colour.blue())};
}

int Stored(double light) {
  const double rolled = light / (1 + 0.18 * light * light);  // highlights roll off instead of clipping
  return static_cast<int>(std::lround(std::clamp(std::sqrt(std::max(0.0, rolled)) * 255, 0.0, 255.0)));
}

Vector NormalAt(const Field& height, int x, int y) {
  const double dx = height.Near(x + 1, y) - height.Near(x - 1, y);
  const double dy = height.Near(x, y + 1) - height.Near(x, y - 1);
  const double length = std::sqrt(dx * dx / 4 + dy * dy / 4 + 1);
  return {-dx / 2 / length, -dy / 2 / length, 1 / length};
}

/// What polished metal mirrors: a bright ceiling, a dark horizon and a dim floor.
double Mirrored(const Vector& normal) {
  const double up = -2 * normal.z * normal.y - 0.5 * normal.x;
  if (up > 0.1) return 0.45 + 0.75 * std::min(1.0, (up - 0.1) * 1.6);
  return up > -0.25 ? 0.12 + 0.9 * std::max(0.0, up + 0.02) : 0.14 + 0.3 * std::min(1.0, -0.25 - up);
}

struct Lamp {
  double body;   // on the surface's own colour
  double shine;  // white
  double behind;
  double turn;  // 1 where light gives way to shade
};

/// `border` is 1 where the shape ends: only there does the light from behind get round it.
Lamp LampOn(const Vector& normal, double open, double border, const Surface& surface) {
  const double face = (normal.Dot(kKey) + surface.wrap) / (1 + surface.wrap);
  const double lit = std::max(0.0, face);
  const double sky = 0.5 - 0.5 * normal.y;
  Lamp lamp{};
  lamp.body = (1.27 * lit + 0.03 + 0.07 * sky) * open;
  if (surface.metal > 0) lamp.body += surface.metal * (Mirrored(normal) * open - 0.55 * lamp.body);
  lamp.shine = surface.gloss * std::pow(std::max(0.0, normal.Dot(kHalfway)), surface.sharp) * open;
  const double edge = std::max(0.0, normal.Dot(kBehind));
  lamp.behind = surface.rim * border * edge * edge * (1 - normal.z) * 2.6;
  lamp.turn = std::max(0.0, 1 - std::abs(face - 0.12) / 0.3);
  return lamp;
}

/// Under one where the ground lies lower than what is around it.
Field Openness(const Field& height, double scale) {
  Field open = height;
  Soften(open, static_cast<int>(std::lround(2.2 * scale)));
  for (std::size_t i = 0; i < open.values.size(); ++i) {
    const double below = std::max(0.0F, open.values[i] - height.values[i]) / scale;
    open.values[i] = static_cast<float>(std::max(kDeepest, 1 - 0.42 * below));
  }
  return open;
}

/// One at the shape's border, none further in than the light from behind reaches.
Field Border(const Field& mask, double scale) {
  constexpr double kReach = 1.7;  // layout pixels
  Field border = mask;
  Soften(border, static_cast<int>(std::lround(kReach * scale)));
  for (float& value : border.values) value = std::clamp((1 - value) * 2.4F, 0.0F, 1.0F);
  return border;
}

}  // namespace

void Relief::Paint(QPainter& painter, const Surface& surface) const {
  if (Empty()) return;
  const Field open = Openness(height_, scale_);
  const Field border = Border(mask_, scale_);
  const QImage stains = pigment_.convertToFormat(QImage::Format_ARGB32);
  const Light room = Linear(Mix(surface.room, Qt::white, 0.35));
  QImage image(mask_.width, mask_.height, QImage::Format_ARGB32);
  for (int y = 0; y < mask_.height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < mask_.width; ++x) {
      line[x] = 0;
      if (mask_.At(x, y) <= 0) continue;
      const QRgb stain = reinterpret_cast<const QRgb*>(stains.constScanLine(y))[x];
      const Light own = Linear(Mix(surface.colour, QColor::fromRgb(stain), qAlpha(stain) / 255.0));
      const Lamp lamp = LampOn(NormalAt(height_, x, y), open.At(x, y), border.At(x, y), surface);
      const double warmth = surface.metal > 0 ? 0 : 0.1 * lamp.turn;  // blood in the half shade
      const auto channel = [&](int i) {
        const double tint = i == 0 ? 1 + warmth * 1.6 : 1 - warmth * 0.4;
        return Stored(own[i] * (lamp.body * tint + 0.06 * room[i]) + lamp.shine + lamp.behind * room[i]);
      };
      line[x] = qRgba(channel(0), channel(1), channel(2), static_cast<int>(mask_.At(x, y) * 255));
    }
  }
  painter.save();
  painter.resetTransform();
  painter.drawImage(origin_, image);
  painter.restore();
}

void Relief::Cast(QPainter& painter, double reach, double opacity) const {
  if (Empty()) return;
  const int spread = std::max(1, static_cast<int>(std::lround(reach * scale_ * 0.6)));
  const int border = 2 * spread;
  Field shade(mask_.width + 2 * border, mask_.height + 2 * border);
  for (int y = 0; y < mask_.height; ++y)
    for (int x = 0; x < mask_.width; ++x) shade.At(x + border, y + border) = mask_.At(x, y);
  Soften(shade, spread);
  QImage image(shade.width, shade.height, QImage::Format_ARGB32);
  for (int y = 0; y < shade.height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < shade.width; ++x)
      line[x] = qRgba(6, 3, 8, static_cast<int>(shade.At(x, y) * opacity * 255));
  }
  painter.save();
  painter.resetTransform();
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  painter.drawImage(
      QPointF(origin_) + QPointF(reach * 0.55 - border / scale_, reach * 0.85 - border / scale_) * scale_,
      image);
  painter.restore();
}

}  // namespace kv::datafile
