#include "portraits/Props.h"

namespace kv::datafile {
namespace {

constexpr QColor kPaper(236, 228, 206);

/// What stands on a small card: a bar, a cross, a split lozenge or a star.
void PaintSign(QPainter& map, QPointF at, CardSign sign, QColor colour) {
  const QPen pen(colour, 1.5, Qt::SolidLine, Qt::FlatCap);
  map.setPen(pen);
  if (sign == CardSign::Plus || sign == CardSign::Minus)
    map.drawLine(at - QPointF(2.6, 0), at + QPointF(2.6, 0));
  if (sign == CardSign::Plus) map.drawLine(at - QPointF(0, 2.6), at + QPointF(0, 2.6));
  if (sign == CardSign::Flip) {
    map.strokePath(Polygon(at, 3, 4), QPen(colour, 0.8));
    QPainterPath half(at + QPointF(-3, 0));
    half.lineTo(at + QPointF(0, -3));
    half.lineTo(at + QPointF(3, 0));
    map.fillPath(half, colour);
  }
  if (sign == CardSign::Special) map.fillPath(Emblem(at, 3), colour);
}

}  // namespace

void PaintCard(QPainter& painter, Sitter& sitter, QPointF at, double angle, CardSign sign) {
  constexpr QColor kSigns[] = {{40, 96, 190}, {184, 44, 40}, {46, 128, 66}, {170, 120, 20}};
  const QColor colour = kSigns[static_cast<int>(sign)];
  painter.save();
  painter.translate(at);
  painter.rotate(angle);
  Relief card(painter, Cornered(QRectF(-6, -8.5, 12, 17), 1.6, true), 0.8);
  card.Pigment([&](QPainter& map) {
    map.fillRect(QRectF(-4.8, -7.3, 9.6, 9.6), Faint(colour, 0.16));
    PaintSign(map, {0, -2.6}, sign, colour);
  });
  card.Cast(painter, 2, 0.5);
  card.Paint(painter, sitter.Of(kPaper, Stuff::Bone));
  painter.restore();
}

void PaintGem(QPainter& painter, Sitter& sitter, QPointF at, double radius, QColor colour) {
  Model(painter, sitter, Polygon(at, radius * 1.5, 4), kGold, Stuff::Metal, 1.2);
  Model(painter, sitter, Polygon(at, radius, 4), colour, Stuff::Glass, radius);
  Spot(painter, at - QPointF(radius, radius) * 0.3, radius * 0.6, Qt::white, 0.9);
}

void PaintRing(QPainter& painter, Sitter& sitter, QPointF at, double across, double down, double thick) {
  QPainterPath ring;
  ring.addEllipse(at, across, down);
  ring.addEllipse(at, across - thick, down - thick);
  Model(painter, sitter, ring, kGold, Stuff::Metal, 1.2);
}

void PaintChain(QPainter& painter, Sitter& sitter, const QPainterPath& line, double link) {
  const int links = static_cast<int>(line.length() / (link * 1.5));
  for (int i = 0; i <= links; ++i) {
    const double share = static_cast<double>(i) / links;
    PaintRing(painter, sitter, line.pointAtPercent(share), link, link * (i % 2 == 0 ? 0.8 : 0.5),
              link * 0.36);
  }
}

}  // namespace kv::datafile
