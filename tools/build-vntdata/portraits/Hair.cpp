// Hair and beards, and what of the hair lies behind the head.
#include <algorithm>
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

struct CapRow {
  double line;    // where it ends on the forehead
  double volume;  // over the skull
  double part;    // where it is parted
};

/// Locks that run from a point over a shape: grooves, and a light streak where it bends to the lamp.
void PaintLocks(QPainter& painter, Sitter& sitter, const QPainterPath& shape, QPointF from, int count,
                double round) {
  Relief relief(painter, shape, round);
  const QRectF area = shape.boundingRect();
  const double reach = std::hypot(area.width(), area.height());
  QPainterPath deep;
  QPainterPath fine;
  for (int i = 0; i < count; ++i) {
    const double angle = sitter.chance.Between(-0.4, 3.54);
    const QPointF way(std::cos(angle), std::sin(angle) * 0.9);
    QPainterPath& lock = i % 3 == 0 ? deep : fine;
    lock.moveTo(from + way * reach * 0.06);
    lock.cubicTo(from + way * reach * 0.3 - QPointF(0, 3), from + way * reach * 0.5,
                 from + way * reach * 0.95 + QPointF(sitter.chance.Between(-3, 3), 9));
  }
  relief.Line(deep, 1.1, -1.1, 0.3);
  relief.Line(fine, 0.6, 0.7, 0.25);
  relief.Pigment([&](QPainter& map) {
    map.strokePath(fine, QPen(Faint(Mix(sitter.hair, Qt::white, 0.3), 0.45), 0.6));
    map.strokePath(deep, QPen(Faint(Mix(sitter.hair, Qt::black, 0.6), 0.4), 0.9));
    Spot(map, from + QPointF(-area.width() * 0.22, area.height() * 0.2), area.width() * 0.3,
         Mix(sitter.hair, Qt::white, 0.55), 0.35);
  });
  relief.Cast(painter, 2, 0.45);
  relief.Paint(painter, sitter.Of(sitter.hair, Stuff::Hair));
}

/// The hair over the skull down to a line on the forehead.
QPainterPath Cap(const Sitter& sitter, const CapRow& row) {
  const double v = row.volume;
  QPainterPath path(sitter.Out(-1.05 - v * 0.4, 0.06));
  path.cubicTo(sitter.Out(-1.16 - v, -0.9 - v), sitter.Out(-0.58, -1.12 - v), sitter.Out(0.02, -1.12 - v));
  path.cubicTo(sitter.Out(0.62, -1.12 - v), sitter.Out(1.16 + v, -0.9 - v), sitter.Out(1.05 + v * 0.4, 0.06));
  path.quadTo(sitter.At(0.94, -0.2), sitter.At(0.84, row.line + 0.16));
  path.quadTo(sitter.At(row.part + 0.3, row.line - 0.02), sitter.At(row.part, row.line - 0.14));
  path.quadTo(sitter.At(-0.5, row.line + 0.02), sitter.At(-0.84, row.line + 0.2));
  path.quadTo(sitter.At(-0.94, -0.2), sitter.Out(-1.05 - v * 0.4, 0.06));
  path.closeSubpath();
  return path;
}

void Curls(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 40; ++i) {
    const double angle = 3.05 + (i * 0.618 - std::floor(i * 0.618)) * 3.3;
    const double reach = 1.34 - 0.012 * i + sitter.chance.Between(-0.05, 0.05);
    QPainterPath curl;
    curl.addEllipse(sitter.Out(std::cos(angle) * reach, std::sin(angle) * reach + 0.02),
                    sitter.chance.Between(4.2, 6.4), sitter.chance.Between(4, 6));
    Model(painter, sitter, curl, Mix(sitter.hair, Qt::black, sitter.chance.Between(0, 0.2)), Stuff::Hair);
  }
}

void Mohawk(QPainter& painter, Sitter& sitter) {
  const double shift = sitter.spec.turn * 0.3;
  QPolygonF points{sitter.Out(shift - 0.26, -0.7)};
  for (int i = 0; i < 7; ++i) {  // a row of spikes over the crown
    const double x = -0.44 + i * 0.14 + sitter.spec.turn * 0.2;
    points << sitter.Out(x - 0.02, -1.36 - 0.05 * (i % 3))
           << sitter.Out(x + 0.05, -1.72 + 0.06 * std::abs(i - 3));
  }
  points << sitter.Out(shift + 0.26, -0.7);
  QPainterPath crest;
  crest.addPolygon(points);
  crest.closeSubpath();
  PaintLocks(painter, sitter, crest, sitter.Out(shift, -0.5), 50, 6);
}

void Braid(QPainter& painter, Sitter& sitter, double side) {
  for (int i = 0; i < 8; ++i) {
    QPainterPath knot;
    knot.addEllipse(sitter.Out(side * (1.06 + 0.035 * i), 0.02 + i * 0.19), 5.2 - i * 0.3, 4.2);
    Relief relief(painter, knot, 4);
    QPainterPath cross(sitter.Out(side * 0.96, -0.06 + i * 0.19));
    cross.lineTo(sitter.Out(side * 1.3, 0.12 + i * 0.19));
    relief.Line(cross, 0.8, -1, 0.3);
    relief.Cast(painter, 1.4, 0.4);
    relief.Paint(painter, sitter.Of(sitter.hair, Stuff::Hair));
  }
}

/// Tufts that stand away from the head to all sides.
QPainterPath WildMane(Sitter& sitter) {
  QPolygonF points;
  constexpr int kTufts = 19;
  for (int i = 0; i <= kTufts; ++i) {
    const double angle = 2.5 + 4.4 * i / kTufts;
    const bool covered = sitter.spec.gear != Gear::None && std::sin(angle) < -0.3;
    const double tip = covered ? 1.1 : sitter.chance.Between(1.35, 1.75);
    points << sitter.Out(std::cos(angle - 0.08) * 1.12, std::sin(angle - 0.08) * 1.1)
           << sitter.Out(std::cos(angle) * tip, std::sin(angle) * tip * 0.94);
  }
  QPainterPath path;
  path.addPolygon(points);
  path.closeSubpath();
  return path;
}

CapRow CapRowOf(Hair hair) {
  switch (hair) {
    case Hair::Short:
      return {-0.58, 0.06, 0.3};
    case Hair::Slick:
      return {-0.74, 0.03, -0.1};
    case Hair::Receding:
      return {-0.9, 0.0, 0.12};
    case Hair::Bob:
      return {-0.36, 0.1, 0.05};
    case Hair::Wild:
      return {-0.5, 0.12, -0.3};
    case Hair::Long:
      return {-0.64, 0.09, -0.2};
    default:
      return {-0.62, 0.07, 0.1};
  }
}

void PaintMoustache(QPainter& painter, Sitter& sitter) {
  const double y = sitter.plan.mouthY - 0.13;
  for (const double side : {1.0, -1.0}) {
    QPainterPath half(sitter.At(0, y - 0.04, 0.16));
    half.quadTo(sitter.At(side * 0.3, y - 0.08, 0.1), sitter.At(side * 0.46, y + 0.16, 0.06));
    half.quadTo(sitter.At(side * 0.6, y + 0.24), sitter.At(side * 0.72, y + 0.04));
    PaintLocks(painter, sitter, Tapered(half, 3, 0.6), sitter.At(0, y - 0.2, 0.1), 20, 2);
  }
}

}  // namespace

void PaintHairBehind(QPainter& painter, Sitter& sitter) {
  const Hair style = sitter.spec.hairStyle;
  if (style == Hair::Long || style == Hair::Bob) {
    const double low = style == Hair::Long ? 1.9 : 0.74;
    const double sway = sitter.spec.turn * -0.16;
    QPainterPath fall(sitter.Out(0, -1.2));
    fall.cubicTo(sitter.Out(1.4, -1.2), sitter.Out(1.24, 0.1), sitter.Out(1.4 + sway, low));
    fall.quadTo(sitter.Out(0.4, low + 0.12), sitter.Out(-1.38 + sway, low));
    fall.cubicTo(sitter.Out(-1.24, 0.1), sitter.Out(-1.4, -1.2), sitter.Out(0, -1.2));
    PaintLocks(painter, sitter, fall, sitter.Out(0, -1.1), 120, 10);
  }
  if (style == Hair::Wild) PaintLocks(painter, sitter, WildMane(sitter), sitter.Out(0, -0.3), 130, 8);
  if (style == Hair::Bun) {
    QPainterPath bun;
    bun.addEllipse(sitter.Out(0.12 - 0.4 * sitter.spec.turn, -1.22), sitter.halfWidth * 0.5,
                   sitter.halfLength * 0.36);
    PaintLocks(painter, sitter, bun, sitter.Out(0, -1.1), 40, 8);
  }
}

void PaintBeard(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.mark == Mark::Moustache) PaintMoustache(painter, sitter);
  if (sitter.spec.mark != Mark::Beard) return;
  const double y = sitter.plan.mouthY;
  QPainterPath beard(sitter.Out(-1.0, 0.0));
  beard.cubicTo(sitter.At(-0.84, 0.4), sitter.At(-0.5, y - 0.16), sitter.At(0, y - 0.16, 0.08));
  beard.cubicTo(sitter.At(0.5, y - 0.16), sitter.At(0.84, 0.4), sitter.Out(1.0, 0.0));
  beard.cubicTo(sitter.Out(1.08, 0.9), sitter.Out(0.6, 1.42), sitter.Out(0.04, 1.5));
  beard.cubicTo(sitter.Out(-0.6, 1.42), sitter.Out(-1.08, 0.9), sitter.Out(-1.0, 0.0));
  QPainterPath mouth;
  mouth.addEllipse(sitter.At(0, y + 0.02, 0.1), sitter.halfWidth * 0.3, sitter.halfLength * 0.085);
  PaintLocks(painter, sitter, beard.subtracted(mouth), sitter.At(0, 0.1, 0.1), 110, 6);
}

void PaintHair(QPainter& painter, Sitter& sitter) {
  const Hair style = sitter.spec.hairStyle;
  if (style == Hair::None) return;
  if (style == Hair::Curly) return Curls(painter, sitter);
  if (style == Hair::Mohawk) return Mohawk(painter, sitter);
  const CapRow row = CapRowOf(style);
  PaintLocks(painter, sitter, Cap(sitter, row), sitter.At(row.part * 0.6, -1.02),
             style == Hair::Receding ? 50 : 90, 8);
  if (style == Hair::Braids) {
    Braid(painter, sitter, 1);
    Braid(painter, sitter, -1);
  }
}

}  // namespace kv::datafile
