// The rooms behind the sitters: dim, soft and quiet.
#include "portraits/Bust.h"

namespace kv::datafile {
namespace {

void BarLights(QPainter& painter, Sitter& sitter) {
  const QRectF shelf(0, 30, kBustSide, 1.6);
  for (double y : {26.0, 52.0}) {
    painter.fillRect(shelf.translated(0, y - 30), Faint(Mix(sitter.back, Qt::white, 0.4), 0.28));
    painter.fillRect(QRectF(0, y + 1.6, kBustSide, 9), Faint(Qt::black, 0.2));
  }
  for (int i = 0; i < 13; ++i) {
    const double x = sitter.chance.Between(-4, 114);
    const double y = i % 2 == 0 ? 26 : 52;
    const double h = sitter.chance.Between(8, 17);
    const QColor glass = Mix(sitter.back, i % 3 == 0 ? QColor(255, 180, 90) : QColor(120, 220, 230), 0.5);
    QPainterPath bottle;
    bottle.addRoundedRect(QRectF(x, y - h, 5, h), 1.6, 1.6);
    bottle.addRect(QRectF(x + 1.7, y - h - 4, 1.6, 5));
    painter.fillPath(bottle, Faint(glass, 0.3));
    Spot(painter, {x + 2, y - h * 0.5}, 5, glass, 0.35);
  }
}

void StarWindow(QPainter& painter, Sitter& sitter) {
  QPainterPath glass;
  glass.addRoundedRect(QRectF(48, -14, 92, 78), 26, 26);
  painter.save();
  painter.setClipPath(glass);
  painter.fillPath(glass, Mix(sitter.back, QColor(4, 6, 16), 0.86));
  Spot(painter, {104, 62}, 46, Mix(sitter.back, Qt::white, 0.2), 0.55);
  for (int i = 0; i < 46; ++i) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(Qt::white, sitter.chance.Between(0.2, 0.95)));
    const double r = sitter.chance.Between(0.25, 0.75);
    painter.drawEllipse(QPointF(sitter.chance.Between(48, 112), sitter.chance.Between(0, 64)), r, r);
  }
  painter.restore();
  painter.strokePath(glass, QPen(Mix(sitter.back, Qt::black, 0.65), 6));
  painter.strokePath(glass.translated(0.5, 1.5), QPen(Faint(Mix(sitter.back, Qt::white, 0.5), 0.5), 1));
}

void NeonBars(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 3; ++i) {
    const double x = 12 + i * 34 + sitter.chance.Between(-5, 5);
    QPainterPath bar(QPointF(x, sitter.chance.Between(-8, 20)));
    bar.lineTo(x + sitter.chance.Between(-3, 3), sitter.chance.Between(56, 92));
    const QColor colour = Mix(sitter.back, i == 1 ? sitter.eye : sitter.hair, 0.35);
    for (int halo = 1; halo <= 14; ++halo)
      painter.strokePath(bar, QPen(Faint(colour, 0.028), halo * 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(bar, QPen(Faint(Mix(colour, Qt::white, 0.45), 0.7), 1.7, Qt::SolidLine, Qt::RoundCap));
  }
}

void Haze(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 9; ++i) {
    Spot(painter, {sitter.chance.Between(-10, 122), sitter.chance.Between(0, 100)},
         sitter.chance.Between(22, 46), Mix(sitter.back, i % 2 == 0 ? Qt::white : sitter.hair, 0.35), 0.13);
  }
  QPainterPath beam(QPointF(10, -10));
  beam.lineTo(34, -10);
  beam.lineTo(96, 120);
  beam.lineTo(24, 120);
  painter.fillPath(beam, Faint(Mix(sitter.back, Qt::white, 0.6), 0.07));
}

void FarLamps(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 17; ++i) {
    const QPointF at(sitter.chance.Between(0, 112), sitter.chance.Between(4, 74));
    const double r = sitter.chance.Between(2.5, 8);
    const QColor colour = Mix(sitter.back, i % 3 == 0 ? kAmber : Mix(sitter.back, Qt::white, 0.7), 0.65);
    painter.setPen(QPen(Faint(colour, 0.25), 0.6));
    painter.setBrush(Faint(colour, 0.15));
    painter.drawEllipse(at, r, r);
    Spot(painter, at, r * 2, colour, 0.13);
  }
}

void TableScreens(QPainter& painter, Sitter& sitter) {
  for (int i = 0; i < 4; ++i) {
    const QRectF screen(4.0 + i * 29, 10 + sitter.chance.Between(-5, 9), 21, 27);
    const QColor colour = Mix(sitter.back, i % 2 == 0 ? sitter.eye : QColor(110, 190, 230), 0.4);
    Spot(painter, screen.center(), 24, colour, 0.3);
    painter.fillPath(Cornered(screen, 2.5, true), Faint(colour, 0.26));
    painter.setPen(QPen(Faint(Mix(colour, Qt::white, 0.6), 0.32), 1.4));
    for (int line = 0; line < 4; ++line) {
      const double y = screen.top() + 5 + line * 5.5;
      painter.drawLine(QPointF(screen.left() + 3.5, y),
                       QPointF(screen.left() + sitter.chance.Between(8, 17), y));
    }
  }
}

}  // namespace

void PaintPlace(QPainter& painter, Sitter& sitter) {
  const QRectF square(0, 0, kBustSide, kBustSide);
  QLinearGradient wall(0, 0, kBustSide * 0.7, kBustSide);
  wall.setColorAt(0, Mix(sitter.back, Qt::black, 0.3));
  wall.setColorAt(1, Mix(sitter.back, QColor(8, 8, 14), 0.86));
  painter.fillRect(square, wall);
  switch (sitter.spec.place) {
    case Place::Bar:
      BarLights(painter, sitter);
      break;
    case Place::Window:
      StarWindow(painter, sitter);
      break;
    case Place::Neon:
      NeonBars(painter, sitter);
      break;
    case Place::Haze:
      Haze(painter, sitter);
      break;
    case Place::Lamps:
      FarLamps(painter, sitter);
      break;
    case Place::Screens:
      TableScreens(painter, sitter);
      break;
  }
  Spot(painter, sitter.head + QPointF(16, 4), 62, Mix(sitter.back, Qt::white, 0.25), 0.42);  // behind them
}

}  // namespace kv::datafile
