#include "StartPictures.h"

#include "Brush.h"
#include "Lettering.h"
#include "Sky.h"

namespace kv::datafile {
namespace {

constexpr QPointF kTitleAt(20, 36);
constexpr QSizeF kTitleSize(440, 90);
constexpr QPointF kLineAt(20, 130);
constexpr QSizeF kLineSize(440, 12);

void PaintScene(QPainter& painter) {
  const QRectF scene(0, 0, 480, 320);
  painter.fillRect(scene, Downward(scene, kNight, {16, 28, 48}));
  Stars(painter, QRectF(0, 0, 480, 320), 4001, 150);
  World(painter, {240, 560}, 340, {70, 110, 150}, {20, 34, 56}, 4002);
  Station(painter, {240, 210}, 54, kEmber);
}

void PaintTitle(QPainter& painter, bool lit) {
  for (const bool second : {false, true}) {
    const double height = second ? 32 : 26;
    QPainterPath path = LetteringPath(second ? QStringLiteral("VANTRI") : QStringLiteral("KELM"), height,
                                      second ? 0.55 : 0.9);
    const QPointF middle(kTitleSize.width() / 2, second ? 66 : 20);
    path.translate(middle - path.boundingRect().center());
    painter.strokePath(path.translated(1, 1.5),
                       QPen(Faint(Qt::black, 0.8), height / 5, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const QColor colour = second ? kSlate.accent : kAmber;
    if (lit) {
      Glow(painter, path, colour, height / 9, 9);
      painter.strokePath(
          path, QPen(Mix(colour, Qt::white, 0.55), height / 9, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    } else {
      painter.strokePath(
          path, QPen(Mix(colour, Qt::black, 0.45), height / 8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }
  }
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
