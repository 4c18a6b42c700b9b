// Heads of metal.
#include "Bust.h"
#include "Lettering.h"

namespace kv::datafile {
namespace {

constexpr int kBattered = 45;  // H6-J8

QPainterPath Shell(const Sitter& sitter) {
  const double jaw = sitter.spec.jaw;
  QPainterPath path(sitter.At(-0.55, -1));
  path.lineTo(sitter.At(0.55, -1));
  path.cubicTo(sitter.At(0.95, -1), sitter.At(1, -0.6), sitter.At(1, -0.2));
  path.lineTo(sitter.At(0.92, 0.3));
  path.lineTo(sitter.At(0.4 + 0.42 * jaw, 0.72));
  path.lineTo(sitter.At(0.36 + 0.3 * jaw, 1));
  path.lineTo(sitter.At(-0.36 - 0.3 * jaw, 1));
  path.lineTo(sitter.At(-0.4 - 0.42 * jaw, 0.72));
  path.lineTo(sitter.At(-0.92, 0.3));
  path.lineTo(sitter.At(-1, -0.2));
  path.cubicTo(sitter.At(-1, -0.6), sitter.At(-0.95, -1), sitter.At(-0.55, -1));
  path.closeSubpath();
  return path;
}

void PaintLensEye(QPainter& painter, Sitter& sitter, QPointF at, double radius, bool working) {
  QPainterPath ring;
  ring.addEllipse(at, radius * 1.35, radius * 1.35);
  Model(painter, ring, Mix(sitter.skin, Qt::black, 0.35));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(8, 9, 12));
  painter.drawEllipse(at, radius, radius);
  if (working) {
    Spot(painter, at, radius * 2.6, sitter.eye, 0.5);
    Spot(painter, at, radius, Mix(sitter.eye, Qt::white, 0.3), 1);
    Spot(painter, at, radius * 0.5, Qt::white, 0.9);
  } else {
    painter.setPen(QPen(Faint(sitter.hair, 0.7), 0.9));
    painter.drawLine(at - QPointF(radius, radius) * 0.6, at + QPointF(radius * 0.2, radius * 0.7));
    painter.drawLine(at + QPointF(radius * 0.6, -radius * 0.5), at - QPointF(radius * 0.3, radius * 0.1));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(Qt::white, 0.6));
  painter.drawEllipse(at - QPointF(radius, radius) * 0.4, radius * 0.22, radius * 0.16);
}

void PaintSensors(QPainter& painter, Sitter& sitter) {
  const QRectF slot(sitter.At(-0.8, -0.34), sitter.At(0.8, 0.14));
  switch (sitter.spec.eyes) {
    case Eyes::One:
      return PaintLensEye(painter, sitter, sitter.At(-0.04, -0.1), 8.5, true);
    case Eyes::Glow: {
      painter.fillPath(Cornered(slot, 5, true), QColor(8, 10, 14));
      QPainterPath line(sitter.At(-0.62, -0.1));
      line.lineTo(sitter.At(0.6, -0.1));
      return Glow(painter, line, sitter.eye, 2, 7);
    }
    case Eyes::Four:
      for (const double x : {-0.6, -0.22, 0.16, 0.54})
        PaintLensEye(painter, sitter, sitter.At(x, -0.12), 3, true);
      return;
    case Eyes::Wide:
      painter.fillPath(Cornered(slot, 7, true), QColor(12, 12, 16));
      for (const double x : {-0.4, 0.36}) {
        painter.fillPath(Polygon(sitter.At(x, -0.1), 4.6, 6), Mix(sitter.eye, Qt::white, 0.2));
        Spot(painter, sitter.At(x, -0.1), 8, sitter.eye, 0.5);
      }
      return;
    default:
      PaintLensEye(painter, sitter, sitter.At(-0.44, -0.1), 6, true);
      PaintLensEye(painter, sitter, sitter.At(0.42, -0.1), sitter.spec.number == kBattered ? 5 : 6,
                   sitter.spec.number != kBattered);
  }
}

void PaintGrille(QPainter& painter, Sitter& sitter) {
  const double half = 0.3 + 0.16 * sitter.spec.jaw;
  const QRectF area(sitter.At(-half, 0.42), sitter.At(half, 0.78));
  painter.fillPath(Cornered(area, 2.5, true), QColor(14, 14, 18));
  for (double x = area.left() + 2.5; x < area.right() - 1; x += 3.4) {
    painter.setPen(QPen(Mix(sitter.skin, Qt::black, 0.15), 1.4));
    painter.drawLine(QPointF(x, area.top() + 1.5), QPointF(x, area.bottom() - 1.5));
  }
}

void PaintSeams(QPainter& painter, Sitter& sitter) {
  const auto line = [&](QPointF from, QPointF to) {
    painter.setPen(QPen(Faint(Qt::black, 0.5), 1));
    painter.drawLine(from, to);
    painter.setPen(QPen(Faint(Qt::white, 0.25), 0.7));
    painter.drawLine(from + QPointF(0.8, 0.8), to + QPointF(0.8, 0.8));
  };
  line(sitter.At(-0.96, -0.48), sitter.At(0.96, -0.48));
  line(sitter.At(-0.86, 0.3), sitter.At(-0.3, 0.22));
  line(sitter.At(0.26, 0.22), sitter.At(0.86, 0.3));
  if (sitter.spec.number != kBattered) line(sitter.At(0, -0.98), sitter.At(0, -0.5));
  painter.setPen(Qt::NoPen);
  for (const double x : {-0.84, 0.84}) {
    for (const double y : {-0.6, 0.12}) {
      painter.setBrush(Faint(Qt::black, 0.6));
      painter.drawEllipse(sitter.At(x, y), 1.4, 1.4);
      painter.setBrush(Faint(Qt::white, 0.4));
      painter.drawEllipse(sitter.At(x, y) - QPointF(0.4, 0.4), 0.7, 0.7);
    }
  }
}

/// Dents, scratches, rust and a plate of another machine.
void PaintWear(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 14; ++i) {
    Spot(painter, sitter.At(sitter.chance.Between(-0.9, 0.9), sitter.chance.Between(-0.9, 1)),
         sitter.chance.Between(2, 6), QColor(150, 72, 24), 0.4);
  }
  QPainterPath patch = Cornered(QRectF(sitter.At(0.34, 0.3), sitter.At(0.9, 0.62)), 1.5, true);
  Model(painter, patch, QColor(96, 112, 124));
  for (int i = 0; i < 16; ++i) {
    const QPointF at = sitter.At(sitter.chance.Between(-0.9, 0.8), sitter.chance.Between(-0.95, 0.95));
    painter.setPen(QPen(Faint(i % 2 == 0 ? QColor(240, 220, 190) : QColor(10, 8, 6), 0.5), 0.8));
    painter.drawLine(at, at + QPointF(sitter.chance.Between(-7, 7), sitter.chance.Between(-4, 4)));
  }
}

/// The number on the brow, and the stump of an aerial that somebody bent long ago.
void PaintNumberPlate(QPainter& painter, Sitter& sitter) {
  const QRectF plate(sitter.At(-0.78, -0.9), sitter.At(0.74, -0.53));
  Model(painter, Cornered(plate, 1.5, true), QColor(206, 192, 160), 0.6);
  DrawLettering(painter, QStringLiteral("H6-J8"), plate, 6.4, QColor(44, 24, 14));
  QPainterPath aerial(sitter.At(0.5, -0.98));
  aerial.lineTo(sitter.At(0.56, -1.3));
  aerial.lineTo(sitter.At(0.95, -1.42));
  painter.strokePath(aerial, QPen(QColor(24, 20, 18), 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.strokePath(aerial, QPen(sitter.hair, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  Spot(painter, sitter.At(0.95, -1.42), 4, sitter.eye, 0.8);
}

}  // namespace

void PaintMachineNeck(QPainter& painter, Sitter& sitter) {
  QPainterPath neck;
  neck.addRect(QRectF(sitter.At(-0.34, 0.8), QPointF(sitter.At(0.34, 0).x(), 96)));
  Model(painter, neck, Mix(sitter.skin, Qt::black, 0.6));
  painter.setPen(QPen(Faint(Qt::white, 0.2), 1));
  for (double y = sitter.At(0, 1.06).y(); y < 94; y += 3.5)
    painter.drawLine(QPointF(sitter.At(-0.34, 0).x(), y), QPointF(sitter.At(0.34, 0).x(), y));
}

void PaintMachineHead(QPainter& painter, Sitter& sitter) {
  const QPainterPath shell = Shell(sitter);
  painter.fillPath(shell.translated(2, 2.5), Faint(Qt::black, 0.35));
  Model(painter, shell, sitter.skin, 1.1);
  painter.save();
  painter.setClipPath(shell);
  Spot(painter, sitter.At(-0.5, -0.7), sitter.halfWidth * 0.7, Qt::white, 0.45);
  if (sitter.spec.number == kBattered) PaintWear(painter, sitter);
  QLinearGradient rim(sitter.At(0.4, 0), sitter.At(1, 0));
  rim.setColorAt(0, Faint(Qt::white, 0));
  rim.setColorAt(1, Faint(Mix(sitter.back, Qt::white, 0.6), 0.8));
  painter.strokePath(shell, QPen(rim, 2.4));
  painter.restore();
  PaintSeams(painter, sitter);
  PaintSensors(painter, sitter);
  PaintGrille(painter, sitter);
  if (sitter.spec.number == kBattered) PaintNumberPlate(painter, sitter);
}

}  // namespace kv::datafile
