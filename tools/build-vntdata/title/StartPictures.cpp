#include "title/StartPictures.h"

#include "brush/Brush.h"
#include "scenes/Sky.h"
#include "title/Title.h"

namespace kv::datafile {
namespace {

constexpr QPointF kTitleAt(20, 36);
constexpr QPointF kLineAt(20, 130);
constexpr QSizeF kLineSize(440, 12);

void PaintScene(QPainter& painter) {
  const QRectF scene(0, 0, 480, 320);
  painter.fillRect(scene, Downward(scene, kNight, {14, 28, 52}));
  Nebula(painter, {0, -60, 480, 260}, 4003, {0, 100, 190}, {120, 60, 90});
  Stars(painter, {0, 0, 480, 160}, 4001, 170);
  Spot(painter, {240, 150}, 210, kSlate.accent, 0.22);
  Horizon(painter, {240, 984}, 860, 4002);
}

void PaintLine(QPainter& painter, bool lit) {
  const double middle = kLineSize.height() / 2;
  QPainterPath line;
  line.moveTo(20, middle);
  line.lineTo(kLineSize.width() - 20, middle);
  const QPainterPath knot = Polygon({kLineSize.width() / 2, middle}, 4.5, 4);
  if (lit) {
    Glow(painter, line, kSlate.accent, 1, 4);
    painter.fillPath(knot, Mix(kAmber, Qt::white, 0.5));
  } else {
    painter.strokePath(line, QPen(kSlate.accentShade, 1));
    painter.fillPath(knot, Mix(kAmber, Qt::black, 0.5));
  }
}

}  // namespace

void PaintStartPicture(QPainter& painter, int number) {
  if (number == 400) return PaintScene(painter);
  const bool title = number < 403;
  const QPointF at = title ? kTitleAt : kLineAt;
  painter.translate(-at);
  PaintScene(painter);
  painter.translate(at);
  const bool lit = number % 2 == 0;
  title ? PaintTitle(painter, lit) : PaintLine(painter, lit);
}

}  // namespace kv::datafile
