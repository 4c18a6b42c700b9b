#include "portraits/Bust.h"

#include <algorithm>
#include <cmath>

#include "portraits/Circuit.h"

namespace kv::datafile {
namespace {

constexpr double kHalfWidth = 25.2;
constexpr double kHalfLength = 30.3;

Surface Plain(Stuff stuff) {
  switch (stuff) {
    case Stuff::Skin:
      return {.gloss = 0.15, .sharp = 12, .wrap = 0.3, .rim = 0.9};
    case Stuff::Hide:
      return {.gloss = 0.20, .sharp = 22, .wrap = 0.25, .rim = 0.85};
    case Stuff::Hair:
      return {.gloss = 0.16, .sharp = 20, .wrap = 0.3, .rim = 0.7};
    case Stuff::Metal:
      return {.gloss = 0.75, .sharp = 38, .wrap = 0.1, .metal = 0.62, .rim = 1};
    case Stuff::Bone:
      return {.gloss = 0.24, .sharp = 26, .wrap = 0.3, .rim = 0.8};
    case Stuff::Glass:
      return {.gloss = 1.1, .sharp = 60, .wrap = 0.1, .metal = 0.3, .rim = 1.2};
    default:
      return {.gloss = 0.05, .sharp = 8, .wrap = 0.2, .rim = 0.6};
  }
}

void PaintVignette(QPainter& painter) {
  QRadialGradient corner(QPointF(50, 48), 84);
  corner.setColorAt(0.6, Faint(Qt::black, 0));
  corner.setColorAt(1, Faint(Qt::black, 0.5));
  painter.fillRect(QRectF(0, 0, kBustSide, kBustSide), corner);
}

void PaintHeadLayers(QPainter& painter, Sitter& sitter) {
  if (sitter.spec.kind == Kind::Machine) {
    PaintMachineHead(painter, sitter);
  } else {
    PaintHead(painter, sitter);
    PaintEyes(painter, sitter);
    PaintMouth(painter, sitter);
    PaintBeard(painter, sitter);
  }
  PaintHair(painter, sitter);
  PaintGrowth(painter, sitter);
  PaintGear(painter, sitter);
  PaintHeadProps(painter, sitter);
}

/// Everything of the sitter on a layer of its own, so that its shadows fall on nothing but itself.
QImage PaintFigure(Sitter& sitter, double ratio) {
  const int side = static_cast<int>(std::lround(kBustSide * ratio));
  QImage layer(side, side, QImage::Format_ARGB32_Premultiplied);
  layer.fill(Qt::transparent);
  QPainter painter(&layer);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.scale(ratio, ratio);
  const QPointF hinge = sitter.head + QPointF(0, sitter.halfLength * 0.85);
  const auto tilted = [&](void (*paint)(QPainter&, Sitter&)) {
    painter.save();
    painter.translate(hinge);
    painter.rotate(sitter.spec.tilt);
    painter.translate(-hinge);
    paint(painter, sitter);
    painter.restore();
  };
  tilted(PaintBehind);
  PaintNeck(painter, sitter);
  PaintGarment(painter, sitter);
  PaintBodyProps(painter, sitter);
  tilted(PaintHeadLayers);
  return layer;
}

}  // namespace

Sitter::Sitter(const BustSpec& row)
    : spec(row),
      frame(FrameOf(row.build)),
      plan(FacePlanOf(row.shape)),
      mood(ExpressionOf(row.mood)),
      head(frame.head - QPointF(row.turn * 2.5, 0)),
      halfWidth(kHalfWidth * row.width),
      halfLength(kHalfLength * row.length),
      chance(static_cast<std::uint64_t>(row.number) * 7919),
      skin(QColor::fromRgb(row.skin)),
      cloth(QColor::fromRgb(row.cloth)),
      hair(QColor::fromRgb(row.hair)),
      back(QColor::fromRgb(row.back)),
      eye(QColor::fromRgb(row.eye)) {}

QPointF Sitter::At(double x, double y, double out) const {
  const double bend = std::max(0.0, 1 - x * x);
  const double fall = std::max(0.0, 1 - y * y);
  return head + QPointF((x + spec.turn * (0.44 * bend + 0.9 * out)) * halfWidth,
                        (y + spec.nod * (0.26 * fall + 0.6 * out)) * halfLength);
}

QPointF Sitter::Out(double x, double y) const {
  const double forward = y > 0 ? 0.22 * std::min(y, 1.0) : 0.1 * std::max(y, -1.0);
  const double broad = y > 0.2 && y < 1.2 ? 1 + (spec.jaw - 0.5) * 0.42 * (y - 0.2) : 1;
  return head + QPointF((x * broad + spec.turn * forward) * halfWidth, y * halfLength);
}

Surface Sitter::Of(QColor colour, Stuff stuff) const {
  Surface surface = Plain(stuff);
  surface.colour = colour;
  surface.room = back;
  return surface;
}

void Model(QPainter& painter, const Sitter& sitter, const QPainterPath& path, QColor colour, Stuff stuff,
           double round) {
  const QRectF area = path.boundingRect();
  Relief relief(painter, path, round > 0 ? round : std::min(area.width(), area.height()) * 0.5);
  relief.Cast(painter, std::min(3.0, 1 + std::min(area.width(), area.height()) * 0.06), 0.5);
  relief.Paint(painter, sitter.Of(colour, stuff));
}

void PaintPortrait(QPainter& painter, const BustSpec& spec) {
  Sitter sitter(spec);
  PaintPlace(painter, sitter);
  const double ratio = std::sqrt(std::abs(painter.deviceTransform().determinant()));
  painter.drawImage(QRectF(0, 0, kBustSide, kBustSide), PaintFigure(sitter, ratio));
  PaintVignette(painter);
}

}  // namespace kv::datafile
