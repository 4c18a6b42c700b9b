// Heads of metal.
#include <cmath>

#include "brush/Lettering.h"
#include "portraits/Bust.h"
#include "portraits/Circuit.h"

namespace kv::datafile {
namespace {

void PaintLensEye(QPainter& painter, Sitter& sitter, QPointF at, double radius, bool working) {
  QPainterPath ring;
  ring.addEllipse(at, radius * 1.5, radius * 1.5);
  Model(painter, sitter, ring, Mix(sitter.skin, Qt::black, 0.3), Stuff::Metal, 2.5);
  QPainterPath glass;
  glass.addEllipse(at, radius, radius);
  painter.fillPath(glass, QColor(8, 9, 12));
  if (working) {
    Spot(painter, at, radius * 3, sitter.eye, 0.45);
    painter.save();
    painter.setClipPath(glass);
    Spot(painter, at + QPointF(radius, radius) * 0.25, radius * 1.3, sitter.eye, 1);
    Spot(painter, at + QPointF(radius, radius) * 0.2, radius * 0.6, Mix(sitter.eye, Qt::white, 0.7), 1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Faint(Qt::black, 0.5), radius * 0.12));
    painter.drawEllipse(at, radius * 0.62, radius * 0.62);
    painter.restore();
  } else {
    painter.setPen(QPen(Faint(QColor(200, 210, 220), 0.65), 0.7));
    const QPointF hub = at + QPointF(radius * 0.2, -radius * 0.1);
    for (const double angle : {0.3, 1.5, 2.6, 3.9, 5.2})
      painter.drawLine(hub, hub + QPointF(std::cos(angle), std::sin(angle)) * radius * 0.8);
  }
  Spot(painter, at - QPointF(radius, radius) * 0.45, radius * 0.5, Qt::white, 0.75);
}

QPainterPath SlotPath(const Sitter& sitter, double half, double top, double bottom) {
  QPainterPath slot(sitter.At(-half, top));
  slot.quadTo(sitter.At(0, top - 0.03, 0.06), sitter.At(half, top));
  slot.lineTo(sitter.At(half * 0.94, bottom));
  slot.quadTo(sitter.At(0, bottom + 0.05, 0.06), sitter.At(-half * 0.94, bottom));
  slot.closeSubpath();
  return slot;
}

void PaintSlot(QPainter& painter, Sitter& sitter) {
  const double y = sitter.plan.eyeY;
  painter.fillPath(SlotPath(sitter, 0.84, y - 0.17, y + 0.15), QColor(8, 10, 14));
  QPainterPath line(sitter.At(-0.62, y));
  line.quadTo(sitter.At(0, y, 0.05), sitter.At(0.62, y));
  Glow(painter, line, sitter.eye, 2.4, 9);
  Spot(painter, sitter.At(-0.6, y - 0.12), 5, Qt::white, 0.35);
}

void PaintSensors(QPainter& painter, Sitter& sitter) {
  const FacePlan& plan = sitter.plan;
  switch (sitter.spec.eyes) {
    case Eyes::One:
      return PaintLensEye(painter, sitter, sitter.At(0, plan.eyeY, 0.06), 9 * plan.eyeSize, true);
    case Eyes::Glow:
      return PaintSlot(painter, sitter);
    case Eyes::Four:
      for (const double x : {-0.6, 0.6, -0.22, 0.22})
        PaintLensEye(painter, sitter, sitter.At(x, plan.eyeY + (std::abs(x) < 0.3 ? -0.05 : 0.07)),
                     std::abs(x) < 0.3 ? 4.4 : 3, true);
      return;
    case Eyes::Plain:
      painter.fillPath(SlotPath(sitter, 0.82, plan.eyeY - 0.2, plan.eyeY + 0.2), QColor(12, 12, 16));
      for (const double x : {-plan.eyeX, plan.eyeX}) {
        Spot(painter, sitter.At(x, plan.eyeY), 11, sitter.eye, 0.6);
        painter.fillPath(Polygon(sitter.At(x, plan.eyeY), 5.4, 6), Mix(sitter.eye, Qt::white, 0.25));
        Spot(painter, sitter.At(x, plan.eyeY), 3, Qt::white, 0.8);
      }
      return;
    default:
      PaintLensEye(painter, sitter, sitter.At(-plan.eyeX, plan.eyeY), 7, true);
      PaintLensEye(painter, sitter, sitter.At(plan.eyeX, plan.eyeY), sitter.spec.mark == Mark::Scar ? 5.4 : 7,
                   sitter.spec.mark != Mark::Scar);
  }
}

void PaintGrille(QPainter& painter, Sitter& sitter) {
  const double y = sitter.plan.mouthY;
  const double half = 0.34 + 0.14 * sitter.spec.jaw;
  QPainterPath area(sitter.At(-half, y - 0.12, 0.03));
  area.lineTo(sitter.At(half, y - 0.12, 0.03));
  area.lineTo(sitter.At(half * 0.86, y + 0.22, 0.03));
  area.lineTo(sitter.At(-half * 0.86, y + 0.22, 0.03));
  area.closeSubpath();
  painter.fillPath(area, QColor(14, 14, 18));
  Spot(painter, sitter.At(0, y + 0.05, 0.03), 9, sitter.eye, 0.28);
  for (int i = -4; i <= 4; ++i) {
    QPainterPath bar(sitter.At(i * half * 0.23, y - 0.12, 0.03));
    bar.lineTo(sitter.At(i * half * 0.2, y + 0.22, 0.03));
    Model(painter, sitter, Tapered(bar, 0.9, 0.9), Mix(sitter.skin, Qt::white, 0.1), Stuff::Metal, 1);
  }
}

/// A face of light on dark glass, which wears its mood in lines.
void PaintDisplay(QPainter& painter, Sitter& sitter) {
  const QRectF glass(sitter.Out(-1.08, -0.68), sitter.Out(1.08, 0.6));
  QPainterPath pane;
  pane.addRoundedRect(glass, 5, 5);
  painter.fillPath(pane, Downward(glass, QColor(6, 14, 22), QColor(10, 26, 36)));
  Spot(painter, glass.center(), 30, sitter.eye, 0.32);
  QPainterPath face;
  for (const double side : {-1.0, 1.0}) {
    face.moveTo(sitter.At(side * 0.62, -0.06));
    face.quadTo(sitter.At(side * 0.44, -0.42), sitter.At(side * 0.26, -0.06));
  }
  face.moveTo(sitter.At(-0.5, 0.22));
  face.quadTo(sitter.At(0, 0.62), sitter.At(0.5, 0.16));
  Glow(painter, face, sitter.eye, 2.4, 8);
  painter.setPen(QPen(Faint(Qt::black, 0.2), 0.6));
  for (double y = glass.top() + 1; y < glass.bottom(); y += 2)
    painter.drawLine(QPointF(glass.left(), y), QPointF(glass.right(), y));
  QPainterPath shine(glass.topLeft() + QPointF(3, 3));
  shine.lineTo(glass.topLeft() + QPointF(22, 3));
  shine.lineTo(glass.topLeft() + QPointF(6, 34));
  shine.lineTo(glass.topLeft() + QPointF(3, 34));
  painter.fillPath(shine, Faint(Qt::white, 0.13));
}

/// The lamp under its shade, and the arm that holds it.
void PaintBulb(QPainter& painter, Sitter& sitter) {
  const QPointF at = sitter.At(0, 0.42, 0.04);
  QPainterPath ring;
  ring.addEllipse(at, sitter.halfWidth * 0.86, sitter.halfLength * 0.34);
  Model(painter, sitter, ring, Mix(sitter.skin, Qt::black, 0.4), Stuff::Metal, 3);
  QPainterPath bulb;
  bulb.addEllipse(at, sitter.halfWidth * 0.7, sitter.halfLength * 0.27);
  painter.fillPath(bulb, QColor(20, 22, 26));
  Spot(painter, at, sitter.halfWidth * 1.9, sitter.eye, 0.4);
  painter.save();
  painter.setClipPath(bulb);
  Spot(painter, at, sitter.halfWidth * 0.8, sitter.eye, 1);
  Spot(painter, at, sitter.halfWidth * 0.5, Qt::white, 1);
  painter.restore();
  QPainterPath lid(sitter.At(-0.74, 0.4, 0.04));
  lid.quadTo(sitter.At(0, 0.12, 0.04), sitter.At(0.74, 0.4, 0.04));
  lid.lineTo(sitter.At(0.8, 0.3, 0.04));
  lid.quadTo(sitter.At(0, 0.0, 0.04), sitter.At(-0.8, 0.3, 0.04));
  lid.closeSubpath();
  Model(painter, sitter, lid, Mix(sitter.skin, Qt::black, 0.2), Stuff::Metal, 3);
}

/// What a turret looks through, and the short tube under it.
void PaintTurret(QPainter& painter, Sitter& sitter) {
  PaintSlot(painter, sitter);
  const QPointF root = sitter.At(0.3, 0.6, 0.05);
  const QPointF mouth = sitter.At(0.5, 0.74, 0.34);
  QPainterPath tube(root);
  tube.lineTo(mouth);
  Model(painter, sitter, Tapered(tube, 7, 8), Mix(sitter.skin, Qt::black, 0.2), Stuff::Metal, 6);
  QPainterPath end;
  end.addEllipse(mouth, 7, 8);
  Model(painter, sitter, end, Mix(sitter.hair, Qt::black, 0.1), Stuff::Metal, 2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(8, 8, 10));
  painter.drawEllipse(mouth, 4.4, 5.2);
  Spot(painter, mouth, 5, sitter.eye, 0.5);
}

void PressSeams(Relief& shell, Sitter& sitter) {
  QPainterPath seams(sitter.Out(-1.2, -0.46));
  seams.quadTo(sitter.At(0, -0.42, 0.04), sitter.Out(1.2, -0.46));
  seams.moveTo(sitter.Out(-1.1, 0.34));
  seams.lineTo(sitter.At(-0.44, 0.28));
  seams.lineTo(sitter.At(-0.5, 1.1));
  seams.moveTo(sitter.Out(1.1, 0.34));
  seams.lineTo(sitter.At(0.44, 0.28));
  seams.lineTo(sitter.At(0.5, 1.1));
  if (sitter.spec.mark == Mark::Plates) {
    seams.moveTo(sitter.Out(0, -1.2));
    seams.lineTo(sitter.At(0, -0.42, 0.04));
    seams.moveTo(sitter.At(-0.6, -0.45));
    seams.lineTo(sitter.Out(-0.5, -1.1));
  }
  shell.Line(seams, 1, -1.8, 0.3);
  for (const double x : {-0.84, 0.84})
    for (const double y : {-0.6, 0.2, 0.78}) shell.Bump(sitter.At(x, y), 1.1, 1.1, 1.3);
  if (sitter.spec.mark == Mark::Stripes || sitter.spec.mark == Mark::Paint) {
    QPainterPath band(sitter.Out(0.36, -1.3));
    band.lineTo(sitter.At(0.3, -0.2, 0.02));
    shell.Pigment([&](QPainter& map) {
      map.strokePath(band, QPen(Faint(sitter.hair, 0.95), 7));
      map.strokePath(band.translated(7, 0), QPen(Faint(sitter.hair, 0.95), 2));
    });
  }
  shell.Roughen(static_cast<std::uint64_t>(sitter.spec.number), 3, 0.06);
}

}  // namespace

void PaintMachineHead(QPainter& painter, Sitter& sitter) {
  Relief shell(painter, sitter.HeadPath(), sitter.spec.shape == Shape::Orb ? 30 : 9);
  if (sitter.spec.shape != Shape::Screen && sitter.spec.shape != Shape::Lamp) PressSeams(shell, sitter);
  const bool battered = sitter.spec.number == kBatteredMachine;
  if (battered) PressWear(shell, sitter);
  shell.Cast(painter, 3, 0.5);
  Surface surface = sitter.Of(sitter.skin, Stuff::Metal);
  if (battered) surface.metal = 0.35, surface.gloss = 0.4;
  shell.Paint(painter, surface);
  switch (sitter.spec.shape) {
    case Shape::Screen:
      return PaintDisplay(painter, sitter);
    case Shape::Lamp:
      return PaintBulb(painter, sitter);
    case Shape::Tank:
      return PaintTurret(painter, sitter);
    default:
      PaintSensors(painter, sitter);
      PaintGrille(painter, sitter);
  }
}

}  // namespace kv::datafile
