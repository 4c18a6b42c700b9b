// What life or nature left on a head: scars, paint, scales, wrinkles, spots.
#include <cmath>

#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

void PressScales(Relief& head, Sitter& sitter) {
  QPainterPath edges;
  for (int row = 0; row < 17; ++row) {
    for (int column = -9; column <= 9; ++column) {
      const double x = (column + (row % 2) * 0.5) * 0.16;
      const bool face = std::abs(x) < 0.5 && row > 4 && row < 13;
      if (face) continue;  // the face stays smooth
      const QPointF at = sitter.At(x, -1.1 + row * 0.13);
      edges.arcMoveTo(QRectF(at.x() - 2.1, at.y() - 2.1, 4.2, 4.2), 180);
      edges.arcTo(QRectF(at.x() - 2.1, at.y() - 2.1, 4.2, 4.2), 180, 180);
    }
  }
  head.Line(edges, 0.8, -1.3, 0.3);
}

void PressStripes(Relief& head, Sitter& sitter) {
  QPainterPath stripes;
  for (const double side : {-1.0, 1.0}) {
    for (int i = 0; i < 3; ++i) {
      stripes.moveTo(sitter.Out(side * 1.15, -0.12 + i * 0.28));
      stripes.quadTo(sitter.At(side * 0.86, 0.02 + i * 0.22), sitter.At(side * 0.62, -0.02 + i * 0.24));
    }
    stripes.moveTo(sitter.Out(side * 0.3, -1.1));
    stripes.quadTo(sitter.At(side * 0.2, -0.8), sitter.At(side * 0.14, -0.46));
  }
  stripes.moveTo(sitter.Out(0, -1.2));
  stripes.lineTo(sitter.At(0, -0.5));
  head.Pigment([&](QPainter& map) {
    map.strokePath(stripes,
                   QPen(Faint(Mix(sitter.hair, Qt::black, 0.5), 0.8), 3, Qt::SolidLine, Qt::RoundCap));
  });
}

void PressScar(Relief& head, Sitter& sitter) {
  QPainterPath scar(sitter.At(0.22, -0.68));
  scar.quadTo(sitter.At(0.5, -0.2), sitter.At(0.44, 0.5));
  QPainterPath stitches;
  for (const double y : {-0.5, -0.34, 0.16, 0.3}) {
    stitches.moveTo(sitter.At(0.34, y));
    stitches.lineTo(sitter.At(0.56, y + 0.05));
  }
  head.Pigment([&](QPainter& map) {
    map.strokePath(scar, QPen(Faint(Mix(sitter.skin, QColor(150, 30, 34), 0.6), 0.9), 2.4));
    map.strokePath(stitches, QPen(Faint(QColor(120, 30, 34), 0.55), 0.9));
  });
  head.Line(scar, 1.4, -1.4, 0.3);
}

void PressPaint(Relief& head, Sitter& sitter) {
  const QColor colour = Mix(sitter.cloth, Qt::white, 0.35);
  head.Pigment([&](QPainter& map) {
    map.setPen(QPen(Faint(colour, 0.9), 2.3, Qt::SolidLine, Qt::RoundCap));
    for (const double side : {-1.0, 1.0}) {
      map.drawLine(sitter.At(side * 0.76, 0.16), sitter.At(side * 0.36, 0.26));
      map.drawLine(sitter.At(side * 0.72, 0.34), sitter.At(side * 0.44, 0.4));
      map.drawLine(sitter.At(side * sitter.plan.eyeX, -0.34), sitter.At(side * sitter.plan.eyeX, -0.6));
    }
    map.fillPath(Polygon(sitter.At(0, -0.52), 3.4, 4), Faint(colour, 0.95));
  });
}

void PressWrinkles(Relief& head, Sitter& sitter) {
  QPainterPath lines;
  for (int i = 0; i < 3; ++i) {
    lines.moveTo(sitter.At(-0.5, -0.46 - i * 0.12));
    lines.quadTo(sitter.At(0, -0.53 - i * 0.12), sitter.At(0.5, -0.45 - i * 0.12));
  }
  for (const double side : {-1.0, 1.0}) {
    const double eye = sitter.plan.eyeX;
    for (int i = 0; i < 3; ++i) {  // crow's feet
      lines.moveTo(sitter.At(side * (eye + 0.25), sitter.plan.eyeY + (i - 1) * 0.04));
      lines.lineTo(sitter.At(side * (eye + 0.4), sitter.plan.eyeY + (i - 1) * 0.1));
    }
    lines.moveTo(sitter.At(side * (eye - 0.2), sitter.plan.eyeY + 0.17));
    lines.quadTo(sitter.At(side * eye, sitter.plan.eyeY + 0.23),
                 sitter.At(side * (eye + 0.2), sitter.plan.eyeY + 0.14));
    lines.moveTo(sitter.At(side * 0.24, 0.36, 0.08));
    lines.quadTo(sitter.At(side * 0.46, 0.5), sitter.At(side * 0.46, 0.76));
  }
  head.Line(lines, 0.9, -1.1, 0.4);
}

void PressPlates(Relief& head, Sitter& sitter) {
  QPainterPath cracks;
  cracks.addPolygon(QPolygonF({sitter.At(-1, -0.35), sitter.At(-0.55, -0.42), sitter.At(-0.1, -0.3),
                               sitter.At(0.4, -0.44), sitter.At(1, -0.3)}));
  cracks.addPolygon(QPolygonF({sitter.At(-0.25, -1), sitter.At(-0.14, -0.62), sitter.At(-0.1, -0.3)}));
  cracks.addPolygon(QPolygonF({sitter.At(0.5, -1), sitter.At(0.44, -0.7), sitter.At(0.4, -0.44)}));
  cracks.addPolygon(QPolygonF({sitter.At(-0.95, 0.3), sitter.At(-0.55, 0.42), sitter.At(-0.5, 1)}));
  cracks.addPolygon(QPolygonF({sitter.At(0.95, 0.25), sitter.At(0.58, 0.44), sitter.At(0.6, 1)}));
  head.Line(cracks, 1.5, -2.2, 0.4);
}

/// Small round marks: freckles over the nose, or spots over the crown and cheeks.
void PressDots(Relief& head, Sitter& sitter, bool freckles) {
  head.Pigment([&](QPainter& map) {
    map.setPen(Qt::NoPen);
    for (int i = 0; i < (freckles ? 34 : 26); ++i) {
      const double x = sitter.chance.Between(-0.95, 0.95);
      const double y = freckles ? sitter.chance.Between(0.06, 0.4) : sitter.chance.Between(-1.05, 0.9);
      if (!freckles && std::abs(x) < 0.5 && y > -0.4) continue;
      const double r = freckles ? sitter.chance.Between(0.35, 0.7) : sitter.chance.Between(1, 2.6);
      map.setBrush(Faint(
          freckles ? Mix(sitter.skin, QColor(120, 50, 20), 0.75) : Mix(sitter.hair, Qt::black, 0.3), 0.75));
      map.drawEllipse(sitter.At(freckles ? x * 0.8 : x, y, 0.03), r, r);
    }
  });
}

void PressStubble(Relief& head, Sitter& sitter) {
  head.Pigment([&](QPainter& map) {
    for (int i = 0; i < 520; ++i) {
      const double x = sitter.chance.Between(-0.92, 0.92);
      const double y = sitter.chance.Between(0.3, 1);
      if (y < 0.24 + 0.3 * std::abs(0.8 - std::abs(x))) continue;
      map.setPen(QPen(Faint(Mix(sitter.hair, Qt::black, 0.4), 0.42), 0.5));
      const QPointF at = sitter.At(x, y);
      map.drawLine(at, at + QPointF(0.2, 0.8));
    }
  });
}

}  // namespace

void PressMarks(Relief& head, Sitter& sitter) {
  switch (sitter.spec.mark) {
    case Mark::Scar:
      return PressScar(head, sitter);
    case Mark::Stripes:
      return PressStripes(head, sitter);
    case Mark::Scales:
      return PressScales(head, sitter);
    case Mark::Paint:
      return PressPaint(head, sitter);
    case Mark::Freckles:
    case Mark::Spots:
      return PressDots(head, sitter, sitter.spec.mark == Mark::Freckles);
    case Mark::Wrinkles:
      return PressWrinkles(head, sitter);
    case Mark::Plates:
      return PressPlates(head, sitter);
    case Mark::Stubble:
    case Mark::Moustache:
      return PressStubble(head, sitter);
    default:
      return;
  }
}

}  // namespace kv::datafile
