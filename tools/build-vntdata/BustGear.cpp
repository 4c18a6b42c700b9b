// What is worn on the head, and what grows on it.
#include <cmath>

#include "Bust.h"

namespace kv::datafile {

void PaintBehindHair(QPainter& painter, Sitter& sitter);

namespace {

QPainterPath Petal(QPointF root, QPointF tip, double breadth) {
  const QPointF way = tip - root;
  const QPointF across = QPointF(-way.y(), way.x()) * breadth / std::hypot(way.x(), way.y());
  QPainterPath path(root);
  path.quadTo(root + way * 0.45 + across, tip);
  path.quadTo(root + way * 0.45 - across, root);
  return path;
}

/// A fan of petals over the head; `spread` is half its angle in degrees.
void Fan(QPainter& painter, Sitter& sitter, int count, double spread, double reach, double breadth) {
  for (int i = 0; i < count; ++i) {
    const double angle = (count == 1 ? 0 : -spread + 2 * spread * i / (count - 1)) * 3.14159265 / 180;
    const QPointF root = sitter.At(std::sin(angle) * 0.75, -std::cos(angle) * 0.7);
    const QPointF tip = sitter.At(std::sin(angle) * reach, -std::cos(angle) * reach * (i % 2 == 0 ? 1 : 0.9));
    Model(painter, Petal(root, tip, breadth), Mix(sitter.hair, Qt::black, i % 2 == 0 ? 0.0 : 0.2));
    painter.setPen(QPen(Faint(Qt::black, 0.3), 0.7));
    painter.drawLine(root, root + (tip - root) * 0.8);
  }
}

void Horns(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath horn(sitter.At(side * 0.55, -0.85));
    horn.cubicTo(sitter.At(side * 1.1, -1.0), sitter.At(side * 1.45, -0.8), sitter.At(side * 1.42, -0.2));
    horn.cubicTo(sitter.At(side * 1.25, -0.52), sitter.At(side * 1.05, -0.6), sitter.At(side * 0.86, -0.5));
    horn.closeSubpath();
    Model(painter, horn, Mix(sitter.hair, QColor(220, 204, 170), 0.5));
    painter.setPen(QPen(Faint(Qt::black, 0.25), 0.8));
    for (int i = 0; i < 4; ++i)
      painter.drawLine(sitter.At(side * (0.8 + 0.14 * i), -0.93 + i * 0.05),
                       sitter.At(side * (0.84 + 0.12 * i), -0.58 + i * 0.03));
  }
}

void EarsOf(QPainter& painter, Sitter& sitter) {
  const bool furred = sitter.spec.kind == Kind::Furred;
  for (const double side : {-1.0, 1.0}) {
    const QPointF root = furred ? sitter.At(side * 0.66, -0.62) : sitter.At(side * 0.9, 0.1);
    const QPointF tip = furred ? sitter.At(side * 1.0, -1.62) : sitter.At(side * 1.75, -0.72);
    Model(painter, Petal(root, tip, furred ? 11 : 6.5),
          side < 0 ? sitter.skin : Mix(sitter.skin, Qt::black, 0.3));
    painter.fillPath(Petal(root + (tip - root) * 0.15, root + (tip - root) * 0.82, furred ? 6 : 2.8),
                     Mix(sitter.skin, QColor(150, 60, 60), 0.5));
  }
}

void Fins(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    for (int i = 0; i < 4; ++i) {
      const QPointF root = sitter.At(side * 0.9, -0.3 + i * 0.2);
      const QPointF tip = sitter.At(side * (1.7 - i * 0.12), -0.75 + i * 0.38);
      Model(painter, Petal(root, tip, 5), Mix(sitter.hair, sitter.skin, i * 0.2));
    }
  }
}

void Antennae(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath stem(sitter.At(side * 0.34, -0.9));
    stem.cubicTo(sitter.At(side * 0.45, -1.35), sitter.At(side * 0.8, -1.5), sitter.At(side * 1.05, -1.46));
    painter.strokePath(stem, QPen(Mix(sitter.skin, Qt::black, 0.55), 3, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(stem.translated(-0.5, -0.5),
                       QPen(Mix(sitter.hair, Qt::white, 0.15), 1.2, Qt::SolidLine, Qt::RoundCap));
    QPainterPath knob;
    knob.addEllipse(sitter.At(side * 1.07, -1.46), 3, 3);
    Model(painter, knob, sitter.spec.kind == Kind::Machine ? sitter.eye : sitter.hair);
  }
}

void Hood(QPainter& painter, Sitter& sitter, bool behind) {
  QPainterPath hood(sitter.At(0, -1.5));
  hood.cubicTo(sitter.At(1.5, -1.35), sitter.At(1.6, 0.3), sitter.At(1.7, 1.7));
  hood.lineTo(sitter.At(-1.7, 1.7));
  hood.cubicTo(sitter.At(-1.6, 0.3), sitter.At(-1.5, -1.35), sitter.At(0, -1.5));
  QPainterPath opening(sitter.At(-0.05, -1.02));
  opening.cubicTo(sitter.At(0.95, -0.95), sitter.At(1.1, 0.1), sitter.At(0.8, 1.3));
  opening.lineTo(sitter.At(-0.9, 1.3));
  opening.cubicTo(sitter.At(-1.2, 0.1), sitter.At(-1.05, -0.95), sitter.At(-0.05, -1.02));
  if (behind) return Model(painter, hood, Mix(sitter.cloth, Qt::black, 0.5));
  Model(painter, hood.subtracted(opening), Mix(sitter.cloth, Qt::white, 0.06));
  painter.save();
  painter.setClipPath(opening);
  painter.strokePath(opening, QPen(Faint(Qt::black, 0.5), 9));
  painter.restore();
}

void CapAndBrim(QPainter& painter, Sitter& sitter, bool brim) {
  QPainterPath crown(sitter.At(-1.08, -0.5));
  crown.cubicTo(sitter.At(-1.06, -1.5), sitter.At(1.06, -1.5), sitter.At(1.08, -0.5));
  crown.quadTo(sitter.At(0, -0.72), sitter.At(-1.08, -0.5));
  const QColor colour = Mix(sitter.cloth, sitter.hair, brim ? 0.5 : 0.15);
  Model(painter, crown, colour);
  QPainterPath rim(brim ? sitter.At(-1.75, -0.42) : sitter.At(-1.3, -0.42));
  rim.quadTo(sitter.At(-0.2, -0.86), brim ? sitter.At(1.75, -0.42) : sitter.At(0.95, -0.52));
  rim.quadTo(sitter.At(0, brim ? -0.3 : -0.5), brim ? sitter.At(-1.75, -0.42) : sitter.At(-1.3, -0.42));
  Model(painter, rim, Mix(colour, Qt::black, 0.3));
  painter.fillPath(Polygon(sitter.At(-0.1, -0.9), 3.4, brim ? 4 : 5), QColor(228, 190, 90));
}

void Goggles(QPainter& painter, Sitter& sitter) {
  painter.setPen(QPen(Mix(sitter.cloth, Qt::black, 0.5), 4));
  painter.drawLine(sitter.At(-1.02, -0.52), sitter.At(1.02, -0.52));
  for (const double x : {-0.46, 0.4}) {
    QPainterPath rim;
    rim.addEllipse(sitter.At(x, -0.56), 7.6, 6.4);
    Model(painter, rim, QColor(150, 116, 70));
    QPainterPath glass;
    glass.addEllipse(sitter.At(x, -0.56), 5.4, 4.4);
    Model(painter, glass, Mix(sitter.eye, QColor(40, 70, 90), 0.5));
    Spot(painter, sitter.At(x - 0.1, -0.63), 2.4, Qt::white, 0.8);
  }
}

void Visor(QPainter& painter, Sitter& sitter) {
  QPainterPath band(sitter.At(-1.06, -0.24));
  band.quadTo(sitter.At(0, -0.38), sitter.At(1.06, -0.24));
  band.lineTo(sitter.At(1.0, 0.1));
  band.quadTo(sitter.At(0, 0.2), sitter.At(-1.0, 0.1));
  band.closeSubpath();
  Model(painter, band, Mix(sitter.eye, Qt::black, 0.3));
  QPainterPath shine(sitter.At(-0.85, -0.2));
  shine.lineTo(sitter.At(-0.3, -0.27));
  shine.lineTo(sitter.At(-0.55, 0.08));
  shine.lineTo(sitter.At(-0.9, 0.05));
  painter.fillPath(shine, Faint(Qt::white, 0.4));
  painter.strokePath(band, QPen(QColor(190, 198, 208), 1));
}

void Helmet(QPainter& painter, Sitter& sitter) {
  QPainterPath shell(sitter.At(-1.16, 0.5));
  shell.cubicTo(sitter.At(-1.3, -1.5), sitter.At(1.3, -1.5), sitter.At(1.16, 0.5));
  shell.lineTo(sitter.At(0.86, 0.42));
  shell.quadTo(sitter.At(0.94, -0.44), sitter.At(0, -0.46));
  shell.quadTo(sitter.At(-0.94, -0.44), sitter.At(-0.86, 0.42));
  shell.closeSubpath();
  Model(painter, shell, Mix(sitter.cloth, QColor(140, 150, 160), 0.45));
  QPainterPath ridge(sitter.At(0, -1.06));
  ridge.lineTo(sitter.At(0, -0.5));
  Glow(painter, ridge, sitter.back.lighter(160), 1.6, 3);
}

void Circlet(QPainter& painter, Sitter& sitter) {
  QPainterPath ring(sitter.At(-1.0, -0.46));
  ring.quadTo(sitter.At(0, -0.72), sitter.At(1.0, -0.46));
  painter.strokePath(ring, QPen(QColor(110, 80, 26), 3.4));
  painter.strokePath(ring.translated(-0.3, -0.5), QPen(QColor(246, 214, 124), 1.8));
  Model(painter, Polygon(sitter.At(0, -0.62), 4.6, 4), sitter.eye.lighter(120));
  Spot(painter, sitter.At(-0.05, -0.66), 2, Qt::white, 0.9);
}

void BandAndWrap(QPainter& painter, Sitter& sitter, bool wrap) {
  for (int i = wrap ? 4 : 0; i >= 0; --i) {
    QPainterPath fold(sitter.At(-1.06, -0.42 - i * 0.13));
    fold.quadTo(sitter.At(0, -0.78 - i * 0.16), sitter.At(1.06, -0.42 - i * 0.13));
    fold.quadTo(sitter.At(1.14, -0.68 - i * 0.14), sitter.At(0.98, -0.72 - i * 0.12));
    fold.quadTo(sitter.At(0, -1.1 - i * 0.14), sitter.At(-0.98, -0.72 - i * 0.12));
    fold.closeSubpath();
    Model(painter, fold, i % 2 == 0 ? sitter.cloth : Mix(sitter.cloth, Qt::white, 0.15));
  }
  if (wrap) painter.fillPath(Polygon(sitter.At(0, -0.8), 4, 6), Mix(sitter.back, Qt::white, 0.5));
}

void Pods(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath pod;
    pod.addRoundedRect(QRectF(sitter.At(side * 1.14, -0.05) - QPointF(5, 9), QSizeF(10, 18)), 4, 4);
    Model(painter, pod, Mix(sitter.hair, Qt::black, 0.2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Mix(sitter.eye, Qt::white, 0.3));
    painter.drawEllipse(sitter.At(side * 1.14, -0.05), 1.8, 1.8);
  }
}

void Patch(QPainter& painter, Sitter& sitter) {
  painter.setPen(QPen(QColor(20, 16, 16), 1.8));
  painter.drawLine(sitter.At(-0.9, -0.5), sitter.At(0.95, 0.12));
  QPainterPath patch;
  patch.addEllipse(sitter.At(0.38, -0.06), 7, 6);
  Model(painter, patch, QColor(36, 30, 32));
}

void Monocle(QPainter& painter, Sitter& sitter) {
  painter.setBrush(Faint(QColor(160, 220, 255), 0.16));
  painter.setPen(QPen(QColor(236, 200, 110), 1.3));
  painter.drawEllipse(sitter.At(0.37, -0.07), 7, 6.6);
  painter.drawLine(sitter.At(0.7, 0.02), sitter.At(0.98, 0.9));
}

}  // namespace

void PaintBehind(QPainter& painter, Sitter& sitter) {
  PaintBehindHair(painter, sitter);
  switch (sitter.spec.gear) {
    case Gear::Hood:
      return Hood(painter, sitter, true);
    case Gear::Ears:
      return EarsOf(painter, sitter);
    case Gear::Fins:
      return Fins(painter, sitter);
    case Gear::Crest:
      return Fan(painter, sitter, 5, 34, 1.5, 5);
    case Gear::Fronds:
      return Fan(painter, sitter, 9, 100, 1.62, 6);
    case Gear::Spines:
      return Fan(painter, sitter, 11, 95, 1.45, 2);
    case Gear::Plumes:
      return Fan(painter, sitter, 7, 60, 1.62, 5);
    default:
      return;
  }
}

void PaintGear(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.mark == Mark::Patch) Patch(painter, sitter);
  if (sitter.spec.mark == Mark::Monocle) Monocle(painter, sitter);
  switch (sitter.spec.gear) {
    case Gear::Cap:
      return CapAndBrim(painter, sitter, false);
    case Gear::Brim:
      return CapAndBrim(painter, sitter, true);
    case Gear::Hood:
      return Hood(painter, sitter, false);
    case Gear::Visor:
      return Visor(painter, sitter);
    case Gear::Goggles:
      return Goggles(painter, sitter);
    case Gear::Band:
      return BandAndWrap(painter, sitter, false);
    case Gear::Wrap:
      return BandAndWrap(painter, sitter, true);
    case Gear::Helmet:
      return Helmet(painter, sitter);
    case Gear::Antennae:
      return Antennae(painter, sitter);
    case Gear::Horns:
      return Horns(painter, sitter);
    case Gear::Circlet:
      return Circlet(painter, sitter);
    case Gear::Pods:
      return Pods(painter, sitter);
    default:
      return;
  }
}

}  // namespace kv::datafile
