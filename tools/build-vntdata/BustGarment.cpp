// Shoulders and what they wear.
#include "Bust.h"

namespace kv::datafile {
namespace {

/// Shoulders from neck to frame; `rise` lifts them, `broad` widens them.
QPainterPath Shoulders(const Sitter& sitter, double broad, double rise) {
  const double x = sitter.head.x() + 1;
  const double reach = 44 * broad;
  QPainterPath path(QPointF(x - reach - 8, 116));
  path.cubicTo(QPointF(x - reach - 4, 100 - rise), QPointF(x - reach + 8, 93 - rise), QPointF(x - 14, 86));
  path.quadTo(QPointF(x, 92), QPointF(x + 14, 86));
  path.cubicTo(QPointF(x + reach - 8, 93 - rise), QPointF(x + reach + 4, 100 - rise),
               QPointF(x + reach + 8, 116));
  path.closeSubpath();
  return path;
}

void Lapels(QPainter& painter, const Sitter& sitter, QColor colour, double spread) {
  const double x = sitter.head.x() + 1;
  for (const double side : {-1.0, 1.0}) {
    QPainterPath lapel(QPointF(x + side * 17, 80));
    lapel.lineTo(x + side * spread, 98);
    lapel.lineTo(x + side * 7, 116);
    lapel.lineTo(x, 116);
    lapel.lineTo(x, 101);
    lapel.closeSubpath();
    Model(painter, lapel, side < 0 ? colour : Mix(colour, Qt::black, 0.25));
  }
}

void HighCollar(QPainter& painter, const Sitter& sitter, QColor colour, double height) {
  const double x = sitter.head.x() + 1;
  for (const double side : {-1.0, 1.0}) {
    QPainterPath half(QPointF(x, 105));
    half.lineTo(x + side * 19, 92);
    half.lineTo(x + side * 21, 86 - height);
    half.quadTo(QPointF(x + side * 12, 92 - height * 0.3), QPointF(x, 97));
    half.closeSubpath();
    Model(painter, half, side < 0 ? Mix(colour, Qt::white, 0.1) : Mix(colour, Qt::black, 0.3));
  }
}

void Armour(QPainter& painter, const Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  const QColor metal = Mix(sitter.cloth, QColor(150, 156, 164), 0.4);
  for (const double side : {-1.0, 1.0}) {
    for (int i = 2; i >= 0; --i) {
      QPainterPath plate;
      plate.addEllipse(QPointF(x + side * (35 + i * 4), 103 + i * 7), 18, 11);
      Model(painter, plate, side < 0 ? metal : Mix(metal, Qt::black, 0.3));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(Mix(sitter.hair, Qt::white, 0.3));
    painter.drawEllipse(QPointF(x + side * 30, 99), 1.8, 1.8);
  }
  HighCollar(painter, sitter, metal, 4);
}

void Furs(QPainter& painter, Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  for (int i = 0; i < 90; ++i) {
    const double along = sitter.chance.Between(-1, 1);
    const QPointF root(x + along * 40, 86 + along * along * 14 + sitter.chance.Between(-3, 5));
    painter.setPen(
        QPen(Mix(sitter.hair, i % 3 == 0 ? Qt::white : Qt::black, sitter.chance.Between(0.05, 0.45)), 2,
             Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(root, root + QPointF(along * 7, sitter.chance.Between(4, 9)));
  }
}

void Cables(QPainter& painter, Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  for (int i = -3; i <= 3; ++i) {
    QPainterPath cable(QPointF(x + i * 4, 74));
    cable.cubicTo(QPointF(x + i * 5, 92), QPointF(x + i * 9, 90), QPointF(x + i * 12, 114));
    painter.strokePath(cable, QPen(QColor(14, 14, 16), 4));
    painter.strokePath(cable, QPen(i % 2 == 0 ? sitter.hair : Mix(sitter.cloth, Qt::white, 0.25), 2.4));
    painter.strokePath(cable.translated(-0.6, 0), QPen(Faint(Qt::white, 0.35), 0.6));
  }
}

void Scarf(QPainter& painter, const Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  const QColor colour = Mix(sitter.cloth, sitter.eye, 0.35);
  for (int i = 2; i >= 0; --i) {
    QPainterPath fold;
    fold.addEllipse(QPointF(x + i * 2 - 2, 84 + i * 5), 22 + i * 4, 7);
    Model(painter, fold, Mix(colour, Qt::black, i * 0.12));
  }
}

void Straps(QPainter& painter, const Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  for (const double side : {-1.0, 1.0}) {
    QPainterPath strap(QPointF(x + side * 24, 90));
    strap.lineTo(x + side * 32, 93);
    strap.lineTo(x + side * 6, 116);
    strap.lineTo(x - side * 4, 116);
    strap.closeSubpath();
    Model(painter, strap, Mix(sitter.hair, QColor(70, 44, 26), 0.6));
  }
  painter.setPen(QPen(QColor(210, 180, 110), 1.4));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(x - 22, 98, 7, 6));
}

void Uniform(QPainter& painter, const Sitter& sitter) {
  const double x = sitter.head.x() + 1;
  HighCollar(painter, sitter, Mix(sitter.cloth, Qt::black, 0.15), 3);
  painter.setPen(QPen(Mix(sitter.hair, QColor(230, 200, 120), 0.7), 1.4));
  painter.drawLine(QPointF(x, 102), QPointF(x, 114));
  for (int i = 0; i < 3; ++i) painter.fillPath(Polygon({x - 26 + i * 5.0, 103}, 2, 4), QColor(228, 196, 110));
  painter.drawLine(QPointF(x - 46, 101), QPointF(x - 34, 94));
}

}  // namespace

void PaintGarment(QPainter& painter, Sitter& sitter) {
  const BustSpec& spec = sitter.spec;
  const bool big = spec.kind == Kind::Stone || spec.garment == Garment::Armour;
  const QPainterPath body = Shoulders(sitter, big ? 1.12 : 0.86 + 0.16 * spec.jaw, big ? 5 : 0);
  painter.fillPath(body.translated(1, -1.5), Faint(Qt::black, 0.4));
  Model(painter, body, spec.garment == Garment::Straps ? Mix(sitter.skin, sitter.cloth, 0.4) : sitter.cloth,
        0.9);
  switch (spec.garment) {
    case Garment::Collar:
      HighCollar(painter, sitter, sitter.cloth, 7);
      break;
    case Garment::Robe:
      Lapels(painter, sitter, Mix(sitter.cloth, sitter.hair, 0.25), 22);
      break;
    case Garment::Armour:
      Armour(painter, sitter);
      break;
    case Garment::Jacket:
      Lapels(painter, sitter, Mix(sitter.cloth, Qt::black, 0.3), 27);
      break;
    case Garment::Scarf:
      Scarf(painter, sitter);
      break;
    case Garment::Fur:
      Furs(painter, sitter);
      break;
    case Garment::Cables:
      Cables(painter, sitter);
      break;
    case Garment::Gown:
      HighCollar(painter, sitter, Mix(sitter.cloth, sitter.eye, 0.25), 18);
      break;
    case Garment::Uniform:
      Uniform(painter, sitter);
      break;
    case Garment::Straps:
      Straps(painter, sitter);
      break;
  }
}

}  // namespace kv::datafile
