// What is worn on the head.
#include <cmath>

#include "portraits/Props.h"

namespace kv::datafile {
namespace {

constexpr QColor kLeather(74, 50, 34);

QPainterPath HoodShape(const Sitter& sitter) {
  QPainterPath hood(sitter.Out(-0.1, -1.6));
  hood.cubicTo(sitter.Out(1.4, -1.4), sitter.Out(1.5, 0.2), sitter.Out(1.75, 2.6));
  hood.lineTo(sitter.Out(-1.75, 2.6));
  hood.cubicTo(sitter.Out(-1.5, 0.2), sitter.Out(-1.6, -1.3), sitter.Out(-0.1, -1.6));
  return hood;
}

void Hood(QPainter& painter, Sitter& sitter) {
  QPainterPath opening(sitter.At(-0.02, -0.98));
  opening.cubicTo(sitter.At(0.95, -0.92), sitter.Out(1.08, 0.3), sitter.Out(0.5, 2.8));
  opening.lineTo(sitter.Out(-0.5, 2.8));
  opening.cubicTo(sitter.Out(-1.08, 0.3), sitter.At(-0.95, -0.92), sitter.At(-0.02, -0.98));
  Relief cloth(painter, HoodShape(sitter).subtracted(opening), 7);
  QPainterPath folds;
  for (const double side : {-1.0, 1.0}) {
    folds.moveTo(sitter.Out(side * 0.3, -1.4));
    folds.cubicTo(sitter.Out(side * 1.2, -0.9), sitter.Out(side * 1.2, 0.2), sitter.Out(side * 1.4, 1.6));
    folds.moveTo(sitter.Out(side * 0.9, -0.9));
    folds.quadTo(sitter.Out(side * 1.14, 0.3), sitter.Out(side * 1.06, 1.5));
  }
  cloth.Line(folds, 1.6, -1.5, 0.8);
  cloth.Roughen(static_cast<std::uint64_t>(sitter.spec.number), 0.8, 0.18);
  painter.save();
  painter.setClipPath(opening);
  for (int i = 1; i <= 18; ++i) {  // the face lies in its shadow
    painter.strokePath(opening.translated(1, 1.5), QPen(Faint(QColor(6, 3, 8), 0.06), i * 1.5));
  }
  painter.restore();
  cloth.Paint(painter, sitter.Of(sitter.cloth, Stuff::Cloth));
}

void CapAndBrim(QPainter& painter, Sitter& sitter, bool brim) {
  QPainterPath crown(sitter.Out(-1.1, -0.42));
  crown.cubicTo(sitter.Out(-1.14, -1.0), sitter.Out(-0.8, brim ? -1.66 : -1.44), sitter.Out(-0.1, -1.44));
  crown.cubicTo(sitter.Out(0.8, brim ? -1.66 : -1.44), sitter.Out(1.14, -1.0), sitter.Out(1.1, -0.42));
  crown.quadTo(sitter.At(0, -0.62), sitter.Out(-1.1, -0.42));
  const QColor colour = Mix(sitter.cloth, sitter.hair, brim ? 0.5 : 0.15);
  Relief felt(painter, crown, 14);
  QPainterPath seams(sitter.Out(0, -1.5));
  seams.lineTo(sitter.At(0, -0.5));
  for (const double side : {-1.0, 1.0}) {
    seams.moveTo(sitter.Out(side * 0.2, -1.42));
    seams.quadTo(sitter.Out(side * 0.8, -1.1), sitter.At(side * 0.78, -0.46));
  }
  felt.Line(seams, 1, brim ? 0 : -1, 0.4);
  felt.Roughen(7, 0.8, 0.16);
  felt.Cast(painter, 3, 0.5);
  felt.Paint(painter, sitter.Of(colour, Stuff::Cloth));
  QPainterPath rim(brim ? sitter.Out(-1.8, -0.5) : sitter.At(-0.98, -0.48));
  if (brim) {
    rim.cubicTo(sitter.Out(-1.0, -0.8), sitter.Out(1.0, -0.8), sitter.Out(1.8, -0.42));
    rim.cubicTo(sitter.Out(1.0, -0.1), sitter.Out(-1.0, -0.14), sitter.Out(-1.8, -0.5));
  } else {  // a peak to where the face looks
    rim.quadTo(sitter.At(0, -0.74), sitter.At(0.98, -0.48));
    rim.cubicTo(sitter.At(0.9, -0.2, 0.4), sitter.At(-0.4, -0.2, 0.4), sitter.At(-0.98, -0.48));
  }
  Relief peak(painter, rim, 3);
  peak.Cast(painter, 4, 0.6);
  peak.Paint(painter, sitter.Of(Mix(colour, Qt::black, 0.25), Stuff::Cloth));
  if (!brim) return Model(painter, sitter, Polygon(sitter.At(0, -0.84), 3.8, 5), kGold, Stuff::Metal, 2);
  QPainterPath band(sitter.Out(-1.1, -0.56));
  band.quadTo(sitter.Out(0, -0.84), sitter.Out(1.1, -0.56));
  Model(painter, sitter, Tapered(band, 2, 2), Mix(sitter.eye, kLeather, 0.6), Stuff::Cloth, 2);
}

void Goggles(QPainter& painter, Sitter& sitter) {
  QPainterPath strap(sitter.Out(-1.08, -0.4));
  strap.quadTo(sitter.At(0, -0.62), sitter.Out(1.08, -0.4));
  Model(painter, sitter, Tapered(strap, 2.4, 2.4), kLeather, Stuff::Cloth, 2);
  for (const double x : {0.42, -0.42}) {
    const double away = std::max(0.0, (x > 0 ? 1 : -1) * sitter.spec.turn);
    QPainterPath rim;
    rim.addEllipse(sitter.At(x, -0.6, 0.03), 9.4 * (1 - 0.25 * away), 8.2);
    Model(painter, sitter, rim, QColor(176, 132, 78), Stuff::Metal, 4);
    QPainterPath glass;
    glass.addEllipse(sitter.At(x, -0.6, 0.04), 6.8 * (1 - 0.25 * away), 5.8);
    Model(painter, sitter, glass, Mix(sitter.eye, QColor(30, 70, 96), 0.6), Stuff::Glass, 6);
    Spot(painter, sitter.At(x - 0.1, -0.68, 0.04), 2.6, Qt::white, 0.85);
  }
}

void Visor(QPainter& painter, Sitter& sitter) {
  QPainterPath band(sitter.Out(-1.08, -0.28));
  band.quadTo(sitter.At(0, -0.36, 0.1), sitter.Out(1.08, -0.28));
  band.lineTo(sitter.Out(1.02, 0.04));
  band.quadTo(sitter.At(0.3, 0.3, 0.1), sitter.At(0, 0.1, 0.12));
  band.quadTo(sitter.At(-0.3, 0.3, 0.1), sitter.Out(-1.02, 0.04));
  band.closeSubpath();
  Model(painter, sitter, band, Mix(sitter.eye, Qt::black, 0.35), Stuff::Glass, 8);
  QPainterPath shine(sitter.At(-0.8, -0.2));
  shine.lineTo(sitter.At(-0.36, -0.25));
  shine.lineTo(sitter.At(-0.6, 0.12));
  shine.lineTo(sitter.At(-0.84, 0.06));
  painter.fillPath(shine, Faint(Qt::white, 0.4));
  QPainterPath light(sitter.At(0.1, -0.12, 0.1));
  light.lineTo(sitter.At(0.7, -0.12, 0.02));
  Glow(painter, light, sitter.eye.lighter(150), 0.9, 4);
}

void Helmet(QPainter& painter, Sitter& sitter) {
  QPainterPath shell(sitter.Out(-1.2, 0.62));
  shell.cubicTo(sitter.Out(-1.5, -1.9), sitter.Out(1.5, -1.9), sitter.Out(1.2, 0.62));
  shell.lineTo(sitter.At(0.82, 0.5));
  shell.quadTo(sitter.At(0.9, -0.38), sitter.At(0.1, -0.36));
  shell.lineTo(sitter.At(0, -0.1, 0.06));
  shell.lineTo(sitter.At(-0.1, -0.36));
  shell.quadTo(sitter.At(-0.9, -0.38), sitter.At(-0.82, 0.5));
  shell.closeSubpath();
  Relief metal(painter, shell, 9);
  QPainterPath ridge(sitter.Out(0, -1.4));
  ridge.lineTo(sitter.At(0, -0.3, 0.06));
  metal.Line(ridge, 4, 2.4, 0.7);
  QPainterPath seam(sitter.Out(-1.2, -0.2));
  seam.quadTo(sitter.At(0, -0.66), sitter.Out(1.2, -0.2));
  metal.Line(seam, 1.1, -1.6, 0.3);
  metal.Roughen(3, 1.6, 0.1);
  metal.Cast(painter, 3, 0.6);
  metal.Paint(painter, sitter.Of(Mix(sitter.cloth, QColor(150, 160, 168), 0.5), Stuff::Metal));
}

void Circlet(QPainter& painter, Sitter& sitter) {
  QPainterPath ring(sitter.Out(-1.02, -0.42));
  ring.quadTo(sitter.At(0, -0.6), sitter.Out(1.02, -0.42));
  Model(painter, sitter, Tapered(ring, 1.7, 1.7), kGold, Stuff::Metal, 2);
  QPainterPath point = Polygon(sitter.At(0, -0.64, 0.03), 6.4, 4);
  Model(painter, sitter, point, kGold, Stuff::Metal, 2);
  Model(painter, sitter, Polygon(sitter.At(0, -0.64, 0.03), 4.2, 4), sitter.eye.lighter(120), Stuff::Glass,
        3);
  Spot(painter, sitter.At(-0.06, -0.7, 0.03), 1.8, Qt::white, 0.9);
}

void BandAndWrap(QPainter& painter, Sitter& sitter, bool wrap) {
  for (int i = wrap ? 4 : 0; i >= 0; --i) {
    const double bulge = wrap ? 0.16 * std::sin((i + 1) * 0.62) : 0.02;
    QPainterPath fold(sitter.Out(-1.04 - bulge, -0.36 - i * 0.19));
    fold.quadTo(sitter.At(i % 2 == 0 ? 0.3 : -0.3, -0.6 - i * 0.19),
                sitter.Out(1.04 + bulge, -0.36 - i * 0.19));
    fold.cubicTo(sitter.Out(1.2 + bulge, -0.76 - i * 0.19), sitter.Out(0.6, -0.98 - i * 0.17),
                 sitter.Out(0, -0.98 - i * 0.17));
    fold.cubicTo(sitter.Out(-0.6, -0.98 - i * 0.17), sitter.Out(-1.2 - bulge, -0.76 - i * 0.19),
                 sitter.Out(-1.04 - bulge, -0.36 - i * 0.19));
    Model(painter, sitter, fold, i % 2 == 0 ? sitter.cloth : Mix(sitter.cloth, Qt::white, 0.15), Stuff::Cloth,
          5);
  }
  if (wrap)
    Model(painter, sitter, Polygon(sitter.At(0, -0.72, 0.1), 4.6, 6), sitter.back.lighter(150), Stuff::Glass,
          4);
}

void Pods(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    if (side * sitter.spec.turn > 0.5) continue;
    const QPointF at = sitter.Out(side * (1.1 - 0.25 * std::max(0.0, -side * sitter.spec.turn)), -0.04);
    QPainterPath pod;
    pod.addRoundedRect(QRectF(at - QPointF(6.4, 11), QSizeF(12.8, 22)), 6, 6);
    Model(painter, sitter, pod, Mix(sitter.hair, Qt::black, 0.15), Stuff::Metal, 5);
    Spot(painter, at, 6, sitter.eye, 0.6);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Mix(sitter.eye, Qt::white, 0.4));
    painter.drawEllipse(at, 2.3, 2.3);
  }
}

/// A bowl of glass with its own air, for those who cannot breathe ours.
void Bowl(QPainter& painter, Sitter& sitter) {
  QPainterPath bowl;
  bowl.addEllipse(sitter.head + QPointF(0, 2), sitter.halfLength * 1.32, sitter.halfLength * 1.34);
  QRadialGradient glass(sitter.head + QPointF(4, 6), sitter.halfLength * 1.34);
  glass.setColorAt(0.6, Faint(sitter.back.lighter(140), 0.03));
  glass.setColorAt(1, Faint(Mix(sitter.back, Qt::white, 0.5), 0.42));
  painter.fillPath(bowl, glass);
  painter.strokePath(bowl, QPen(Faint(Mix(sitter.back, Qt::white, 0.65), 0.8), 1));
  QPainterPath shine(sitter.Out(-1.12, -0.5));
  shine.quadTo(sitter.Out(-0.95, -1.05), sitter.Out(-0.4, -1.22));
  painter.fillPath(Tapered(shine, 2.6, 0.8), Faint(Qt::white, 0.6));
  QPainterPath ring;
  ring.addRoundedRect(QRectF(sitter.head.x() - 30, sitter.head.y() + sitter.halfLength * 1.14, 60, 10), 4, 4);
  Model(painter, sitter, ring, Mix(sitter.cloth, QColor(170, 176, 180), 0.6), Stuff::Metal, 4);
}

void Patch(QPainter& painter, Sitter& sitter) {
  QPainterPath cord(sitter.Out(-0.92, -0.62));
  cord.quadTo(sitter.At(0, -0.36), sitter.Out(1.0, 0.14));
  painter.strokePath(cord, QPen(QColor(24, 18, 18), 1.6));
  QPainterPath patch;
  patch.addEllipse(sitter.At(sitter.plan.eyeX, sitter.plan.eyeY + 0.02), 7.6, 7);
  Model(painter, sitter, patch, QColor(46, 36, 38), Stuff::Hide, 4);
}

void Monocle(QPainter& painter, Sitter& sitter) {
  const QPointF at = sitter.At(sitter.plan.eyeX, sitter.plan.eyeY + 0.01, 0.02);
  Spot(painter, at - QPointF(3, 3), 4, Qt::white, 0.3);
  painter.setBrush(Faint(QColor(150, 215, 255), 0.14));
  painter.setPen(QPen(kGold.darker(150), 2.2));
  painter.drawEllipse(at, 8, 7.6);
  painter.setPen(QPen(kGold.lighter(140), 0.9));
  painter.drawEllipse(at - QPointF(0.3, 0.4), 8, 7.6);
  QPainterPath chain(at + QPointF(6.5, 4.5));
  chain.quadTo(at + QPointF(12, 22), at + QPointF(8, 40));
  painter.strokePath(chain, QPen(kGold.lighter(120), 0.9, Qt::DotLine));
}

}  // namespace

void PaintGearBehind(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.gear == Gear::Hood)
    Model(painter, sitter, HoodShape(sitter), Mix(sitter.cloth, Qt::black, 0.7), Stuff::Cloth, 8);
}

void PaintGear(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.mark == Mark::Patch) Patch(painter, sitter);
  if (sitter.spec.mark == Mark::Monocle) Monocle(painter, sitter);
  switch (sitter.spec.gear) {
    case Gear::Cap:
    case Gear::Brim:
      return CapAndBrim(painter, sitter, sitter.spec.gear == Gear::Brim);
    case Gear::Hood:
      return Hood(painter, sitter);
    case Gear::Visor:
      return Visor(painter, sitter);
    case Gear::Goggles:
      return Goggles(painter, sitter);
    case Gear::Band:
    case Gear::Wrap:
      return BandAndWrap(painter, sitter, sitter.spec.gear == Gear::Wrap);
    case Gear::Helmet:
      return Helmet(painter, sitter);
    case Gear::Circlet:
      return Circlet(painter, sitter);
    case Gear::Pods:
      return Pods(painter, sitter);
    case Gear::Bowl:
      return Bowl(painter, sitter);
    default:
      return;
  }
}

}  // namespace kv::datafile
