// What all painters share: chance that never changes, light, grain, and the few kinds of panel that the
// screens are built from. All measures are layout pixels; light falls from the upper left.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <cstdint>

#include "brush/Palette.h"

namespace kv::datafile {

/// The same numbers on every machine and in every build.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : state_(seed * 0x9e3779b97f4a7c15ULL + 0x5851f42d4c957f2dULL) {}
  double Unit();  // [0, 1)
  double Between(double low, double high) { return low + (high - low) * Unit(); }
  int Below(int count) { return static_cast<int>(Unit() * count); }

 private:
  std::uint64_t state_;
};

[[nodiscard]] QColor Mix(QColor a, QColor b, double share);  // share 0 is all a
[[nodiscard]] QColor Faint(QColor colour, double opacity);
[[nodiscard]] QLinearGradient Downward(QRectF area, QColor top, QColor bottom);

/// A rectangle with its corners cut ("Slate") or rounded ("Ember").
[[nodiscard]] QPainterPath Cornered(QRectF area, double corner, bool rounded);
/// An n-sided figure around a point, its first corner at `turn` degrees (0 is up).
[[nodiscard]] QPainterPath Polygon(QPointF centre, double radius, int sides, double turn = 0);

/// Fine noise over an area: brushed along x over `stretch` pixels, so 1 is sand and 60 is brushed metal.
void Grain(QPainter& painter, QRectF area, std::uint64_t seed, double opacity, int stretch);
/// Darkens towards the borders.
void Vignette(QPainter& painter, QRectF area, double opacity);
/// A line with light around it.
void Glow(QPainter& painter, const QPainterPath& path, QColor colour, double width, double halo = 6);
/// A soft spot of light.
void Spot(QPainter& painter, QPointF centre, double radius, QColor colour, double opacity);
/// Shadow that a shape casts around itself.
void DropShadow(QPainter& painter, const QPainterPath& path, double depth, double opacity);

/// The whole table top of a screen.
void Board(QPainter& painter, QRectF area, const Style& style, std::uint64_t seed);
/// A raised panel.
void Plate(QPainter& painter, QRectF area, const Style& style, std::uint64_t seed, double corner = 8);
/// A sunken panel, quiet enough for text.
void Well(QPainter& painter, QRectF area, const Style& style, double corner = 4);
/// A sunken place for one card.
void CardSlot(QPainter& painter, QRectF area, const Style& style);
/// The mount around a picture; `area` is the picture, which stays dark.
void PictureFrame(QPainter& painter, QRectF area, const Style& style);
/// A round seat for a lamp or a marker; `area` is what it holds.
void Socket(QPainter& painter, QRectF area, const Style& style, bool round);
/// The house's sign: a lozenge held between two facing arcs.
[[nodiscard]] QPainterPath Emblem(QPointF centre, double radius);
/// Lines cut into the metal.
void Engrave(QPainter& painter, const QPainterPath& path, const Style& style, double width);
void Rivet(QPainter& painter, QPointF centre, double radius, const Style& style);
/// Rivets (or thin cut marks) in the four corners of a panel.
void Fasten(QPainter& painter, QRectF area, const Style& style);

}  // namespace kv::datafile
