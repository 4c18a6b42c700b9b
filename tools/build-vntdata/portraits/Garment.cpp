// Shoulders and what they wear.
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

constexpr double kFloor = 118;
constexpr double kMiddle = 56;

QPointF Shoulder(const Sitter& sitter, double side) {
  const Frame& frame = sitter.frame;
  return {kMiddle + side * frame.reach, frame.top + frame.slope + side * frame.lean * 0.5};
}

/// Where the collar stands: the root of the neck.
QPointF Throat(const Sitter& sitter) {
  return {kMiddle + sitter.spec.turn * 1.5, sitter.frame.top + 6};
}

QPainterPath Shoulders(const Sitter& sitter) {
  const Frame& frame = sitter.frame;
  const double neck = sitter.halfWidth * frame.neck * 0.9;
  const QPointF left = Shoulder(sitter, -1);
  const QPointF right = Shoulder(sitter, 1);
  QPainterPath path(QPointF(left.x() - 6, kFloor + 10));
  path.cubicTo(QPointF(left.x() - 4, left.y() + 6), QPointF(left.x() + 2, left.y() - 4),
               QPointF(kMiddle - neck - 6, frame.top + 1));
  path.quadTo(QPointF(kMiddle - neck, frame.top - 1), QPointF(kMiddle - neck + 3, frame.top - 3));
  path.quadTo(QPointF(kMiddle, frame.top + 9), QPointF(kMiddle + neck - 3, frame.top - 3));
  path.quadTo(QPointF(kMiddle + neck, frame.top - 1), QPointF(kMiddle + neck + 6, frame.top + 1));
  path.cubicTo(QPointF(right.x() - 2, right.y() - 4), QPointF(right.x() + 4, right.y() + 6),
               QPointF(right.x() + 6, kFloor + 10));
  path.closeSubpath();
  return path;
}

void Lapels(QPainter& painter, const Sitter& sitter, QColor colour, double spread) {
  const QPointF throat = Throat(sitter);
  const double neck = sitter.halfWidth * sitter.frame.neck;
  for (const double side : {1.0, -1.0}) {
    QPainterPath lapel(throat + QPointF(side * (neck + 3), -11));
    lapel.quadTo(throat + QPointF(side * (neck + 8), 0), throat + QPointF(side * spread, 12));
    lapel.lineTo(throat + QPointF(side * (spread - 9), 15));
    lapel.lineTo(throat + QPointF(side * (spread - 8), 20));
    lapel.lineTo(throat + QPointF(side * 4, 42));
    lapel.lineTo(throat + QPointF(-side, 42));
    lapel.lineTo(throat + QPointF(0, 14));
    lapel.closeSubpath();
    Model(painter, sitter, lapel, colour, Stuff::Cloth, 2.5);
    QPainterPath stitches(throat + QPointF(side * (neck + 5), -4));
    stitches.quadTo(throat + QPointF(side * (neck + 7), 2), throat + QPointF(side * (spread - 3), 11.4));
    painter.strokePath(stitches, QPen(Faint(Mix(colour, Qt::white, 0.45), 0.55), 0.5, Qt::DashLine));
    const QPointF pin = throat + QPointF(side * (spread - 10), 4);
    if (side > 0) Model(painter, sitter, Polygon(pin, 1.9, 4), sitter.eye.lighter(130), Stuff::Glass, 1);
  }
}

void HighCollar(QPainter& painter, const Sitter& sitter, QColor colour, double height) {
  const QPointF throat = Throat(sitter);
  const double neck = sitter.halfWidth * sitter.frame.neck;
  for (const double side : {1.0, -1.0}) {
    QPainterPath half(throat + QPointF(0, 15));
    half.quadTo(throat + QPointF(side * neck, 12), throat + QPointF(side * (neck + 8), 3));
    half.quadTo(throat + QPointF(side * (neck + 7), -height * 0.5),
                throat + QPointF(side * (neck + 9), -6 - height));
    half.quadTo(throat + QPointF(side * neck * 0.8, 1 - height * 0.2), throat + QPointF(0, 6));
    half.closeSubpath();
    Model(painter, sitter, half, colour, Stuff::Cloth, 3);
  }
}

void Armour(QPainter& painter, Sitter& sitter) {
  const QColor metal = Mix(sitter.cloth, QColor(156, 162, 170), 0.45);
  for (const double side : {1.0, -1.0}) {
    const QPointF at = Shoulder(sitter, side);
    for (int i = 2; i >= 0; --i) {
      QPainterPath plate;
      plate.addEllipse(at + QPointF(-side * (9 - i * 3), 2 + i * 8), 19, 12);
      Relief relief(painter, plate, 5);
      relief.Bump(at + QPointF(-side * (9 - i * 3), -4 + i * 8), 1.3, 1.3, 2);
      relief.Roughen(static_cast<std::uint64_t>(sitter.spec.number), 1.5, 0.12);
      relief.Cast(painter, 3, 0.55);
      relief.Paint(painter, sitter.Of(metal, Stuff::Metal));
    }
  }
  HighCollar(painter, sitter, Mix(metal, Qt::black, 0.2), 3);
}

void Furs(QPainter& painter, Sitter& sitter) {
  const QPointF throat = Throat(sitter);
  for (int ring = 0; ring < 3; ++ring) {
    QPainterPath roll;
    roll.addEllipse(throat + QPointF(0, 4 + ring * 6), sitter.frame.reach * (0.86 - ring * 0.12), 11);
    Relief fur(painter, Ragged(roll, sitter.chance, 6), 7);
    fur.Roughen(static_cast<std::uint64_t>(sitter.spec.number + ring), 1.2, 0.8);
    fur.Cast(painter, 3, 0.5);
    fur.Paint(painter, sitter.Of(Mix(sitter.hair, sitter.cloth, 0.15 + 0.15 * ring), Stuff::Hair));
  }
}

void Cables(QPainter& painter, Sitter& sitter) {
  const double x = kMiddle;
  for (int i = -4; i <= 4; ++i) {
    QPainterPath cable(QPointF(x + i * 4.4, sitter.head.y() + sitter.halfLength * 0.7));
    cable.cubicTo(QPointF(x + i * 4.6, 94), QPointF(x + i * 10, 88), QPointF(x + i * 13, 116));
    Model(painter, sitter, Tapered(cable, 2.3, 2.3),
          i % 2 == 0 ? sitter.hair : Mix(sitter.cloth, Qt::white, 0.2), Stuff::Hide, 3);
  }
}

void Scarf(QPainter& painter, Sitter& sitter) {
  const QPointF throat = Throat(sitter);
  const QColor colour = Mix(sitter.cloth, sitter.eye, 0.35);
  const double neck = sitter.halfWidth * sitter.frame.neck;
  for (int i = 2; i >= 0; --i) {
    QPainterPath fold;
    fold.addEllipse(throat + QPointF(i * 2 - 2, i * 6 - 5), neck + 9 + i * 5, 8);
    Relief wool(painter, fold, 5);
    QPainterPath creases;
    for (int k = -3; k <= 3; ++k) {
      creases.moveTo(throat + QPointF(k * 9 - 3, i * 6 - 12));
      creases.quadTo(throat + QPointF(k * 8, i * 6 - 4), throat + QPointF(k * 9 + 4, i * 6 + 3));
    }
    wool.Line(creases, 1.2, -1, 0.7);
    wool.Roughen(static_cast<std::uint64_t>(i), 0.8, 0.25);
    wool.Cast(painter, 2.4, 0.5);
    wool.Paint(painter, sitter.Of(Mix(colour, Qt::white, i == 1 ? 0.14 : 0.0), Stuff::Cloth));
  }
}

void Straps(QPainter& painter, Sitter& sitter) {
  const QPointF throat = Throat(sitter);
  for (const double side : {1.0, -1.0}) {
    QPainterPath line(throat + QPointF(side * 30, -2));
    line.quadTo(throat + QPointF(side * 20, 12), throat + QPointF(side * 2, 38));
    Model(painter, sitter, Tapered(line, 4.4, 4.4), Mix(sitter.hair, QColor(70, 44, 26), 0.6), Stuff::Hide,
          2);
  }
  const QRectF buckle(throat.x() - 26, throat.y() + 6, 9, 9);
  QPainterPath frame;
  frame.addRoundedRect(buckle, 2, 2);
  frame.addRect(buckle.adjusted(2.4, 2.4, -2.4, -2.4));
  Model(painter, sitter, frame, QColor(216, 182, 104), Stuff::Metal, 1.5);
}

void Uniform(QPainter& painter, Sitter& sitter) {
  const QPointF throat = Throat(sitter);
  const QColor gold(226, 190, 104);
  HighCollar(painter, sitter, Mix(sitter.cloth, Qt::black, 0.2), 3);
  QPainterPath seam(throat + QPointF(0, 14));
  seam.lineTo(throat + QPointF(0, 40));
  painter.strokePath(seam, QPen(Faint(gold, 0.8), 1.1));
  for (int i = 0; i < 3; ++i)
    Model(painter, sitter, Polygon(throat + QPointF(-30 + i * 6.5, 17), 2.8, 4), gold, Stuff::Metal, 1.5);
  for (const double side : {-1.0, 1.0}) {
    QPainterPath board(Shoulder(sitter, side) + QPointF(-side * 7, -2));
    board.lineTo(throat + QPointF(side * 23, -1));
    Model(painter, sitter, Tapered(board, 4.2, 2.6), Mix(sitter.cloth, gold, 0.4), Stuff::Cloth, 2);
  }
}

void PaintBody(QPainter& painter, Sitter& sitter) {
  const bool bare = sitter.spec.garment == Garment::Straps;
  const bool metal = sitter.spec.kind == Kind::Machine && sitter.spec.garment != Garment::Jacket;
  Relief body(painter, Shoulders(sitter), bare ? 16 : 10);
  const QPointF throat = Throat(sitter);
  if (bare) {
    body.Bump(throat + QPointF(-20, 24), 16, 9, 4);
    body.Bump(throat + QPointF(20, 24), 16, 9, 4);
  }
  QPainterPath folds;
  for (const double side : {-1.0, 1.0}) {
    folds.moveTo(Shoulder(sitter, side) + QPointF(-side * 5, 2));
    folds.quadTo(throat + QPointF(side * 24, 14), throat + QPointF(side * 20, 40));
    folds.moveTo(Shoulder(sitter, side) + QPointF(side * 1, 9));
    folds.quadTo(throat + QPointF(side * 32, 22), throat + QPointF(side * 30, 44));
  }
  body.Line(folds, metal ? 0.9 : 2.2, bare ? -0.5 : -1.5, metal ? 0.3 : 1.1);
  body.Roughen(static_cast<std::uint64_t>(sitter.spec.number) + 40, 0.8, metal || bare ? 0.08 : 0.22);
  const QColor colour = bare ? Mix(sitter.skin, Qt::black, 0.1) : sitter.cloth;
  body.Paint(painter, sitter.Of(colour, metal ? Stuff::Metal : bare ? Stuff::Skin : Stuff::Cloth));
}

}  // namespace

void PaintGarment(QPainter& painter, Sitter& sitter) {
  const BustSpec& spec = sitter.spec;
  PaintBody(painter, sitter);
  switch (spec.garment) {
    case Garment::Collar:
      return HighCollar(painter, sitter, Mix(sitter.cloth, Qt::white, 0.08), 5);
    case Garment::Robe:
      return Lapels(painter, sitter, Mix(sitter.cloth, sitter.hair, 0.25), 24);
    case Garment::Armour:
      return Armour(painter, sitter);
    case Garment::Jacket:
      return Lapels(painter, sitter, Mix(sitter.cloth, Qt::black, 0.25), 30);
    case Garment::Scarf:
      return Scarf(painter, sitter);
    case Garment::Fur:
      return Furs(painter, sitter);
    case Garment::Cables:
      return Cables(painter, sitter);
    case Garment::Gown:
      return HighCollar(painter, sitter, Mix(sitter.cloth, sitter.eye, 0.25), 17);
    case Garment::Uniform:
      return Uniform(painter, sitter);
    case Garment::Straps:
      return Straps(painter, sitter);
  }
}

}  // namespace kv::datafile
