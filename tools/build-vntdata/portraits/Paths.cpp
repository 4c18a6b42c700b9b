#include "portraits/Paths.h"

#include <algorithm>
#include <cmath>

namespace kv::datafile {

QPainterPath SmoothThrough(const QPolygonF& points) {
  const auto count = points.size();
  const auto at = [&](qsizetype i) { return points[(i + count) % count]; };
  QPainterPath path(points.front());
  for (qsizetype i = 0; i < count; ++i) {
    const QPointF from = at(i) + (at(i + 1) - at(i - 1)) / 6;
    const QPointF to = at(i + 1) - (at(i + 2) - at(i)) / 6;
    path.cubicTo(from, to, at(i + 1));
  }
  path.closeSubpath();
  return path;
}

QPainterPath Ragged(const QPainterPath& path, Chance& chance, double length) {
  const double around = path.length();
  const int tufts = static_cast<int>(around / 2.6);
  const QPointF centre = path.boundingRect().center();
  QPolygonF points;
  for (int i = 0; i < tufts; ++i) {
    const QPointF root = path.pointAtPercent(static_cast<double>(i) / tufts);
    const QPointF tip = path.pointAtPercent((i + 0.35) / tufts);
    const QPointF away = tip - centre;
    const double reach = length * chance.Between(0.35, 1) / std::max(1.0, std::hypot(away.x(), away.y()));
    points << root << tip + away * reach + QPointF(0, length * 0.35);
  }
  QPainterPath ragged;
  ragged.addPolygon(points);
  ragged.closeSubpath();
  return ragged;
}

QPainterPath Petal(QPointF root, QPointF tip, double breadth) {
  const QPointF way = tip - root;
  const QPointF across = QPointF(-way.y(), way.x()) * breadth / std::hypot(way.x(), way.y());
  QPainterPath path(root - across * 0.3);
  path.quadTo(root + way * 0.45 + across * -1, tip);
  path.quadTo(root + way * 0.45 + across, root + across * 0.3);
  path.closeSubpath();
  return path;
}

QPainterPath Tapered(const QPainterPath& line, double from, double to) {
  constexpr int kSteps = 24;
  QPolygonF left;
  QPolygonF right;
  for (int i = 0; i <= kSteps; ++i) {
    const double share = static_cast<double>(i) / kSteps;
    const double before = std::max(0.0, share - 0.02);
    const QPointF way = line.pointAtPercent(std::min(1.0, before + 0.04)) - line.pointAtPercent(before);
    const double length = std::max(1e-6, std::hypot(way.x(), way.y()));
    const QPointF across = QPointF(-way.y(), way.x()) / length * (from + (to - from) * share);
    left << line.pointAtPercent(share) + across;
    right.prepend(line.pointAtPercent(share) - across);
  }
  QPainterPath path;
  path.addPolygon(left + right);
  path.closeSubpath();
  path.setFillRule(Qt::WindingFill);
  return path;
}

}  // namespace kv::datafile
