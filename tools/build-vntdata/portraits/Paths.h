// Outlines that bodies are made of. They know nothing of who is painted.
#pragma once

#include <QPainterPath>
#include <QPolygonF>

#include "brush/Brush.h"

namespace kv::datafile {

/// A closed curve through points.
[[nodiscard]] QPainterPath SmoothThrough(const QPolygonF& points);
/// The same shape with a border of tufts.
[[nodiscard]] QPainterPath Ragged(const QPainterPath& path, Chance& chance, double length);
/// A leaf from a root to a tip.
[[nodiscard]] QPainterPath Petal(QPointF root, QPointF tip, double breadth);
/// A limb along a line that gets thinner from `from` to `to`.
[[nodiscard]] QPainterPath Tapered(const QPainterPath& line, double from, double to);

}  // namespace kv::datafile
