// Turns a flat shape into a lit one: the shape is blown up to a height, features are pressed into it, and the
// whole is lit from the upper left with a thin light of the room's colour from behind on the right. Positions
// are layout pixels of the painter that was given; the light does not turn with that painter.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <cstdint>
#include <functional>
#include <vector>

namespace kv::datafile {

/// A grid of numbers over a small area.
struct Field {
  int width = 0;
  int height = 0;
  std::vector<float> values;

  Field(int w, int h) : width(w), height(h), values(static_cast<std::size_t>(w) * h, 0.0F) {}
  float& At(int x, int y) { return values[static_cast<std::size_t>(y) * width + x]; }
  [[nodiscard]] float At(int x, int y) const { return values[static_cast<std::size_t>(y) * width + x]; }
  [[nodiscard]] float Near(int x, int y) const;  // the border goes on outside
};

/// Softens a field over about `radius` cells.
void Soften(Field& field, int radius);

/// How a surface answers the light.
struct Surface {
  QColor colour{};
  QColor room{};       // the light from behind
  double gloss = 0.1;  // strength of the highlight
  double sharp = 10;   // 4 is waxen, 60 is polished
  double wrap = 0.3;   // how far light creeps around, as it does in skin
  double metal = 0;    // share of the room that is mirrored
  double rim = 0.7;
};

class Relief {
 public:
  /// `round`: how far from its border the shape goes on rising, in layout pixels.
  Relief(const QPainter& painter, const QPainterPath& path, double round);

  /// A soft hill (or, with a negative height, a dent). Heights are layout pixels.
  void Bump(QPointF at, double halfWidth, double halfHeight, double height);
  /// Raises (or sinks) what is stroked or filled; `soft` is how far the edge is spread.
  void Line(const QPainterPath& line, double width, double height, double soft = 0.4);
  void Area(const QPainterPath& area, double height, double soft = 0.6);
  /// Uneven ground: grains of `size` layout pixels.
  void Roughen(std::uint64_t seed, double size, double height);
  /// Paints pigment, which the light then falls on.
  void Pigment(const std::function<void(QPainter&)>& paint);
  void Paint(QPainter& painter, const Surface& surface) const;
  /// A soft shadow of the shape on what the painter already holds.
  void Cast(QPainter& painter, double reach, double opacity) const;

 private:
  void Raise(double height, double soft, const std::function<void(QPainter&)>& paint);
  [[nodiscard]] bool Empty() const { return mask_.width <= 0 || mask_.height <= 0; }

  QTransform toMap_;  // layout pixels to cells
  QPoint origin_;     // of the grid, in device pixels
  double scale_;      // cells for one layout pixel
  Field mask_;        // 0 to 1
  Field height_;      // in cells
  QImage pigment_;
};

}  // namespace kv::datafile
