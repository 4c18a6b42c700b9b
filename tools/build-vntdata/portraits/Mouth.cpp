// Mouths: lips pressed into the flesh, and snouts, beaks and jaws that stand out of it.
#include <algorithm>
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

struct Lips {
  QPointF left;
  QPointF right;
  QPointF middle;  // where they meet
  QPointF under;   // the lower lip's edge when the mouth is open
};

Lips LipsOf(const Sitter& sitter) {
  const bool wide = sitter.spec.mouth == Mouth::Wide;
  const double half = (wide ? 0.66 : 0.31 + 0.1 * sitter.spec.jaw) + 0.22 * std::max(0.0, sitter.mood.bend);
  const double y = sitter.plan.mouthY;
  const Expression& mood = sitter.mood;
  return {sitter.At(-half, y - mood.bend, 0.04), sitter.At(half, y - mood.bend - mood.skew, 0.04),
          sitter.At(0, y + mood.bend * 0.7, 0.1), sitter.At(0, y + mood.bend * 0.7 + mood.gape * 1.9, 0.1)};
}

QPainterPath Arc(QPointF from, QPointF through, QPointF to) {
  QPainterPath path(from);
  path.quadTo(through * 2 - (from + to) / 2, to);
  return path;
}

/// The lower lip of an open mouth: round, not pointed.
QPainterPath Bowed(const Lips& lips) {
  const auto low = [&](QPointF corner, double share) {
    return QPointF(corner.x() + (lips.under.x() - corner.x()) * share,
                   corner.y() + (lips.under.y() - corner.y()) * 1.33);
  };
  QPainterPath path(lips.left);
  path.cubicTo(low(lips.left, 0.24), low(lips.right, 0.24), lips.right);
  return path;
}

bool HasLips(Mouth mouth) {
  return mouth == Mouth::Lips || mouth == Mouth::Fangs || mouth == Mouth::Tusks || mouth == Mouth::Wide;
}

void PaintOpenMouth(QPainter& painter, Sitter& sitter, const Lips& lips) {
  const QPainterPath upper = Arc(lips.left, lips.middle, lips.right);
  QPainterPath hole = upper;
  hole.connectPath(Bowed(lips).toReversed());
  painter.save();
  painter.setClipPath(hole);
  painter.fillPath(hole, QColor(44, 10, 16));
  Spot(painter, lips.under + QPointF(0, 1), sitter.halfWidth * 0.3, QColor(190, 70, 74), 0.8);  // the tongue
  if (sitter.mood.teeth) {
    QPainterPath teeth = upper;
    const QPointF drop(0, 2.1 + 5 * sitter.mood.gape);
    teeth.lineTo(lips.right + drop * 0.4);
    teeth.quadTo(lips.middle * 2 - (lips.left + lips.right) / 2 + drop, lips.left + drop * 0.4);
    painter.fillPath(teeth, QColor(240, 234, 218));
    painter.setPen(QPen(Faint(QColor(90, 60, 50), 0.35), 0.5));
    for (int i = 1; i < 9; ++i) {
      const QPointF top = upper.pointAtPercent(i / 9.0);
      painter.drawLine(top, top + drop);
    }
  }
  painter.strokePath(upper, QPen(Faint(Qt::black, 0.45), 1.8));
  painter.restore();
}

/// Teeth of an animal at the mouth's corners: upward as tusks or downward as fangs.
void PaintFangs(QPainter& painter, Sitter& sitter, const Lips& lips) {
  const bool tusks = sitter.spec.mouth == Mouth::Tusks;
  const QPainterPath line = Arc(lips.left, lips.middle, lips.right);
  for (const double share : {0.12, 0.88}) {
    const QPointF root = line.pointAtPercent(share) + QPointF(0, tusks ? 1.5 : -0.4);
    const QPointF tip = root + QPointF((share - 0.5) * (tusks ? 7 : 0.6), tusks ? -11 : 5);
    Model(painter, sitter, Petal(root, tip, tusks ? 2.6 : 1.5), QColor(238, 228, 200), Stuff::Bone, 2);
  }
}

/// A hooked beak, seen from the side to which the head is turned.
void PaintBeak(QPainter& painter, Sitter& sitter) {
  const double y = sitter.plan.eyeY;
  const double s = sitter.spec.turn < 0 ? -1 : 1;
  const QPointF tip = sitter.At(0, y + 0.66, 1.0);
  QPainterPath lower(sitter.At(-s * 0.2, y + 0.42));
  lower.cubicTo(sitter.At(0, y + 0.74, 0.1), sitter.At(0, y + 0.74, 0.6), sitter.At(0, y + 0.62, 0.86));
  lower.lineTo(sitter.At(0, y + 0.36, 0.3));
  lower.closeSubpath();
  Model(painter, sitter, lower, Mix(sitter.hair, Qt::black, 0.35), Stuff::Bone);
  QPainterPath upper(sitter.At(-s * 0.34, y + 0.36));
  upper.cubicTo(sitter.At(-s * 0.3, y + 0.02), sitter.At(s * 0.1, y - 0.1),
                sitter.At(s * 0.14, y - 0.02, 0.12));
  upper.cubicTo(sitter.At(s * 0.1, y + 0.04, 0.7), sitter.At(0, y + 0.2, 1.06), tip);
  upper.cubicTo(sitter.At(0, y + 0.44, 0.8), sitter.At(0, y + 0.6, 0.3), sitter.At(-s * 0.34, y + 0.36));
  Relief beak(painter, upper, 8);
  beak.Bump(sitter.At(0, y + 0.2, 0.28), 1.6, 0.9, -2.4);
  beak.Pigment([&](QPainter& map) {
    Spot(map, tip, 14, Mix(sitter.hair, Qt::black, 0.7), 0.8);
    Spot(map, sitter.At(0, y + 0.1, 0.1), 10, Mix(sitter.hair, Qt::white, 0.4), 0.5);
  });
  beak.Cast(painter, 2.4, 0.5);
  beak.Paint(painter, sitter.Of(sitter.hair, Stuff::Bone));
}

void PaintMandibles(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath bone(sitter.At(side * 0.42, 0.42));
    bone.cubicTo(sitter.At(side * 0.9, 0.8), sitter.At(side * 0.66, 1.2), sitter.At(side * 0.06, 1.16, 0.1));
    Model(painter, sitter, Tapered(bone, 4, 0.5), Mix(sitter.hair, Qt::black, 0.1), Stuff::Bone);
    QPainterPath feeler(sitter.At(side * 0.2, 0.56));
    feeler.quadTo(sitter.At(side * 0.34, 0.9), sitter.At(side * 0.16, 1.34, 0.1));
    Model(painter, sitter, Tapered(feeler, 1.6, 0.4), sitter.skin, Stuff::Hide);
  }
}

void PaintNosePad(QPainter& painter, Sitter& sitter, double y) {
  QPainterPath nose(sitter.At(-0.22, y - 0.28, 0.36));
  nose.quadTo(sitter.At(0, y - 0.38, 0.36), sitter.At(0.22, y - 0.28, 0.36));
  nose.quadTo(sitter.At(0.12, y - 0.1, 0.36), sitter.At(0, y - 0.08, 0.36));
  nose.quadTo(sitter.At(-0.12, y - 0.1, 0.36), sitter.At(-0.22, y - 0.28, 0.36));
  Relief pad(painter, nose, 5);
  for (const double x : {-0.1, 0.1}) pad.Bump(sitter.At(x, y - 0.19, 0.37), 1.1, 0.9, -2);
  pad.Paint(painter, sitter.Of(QColor(52, 38, 40), Stuff::Glass));
}

void PaintMuzzle(QPainter& painter, Sitter& sitter) {
  const double y = sitter.plan.mouthY;
  const Expression& mood = sitter.mood;
  QPainterPath bridge(sitter.At(0, sitter.plan.eyeY + 0.02));
  bridge.lineTo(sitter.At(0, y - 0.1, 0.26));
  Model(painter, sitter, Tapered(bridge, 3.6, 7), Mix(sitter.skin, sitter.hair, 0.3), Stuff::Hide, 6);
  QPainterPath chin;
  chin.addEllipse(sitter.At(0, y + 0.16 + mood.gape * 0.9, 0.16), sitter.halfWidth * 0.32,
                  sitter.halfLength * 0.2);
  Model(painter, sitter, chin, Mix(sitter.hair, sitter.skin, 0.3), Stuff::Hide);
  if (mood.gape > 0.05) {
    QPainterPath gap;
    gap.addEllipse(sitter.At(0, y + 0.1 + mood.gape * 0.3, 0.26), sitter.halfWidth * 0.24,
                   sitter.halfLength * (0.06 + mood.gape * 0.5));
    painter.fillPath(gap, QColor(50, 14, 20));
  }
  for (const double side : {-1.0, 1.0}) {
    QPainterPath jowl;
    jowl.addEllipse(sitter.At(side * 0.2, y - 0.02 - mood.bend * 0.4, 0.24), sitter.halfWidth * 0.3,
                    sitter.halfLength * 0.19);
    Relief relief(painter, Ragged(jowl, sitter.chance, 1), 8);
    relief.Roughen(static_cast<std::uint64_t>(sitter.spec.number), 0.9, 0.4);
    relief.Cast(painter, 1.6, 0.45);
    relief.Paint(painter, sitter.Of(sitter.hair, Stuff::Hide));
    painter.setPen(QPen(Faint(Qt::white, 0.5), 0.5));
    for (int i = 0; i < 3; ++i) {
      QPainterPath whisker(sitter.At(side * 0.3, y - 0.06 + i * 0.06, 0.24));
      whisker.quadTo(sitter.At(side * 0.8, y - 0.14 + i * 0.1, 0.1),
                     sitter.Out(side * 1.2, y - 0.2 + i * 0.2));
      painter.strokePath(whisker, painter.pen());
    }
  }
  PaintNosePad(painter, sitter, y);
  if (sitter.spec.growth == Growth::Horns || sitter.mood.teeth) PaintFangs(painter, sitter, LipsOf(sitter));
}

/// A beard of living feelers where others have a mouth.
void PaintFeelers(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 7; ++i) {
    const double x = (i - 3) * 0.15;
    const double length = 0.62 + 0.22 * ((i * 5) % 3);
    QPainterPath feeler(sitter.At(x, sitter.plan.mouthY - 0.18, 0.14));
    feeler.cubicTo(sitter.At(x * 1.6, sitter.plan.mouthY + 0.2, 0.16),
                   sitter.At(x * 1.2 - 0.15, sitter.plan.mouthY + length * 0.6, 0.1),
                   sitter.At(x * 2.1, sitter.plan.mouthY + length, 0.08));
    Model(painter, sitter, Tapered(feeler, 3.4, 0.8), Mix(sitter.skin, sitter.hair, i % 2 == 0 ? 0.25 : 0.45),
          Stuff::Hide);
  }
}

}  // namespace

void PressMouth(Relief& head, Sitter& sitter) {
  if (!HasLips(sitter.spec.mouth)) return;
  const Lips lips = LipsOf(sitter);
  const bool human = sitter.spec.kind == Kind::Human;
  const double full = human ? 1 : 0.55;
  const QPainterPath line = Arc(lips.left, lips.middle, lips.right);
  const QPainterPath below = sitter.mood.gape > 0 ? Bowed(lips).translated(0, 1.1)
                                                  : Arc(lips.left, lips.under + QPointF(0, 1.6), lips.right);
  const QColor lip = Mix(sitter.skin, human ? QColor(150, 44, 52) : Mix(sitter.hair, Qt::black, 0.3), 0.42);
  head.Pigment([&](QPainter& map) {
    QPainterPath both = Arc(lips.left, lips.middle - QPointF(0, 2.1), lips.right);
    both.connectPath(sitter.mood.gape > 0 ? Bowed(lips).translated(0, 2.2).toReversed()
                                          : Arc(lips.right, lips.under + QPointF(0, 3.5), lips.left));
    map.fillPath(both, Faint(lip, human ? 0.75 : 0.4));
  });
  head.Line(line.translated(0, -1.4), 2, 1.1 * full, 0.5);
  head.Line(below, 2.8, 1.7 * full, 0.6);
  head.Bump(lips.under + QPointF(0, 5.4), sitter.halfWidth * 0.22, 1.6, -1.3);
  head.Line(line, 0.9, -2.2, 0.3);
  for (const QPointF& corner : {lips.left, lips.right}) head.Bump(corner, 1.5, 1.3, -1.5);
  head.Pigment([&](QPainter& map) {
    map.strokePath(line,
                   QPen(Faint(Mix(lip, QColor(20, 4, 8), 0.8), 0.85), 0.9, Qt::SolidLine, Qt::RoundCap));
  });
}

void PaintMouth(QPainter& painter, Sitter& sitter) {
  switch (sitter.spec.mouth) {
    case Mouth::Beak:
      return PaintBeak(painter, sitter);
    case Mouth::Mandibles:
      return PaintMandibles(painter, sitter);
    case Mouth::Muzzle:
      return PaintMuzzle(painter, sitter);
    case Mouth::Feelers:
      return PaintFeelers(painter, sitter);
    default:
      break;
  }
  const Lips lips = LipsOf(sitter);
  if (sitter.mood.gape > 0) PaintOpenMouth(painter, sitter, lips);
  if (sitter.spec.mouth == Mouth::Fangs || sitter.spec.mouth == Mouth::Tusks)
    PaintFangs(painter, sitter, lips);
}

}  // namespace kv::datafile
