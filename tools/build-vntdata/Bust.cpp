#include "Bust.h"

#include <algorithm>

namespace kv::datafile {
namespace {

constexpr double kSide = 112;
constexpr double kHalfWidth = 21;
constexpr double kHalfLength = 27;

void PaintBackdrop(QPainter& painter, Sitter& sitter) {
  const QRectF square(0, 0, kSide, kSide);
  QLinearGradient wall(0, 0, kSide, kSide);
  wall.setColorAt(0, Mix(sitter.back, Qt::black, 0.25));
  wall.setColorAt(1, Mix(sitter.back, Qt::black, 0.85));
  painter.fillRect(square, wall);
  const int pattern = sitter.spec.number % 4;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Faint(Mix(sitter.back, Qt::white, 0.4), 0.14), 1.2));
  for (int i = 0; i < 7; ++i) {  // the room behind, hardly seen
    if (pattern == 0) painter.drawEllipse(QPointF(84, 26), 12.0 + i * 11, 12.0 + i * 11);
    if (pattern == 1) painter.drawLine(QPointF(i * 26.0 - 30, 0), QPointF(i * 26.0 - 74, kSide));
    if (pattern == 2) painter.drawRect(QRectF(6 + i * 16, -4, 8, 70 - (i * 37) % 40));
    if (pattern == 3) painter.drawPath(Polygon({20.0 + (i % 3) * 36, 16.0 + (i / 3) * 32}, 19, 6));
  }
  Spot(painter, {36, 40}, 62, Mix(sitter.back, Qt::white, 0.45), 0.5);
  Grain(painter, square, static_cast<std::uint64_t>(sitter.spec.number) + 900, 0.035, 3);
}

void PaintLightAndShade(QPainter& painter) {
  QRadialGradient corner(QPointF(46, 44), 82);
  corner.setColorAt(0.55, Faint(Qt::black, 0));
  corner.setColorAt(1, Faint(Qt::black, 0.55));
  painter.fillRect(QRectF(0, 0, kSide, kSide), corner);
}

}  // namespace

Sitter::Sitter(const BustSpec& row)
    : spec(row),
      halfWidth(kHalfWidth * row.width),
      halfLength(kHalfLength * row.length),
      chance(static_cast<std::uint64_t>(row.number) * 7919),
      skin(QColor::fromRgb(row.skin)),
      cloth(QColor::fromRgb(row.cloth)),
      hair(QColor::fromRgb(row.hair)),
      back(QColor::fromRgb(row.back)),
      eye(QColor::fromRgb(row.eye)) {}

/// The outline of the head: cheeks at the widest, then the jaw; some kinds have more skull or a hard outline.
QPainterPath Sitter::HeadPath() const {
  const double jaw = spec.jaw;
  const bool skull = spec.kind == Kind::Smooth || spec.kind == Kind::Insect;
  const double top = skull ? 1.12 : 1;
  const double temple = skull ? 1.22 : 1;
  if (spec.kind == Kind::Stone) {
    QPainterPath path;
    path.addPolygon(QPolygonF({At(-0.5, -1), At(0.42, -1.02), At(0.9, -0.68), At(1, 0.05), At(0.86, 0.55),
                               At(0.3 + 0.4 * jaw, 1), At(-0.3 - 0.35 * jaw, 0.98), At(-0.9, 0.5),
                               At(-1, -0.1), At(-0.92, -0.6)}));
    path.closeSubpath();
    return path;
  }
  QPainterPath path(At(0, -top));
  path.cubicTo(At(0.7 * temple, -top), At(temple, -0.62), At(1, -0.06));
  path.cubicTo(At(0.98, 0.4), At(0.5 + 0.4 * jaw, 0.74 + 0.1 * jaw), At(0.2 + 0.36 * jaw, 0.97));
  path.quadTo(At(0, 1.05), At(-0.2 - 0.36 * jaw, 0.97));
  path.cubicTo(At(-0.5 - 0.4 * jaw, 0.74 + 0.1 * jaw), At(-0.98, 0.4), At(-1, -0.06));
  path.cubicTo(At(-temple, -0.62), At(-0.7 * temple, -top), At(0, -top));
  path.closeSubpath();
  return path;
}

void Model(QPainter& painter, const QPainterPath& path, QColor colour, double contrast) {
  const QRectF area = path.boundingRect();
  QLinearGradient body(area.topLeft(), area.bottomRight());
  body.setColorAt(0, Mix(colour, Qt::white, 0.3 * contrast));
  body.setColorAt(0.38, colour);
  body.setColorAt(1, Mix(colour, Qt::black, 0.68 * contrast));
  painter.fillPath(path, body);
  painter.strokePath(path, QPen(Faint(Mix(colour, Qt::black, 0.8), 0.55), 0.7));
}

void PaintPortrait(QPainter& painter, int number) {
  const auto rows = AllBusts();
  const auto row = std::ranges::find(rows, number, &BustSpec::number);
  if (row == rows.end()) return;
  Sitter sitter(*row);
  PaintBackdrop(painter, sitter);
  PaintBehind(painter, sitter);
  const bool machine = row->kind == Kind::Machine;
  machine ? PaintMachineNeck(painter, sitter) : PaintNeck(painter, sitter);
  PaintGarment(painter, sitter);
  if (machine) {
    PaintMachineHead(painter, sitter);
  } else {
    PaintHead(painter, sitter);
    PaintMarks(painter, sitter);
    PaintEyes(painter, sitter);
    PaintMouth(painter, sitter);
  }
  PaintHair(painter, sitter);
  PaintGear(painter, sitter);
  PaintLightAndShade(painter);
}

}  // namespace kv::datafile
