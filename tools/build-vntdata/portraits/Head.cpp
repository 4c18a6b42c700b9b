// The flesh of a living head: planes, brow, nose, cheeks, and the neck below.
#include <algorithm>
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

bool HasNose(const BustSpec& spec) {
  return spec.mouth != Mouth::Beak && spec.mouth != Mouth::Muzzle && spec.kind != Kind::Insect &&
         spec.shape != Shape::Cone;
}

/// Nostrils only: two slits on a low ridge.
void PressSlits(Relief& head, Sitter& sitter) {
  head.Bump(sitter.At(0, 0.2, 0.1), sitter.halfWidth * 0.2, sitter.halfLength * 0.22, 2.2);
  for (const double side : {-1.0, 1.0}) {
    QPainterPath slit(sitter.At(side * 0.13, sitter.plan.mouthY - 0.36, 0.14));
    slit.quadTo(sitter.At(side * 0.12, sitter.plan.mouthY - 0.28, 0.15),
                sitter.At(side * 0.06, sitter.plan.mouthY - 0.25, 0.16));
    head.Line(slit, 1.3, -1.6, 0.3);
    head.Pigment([&](QPainter& map) {
      map.strokePath(slit,
                     QPen(Faint(Mix(sitter.skin, Qt::black, 0.85), 0.8), 1.2, Qt::SolidLine, Qt::RoundCap));
    });
  }
}

void PressNose(Relief& head, Sitter& sitter) {
  const double broad = 0.10 + 0.13 * sitter.spec.jaw;
  const double low = sitter.plan.mouthY - 0.29;
  QPainterPath bridge(sitter.At(0, -0.2, 0.02));
  bridge.quadTo(sitter.At(0, 0.04, 0.08), sitter.At(0, low - 0.04, 0.2));
  head.Area(Tapered(bridge, 1.5, 2.6 + 3 * broad), 3.0, 1.0);
  head.Bump(sitter.At(0, low - 0.02, 0.21), sitter.halfWidth * (0.09 + 0.4 * broad),
            sitter.halfLength * 0.085, 3.1);
  for (const double side : {-1.0, 1.0}) {
    head.Bump(sitter.At(side * broad, low + 0.02, 0.13), sitter.halfWidth * 0.085, sitter.halfLength * 0.06,
              1.9);
    const QPointF hole = sitter.At(side * broad * 0.55, low + 0.065, 0.17);
    head.Bump(hole, 1.1, 0.6, -1.5);
    head.Pigment([&](QPainter& map) {
      map.setPen(Qt::NoPen);
      map.setBrush(Faint(Mix(sitter.skin, QColor(30, 6, 6), 0.8), 0.55));
      map.drawEllipse(hole, 1.15, 0.65);
    });
  }
}

void PressSocket(Relief& head, Sitter& sitter, double side) {
  const FacePlan& plan = sitter.plan;
  const double w = sitter.halfWidth * plan.eyeSize;
  const double h = sitter.halfLength * plan.eyeSize;
  const double lift = side < 0 ? sitter.mood.liftLeft : sitter.mood.liftRight;
  head.Bump(sitter.At(side * plan.eyeX, plan.eyeY), w * 0.27, h * 0.15, -3);
  head.Bump(sitter.At(side * plan.eyeX, plan.eyeY), w * 0.17, h * 0.1, 1.5);  // the ball under the lids
  QPainterPath brow(sitter.At(side * (plan.eyeX - 0.28), plan.eyeY - 0.17 + 0.14 * sitter.mood.frown));
  brow.quadTo(sitter.At(side * plan.eyeX, plan.eyeY - 0.27 - 0.1 * lift),
              sitter.At(side * (plan.eyeX + 0.3), plan.eyeY - 0.13));
  const bool flesh = sitter.spec.kind != Kind::Insect;
  head.Line(brow, 3.4, flesh ? 1.2 + 0.7 * sitter.spec.jaw : 0.6, 1.2);
}

/// Cheekbone, the hollow below it, and the folds that a mouth draws.
void PressCheek(Relief& head, Sitter& sitter, double side) {
  const double w = sitter.halfWidth;
  const double h = sitter.halfLength;
  const double smile = std::max(0.0, sitter.mood.bend);
  head.Bump(sitter.At(side * 0.6, 0.2 - 0.5 * smile), w * 0.26, h * 0.13, 1.7 + 5 * smile);
  head.Bump(sitter.At(side * 0.66, 0.56), w * 0.2, h * 0.18, -2 * (1 - 4 * smile));
  if (!HasNose(sitter.spec)) return;
  const double y = sitter.plan.mouthY;
  QPainterPath fold(sitter.At(side * 0.24, y - 0.26, 0.06));
  fold.quadTo(sitter.At(side * 0.44, y - 0.14), sitter.At(side * (0.44 + 0.4 * smile), y + 0.06));
  head.Line(fold, 1.2, smile > 0.05 ? -0.7 : -0.8 * sitter.spec.jaw, 0.6);
  QPainterPath bag(sitter.At(side * (sitter.plan.eyeX - 0.2), sitter.plan.eyeY + 0.15));
  bag.quadTo(sitter.At(side * sitter.plan.eyeX, sitter.plan.eyeY + 0.23),
             sitter.At(side * (sitter.plan.eyeX + 0.2), sitter.plan.eyeY + 0.13));
  head.Line(bag, 1, -0.7, 0.5);
}

void PressPlanes(Relief& head, Sitter& sitter) {
  const double w = sitter.halfWidth;
  const double h = sitter.halfLength;
  for (const double side : {-1.0, 1.0}) {
    PressSocket(head, sitter, side);
    if (sitter.spec.kind != Kind::Insect) PressCheek(head, sitter, side);
  }
  if (sitter.mood.frown > 0.2) {
    QPainterPath creases;
    for (const double side : {-1.0, 1.0}) {
      creases.moveTo(sitter.At(side * 0.07, sitter.plan.eyeY - 0.3));
      creases.lineTo(sitter.At(side * 0.09, sitter.plan.eyeY - 0.12));
    }
    head.Line(creases, 1, -1.1, 0.4);
  }
  head.Bump(sitter.At(0, 0.88), w * 0.22, h * 0.1, 2);
  for (const double side : {-1.0, 1.0}) head.Bump(sitter.At(side * 0.32, -0.55), w * 0.34, h * 0.2, 1);
  head.Bump(sitter.At(0, sitter.plan.mouthY - 0.15, 0.12), w * 0.05, h * 0.06, -0.5);  // under the nose
}

void TintFlesh(Relief& head, Sitter& sitter) {
  const bool human = sitter.spec.kind == Kind::Human;
  const QColor blood =
      human ? Mix(sitter.skin, QColor(196, 62, 48), 0.55) : Mix(sitter.skin, sitter.hair, 0.5);
  head.Pigment([&](QPainter& map) {
    for (const double side : {-1.0, 1.0}) {
      Spot(map, sitter.At(side * 0.58, 0.26), sitter.halfWidth * 0.42, blood, human ? 0.5 : 0.3);
      Spot(map, sitter.At(side * sitter.plan.eyeX, sitter.plan.eyeY + 0.03), sitter.halfWidth * 0.34,
           Mix(sitter.skin, human ? QColor(70, 24, 40) : QColor(Qt::black), 0.6), 0.4);
    }
    if (human) Spot(map, sitter.At(0, 0.28, 0.2), sitter.halfWidth * 0.24, blood, 0.5);
    if (!human) {  // darker to the crown, as hide is
      Spot(map, sitter.At(0.1, -1.1), sitter.halfLength * 0.9, Mix(sitter.hair, Qt::black, 0.35), 0.5);
    }
  });
}

void PaintEars(QPainter& painter, Sitter& sitter) {
  const BustSpec& spec = sitter.spec;
  const bool hidden = spec.hairStyle == Hair::Long || spec.hairStyle == Hair::Bob ||
                      spec.hairStyle == Hair::Wild || spec.gear == Gear::Helmet || spec.gear == Gear::Hood;
  if (spec.kind != Kind::Human || spec.growth == Growth::Ears || hidden) return;
  for (const double side : {-1.0, 1.0}) {
    if (side * spec.turn > 0.45) continue;  // behind the cheek
    const double inward = std::max(0.0, -side * spec.turn) * 0.08;
    QPainterPath ear;
    ear.addEllipse(sitter.Out(side * (1.05 - inward), 0.06), sitter.halfWidth * (0.14 + 0.2 * inward),
                   sitter.halfLength * 0.19);
    Relief relief(painter, ear, 4);
    relief.Bump(ear.boundingRect().center(), 1.5, 3, -1.8);
    relief.Pigment(
        [&](QPainter& map) { Spot(map, ear.boundingRect().center(), 6, QColor(180, 50, 40), 0.4); });
    relief.Cast(painter, 1.4, 0.4);
    relief.Paint(painter, sitter.Of(sitter.skin, Stuff::Skin));
  }
}

/// Hair by hair, away from the nose.
void PressFur(Relief& head, Sitter& sitter) {
  const QPointF from = sitter.At(0, 0.25, 0.2);
  QPainterPath hairs;
  for (int i = 0; i < 900; ++i) {
    const QPointF root = sitter.Out(sitter.chance.Between(-1.2, 1.2), sitter.chance.Between(-1, 1));
    const QPointF away = root - from;
    const double length = std::max(1.0, std::hypot(away.x(), away.y()));
    hairs.moveTo(root);
    hairs.lineTo(root + away / length * 2.6 + QPointF(sitter.chance.Between(-0.6, 0.6), 0.8));
  }
  head.Line(hairs, 0.5, 0.9, 0.2);
  head.Pigment([&](QPainter& map) {
    map.strokePath(hairs, QPen(Faint(Mix(sitter.skin, Qt::white, 0.35), 0.22), 0.4));
  });
}

void Texture(Relief& head, Sitter& sitter) {
  const auto seed = static_cast<std::uint64_t>(sitter.spec.number) + 500;
  switch (sitter.spec.kind) {
    case Kind::Stone:
      head.Roughen(seed, 5, 0.8);
      head.Roughen(seed + 1, 1, 0.25);
      break;
    case Kind::Leaf:
      head.Roughen(seed, 2.4, 0.2);
      break;
    case Kind::Furred:
      head.Roughen(seed, 2.2, 0.3);
      PressFur(head, sitter);
      break;
    case Kind::Reptile:
      head.Roughen(seed, 1.6, 0.35);
      break;
    case Kind::Human:
      head.Roughen(seed, 0.9, 0.11);
      break;
    default:
      head.Roughen(seed, 2.2, 0.12);
  }
}

}  // namespace

void PaintNeck(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.shape == Shape::Cone) return;
  const double half = sitter.halfWidth * sitter.frame.neck;
  const QPointF top = sitter.head + QPointF(sitter.spec.turn * 3, sitter.halfLength * 0.45);
  const double low = sitter.frame.top + 12;
  const double x = 56;
  QPainterPath neck(top - QPointF(half, 0));
  neck.lineTo(top + QPointF(half, 0));
  neck.cubicTo(QPointF(top.x() + half, low - 14), QPointF(x + half, low - 8), QPointF(x + half + 9, low));
  neck.lineTo(x - half - 9, low);
  neck.cubicTo(QPointF(x - half, low - 8), QPointF(top.x() - half, low - 14), top - QPointF(half, 0));
  const bool machine = sitter.spec.kind == Kind::Machine;
  Relief relief(painter, neck, half);
  if (machine) {
    for (double y = top.y(); y < low; y += 4) {
      QPainterPath ring(QPointF(0, y));
      ring.lineTo(kBustSide, y);
      relief.Line(ring, 1.4, -1.6, 0.4);
    }
  } else {
    QPainterPath cords(top + QPointF(-half * 0.75, 4));
    cords.lineTo(x - 3, low);
    cords.moveTo(top + QPointF(half * 0.75, 4));
    cords.lineTo(x + 3, low);
    relief.Line(cords, 2.4, 1.1, 1);
    Texture(relief, sitter);
  }
  const QColor colour = Mix(sitter.skin, Qt::black, machine ? 0.5 : 0.12);
  relief.Paint(painter, sitter.Of(colour, machine ? Stuff::Metal : Stuff::Skin));
  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
  Spot(painter, sitter.head + QPointF(5 + sitter.spec.turn * 4, sitter.halfLength * 1.02),
       sitter.halfWidth * 1.05, QColor(10, 4, 8), 0.75);  // the chin's shadow
  painter.restore();
}

void PaintHead(QPainter& painter, Sitter& sitter) {
  PaintEars(painter, sitter);
  QPainterPath outline = sitter.HeadPath();
  if (sitter.spec.kind == Kind::Furred) outline = Ragged(outline, sitter.chance, 2.6);
  Relief head(painter, outline, sitter.halfWidth * 0.62);
  PressPlanes(head, sitter);
  if (HasNose(sitter.spec)) {
    const Kind kind = sitter.spec.kind;
    const bool slits = kind == Kind::Reptile || kind == Kind::Aquatic || kind == Kind::Smooth;
    slits ? PressSlits(head, sitter) : PressNose(head, sitter);
  }
  Texture(head, sitter);
  TintFlesh(head, sitter);
  PressMouth(head, sitter);
  PressMarks(head, sitter);
  head.Cast(painter, 3, 0.5);
  const Kind kind = sitter.spec.kind;
  const bool hide =
      kind == Kind::Reptile || kind == Kind::Aquatic || kind == Kind::Insect || kind == Kind::Smooth;
  Surface surface = sitter.Of(sitter.skin, hide ? Stuff::Hide : Stuff::Skin);
  if (kind == Kind::Aquatic) surface.gloss = 0.42;
  if (kind == Kind::Stone || kind == Kind::Furred) surface.gloss = 0.04;
  head.Paint(painter, surface);
}

}  // namespace kv::datafile
