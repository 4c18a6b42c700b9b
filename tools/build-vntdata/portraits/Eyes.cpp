// Eyes: where the expression is.
#include <algorithm>
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

constexpr double kEyeWidth = 6.1;

struct EyeAt {
  QPointF at;
  double side;
  double width;
  double open;  // half height as a share of the width
  double lift;  // of the brow
};

/// One eye of the sitter; the far one of a turned head is narrower.
EyeAt EyeOf(const Sitter& sitter, double side, double x, double y, double size) {
  const double away = std::max(0.0, side * sitter.spec.turn);
  const double scale = sitter.halfWidth / 24.5;
  const Expression& mood = sitter.mood;
  return {sitter.At(side * x, y), side, kEyeWidth * size * scale * (1 - 0.3 * away),
          0.5 * (side < 0 ? mood.openLeft : mood.openRight), side < 0 ? mood.liftLeft : mood.liftRight};
}

QPointF Gaze(const Sitter& sitter) {
  return {sitter.spec.turn * 1.3, sitter.spec.nod * 0.7};
}

void PaintIris(QPainter& painter, Sitter& sitter, const EyeAt& eye) {
  const double radius = eye.width * 0.47;
  const QPointF at = eye.at + Gaze(sitter);
  QRadialGradient iris(at + QPointF(radius * 0.3, radius * 0.5), radius * 1.3);
  iris.setColorAt(0, Mix(sitter.eye, Qt::white, 0.45));
  iris.setColorAt(0.6, sitter.eye);
  iris.setColorAt(1, Mix(sitter.eye, Qt::black, 0.7));
  painter.setPen(QPen(Mix(sitter.eye, Qt::black, 0.8), 0.6));
  painter.setBrush(iris);
  painter.drawEllipse(at, radius, radius);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(6, 5, 8));
  const bool slit = sitter.spec.eyes == Eyes::Slit;
  painter.drawEllipse(at, radius * (slit ? 0.2 : 0.48), radius * (slit ? 0.92 : 0.48));
  painter.setBrush(Qt::white);
  painter.drawEllipse(at + QPointF(-radius * 0.36, -radius * 0.38), radius * 0.24, radius * 0.22);
  painter.setBrush(Faint(Mix(sitter.back, Qt::white, 0.6), 0.7));
  painter.drawEllipse(at + QPointF(radius * 0.45, radius * 0.3), radius * 0.14, radius * 0.14);
}

struct Lids {
  QPainterPath upper;
  QPainterPath lower;
  QPainterPath opening;
};

Lids LidsOf(const Sitter& sitter, const EyeAt& eye) {
  const double cant = sitter.spec.kind == Kind::Human ? 0.5 : 1.1;
  const QPointF inner = eye.at + QPointF(-eye.side * eye.width, 0.5 + sitter.mood.frown * 0.4);
  const QPointF outer = eye.at + QPointF(eye.side * eye.width, -cant);
  const double up = eye.width * eye.open * 2;
  const QPointF scowl(-eye.side * eye.width * 0.25, std::max(0.0, sitter.mood.frown) * 1.6);
  const double squint = std::max(0.0, sitter.mood.bend) * 6;
  Lids lids{QPainterPath(inner), QPainterPath(inner), QPainterPath(inner)};
  const QPointF top = eye.at - QPointF(eye.side * 0.6, up) + scowl;
  const QPointF bottom = eye.at + QPointF(0, std::max(0.6, up * 0.82 - squint));
  lids.upper.quadTo(top, outer);
  lids.lower.quadTo(bottom, outer);
  lids.opening.quadTo(top, outer);
  lids.opening.quadTo(bottom, inner);
  return lids;
}

void PaintBrow(QPainter& painter, Sitter& sitter, const EyeAt& eye) {
  const Kind kind = sitter.spec.kind;
  if (kind != Kind::Human && kind != Kind::Leaf && kind != Kind::Stone) return;
  const double w = eye.width;
  const QPointF inner =
      eye.at + QPointF(-eye.side * w * 0.95, -w * (1.1 + eye.lift) + sitter.mood.frown * w * 0.75);
  const QPointF peak = eye.at + QPointF(eye.side * w * 0.35, -w * (1.55 + 1.1 * eye.lift));
  const QPointF outer = eye.at + QPointF(eye.side * w * 1.35, -w * (0.9 + 0.5 * eye.lift));
  QPainterPath brow(inner);
  brow.quadTo(peak, outer);
  const double thick = 0.9 + 0.8 * sitter.spec.jaw;
  if (kind != Kind::Human) {
    Model(painter, sitter, Tapered(brow, 2.2, 1), Mix(sitter.skin, Qt::black, 0.2), Stuff::Hide, 2);
    return;
  }
  const QColor colour = Mix(sitter.hair, Qt::black, 0.35);
  painter.fillPath(Tapered(brow, thick, 0.35), Faint(colour, 0.9));
  painter.setPen(QPen(Faint(Mix(colour, Qt::white, 0.25), 0.5), 0.4));
  for (int i = 1; i < 8; ++i) {
    const QPointF root = brow.pointAtPercent(i / 9.0) + QPointF(0, 0.6);
    painter.drawLine(root, root + QPointF(eye.side * 1.2, -1.3));
  }
}

void PaintBall(QPainter& painter, Sitter& sitter, const EyeAt& eye, const Lids& lids) {
  const bool dark = sitter.spec.eyes == Eyes::Dark;
  QRadialGradient ball(eye.at - QPointF(eye.width * 0.4, eye.width * 0.3), eye.width * 1.7);
  ball.setColorAt(0, dark ? QColor(44, 48, 66) : QColor(246, 243, 236));
  ball.setColorAt(0.5, dark ? QColor(12, 13, 22) : QColor(214, 208, 202));
  ball.setColorAt(1, dark ? QColor(2, 2, 6) : QColor(120, 108, 112));
  painter.save();
  painter.setClipPath(lids.opening);
  painter.fillPath(lids.opening, ball);
  if (dark) {
    Spot(painter, eye.at + QPointF(-eye.width * 0.3, -eye.width * 0.25), eye.width * 0.34,
         QColor(225, 238, 255), 1);
    Spot(painter, eye.at + QPointF(eye.width * 0.3, eye.width * 0.3), eye.width * 0.5,
         sitter.back.lighter(170), 0.55);
  } else {
    PaintIris(painter, sitter, eye);
  }
  painter.strokePath(lids.upper.translated(0.4, 1), QPen(Faint(QColor(20, 6, 10), 0.32), 2.6));
  painter.strokePath(lids.lower, QPen(Faint(Mix(sitter.skin, QColor(200, 90, 80), 0.4), 0.8), 0.9));
  painter.restore();
}

void PaintEye(QPainter& painter, Sitter& sitter, const EyeAt& eye) {
  const Lids lids = LidsOf(sitter, eye);
  const QColor line = Mix(sitter.skin, QColor(14, 6, 8), 0.88);
  const double closed = 0.06;
  if (eye.open > closed) {
    PaintBall(painter, sitter, eye, lids);
    painter.fillPath(Tapered(lids.upper, 0.5, 0.85), line);
    painter.strokePath(lids.lower, QPen(Faint(line, 0.55), 0.6, Qt::SolidLine, Qt::RoundCap));
    QPainterPath fold = lids.upper.translated(0, -1.5);
    painter.strokePath(fold, QPen(Faint(line, 0.4), 0.7, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(lids.upper.translated(-0.2, -0.95),
                       QPen(Faint(Mix(sitter.skin, Qt::white, 0.5), 0.4), 0.7, Qt::SolidLine, Qt::RoundCap));
  } else {  // shut: a lid that smiles
    QPainterPath lash(eye.at - QPointF(eye.width, 0));
    lash.quadTo(eye.at + QPointF(0, eye.width * 0.55), eye.at + QPointF(eye.width, -0.6));
    painter.fillPath(Tapered(lash, 0.6, 0.8), line);
    for (int i = 2; i < 6; ++i) {
      const QPointF root = lash.pointAtPercent(i / 6.0);
      painter.setPen(QPen(line, 0.6));
      painter.drawLine(root, root + QPointF(0.6, 1.5));
    }
  }
  PaintBrow(painter, sitter, eye);
}

void PaintFacets(QPainter& painter, Sitter& sitter, double side) {
  const EyeAt where = EyeOf(sitter, side, sitter.plan.eyeX, sitter.plan.eyeY, 1);
  const double away = std::max(0.0, side * sitter.spec.turn);
  QPainterPath eye;
  eye.addEllipse(where.at, sitter.halfWidth * (0.42 - 0.14 * away), sitter.halfLength * 0.42);
  Relief relief(painter, eye, 12);
  QPainterPath cells;
  for (int row = -8; row <= 8; ++row)
    for (int column = -7; column <= 7; ++column)
      cells.addPath(Polygon(where.at + QPointF(column * 2.5 + (row & 1) * 1.25, row * 2.15), 1.35, 6));
  relief.Line(cells, 0.5, -0.9, 0.3);
  relief.Cast(painter, 2, 0.5);
  relief.Paint(painter, sitter.Of(sitter.eye, Stuff::Glass));
  Spot(painter, where.at + QPointF(-3, -5), 4, Qt::white, 0.5);
}

void PaintGlowEye(QPainter& painter, Sitter& sitter, const EyeAt& eye) {
  const Lids lids = LidsOf(sitter, eye);
  Spot(painter, eye.at, eye.width * 2.6, sitter.eye, 0.5);
  painter.fillPath(lids.opening, Mix(sitter.eye, Qt::white, 0.55));
  Spot(painter, eye.at, eye.width, Qt::white, 0.7);
  painter.fillPath(Tapered(lids.upper, 0.4, 0.8), Mix(sitter.skin, Qt::black, 0.85));
}

/// On stalks or bumps an eye is a ball of its own.
void PaintBallEye(QPainter& painter, Sitter& sitter, const EyeAt& eye) {
  QPainterPath socket;
  socket.addEllipse(eye.at, eye.width * 1.3, eye.width * 1.25);
  Model(painter, sitter, socket, sitter.skin, Stuff::Hide);
  PaintEye(painter, sitter, eye);
}

}  // namespace

void PaintEyes(QPainter& painter, Sitter& sitter) {
  const FacePlan& plan = sitter.plan;
  const Shape shape = sitter.spec.shape;
  if (sitter.spec.growth == Growth::Stalks) return;  // they sit on the stalks
  if (sitter.spec.eyes == Eyes::One)
    return PaintBallEye(painter, sitter, EyeOf(sitter, -1, 0, plan.eyeY, plan.eyeSize * 1.7));
  for (const double side : {-1.0, 1.0}) {
    const EyeAt eye = EyeOf(sitter, side, plan.eyeX, plan.eyeY, plan.eyeSize);
    if (sitter.spec.eyes == Eyes::Facets) {
      PaintFacets(painter, sitter, side);
    } else if (sitter.spec.eyes == Eyes::Glow) {
      PaintGlowEye(painter, sitter, eye);
    } else if (sitter.spec.eyes == Eyes::Four) {
      PaintEye(painter, sitter, EyeOf(sitter, side, plan.eyeX, plan.eyeY + 0.1, plan.eyeSize));
      PaintEye(painter, sitter, EyeOf(sitter, side, plan.eyeX * 1.32, plan.eyeY - 0.26, plan.eyeSize * 0.7));
    } else if (shape == Shape::Frog || shape == Shape::Hammer) {
      PaintBallEye(painter, sitter, eye);
    } else if (side < 0 || sitter.spec.mark != Mark::Patch) {
      PaintEye(painter, sitter, eye);
    }
  }
}

}  // namespace kv::datafile
