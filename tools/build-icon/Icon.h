// The program's icon as a list of shapes, from which both the scalable and the pixel forms are made.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <vector>

namespace kv::icon {

/// A shape on a square of kSide; filled or stroked with light that runs from its upper left to its lower
/// right.
struct Shape {
  QPainterPath path;
  QColor from;
  QColor to;
  double stroke = 0;  // 0: filled
  double opacity = 1;
};

inline constexpr int kSide = 512;

/// The sign of the house on a plate of steel. `small` leaves out what would blur below 32 pixels.
[[nodiscard]] std::vector<Shape> Shapes(bool small);
void Paint(QPainter& painter, const std::vector<Shape>& shapes);
[[nodiscard]] QString Svg(const std::vector<Shape>& shapes);
/// The sign alone, without its plate, in the one colour that desktops replace by that of their own text.
[[nodiscard]] QString SymbolicSvg();

}  // namespace kv::icon
