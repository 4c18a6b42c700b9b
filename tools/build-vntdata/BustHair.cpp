// Hair, and what of it lies behind the head.
#include <cmath>

#include "Bust.h"

namespace kv::datafile {
namespace {

/// Strands that follow a shape, light where the light falls.
void Strands(QPainter& painter, Sitter& sitter, const QPainterPath& shape, int count, double slant) {
  painter.save();
  painter.setClipPath(shape);
  const QRectF area = shape.boundingRect();
  for (int i = 0; i < count; ++i) {
    const double x = area.left() + sitter.chance.Unit() * area.width();
    const bool lit = x < area.center().x();
    QPainterPath strand(QPointF(x, area.top() + sitter.chance.Unit() * area.height() * 0.4));
    strand.quadTo(QPointF(x + (x - area.center().x()) * 0.3, area.center().y()),
                  QPointF(x + (x - area.center().x()) * 0.5 + slant, area.bottom()));
    painter.strokePath(strand, QPen(Faint(lit && i % 2 == 0 ? Qt::white : Qt::black, 0.16), 0.9));
  }
  painter.restore();
}

/// The hair over the skull down to a line on the forehead; `part` moves the parting.
QPainterPath Cap(const Sitter& sitter, double line, double volume, double part) {
  QPainterPath path(sitter.At(-1.04, 0.02));
  path.cubicTo(sitter.At(-1.14 - volume, -0.9 - volume), sitter.At(-0.55, -1.14 - volume),
               sitter.At(0, -1.14 - volume));
  path.cubicTo(sitter.At(0.6, -1.14 - volume), sitter.At(1.14 + volume, -0.9 - volume),
               sitter.At(1.04, 0.02));
  path.quadTo(sitter.At(0.92, -0.3), sitter.At(0.74, line + 0.1));
  path.quadTo(sitter.At(part, line - 0.16), sitter.At(-0.3, line + 0.04));
  path.quadTo(sitter.At(-0.74, line + 0.06), sitter.At(-0.86, -0.2));
  path.closeSubpath();
  return path;
}

void Curls(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 46; ++i) {
    const double angle = 3.3 + sitter.chance.Unit() * 2.85 - 0.2;
    const double reach = sitter.chance.Between(0.92, 1.28);
    const QPointF at = sitter.At(std::cos(angle) * reach, std::sin(angle) * reach - 0.02);
    QPainterPath curl;
    curl.addEllipse(at, sitter.chance.Between(3, 4.6), sitter.chance.Between(3, 4.6));
    Model(painter, curl, Mix(sitter.hair, Qt::black, sitter.chance.Between(0, 0.25)));
  }
}

void Mohawk(QPainter& painter, Sitter& sitter) {
  QPainterPath crest(sitter.At(-0.22, -0.72));
  crest.quadTo(sitter.At(-0.5, -1.55), sitter.At(-0.1, -1.62));
  crest.lineTo(sitter.At(0.02, -1.48));
  crest.lineTo(sitter.At(0.16, -1.6));
  crest.quadTo(sitter.At(0.4, -1.3), sitter.At(0.22, -0.72));
  crest.quadTo(sitter.At(0, -0.62), sitter.At(-0.22, -0.72));
  Model(painter, crest, sitter.hair);
  Strands(painter, sitter, crest, 30, 0);
}

void Braid(QPainter& painter, Sitter& sitter, double side) {
  for (int i = 0; i < 7; ++i) {
    QPainterPath knot;
    knot.addEllipse(sitter.At(side * (1.1 + 0.03 * i), 0.05 + i * 0.2), 4.4 - i * 0.25, 3.6);
    Model(painter, knot, sitter.hair);
  }
  painter.setPen(QPen(QColor(224, 186, 96), 2));
  painter.drawLine(sitter.At(side * 1.2, 1.36), sitter.At(side * 1.4, 1.36));
}

}  // namespace

void PaintBehindHair(QPainter& painter, Sitter& sitter) {
  const Hair style = sitter.spec.hairStyle;
  if (style == Hair::Long || style == Hair::Bob) {
    const double low = style == Hair::Long ? 1.75 : 0.78;
    QPainterPath fall(sitter.At(0, -1.18));
    fall.cubicTo(sitter.At(1.5, -1.1), sitter.At(1.2, 0.2), sitter.At(1.42, low));
    fall.lineTo(sitter.At(-1.4, low));
    fall.cubicTo(sitter.At(-1.2, 0.2), sitter.At(-1.5, -1.1), sitter.At(0, -1.18));
    Model(painter, fall, Mix(sitter.hair, Qt::black, 0.25));
    Strands(painter, sitter, fall, 60, 0);
  }
  if (style == Hair::Bun) {
    QPainterPath bun;
    bun.addEllipse(sitter.At(0.12, -1.22), sitter.halfWidth * 0.46, sitter.halfLength * 0.3);
    Model(painter, bun, sitter.hair);
    Strands(painter, sitter, bun, 14, 2);
  }
}

void PaintHair(QPainter& painter, Sitter& sitter) {
  QPainterPath cap;
  switch (sitter.spec.hairStyle) {
    case Hair::None:
      return;
    case Hair::Curly:
      return Curls(painter, sitter);
    case Hair::Mohawk:
      return Mohawk(painter, sitter);
    case Hair::Short:
      cap = Cap(sitter, -0.6, 0.06, 0.3);
      break;
    case Hair::Slick:
      cap = Cap(sitter, -0.72, 0.04, 0);
      break;
    case Hair::Receding:
      cap = Cap(sitter, -0.92, 0.02, 0.1);
      break;
    case Hair::Bob:
      cap = Cap(sitter, -0.42, 0.1, 0.2);
      break;
    default:
      cap = Cap(sitter, -0.6, 0.08, 0.1);
      break;
  }
  Model(painter, cap, sitter.hair);
  Strands(painter, sitter, cap, 36, 0);
  if (sitter.spec.hairStyle == Hair::Braids) {
    Braid(painter, sitter, -1);
    Braid(painter, sitter, 1);
  }
  if (sitter.spec.mark == Mark::Moustache) {
    QPainterPath moustache(sitter.At(-0.03, 0.4));
    moustache.cubicTo(sitter.At(-0.3, 0.4), sitter.At(-0.5, 0.5), sitter.At(-0.6, 0.66));
    moustache.cubicTo(sitter.At(-0.3, 0.6), sitter.At(-0.1, 0.56), sitter.At(-0.03, 0.52));
    moustache.cubicTo(sitter.At(0.1, 0.56), sitter.At(0.3, 0.6), sitter.At(0.54, 0.66));
    moustache.cubicTo(sitter.At(0.44, 0.5), sitter.At(0.24, 0.4), sitter.At(-0.03, 0.4));
    Model(painter, moustache, sitter.hair);
  }
}

}  // namespace kv::datafile
