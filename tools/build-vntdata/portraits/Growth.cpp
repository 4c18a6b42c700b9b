// What grows on a head: horns, ears, fins, fronds, plumes, manes, stalks.
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

/// A fan of petals over the head; `spread` is half its angle in degrees.
void Fan(QPainter& painter, Sitter& sitter, int count, double spread, double reach, double breadth) {
  for (int i = 0; i < count; ++i) {
    const double angle = (-spread + 2 * spread * i / (count - 1)) * 3.14159265 / 180;
    const double length = reach * (i % 2 == 0 ? 1 : 0.86);
    const QPointF root = sitter.Out(std::sin(angle) * 0.7, -std::cos(angle) * 0.66);
    const QPointF tip = sitter.Out(std::sin(angle) * length, -std::cos(angle) * length);
    Relief petal(painter, Petal(root, tip, breadth), breadth);
    QPainterPath vein(root);
    vein.lineTo(tip);
    petal.Line(vein, 0.8, -1, 0.3);
    petal.Pigment([&](QPainter& map) {
      Spot(map, tip, std::hypot(tip.x() - root.x(), tip.y() - root.y()) * 0.6,
           i % 2 == 0 ? sitter.eye : Mix(sitter.hair, Qt::white, 0.5), 0.4);
    });
    petal.Cast(painter, 1.6, 0.4);
    petal.Paint(painter, sitter.Of(Mix(sitter.hair, Qt::black, i % 2 == 0 ? 0.0 : 0.2), Stuff::Hide));
  }
}

void Horn(QPainter& painter, Sitter& sitter, const QPainterPath& line, double thick) {
  Relief relief(painter, Tapered(line, thick, 0.8), thick);
  QPainterPath rings;
  for (int i = 1; i < 8; ++i) {
    const double share = i * 0.1;
    const QPointF at = line.pointAtPercent(share);
    const QPointF way = line.pointAtPercent(share + 0.05) - at;
    const QPointF across = QPointF(-way.y(), way.x()) * thick * 1.2 / std::hypot(way.x(), way.y());
    rings.moveTo(at + across);
    rings.lineTo(at - across);
  }
  relief.Line(rings, 0.9, -0.9, 0.4);
  relief.Cast(painter, 2, 0.45);
  relief.Paint(painter, sitter.Of(Mix(sitter.hair, QColor(226, 210, 176), 0.5), Stuff::Bone));
}

void Horns(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath line(sitter.Out(side * 0.66, -0.74));
    line.cubicTo(sitter.Out(side * 1.3, -0.8), sitter.Out(side * 1.5, -1.2), sitter.Out(side * 1.26, -1.62));
    Horn(painter, sitter, line, 5.4);
  }
}

void RamHorns(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath line(sitter.Out(side * 0.6, -0.86));
    line.cubicTo(sitter.Out(side * 1.3, -1.3), sitter.Out(side * 1.86, -0.6), sitter.Out(side * 1.5, 0.1));
    line.cubicTo(sitter.Out(side * 1.36, 0.42), sitter.Out(side * 1.0, 0.36), sitter.Out(side * 1.08, 0.02));
    Horn(painter, sitter, line, 8);
  }
}

void Antlers(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath beam(sitter.Out(side * 0.4, -0.84));
    beam.cubicTo(sitter.Out(side * 0.7, -1.2), sitter.Out(side * 1.3, -1.1), sitter.Out(side * 1.34, -1.74));
    Model(painter, sitter, Tapered(beam, 2.8, 0.8), Mix(sitter.hair, QColor(190, 160, 120), 0.5),
          Stuff::Bone);
    for (const double share : {0.35, 0.6, 0.8}) {
      const QPointF root = beam.pointAtPercent(share);
      QPainterPath tine(root);
      tine.quadTo(root + QPointF(-side * 2, -6), root + QPointF(side * (share * 10 - 4), -12));
      Model(painter, sitter, Tapered(tine, 1.8, 0.5), Mix(sitter.hair, QColor(200, 172, 130), 0.5),
            Stuff::Bone);
    }
  }
}

struct EarRow {
  QPointF root;
  QPointF tip;
  double breadth;
};

void EarsOf(QPainter& painter, Sitter& sitter, const EarRow& row) {
  for (const double side : {1.0, -1.0}) {
    const double away = std::max(0.0, side * sitter.spec.turn);
    const QPointF root = sitter.Out(side * row.root.x(), row.root.y());
    const QPointF tip = sitter.Out(side * row.tip.x() * (1 - 0.2 * away), row.tip.y());
    Relief ear(painter, Petal(root, tip, row.breadth * (1 - 0.4 * away)), row.breadth * 0.7);
    const QPainterPath shell =
        Petal(root + (tip - root) * 0.12, root + (tip - root) * 0.84, row.breadth * 0.5 * (1 - 0.4 * away));
    ear.Area(shell, -2.2, 0.7);
    ear.Pigment(
        [&](QPainter& map) { map.fillPath(shell, Faint(Mix(sitter.skin, QColor(170, 64, 66), 0.6), 0.75)); });
    ear.Cast(painter, 1.6, 0.4);
    ear.Paint(painter, sitter.Of(sitter.skin, Stuff::Skin));
  }
}

void Fins(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath web(sitter.Out(side * 0.86, -0.5));
    for (int i = 0; i < 4; ++i) {
      web.quadTo(sitter.Out(side * 1.2, -0.5 + i * 0.26),
                 sitter.Out(side * (1.82 - 0.13 * i), -0.86 + i * 0.42));
    }
    web.lineTo(sitter.Out(side * 0.86, 0.36));
    web.closeSubpath();
    Relief fin(painter, web, 2.5);
    QPainterPath rays;
    for (int i = 0; i < 4; ++i) {
      rays.moveTo(sitter.Out(side * 0.86, -0.3 + i * 0.16));
      rays.lineTo(sitter.Out(side * (1.82 - 0.13 * i), -0.86 + i * 0.42));
    }
    fin.Line(rays, 1.6, 1.6, 0.5);
    fin.Pigment([&](QPainter& map) {
      Spot(map, sitter.Out(side * 1.7, -0.3), 20, Mix(sitter.hair, sitter.eye, 0.4), 0.6);
    });
    fin.Paint(painter, sitter.Of(sitter.hair, Stuff::Hide));
  }
}

void Mane(QPainter& painter, Sitter& sitter) {
  for (int ring = 0; ring < 2; ++ring) {
    QPolygonF points;
    constexpr int kTufts = 30;
    for (int i = 0; i < kTufts; ++i) {
      const double angle = 6.2831853 * i / kTufts + ring * 0.1;
      const double tip = sitter.chance.Between(1.55, 1.8) - ring * 0.26;
      points << sitter.Out(std::sin(angle - 0.09) * (1.24 - ring * 0.14), -std::cos(angle - 0.09) * 1.2)
             << sitter.Out(std::sin(angle) * tip, -std::cos(angle) * tip * 0.92 + 0.1);
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    Relief mane(painter, path, 9);
    mane.Roughen(static_cast<std::uint64_t>(sitter.spec.number + ring), 1.4, 0.7);
    mane.Cast(painter, 2, 0.4);
    mane.Paint(painter, sitter.Of(Mix(sitter.hair, Qt::black, ring == 0 ? 0.35 : 0.0), Stuff::Hair));
  }
}

void Stem(QPainter& painter, Sitter& sitter, double side, QPointF tip, double thick) {
  QPainterPath stem(sitter.Out(side * 0.3, -0.84));
  stem.cubicTo(sitter.Out(side * 0.34, -1.25), tip + QPointF(-side * 6, 10), tip);
  Model(painter, sitter, Tapered(stem, thick, thick * 0.6), Mix(sitter.skin, Qt::black, 0.2), Stuff::Hide);
}

void Antennae(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    const QPointF tip = sitter.Out(side * (0.94 + 0.16 * side * sitter.spec.turn), -1.5 - 0.12 * side);
    Stem(painter, sitter, side, tip, 1.9);
    QPainterPath knob;
    knob.addEllipse(tip, 3.6, 3.6);
    const bool machine = sitter.spec.kind == Kind::Machine;
    Model(painter, sitter, knob, machine ? sitter.eye : sitter.hair, Stuff::Glass);
    if (machine) Spot(painter, tip, 9, sitter.eye, 0.6);
  }
}

void Stalks(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    const double open = side < 0 ? sitter.mood.openLeft : sitter.mood.openRight;
    const QPointF tip = sitter.Out(side * 0.74, side < 0 ? -1.5 : -1.26);
    Stem(painter, sitter, side, tip, 4);
    QPainterPath ball;
    ball.addEllipse(tip, 8.4, 8.4);
    Model(painter, sitter, ball, Mix(QColor(244, 240, 228), sitter.skin, 0.15), Stuff::Glass);
    const QPointF pupil = tip + QPointF(sitter.spec.turn * 3.4, 1.4);
    painter.setPen(QPen(Mix(sitter.eye, Qt::black, 0.6), 0.8));
    painter.setBrush(sitter.eye);
    painter.drawEllipse(pupil, 4.2, 4.2);
    painter.setBrush(QColor(6, 6, 10));
    painter.drawEllipse(pupil, 2, 2);
    Spot(painter, pupil - QPointF(1.6, 1.8), 1.3, Qt::white, 1);
    QPainterPath lid(tip - QPointF(8.6, 0));
    lid.arcTo(QRectF(tip.x() - 8.7, tip.y() - 8.7, 17.4, 17.4), 180, -180);
    lid.quadTo(tip + QPointF(0, 8 - 13 * open), tip - QPointF(8.6, 0));
    Model(painter, sitter, lid, sitter.skin, Stuff::Hide, 2);
  }
}

void Tendrils(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 11; ++i) {
    const double x = (i - 5) * 0.2;
    const double sway = sitter.chance.Between(-0.25, 0.25);
    QPainterPath line(sitter.Out(x * 0.8, -0.9 + x * x * 0.3));
    line.cubicTo(sitter.Out(x * 1.6, -1.3), sitter.Out(x * 1.9 + sway, 0),
                 sitter.Out(x * 1.5 + sway, 1.3 + sway));
    Model(painter, sitter, Tapered(line, 4.6, 0.6), Mix(sitter.hair, sitter.skin, i % 2 == 0 ? 0.1 : 0.35),
          Stuff::Hide);
  }
}

}  // namespace

void PaintBehind(QPainter& painter, Sitter& sitter) {
  PaintHairBehind(painter, sitter);
  PaintGearBehind(painter, sitter);
  const bool furred = sitter.spec.kind == Kind::Furred;
  switch (sitter.spec.growth) {
    case Growth::Ears:
      return EarsOf(
          painter, sitter,
          furred ? EarRow{{0.66, -0.56}, {1.06, -1.62}, 13} : EarRow{{0.84, 0.16}, {1.86, -0.62}, 8.5});
    case Growth::LongEars:
      return EarsOf(painter, sitter,
                    furred ? EarRow{{0.4, -0.66}, {0.72, -2.1}, 9} : EarRow{{0.82, 0.22}, {2.05, -0.74}, 11});
    case Growth::Fins:
      return Fins(painter, sitter);
    case Growth::Crest:
      return Fan(painter, sitter, 5, 36, 1.6, 6);
    case Growth::Fronds:
      return Fan(painter, sitter, 11, 104, 1.76, 8);
    case Growth::Spines:
      return Fan(painter, sitter, 13, 98, 1.6, 2.6);
    case Growth::Plumes:
      return Fan(painter, sitter, 7, 52, 1.66, 5.5);
    case Growth::Mane:
      return Mane(painter, sitter);
    case Growth::Tendrils:
      return Tendrils(painter, sitter);
    case Growth::Antlers:
      return Antlers(painter, sitter);
    default:
      return;
  }
}

void PaintGrowth(QPainter& painter, Sitter& sitter) {
  switch (sitter.spec.growth) {
    case Growth::Antennae:
      return Antennae(painter, sitter);
    case Growth::Horns:
      return Horns(painter, sitter);
    case Growth::RamHorns:
      return RamHorns(painter, sitter);
    case Growth::Stalks:
      return Stalks(painter, sitter);
    default:
      return;
  }
}

}  // namespace kv::datafile
