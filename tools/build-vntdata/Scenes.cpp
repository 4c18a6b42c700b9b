// The screens between matches: the menu before a ringed world, the chart of the circuit, the relay room.
#include <cmath>

#include "Backgrounds.h"
#include "Brush.h"
#include "Sky.h"

namespace kv::datafile {
namespace {

/// The metal border that every one of these windows has.
void PaintBorder(QPainter& painter, QRectF screen, double thickness, const Style& style, std::uint64_t seed) {
  QPainterPath frame;
  frame.addRect(screen);
  const QRectF opening = screen.adjusted(thickness, thickness + 12, -thickness, -thickness);
  frame = frame.subtracted(Cornered(opening, 16, style.worn));
  QLinearGradient metal(screen.topLeft(), screen.bottomRight());
  metal.setColorAt(0, Mix(style.plate, style.edge, 0.15));
  metal.setColorAt(0.4, style.plateShade);
  metal.setColorAt(1, style.baseShade);
  painter.fillPath(frame, metal);
  painter.save();
  painter.setClipPath(frame);
  Grain(painter, screen, seed, 0.05, 40);
  painter.restore();
  painter.strokePath(Cornered(opening, 16, style.worn), QPen(style.edgeShade, 3));
  Glow(painter, Cornered(opening.adjusted(2, 2, -2, -2), 15, style.worn), style.accent, 0.7, 5);
}

void PaintGlass(QPainter& painter, QRectF area, const Style& style) {
  const QPainterPath path = Cornered(area, 10, style.worn);
  painter.fillPath(path, Faint(style.wellShade, 0.82));
  painter.strokePath(path, QPen(Faint(style.accent, 0.35), 1));
}

}  // namespace

void PaintMenu(QPainter& painter) {
  const QRectF screen(0, 0, 640, 480);
  painter.fillRect(screen, Downward(screen, {8, 12, 24}, {14, 22, 38}));
  Nebula(painter, screen, 1011, {0, 110, 190}, {150, 80, 60});
  Stars(painter, screen, 1012, 420);
  const QPointF world(470, 330);
  Ring(painter, world, 250, -16, {206, 160, 110}, false);
  World(painter, world, 170, {196, 122, 66}, {88, 46, 34}, 1013);
  Ring(painter, world, 250, -16, {226, 186, 140}, true);
  Station(painter, {210, 190}, 84, kSlate);
  PaintBorder(painter, screen, 14, kSlate, 1014);
}

void PaintCircuit(QPainter& painter) {
  const QRectF screen(0, 0, 800, 600);
  painter.fillRect(screen, Downward(screen, {7, 11, 20}, {10, 17, 28}));
  Nebula(painter, screen, 1021, {0, 90, 160}, {26, 120, 100});
  Stars(painter, screen, 1022, 500);
  const QPointF sun(400, 330);
  Spot(painter, sun, 120, kAmber, 0.45);
  Spot(painter, sun, 26, QColor(255, 240, 210), 1);
  Chance chance(1023);
  for (int i = 0; i < 6; ++i) {  // one orbit for each stop of the circuit
    const double rx = 90 + i * 52;
    const double ry = rx * 0.62;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(Faint(kSlate.accent, 0.28 - i * 0.025), 0.9, i % 2 == 0 ? Qt::SolidLine : Qt::DashLine));
    painter.drawEllipse(sun, rx, ry);
    const double angle = chance.Between(0, 6.28);
    const QPointF at = sun + QPointF(rx * std::cos(angle), ry * std::sin(angle));
    World(painter, at, chance.Between(7, 15), Mix(QColor(90, 150, 190), QColor(210, 130, 80), chance.Unit()),
          {30, 34, 48}, 1030 + static_cast<std::uint64_t>(i));
  }
  PaintBorder(painter, screen, 14, kSlate, 1024);
}

void PaintLobby(QPainter& painter) {
  const QRectF screen(0, 0, 640, 520);
  Board(painter, screen, kSlate, 1031);
  const QPointF dish(320, 150);
  for (int i = 1; i <= 14; ++i) {  // waves from the relay
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Faint(kSlate.accent, 0.24 - i * 0.015), 1));
    painter.drawEllipse(dish, i * 34.0, i * 26.0);
  }
  Spot(painter, dish, 180, kSlate.accent, 0.22);
  Station(painter, dish, 60, kSlate);
  PaintGlass(painter, {28, 250, 584, 240}, kSlate);
  PaintGlass(painter, {28, 50, 170, 180}, kSlate);
  PaintGlass(painter, {442, 50, 170, 180}, kSlate);
  PaintBorder(painter, screen, 12, kSlate, 1032);
}

}  // namespace kv::datafile
