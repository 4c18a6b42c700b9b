// Eyes and mouths: where the expression is.
#include <cmath>

#include "Bust.h"

namespace kv::datafile {
namespace {

constexpr double kLeftEye = -0.45;
constexpr double kRightEye = 0.37;
constexpr double kEyeLine = -0.08;

struct EyeShape {
  double width;
  double open;   // half height as a share of the width
  double slant;  // the outer corner's rise, in pixels
  double brow;   // the inner end's drop, in pixels
};

EyeShape ShapeOf(const Sitter& sitter) {
  switch (sitter.spec.eyes) {
    case Eyes::Narrow:
      return {4.9, 0.34, 0.9, 1.6};
    case Eyes::Slit:
      return {5.2, 0.46, 1.6, 1};
    case Eyes::Wide:
      return {5.2, 0.62, 0, -1};
    case Eyes::Tired:
      return {4.8, 0.38, -1, -0.6};
    default:
      return {4.8, 0.48, 0.3, 0.3};
  }
}

void PaintIris(QPainter& painter, Sitter& sitter, QPointF at, const EyeShape& shape) {
  const double radius = shape.width * 0.5;
  painter.setPen(QPen(Mix(sitter.eye, Qt::black, 0.6), 0.6));
  painter.setBrush(sitter.eye);
  painter.drawEllipse(at, radius, radius);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(8, 6, 8));
  const bool slit = sitter.spec.eyes == Eyes::Slit;
  painter.drawEllipse(at, radius * (slit ? 0.22 : 0.5), radius * (slit ? 0.95 : 0.5));
  painter.setBrush(Qt::white);
  painter.drawEllipse(at + QPointF(-0.9, -0.9), 0.75, 0.75);
}

void PaintBrow(QPainter& painter, Sitter& sitter, QPointF at, double side, const EyeShape& shape) {
  const bool hairy = sitter.spec.kind == Kind::Human || sitter.spec.kind == Kind::Furred;
  const QPointF inner = at + QPointF(-side * shape.width * 0.95, -shape.width * 1.0 + shape.brow);
  const QPointF outer = at + QPointF(side * shape.width * 1.15, -shape.width * 0.95 - shape.slant * 0.4);
  QPainterPath brow(inner);
  brow.quadTo(at + QPointF(side * 1, -shape.width * 1.4 + shape.brow * 0.3), outer);
  const QColor colour = hairy ? Mix(sitter.hair, Qt::black, 0.35) : Mix(sitter.skin, Qt::black, 0.6);
  painter.strokePath(brow,
                     QPen(Faint(colour, hairy ? 0.95 : 0.6), hairy ? 1.7 : 2.3, Qt::SolidLine, Qt::RoundCap));
}

void PaintEye(QPainter& painter, Sitter& sitter, QPointF at, double side) {
  const EyeShape shape = ShapeOf(sitter);
  const QPointF inner = at - QPointF(side * shape.width, -shape.slant * 0.4);
  const QPointF outer = at + QPointF(side * shape.width, -shape.slant);
  const double lift = shape.width * shape.open * 2;
  QPainterPath eye(inner);
  eye.quadTo(at - QPointF(0, lift), outer);
  eye.quadTo(at + QPointF(0, lift * 0.85), inner);
  const bool dark = sitter.spec.kind == Kind::Smooth && sitter.spec.eyes == Eyes::Wide;
  painter.fillPath(eye, dark ? QColor(12, 14, 22) : side < 0 ? QColor(236, 234, 226) : QColor(196, 194, 190));
  painter.save();
  painter.setClipPath(eye);
  if (dark) {
    Spot(painter, at + QPointF(-1.5, -1.5), 3, QColor(170, 210, 255), 0.9);
  } else {
    PaintIris(painter, sitter, at + QPointF(-0.5, 0), shape);
  }
  painter.strokePath(eye.translated(0, 0.8), QPen(Faint(Qt::black, 0.4), 1.6));  // the lid's shadow
  painter.restore();
  QPainterPath lid(inner);
  lid.quadTo(at - QPointF(0, lift), outer);
  painter.strokePath(lid, QPen(Mix(sitter.skin, Qt::black, 0.85), 1.2, Qt::SolidLine, Qt::RoundCap));
  QPainterPath fold(inner - QPointF(0, 1.3));
  fold.quadTo(at - QPointF(0, lift + 1.9), outer - QPointF(0, 1.2));
  painter.strokePath(fold, QPen(Faint(Mix(sitter.skin, Qt::black, 0.6), 0.5), 0.8));
  if (sitter.spec.eyes == Eyes::Tired) {
    QPainterPath bag(inner + QPointF(0, 2.4));
    bag.quadTo(at + QPointF(0, 5), outer + QPointF(0, 2.6));
    painter.strokePath(bag, QPen(Faint(Mix(sitter.skin, Qt::black, 0.7), 0.5), 1));
  }
  PaintBrow(painter, sitter, at, side, shape);
}

void PaintFacets(QPainter& painter, Sitter& sitter, QPointF at, double side) {
  QPainterPath eye;
  eye.addEllipse(at + QPointF(side * 2.5, -1), 8.5, 10.5);
  Model(painter, eye, sitter.eye);
  painter.save();
  painter.setClipPath(eye);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Faint(Qt::black, 0.35), 0.6));
  for (int row = -6; row <= 6; ++row) {
    for (int column = -5; column <= 5; ++column) {
      painter.drawPath(Polygon(at + QPointF(column * 2.6 + (row % 2) * 1.3, row * 2.2), 1.5, 6));
    }
  }
  Spot(painter, at + QPointF(side * 2 - 3, -5), 5, Qt::white, 0.75);
  painter.restore();
}

void PaintGlowEye(QPainter& painter, Sitter& sitter, QPointF at, double side) {
  QPainterPath slit(at - QPointF(side * 4.8, -0.8));
  slit.quadTo(at - QPointF(0, 3.4), at + QPointF(side * 4.8, -1.2));
  slit.quadTo(at + QPointF(0, 2.2), at - QPointF(side * 4.8, -0.8));
  Spot(painter, at, 10, sitter.eye, 0.55);
  painter.fillPath(slit, Mix(sitter.eye, Qt::white, 0.6));
  painter.strokePath(slit, QPen(Mix(sitter.eye, Qt::black, 0.5), 0.8));
}

void PaintLips(QPainter& painter, Sitter& sitter, double bend, double lopsided) {
  const QColor lip = Mix(Mix(sitter.skin, QColor(130, 40, 40), 0.4), Qt::black, 0.2);
  const double half = 0.34 + 0.08 * sitter.spec.jaw;
  const QPointF left = sitter.At(-half - 0.03, 0.6 - bend);
  const QPointF right = sitter.At(half - 0.03, 0.6 - bend - lopsided);
  const QPointF middle = sitter.At(-0.03, 0.6 + bend * 0.9);
  QPainterPath upper(left);
  upper.quadTo(middle - QPointF(0, 2.6), right);
  upper.quadTo(middle, left);
  QPainterPath lower(left);
  lower.quadTo(middle + QPointF(0, 3.4), right);
  lower.quadTo(middle, left);
  painter.fillPath(upper, Mix(lip, Qt::black, 0.25));
  painter.fillPath(lower, Mix(lip, Qt::white, 0.1));
  QPainterPath line(left);
  line.quadTo(middle, right);
  painter.strokePath(line, QPen(Mix(lip, Qt::black, 0.7), 1.2, Qt::SolidLine, Qt::RoundCap));
  Spot(painter, sitter.At(-0.05, 0.76 + bend * 0.5), 4.5, Qt::black, 0.22);
}

void PaintFangs(QPainter& painter, Sitter& sitter) {
  PaintLips(painter, sitter, -0.04, 0);
  for (const double x : {-0.28, 0.2}) {
    QPainterPath tooth(sitter.At(x - 0.06, 0.62));
    tooth.lineTo(sitter.At(x + 0.07, 0.62));
    tooth.lineTo(sitter.At(x, 0.45));
    tooth.closeSubpath();
    painter.fillPath(tooth, QColor(236, 228, 204));
  }
}

void PaintBeak(QPainter& painter, Sitter& sitter) {
  QPainterPath upper(sitter.At(-0.42, 0.16));
  upper.cubicTo(sitter.At(-0.3, -0.06), sitter.At(0.2, -0.06), sitter.At(0.34, 0.16));
  upper.cubicTo(sitter.At(0.3, 0.5), sitter.At(0.1, 0.72), sitter.At(-0.08, 0.94));
  upper.cubicTo(sitter.At(-0.2, 0.7), sitter.At(-0.4, 0.5), sitter.At(-0.42, 0.16));
  Model(painter, upper, sitter.hair);
  painter.setPen(QPen(Faint(Qt::black, 0.6), 1));
  painter.drawLine(sitter.At(-0.4, 0.34), sitter.At(-0.1, 0.48));
  painter.drawLine(sitter.At(-0.1, 0.48), sitter.At(0.32, 0.34));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(Qt::black, 0.7));
  painter.drawEllipse(sitter.At(-0.17, 0.15), 1.1, 0.7);
  painter.drawEllipse(sitter.At(0.1, 0.15), 1.1, 0.7);
}

void PaintMandibles(QPainter& painter, Sitter& sitter) {
  for (const double side : {-1.0, 1.0}) {
    QPainterPath jaw(sitter.At(side * 0.46, 0.42));
    jaw.cubicTo(sitter.At(side * 0.75, 0.8), sitter.At(side * 0.5, 1.12), sitter.At(side * 0.06, 1.1));
    jaw.cubicTo(sitter.At(side * 0.36, 0.98), sitter.At(side * 0.4, 0.76), sitter.At(side * 0.2, 0.55));
    jaw.closeSubpath();
    Model(painter, jaw, Mix(sitter.hair, Qt::black, 0.15));
  }
}

void PaintMuzzle(QPainter& painter, Sitter& sitter) {
  QPainterPath muzzle;
  muzzle.addEllipse(sitter.At(-0.03, 0.5), sitter.halfWidth * 0.5, sitter.halfLength * 0.34);
  Model(painter, muzzle, Mix(sitter.hair, Qt::white, 0.15), 0.6);
  QPainterPath nose(sitter.At(-0.2, 0.24));
  nose.quadTo(sitter.At(-0.03, 0.18), sitter.At(0.14, 0.24));
  nose.quadTo(sitter.At(0.06, 0.4), sitter.At(-0.03, 0.42));
  nose.quadTo(sitter.At(-0.14, 0.4), sitter.At(-0.2, 0.24));
  painter.fillPath(nose, QColor(34, 24, 26));
  Spot(painter, sitter.At(-0.1, 0.26), 2, Qt::white, 0.6);
  painter.setPen(QPen(QColor(34, 24, 26), 1.2, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(sitter.At(-0.03, 0.42), sitter.At(-0.03, 0.54));
  QPainterPath smile(sitter.At(-0.3, 0.56));
  smile.quadTo(sitter.At(-0.16, 0.68), sitter.At(-0.03, 0.54));
  smile.quadTo(sitter.At(0.1, 0.68), sitter.At(0.24, 0.56));
  painter.strokePath(smile, QPen(QColor(34, 24, 26), 1.2, Qt::SolidLine, Qt::RoundCap));
}

}  // namespace

void PaintEyes(QPainter& painter, Sitter& sitter) {
  const QPointF left = sitter.At(kLeftEye, kEyeLine);
  const QPointF right = sitter.At(kRightEye, kEyeLine);
  switch (sitter.spec.eyes) {
    case Eyes::Facets:
      PaintFacets(painter, sitter, left, -1);
      PaintFacets(painter, sitter, right, 1);
      break;
    case Eyes::Glow:
      PaintGlowEye(painter, sitter, left, -1);
      PaintGlowEye(painter, sitter, right, 1);
      break;
    case Eyes::Four:
      for (const double y : {0.08, -0.34}) {
        PaintEye(painter, sitter, sitter.At(kLeftEye - (y < 0 ? 0.08 : 0), y), -1);
        PaintEye(painter, sitter, sitter.At(kRightEye + (y < 0 ? 0.08 : 0), y), 1);
      }
      break;
    default:
      PaintEye(painter, sitter, left, -1);
      if (sitter.spec.mark != Mark::Patch) PaintEye(painter, sitter, right, 1);
  }
}

void PaintMouth(QPainter& painter, Sitter& sitter) {
  switch (sitter.spec.mouth) {
    case Mouth::Smile:
      return PaintLips(painter, sitter, 0.1, 0);
    case Mouth::Frown:
      return PaintLips(painter, sitter, -0.07, 0);
    case Mouth::Smirk:
      return PaintLips(painter, sitter, 0.04, 0.09);
    case Mouth::Fangs:
      return PaintFangs(painter, sitter);
    case Mouth::Beak:
      return PaintBeak(painter, sitter);
    case Mouth::Mandibles:
      return PaintMandibles(painter, sitter);
    case Mouth::Muzzle:
      return PaintMuzzle(painter, sitter);
    case Mouth::Open: {
      painter.setPen(QPen(Mix(sitter.skin, Qt::black, 0.6), 1.4));
      painter.setBrush(QColor(40, 14, 18));
      painter.drawEllipse(sitter.At(-0.03, 0.62), sitter.halfWidth * 0.24, sitter.halfLength * 0.1);
      return;
    }
    default:
      return PaintLips(painter, sitter, 0.005, 0);
  }
}

}  // namespace kv::datafile
