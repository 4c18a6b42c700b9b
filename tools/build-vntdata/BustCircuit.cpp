#include "BustCircuit.h"

#include "Lettering.h"

namespace kv::datafile {
namespace {

const QColor kGold(222, 174, 80);

/// The number on the brow, and an aerial that somebody bent long ago.
void PaintNumberPlate(QPainter& painter, Sitter& sitter) {
  QPainterPath aerial(sitter.Out(0.5, -1.0));
  aerial.lineTo(sitter.Out(0.58, -1.36));
  aerial.lineTo(sitter.Out(1.0, -1.5));
  Model(painter, sitter, Tapered(aerial, 1.5, 0.8), sitter.hair, Stuff::Metal, 1.5);
  Spot(painter, sitter.Out(1.0, -1.5), 6, sitter.eye, 0.9);
  const QPointF middle = sitter.At(0, -0.7, 0.0);
  const QRectF plate(middle.x() - 19, middle.y() - 6, 38, 12.5);
  Relief metal(painter, Cornered(plate, 2, true), 1.6);
  metal.Roughen(45, 2, 0.1);
  metal.Pigment([&](QPainter& map) {
    Spot(map, plate.bottomRight(), 12, QColor(140, 70, 26), 0.6);
    Spot(map, plate.topLeft(), 8, QColor(120, 60, 30), 0.5);
    DrawLettering(map, QStringLiteral("H6-J8"), plate, 7.6, QColor(36, 18, 10));
  });
  metal.Cast(painter, 1.6, 0.6);
  metal.Paint(painter, sitter.Of(QColor(216, 202, 168), Stuff::Bone));
}

}  // namespace

void PressWear(Relief& shell, Sitter& sitter) {
  for (const QPointF& dent : {QPointF(0.62, -0.3), QPointF(-0.7, 0.5), QPointF(0.2, 0.34)})
    shell.Bump(sitter.At(dent.x(), dent.y()), 5, 4, -3.2);
  QPainterPath scratches;
  for (int i = 0; i < 22; ++i) {
    const QPointF from = sitter.At(sitter.chance.Between(-0.95, 0.9), sitter.chance.Between(-0.95, 0.95));
    scratches.moveTo(from);
    scratches.lineTo(from + QPointF(sitter.chance.Between(-9, 9), sitter.chance.Between(-4, 4)));
  }
  shell.Line(scratches, 0.5, -0.9, 0.25);
  const QRectF patch(sitter.At(0.42, 0.34), sitter.At(0.96, 0.72));
  shell.Area(Cornered(patch, 1.5, true), 1.4, 0.3);
  shell.Pigment([&](QPainter& map) {
    for (int i = 0; i < 20; ++i) {
      Spot(map, sitter.At(sitter.chance.Between(-1, 1), sitter.chance.Between(-1, 1)),
           sitter.chance.Between(3, 9), QColor(138, 62, 20), 0.5);
    }
    map.strokePath(scratches, QPen(Faint(QColor(230, 214, 190), 0.6), 0.5));
    map.fillPath(Cornered(patch, 1.5, true), QColor(84, 116, 128));
    map.setPen(QPen(QColor(214, 170, 60), 3));
    map.drawLine(sitter.At(-0.98, 0.3), sitter.At(-0.6, 0.24));
  });
}

void PaintHeadProps(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.number == kBatteredMachine) PaintNumberPlate(painter, sitter);
}

void PaintBodyProps(QPainter& painter, Sitter& sitter) {
  (void)painter;
  (void)sitter;
}

}  // namespace kv::datafile
