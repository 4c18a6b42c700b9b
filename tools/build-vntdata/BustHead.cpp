// Skin, light and marks of a living head.
#include <cmath>

#include "Bust.h"

namespace kv::datafile {
namespace {

/// Light on brow, cheek and chin; shade on the far side and in the sockets.
void PaintPlanes(QPainter& painter, Sitter& sitter) {
  const double w = sitter.halfWidth;
  Spot(painter, sitter.At(-0.42, -0.55), w * 0.75, Qt::white, 0.3);
  Spot(painter, sitter.At(-0.55, 0.2), w * 0.5, Mix(sitter.skin, Qt::white, 0.6), 0.4);
  Spot(painter, sitter.At(-0.1, 0.82), w * 0.28, Qt::white, 0.14);
  QLinearGradient far(sitter.At(0.05, 0), sitter.At(1, 0.25));
  far.setColorAt(0, Faint(Qt::black, 0));
  far.setColorAt(1, Faint(Qt::black, 0.5));
  painter.fillRect(QRectF(0, 0, 112, 112), far);
  for (const double x : {-0.46, 0.38})
    Spot(painter, sitter.At(x, -0.1), w * 0.42, Mix(sitter.skin, Qt::black, 0.85), 0.5);
  for (const double x : {-0.72, 0.66}) Spot(painter, sitter.At(x, 0.52), w * 0.34, Qt::black, 0.2);
}

void PaintNose(QPainter& painter, Sitter& sitter) {
  const QColor shade = Mix(sitter.skin, Qt::black, 0.6);
  const Kind kind = sitter.spec.kind;
  const Mouth mouth = sitter.spec.mouth;
  if (mouth == Mouth::Beak || mouth == Mouth::Muzzle || kind == Kind::Insect) return;
  if (kind == Kind::Reptile || kind == Kind::Aquatic || kind == Kind::Smooth) {
    painter.setPen(QPen(Faint(shade, 0.8), 1.3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(sitter.At(-0.13, 0.2), sitter.At(-0.08, 0.28));
    painter.drawLine(sitter.At(0.06, 0.28), sitter.At(0.11, 0.2));
    return;
  }
  const double broad = 0.12 + 0.1 * sitter.spec.jaw;
  QPainterPath side(sitter.At(-0.02, -0.14));
  side.cubicTo(sitter.At(0.06, 0.1), sitter.At(broad + 0.02, 0.22), sitter.At(broad, 0.3));
  side.quadTo(sitter.At(0.02, 0.38), sitter.At(-0.06, 0.31));
  side.closeSubpath();
  painter.fillPath(side, Faint(shade, 0.5));
  QPainterPath ridge(sitter.At(-0.07, -0.1));
  ridge.quadTo(sitter.At(-0.07, 0.12), sitter.At(-0.1, 0.24));
  painter.strokePath(ridge,
                     QPen(Faint(Mix(sitter.skin, Qt::white, 0.6), 0.55), 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.setPen(QPen(Faint(Mix(shade, Qt::black, 0.4), 0.8), 1.1, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(sitter.At(-broad + 0.02, 0.315), sitter.At(-0.07, 0.335));
  painter.drawLine(sitter.At(0.04, 0.335), sitter.At(broad - 0.03, 0.315));
}

void PaintEars(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.kind != Kind::Human || sitter.spec.gear == Gear::Ears ||
      sitter.spec.hairStyle == Hair::Long || sitter.spec.hairStyle == Hair::Bob) {
    return;
  }
  for (const double side : {-1.0, 1.0}) {
    QPainterPath ear;
    ear.addEllipse(sitter.At(side * 1.02, 0.08), sitter.halfWidth * 0.14, sitter.halfLength * 0.2);
    Model(painter, ear, side < 0 ? sitter.skin : Mix(sitter.skin, Qt::black, 0.4));
  }
}

void PaintScales(QPainter& painter, Sitter& sitter) {
  painter.setBrush(Qt::NoBrush);
  for (int row = 0; row < 13; ++row) {
    for (int column = -6; column <= 6; ++column) {
      const double x = (column + (row % 2) * 0.5) * 0.18;
      if (std::abs(x) < 0.4 && row > 3) continue;  // the face stays smooth
      painter.setPen(
          QPen(Faint(row % 3 == 0 ? Mix(sitter.skin, Qt::white, 0.5) : QColor(Qt::black), 0.28), 0.8));
      const QPointF at = sitter.At(x, -1 + row * 0.15);
      painter.drawArc(QRectF(at.x() - 2, at.y() - 2, 4, 4), 180 * 16, 180 * 16);
    }
  }
}

void PaintStripes(QPainter& painter, Sitter& sitter) {
  const QPen pen(Faint(Mix(sitter.hair, Qt::black, 0.35), 0.7), 2.6, Qt::SolidLine, Qt::RoundCap);
  for (const double side : {-1.0, 1.0}) {
    for (int i = 0; i < 3; ++i) {
      QPainterPath line(sitter.At(side * 1.05, -0.1 + i * 0.26));
      line.quadTo(sitter.At(side * 0.8, 0.02 + i * 0.22), sitter.At(side * 0.58, -0.02 + i * 0.24));
      painter.strokePath(line, pen);
    }
    painter.setPen(pen);
    painter.drawLine(sitter.At(side * 0.16, -0.95), sitter.At(side * 0.1, -0.6));
  }
}

void PaintBeard(QPainter& painter, Sitter& sitter) {
  QPainterPath beard(sitter.At(-0.98, 0.12));
  beard.cubicTo(sitter.At(-0.8, 0.5), sitter.At(-0.5, 0.34), sitter.At(0, 0.42));
  beard.cubicTo(sitter.At(0.5, 0.34), sitter.At(0.8, 0.5), sitter.At(0.98, 0.12));
  beard.cubicTo(sitter.At(1, 0.9), sitter.At(0.6, 1.3), sitter.At(0.04, 1.36));
  beard.cubicTo(sitter.At(-0.6, 1.3), sitter.At(-1, 0.9), sitter.At(-0.98, 0.12));
  Model(painter, beard, sitter.hair);
  for (int i = 0; i < 26; ++i) {
    const double x = sitter.chance.Between(-0.8, 0.8);
    painter.setPen(QPen(Faint(i % 2 == 0 ? Qt::white : Qt::black, 0.18), 0.8));
    painter.drawLine(sitter.At(x, 0.55), sitter.At(x * 0.8, 1.2 - std::abs(x) * 0.3));
  }
}

void PaintScar(QPainter& painter, Sitter& sitter) {
  QPainterPath scar(sitter.At(0.28, -0.62));
  scar.quadTo(sitter.At(0.5, -0.1), sitter.At(0.42, 0.5));
  painter.strokePath(scar, QPen(Faint(Mix(sitter.skin, QColor(120, 20, 20), 0.6), 0.9), 2.2));
  painter.strokePath(scar, QPen(Faint(Mix(sitter.skin, Qt::white, 0.6), 0.8), 0.8));
}

void PaintFacePaint(QPainter& painter, Sitter& sitter) {
  const QColor colour = Mix(sitter.cloth, Qt::white, 0.25);
  painter.setPen(QPen(Faint(colour, 0.85), 2, Qt::SolidLine, Qt::RoundCap));
  for (const double side : {-1.0, 1.0}) {
    painter.drawLine(sitter.At(side * 0.68, 0.2), sitter.At(side * 0.34, 0.3));
    painter.drawLine(sitter.At(side * 0.66, 0.36), sitter.At(side * 0.4, 0.42));
  }
  painter.fillPath(Polygon(sitter.At(-0.03, -0.5), 2.6, 4), Faint(colour, 0.9));
}

}  // namespace

void PaintNeck(QPainter& painter, Sitter& sitter) {
  const double half =
      sitter.halfWidth * (sitter.spec.kind == Kind::Stone ? 0.72 : 0.42 + 0.14 * sitter.spec.jaw);
  const double top = sitter.head.y() + sitter.halfLength * 0.5;
  QPainterPath neck(QPointF(sitter.head.x() - half, top));
  neck.lineTo(sitter.head.x() + half, top);
  neck.quadTo(QPointF(sitter.head.x() + half, 86), QPointF(sitter.head.x() + half + 7, 96));
  neck.lineTo(sitter.head.x() - half - 5, 96);
  neck.quadTo(QPointF(sitter.head.x() - half, 86), QPointF(sitter.head.x() - half, top));
  Model(painter, neck, Mix(sitter.skin, Qt::black, 0.18));
  painter.save();
  painter.setClipPath(neck);
  Spot(painter, sitter.At(0.15, 1.05), sitter.halfWidth * 0.9, Qt::black, 0.7);  // the chin's shadow
  painter.restore();
}

void PaintHead(QPainter& painter, Sitter& sitter) {
  PaintEars(painter, sitter);
  const QPainterPath head = sitter.HeadPath();
  painter.fillPath(head.translated(2, 2.5), Faint(Qt::black, 0.35));
  Model(painter, head, sitter.skin, 0.85);
  painter.save();
  painter.setClipPath(head);
  PaintPlanes(painter, sitter);
  painter.strokePath(head.translated(-1.2, -0.6), QPen(Faint(Mix(sitter.back, Qt::white, 0.55), 0.0), 2));
  QLinearGradient rim(sitter.At(0.4, 0), sitter.At(1, 0));
  rim.setColorAt(0, Faint(Qt::white, 0));
  rim.setColorAt(1, Faint(Mix(sitter.back, Qt::white, 0.6), 0.75));
  painter.strokePath(head, QPen(rim, 2.2));
  painter.restore();
  PaintNose(painter, sitter);
}

void PaintMarks(QPainter& painter, Sitter& sitter) {
  painter.save();
  if (sitter.spec.mark != Mark::Beard) painter.setClipPath(sitter.HeadPath());
  switch (sitter.spec.mark) {
    case Mark::Scar:
      PaintScar(painter, sitter);
      break;
    case Mark::Stripes:
      PaintStripes(painter, sitter);
      break;
    case Mark::Scales:
      PaintScales(painter, sitter);
      break;
    case Mark::Paint:
      PaintFacePaint(painter, sitter);
      break;
    case Mark::Beard:
      PaintBeard(painter, sitter);
      break;
    case Mark::Freckles:
      painter.setPen(Qt::NoPen);
      painter.setBrush(Faint(Mix(sitter.skin, QColor(120, 50, 20), 0.7), 0.7));
      for (int i = 0; i < 22; ++i) {
        painter.drawEllipse(sitter.At(sitter.chance.Between(-0.7, 0.6), sitter.chance.Between(0.1, 0.36)),
                            0.6, 0.6);
      }
      break;
    case Mark::Wrinkles:
      painter.setPen(QPen(Faint(Mix(sitter.skin, Qt::black, 0.6), 0.55), 0.9, Qt::SolidLine, Qt::RoundCap));
      for (int i = 0; i < 3; ++i)
        painter.drawLine(sitter.At(-0.5, -0.56 - i * 0.1), sitter.At(0.42, -0.55 - i * 0.1));
      for (const double side : {-1.0, 1.0}) {
        painter.drawLine(sitter.At(side * 0.22, 0.36), sitter.At(side * 0.42, 0.58));
        painter.drawLine(sitter.At(side * 0.68, 0.06), sitter.At(side * 0.4, 0.1));
      }
      break;
    case Mark::Plates:
      painter.setPen(QPen(Faint(Qt::black, 0.4), 1));
      painter.drawPolyline(QPolygonF({sitter.At(-1, -0.35), sitter.At(-0.55, -0.42), sitter.At(-0.1, -0.3),
                                      sitter.At(0.4, -0.44), sitter.At(1, -0.3)}));
      painter.drawPolyline(QPolygonF({sitter.At(-0.2, -1), sitter.At(-0.1, -0.3)}));
      painter.drawPolyline(QPolygonF({sitter.At(-0.95, 0.3), sitter.At(-0.5, 0.45), sitter.At(-0.55, 1)}));
      painter.drawPolyline(QPolygonF({sitter.At(0.95, 0.25), sitter.At(0.5, 0.5), sitter.At(0.6, 1)}));
      break;
    default:
      break;
  }
  painter.restore();
}

}  // namespace kv::datafile
