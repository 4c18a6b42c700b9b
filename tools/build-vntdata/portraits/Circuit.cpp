#include "portraits/Circuit.h"

#include <cmath>

#include "brush/Lettering.h"
#include "portraits/Props.h"

namespace kv::datafile {
namespace {

/// A chip that was just thrown, and still turns.
void PaintToken(QPainter& painter, Sitter& sitter) {
  const QPointF at(15, 26);
  for (int i = 1; i < 7; ++i) Spot(painter, at + QPointF(i * 0.8, i * 4.4), 6 - i * 0.5, kGold, 0.12);
  Spot(painter, at, 18, QColor(255, 224, 140), 0.4);
  painter.save();
  painter.translate(at);
  painter.rotate(24);
  QPainterPath edge;
  edge.addEllipse(QPointF(1.6, 0), 6.6, 9.4);
  Model(painter, sitter, edge, kGold.darker(170), Stuff::Metal, 2);
  QPainterPath disc;
  disc.addEllipse(QPointF(0, 0), 6.6, 9.4);
  Relief face(painter, disc, 1.2);
  QPainterPath inner;
  inner.addEllipse(QPointF(0, 0), 4.8, 7.2);
  face.Line(inner, 0.7, -1, 0.2);
  face.Area(Polygon({0, 0}, 3.4, 4), 1, 0.3);
  face.Paint(painter, sitter.Of(kGold, Stuff::Metal));
  painter.restore();
  painter.setPen(QPen(Faint(Qt::white, 0.85), 0.9, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(at + QPointF(-7, -6), at + QPointF(-1, -6));
  painter.drawLine(at + QPointF(-4, -9), at + QPointF(-4, -3));
}

/// A card stuck in the band for luck, a plaster over the nose and a tooth that is gone.
void PaintAmateur(QPainter& painter, Sitter& sitter) {
  PaintCard(painter, sitter, sitter.At(0.62, -0.95), 24, CardSign::Plus);
  QPainterPath line(sitter.At(-0.2, 0.1, 0.12));
  line.lineTo(sitter.At(0.16, 0.17, 0.14));
  Relief plaster(painter, Tapered(line, 2.2, 2.2), 0.8);
  plaster.Roughen(1, 0.8, 0.2);
  plaster.Paint(painter, sitter.Of(QColor(232, 198, 160), Stuff::Cloth));
  painter.fillRect(QRectF(sitter.At(0.1, 0.565, 0.1), QSizeF(2.2, 3)), QColor(44, 10, 16));
}

/// Pale signs under the eyes, cuffs and a chain on the long ear, a gem on the brow.
void PaintListener(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath line(sitter.At(side * 0.26, 0.16, 0.02));
    line.quadTo(sitter.At(side * 0.44, 0.34), sitter.At(side * 0.72, 0.2));
    painter.strokePath(line, QPen(Faint(QColor(240, 232, 180), 0.7), 0.9, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 3; ++i) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(Faint(QColor(240, 232, 180), 0.75));
      painter.drawEllipse(sitter.At(side * (0.38 + 0.12 * i), 0.39 - 0.03 * i), 0.8, 0.8);
    }
  }
  const auto along = [&](double side, double share) {
    return sitter.Out(side * (0.82 + 1.0 * share), 0.16 - 0.76 * share);
  };
  for (const double side : {-1.0, 1.0}) {
    PaintRing(painter, sitter, along(side, 0.5), 2.6, 4.4, 1.3);
    PaintRing(painter, sitter, along(side, 0.66), 2, 3.4, 1.1);
    PaintGem(painter, sitter, along(side, 0.16) + QPointF(0, 9), 2.2, QColor(150, 90, 230));
  }
  QPainterPath chain(along(-1, 0.5) + QPointF(0, 4));
  chain.quadTo(along(-1, 0.3) + QPointF(-5, 14), along(-1, 0.16) + QPointF(0, 6));
  painter.strokePath(chain, QPen(kGold.lighter(120), 0.9, Qt::DotLine));
  QPainterPath fillet(sitter.Out(-0.98, -0.34));
  fillet.quadTo(sitter.At(0, -0.56), sitter.Out(0.98, -0.34));
  painter.strokePath(fillet, QPen(kGold.darker(140), 1.8));
  painter.strokePath(fillet.translated(-0.2, -0.4), QPen(kGold.lighter(130), 0.8));
  PaintGem(painter, sitter, sitter.At(0, -0.46, 0.02), 2.8, QColor(150, 90, 230));
}

/// Bands on the horns for those he beat, a ring in the nose, embers in the cracks.
void PaintHeavyweight(QPainter& painter, Sitter& sitter) {
  PaintRing(painter, sitter, sitter.At(0, 0.5, 0.16), 5.4, 6, 1.7);
  for (const double side : {-1.0, 1.0}) {
    for (int i = 0; i < 3; ++i) {
      const double turn = 0.35 + 0.34 * i;
      const QPointF hub = sitter.Out(side * 1.12, -0.44);
      const QPointF way(side * std::sin(turn), -std::cos(turn));
      QPainterPath band(hub + way * sitter.halfWidth * 0.28);
      band.lineTo(hub + way * sitter.halfWidth * 0.66);
      Model(painter, sitter, Tapered(band, 1.4, 1.7), kGold, Stuff::Metal, 1.2);
    }
  }
  QPainterPath ember;
  ember.addPolygon(QPolygonF({sitter.At(-0.55, -0.42), sitter.At(-0.1, -0.3), sitter.At(0.4, -0.44)}));
  painter.strokePath(ember, QPen(Faint(QColor(255, 120, 30), 0.25), 3));
  painter.strokePath(ember, QPen(Faint(QColor(255, 190, 90), 0.6), 0.7));
}

/// White fur with black tips over the shoulders, open where the chain hangs.
void PaintMantle(QPainter& painter, Sitter& sitter) {
  for (const double side : {1.0, -1.0}) {
    QPainterPath fall(QPointF(56 + side * 26, 84));
    fall.cubicTo(QPointF(56 + side * 40, 90), QPointF(56 + side * 36, 104), QPointF(56 + side * 33, 124));
    Relief fur(painter, Ragged(Tapered(fall, 9, 13), sitter.chance, 3), 6);
    fur.Roughen(static_cast<std::uint64_t>(20 + side), 1.3, 0.7);
    fur.Pigment([&](QPainter& map) {
      for (int i = 0; i < 5; ++i) {
        const QPointF spot = fall.pointAtPercent(0.15 + 0.18 * i) + QPointF(i % 2 == 0 ? 4 : -4, 0);
        map.fillPath(Petal(spot, spot + QPointF(0, 5), 1.6), QColor(24, 22, 28));
      }
    });
    fur.Cast(painter, 3, 0.5);
    fur.Paint(painter, sitter.Of(QColor(236, 232, 224), Stuff::Hair));
  }
}

/// Points of gold above the circlet, and a short silver beard.
void PaintChampion(QPainter& painter, Sitter& sitter) {
  for (const double x : {-0.66, -0.34, 0.34, 0.66}) {
    const QPointF root = sitter.At(x, -0.42 - 0.12 * (1 - std::abs(x)), 0.02);
    Model(painter, sitter, Petal(root, root + QPointF(x * 5, -10 + 5 * std::abs(x)), 2.6), kGold,
          Stuff::Metal, 1.6);
  }
  QPainterPath beard(sitter.At(-0.2, 0.76, 0.08));
  beard.quadTo(sitter.At(0, 0.7, 0.1), sitter.At(0.2, 0.76, 0.08));
  beard.quadTo(sitter.At(0.2, 1.0, 0.04), sitter.At(0, 1.3, 0.08));
  beard.quadTo(sitter.At(-0.2, 1.0, 0.04), sitter.At(-0.2, 0.76, 0.08));
  Relief hair(painter, beard, 4);
  QPainterPath strands;
  for (int i = -4; i <= 4; ++i) {
    strands.moveTo(sitter.At(i * 0.05, 0.72, 0.08));
    strands.lineTo(sitter.At(i * 0.02, 1.28, 0.08));
  }
  hair.Line(strands, 0.6, 0.9, 0.2);
  hair.Cast(painter, 2, 0.4);
  hair.Paint(painter, sitter.Of(sitter.hair, Stuff::Hair));
}

/// The number on the brow, an aerial that somebody bent long ago, tape, and a wire that sparks.
void PaintBattered(QPainter& painter, Sitter& sitter) {
  QPainterPath aerial(sitter.Out(0.5, -1.0));
  aerial.lineTo(sitter.Out(0.58, -1.36));
  aerial.lineTo(sitter.Out(1.0, -1.5));
  Model(painter, sitter, Tapered(aerial, 1.5, 0.8), sitter.hair, Stuff::Metal, 1.5);
  Spot(painter, sitter.Out(1.0, -1.5), 6, sitter.eye, 0.9);
  const QPointF middle = sitter.At(0, -0.7, 0.0);
  const QRectF plate(middle.x() - 20, middle.y() - 6.4, 40, 13);
  Relief metal(painter, Cornered(plate, 2, true), 1.6);
  metal.Roughen(45, 2, 0.1);
  metal.Pigment([&](QPainter& map) {
    Spot(map, plate.bottomRight(), 12, QColor(140, 70, 26), 0.6);
    Spot(map, plate.topLeft(), 8, QColor(120, 60, 30), 0.5);
    DrawLettering(map, QStringLiteral("H6-J8"), plate, 8, QColor(36, 18, 10));
  });
  metal.Cast(painter, 1.6, 0.6);
  metal.Paint(painter, sitter.Of(QColor(220, 206, 170), Stuff::Bone));
  for (const double turn : {-32.0, 38.0}) {
    painter.save();
    painter.translate(sitter.At(-0.66, 0.56));
    painter.rotate(turn);
    Model(painter, sitter, Cornered(QRectF(-7, -1.9, 14, 3.8), 0.6, true), QColor(190, 184, 168),
          Stuff::Cloth, 1);
    painter.restore();
  }
  QPainterPath wire(sitter.At(0.56, 0.02));
  wire.cubicTo(sitter.At(0.9, 0.2), sitter.At(0.6, 0.5), sitter.At(0.86, 0.62));
  Model(painter, sitter, Tapered(wire, 0.9, 0.7), QColor(60, 130, 190), Stuff::Hide, 1);
  for (int i = 0; i < 5; ++i) {
    QPainterPath spark(wire.currentPosition());
    spark.lineTo(wire.currentPosition() + QPointF(std::cos(i * 1.3) * 4.4, std::sin(i * 1.3) * 4.4));
    Glow(painter, spark, QColor(255, 220, 120), 0.4, 2);
  }
}

}  // namespace

void PressWear(Relief& shell, Sitter& sitter) {
  for (const QPointF& dent : {QPointF(0.62, -0.3), QPointF(-0.7, 0.5), QPointF(0.2, 0.34)})
    shell.Bump(sitter.At(dent.x(), dent.y()), 5, 4, -3.2);
  QPainterPath scratches;
  for (int i = 0; i < 22; ++i) {
    const QPointF from = sitter.At(sitter.chance.Between(-0.95, 0.9), sitter.chance.Between(-0.95, 0.95));
    scratches.moveTo(from);
    scratches.lineTo(from + QPointF(sitter.chance.Between(-9, 9), sitter.chance.Between(-4, 4)));
  }
  shell.Line(scratches, 0.5, -0.9, 0.25);
  const QRectF patch(sitter.At(0.42, 0.34), sitter.At(0.96, 0.72));
  shell.Area(Cornered(patch, 1.5, true), 1.4, 0.3);
  shell.Pigment([&](QPainter& map) {
    for (int i = 0; i < 20; ++i) {
      Spot(map, sitter.At(sitter.chance.Between(-1, 1), sitter.chance.Between(-1, 1)),
           sitter.chance.Between(3, 9), QColor(138, 62, 20), 0.5);
    }
    map.strokePath(scratches, QPen(Faint(QColor(230, 214, 190), 0.6), 0.5));
    map.fillPath(Cornered(patch, 1.5, true), QColor(84, 116, 128));
  });
}

void PaintHeadProps(QPainter& painter, Sitter& sitter) {
  switch (sitter.spec.number) {
    case kLuckyAmateur:
      return PaintAmateur(painter, sitter);
    case kAllRounder:
      return PaintRing(painter, sitter, sitter.Out(-0.92, 0.5), 4, 5, 1.1);
    case kSharpEared:
      return PaintListener(painter, sitter);
    case kHeavyweight:
      return PaintHeavyweight(painter, sitter);
    case kChampion:
      return PaintChampion(painter, sitter);
    case kBatteredMachine:
      return PaintBattered(painter, sitter);
    default:
      return;
  }
}

void PaintBodyProps(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.number == kLuckyAmateur) PaintToken(painter, sitter);
  if (sitter.spec.number == kAllRounder) {  // one of each kind, ready in the breast pocket
    for (int i = 0; i < 4; ++i)
      PaintCard(painter, sitter, {70.0 + i * 6.5, 98.0 + i * 0.6}, -20 + i * 15, static_cast<CardSign>(i));
    QPainterPath pocket(QPointF(65, 101));
    pocket.lineTo(QPointF(93, 104));
    pocket.lineTo(QPointF(92, 120));
    pocket.lineTo(QPointF(64, 120));
    pocket.closeSubpath();
    Model(painter, sitter, pocket, Mix(sitter.cloth, Qt::black, 0.15), Stuff::Cloth, 2);
  }
  QPainterPath round(QPointF(26, 88));
  round.cubicTo(QPointF(34, 112), QPointF(78, 112), QPointF(86, 88));
  if (sitter.spec.number == kHeavyweight) PaintChain(painter, sitter, round, 4.4);
  if (sitter.spec.number == kChampion) {
    PaintMantle(painter, sitter);
    PaintChain(painter, sitter, round, 2.4);
    QPainterPath medal;
    medal.addEllipse(QPointF(56, 107), 7, 7);
    Relief disc(painter, medal, 1.6);
    disc.Area(Emblem({56, 107}, 5), 1.1, 0.25);
    disc.Pigment([&](QPainter& map) { map.fillPath(Emblem({56, 107}, 5), QColor(120, 70, 20)); });
    disc.Cast(painter, 2, 0.5);
    disc.Paint(painter, sitter.Of(kGold, Stuff::Metal));
  }
}

}  // namespace kv::datafile
