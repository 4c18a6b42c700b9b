// The screens between matches: the menu before a ringed world, the chart of the circuit, the relay's hangar.
// They are painted cold; the warm style folds their colours over when it shows them.
#include "scenes/Scenes.h"

#include <cmath>

#include "brush/Brush.h"
#include "scenes/Sky.h"

namespace kv::datafile {
namespace {

constexpr QColor kCopper{206, 160, 110};

void Seams(QPainter& painter, QRectF screen, double thickness, const Style& style) {
  QPainterPath seams;
  for (const double x : {0.2, 0.5, 0.8}) {
    const double at = screen.width() * x;
    seams.moveTo(at, screen.bottom() - thickness);
    seams.lineTo(at, screen.bottom());
  }
  for (const double y : {0.34, 0.66}) {
    const double at = screen.height() * y;
    for (const double x : {screen.left(), screen.right() - thickness}) {
      seams.moveTo(x, at);
      seams.lineTo(x + thickness, at);
    }
  }
  Engrave(painter, seams, style, 1.4);
  for (int i = 1; i < 12; ++i) {
    Rivet(painter, {screen.width() * i / 12, screen.bottom() - thickness / 2 + 1}, 1.6, style);
  }
  for (int i = 1; i < 9; ++i) {
    const double y = screen.height() * i / 9 + 8;
    Rivet(painter, {thickness / 2, y}, 1.6, style);
    Rivet(painter, {screen.right() - thickness / 2, y}, 1.6, style);
  }
}

/// The metal border that every one of these windows has, with the house's sign on its lower edge.
void PaintBorder(QPainter& painter, QRectF screen, double thickness, const Style& style, std::uint64_t seed) {
  QPainterPath frame;
  frame.addRect(screen);
  const QRectF opening = screen.adjusted(thickness, thickness + 12, -thickness, -thickness);
  const QPainterPath edge = Cornered(opening, 16, style.worn);
  frame = frame.subtracted(edge);
  painter.save();
  painter.setClipPath(edge);
  DropShadow(painter, edge, 9, 0.9);
  painter.restore();
  QLinearGradient metal(screen.topLeft(), screen.bottomRight());
  metal.setColorAt(0, Mix(style.plate, style.edge, 0.25));
  metal.setColorAt(0.4, style.plate);
  metal.setColorAt(1, style.baseShade);
  painter.fillPath(frame, metal);
  painter.save();
  painter.setClipPath(frame);
  Grain(painter, screen, seed, 0.06, 40);
  painter.restore();
  Seams(painter, screen, thickness, style);
  painter.strokePath(edge, QPen(style.edgeShade, 3));
  painter.strokePath(Cornered(opening.adjusted(-2, -2, 2, 2), 17, style.worn),
                     QPen(Faint(style.edge, 0.6), 0.8));
  Glow(painter, Cornered(opening.adjusted(2, 2, -2, -2), 15, style.worn), style.accent, 0.8, 7);
}

/// Ships under way: short lights with a trail.
void Traffic(QPainter& painter, QRectF area, double slope, std::uint64_t seed, int count) {
  Chance chance(seed);
  for (int i = 0; i < count; ++i) {
    const QPointF at(area.left() + chance.Unit() * area.width(), area.top() + chance.Unit() * area.height());
    const double length = chance.Between(14, 46);
    const QPointF tail = at - QPointF(length, length * slope);
    QLinearGradient trail(at, tail);
    trail.setColorAt(0, Faint(QColor(190, 226, 255), 0.75));
    trail.setColorAt(1, Faint(kSlate.accent, 0));
    painter.setPen(QPen(QBrush(trail), 1.1, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(at, tail);
    Spot(painter, at, 4, QColor(220, 240, 255), 0.8);
  }
}

void PaintOrbits(QPainter& painter, QPointF sun) {
  Chance chance(1023);
  for (int i = 0; i < 6; ++i) {  // one for each stop of the circuit
    const double rx = 96 + i * 54;
    const double ry = rx * 0.6;
    QPainterPath orbit;
    orbit.addEllipse(sun, rx, ry);
    QPen pen(Faint(kSlate.accent, 0.5 - i * 0.04), 0.9);
    if (i % 2 == 1) pen.setDashPattern({6, 5});
    painter.strokePath(orbit, pen);
    const double angle = 0.7 + i * 1.32;
    const QPointF at = sun + QPointF(rx * std::cos(angle), ry * std::sin(angle));
    World(painter, at, 9 + i * 1.7, Mix(QColor(90, 150, 190), QColor(210, 130, 80), chance.Unit()),
          {30, 34, 48}, 1030 + static_cast<std::uint64_t>(i));
    painter.strokePath(Polygon(at, 21 + i * 1.7, 4), QPen(Faint(kSlate.accent, 0.55), 0.9));
  }
}

/// The hangar's floor in perspective, with landing lights along its lanes.
void PaintFloor(QPainter& painter, QRectF floor, QPointF vanishing) {
  painter.fillRect(floor, Downward(floor, {10, 18, 30}, {30, 44, 62}));
  for (int i = -9; i <= 9; ++i) {
    const QPointF foot(vanishing.x() + i * 86.0, floor.bottom());
    const QPointF head(vanishing.x() + i * 26.0, floor.top());
    painter.setPen(QPen(Faint(i % 3 == 0 ? kSlate.accent : kSlate.edge, i % 3 == 0 ? 0.55 : 0.16), 1));
    painter.drawLine(head, foot);
    if (i % 3 != 0) continue;
    for (int k = 1; k < 8; ++k) {
      const double share = std::pow(k / 8.0, 1.7);
      Spot(painter, head + (foot - head) * share, 3 + 6 * share, kSlate.accent, 0.8);
    }
  }
  for (int k = 0; k < 9; ++k) {
    const double y = floor.top() + floor.height() * std::pow(k / 9.0, 1.8);
    painter.fillRect(QRectF(floor.left(), y, floor.width(), 0.8), Faint(kSlate.edge, 0.14));
  }
}

/// The hangar's ribs, left and right of its mouth.
void PaintRibs(QPainter& painter, QRectF mouth) {
  for (int i = 5; i >= 0; --i) {
    const double out = i * 26.0;
    const QPainterPath rib =
        Cornered(mouth.adjusted(-out, -out * 0.5, out, out * 0.7), 30 + out * 0.4, false);
    painter.strokePath(rib, QPen(Mix(kSlate.plate, Qt::black, 0.55 - i * 0.06), 16));
    painter.strokePath(rib, QPen(Faint(kSlate.edge, 0.3), 1));
    Glow(painter,
         Cornered(mouth.adjusted(-out - 7, -out * 0.5 - 7, out + 7, out * 0.7 + 7), 34 + out * 0.4, false),
         kSlate.accent, i % 2 == 0 ? 0.9 : 0.4, 5);
  }
}

}  // namespace

void PaintMenu(QPainter& painter) {
  const QRectF screen(0, 0, 640, 480);
  painter.fillRect(screen, Downward(screen, {7, 11, 24}, {14, 24, 44}));
  Nebula(painter, screen, 1011, {0, 120, 210}, {190, 90, 60});
  Stars(painter, screen, 1012, 520);
  const QPointF world(452, 300);
  Ring(painter, world, 250, -16, kCopper, false);
  World(painter, world, 172, {206, 128, 68}, {88, 46, 34}, 1013);
  Ring(painter, world, 250, -16, {226, 186, 140}, true);
  Spot(painter, {130, 170}, 170, kSlate.accent, 0.16);
  Station(painter, {150, 210}, 140, kSlate);
  Station(painter, {300, 96}, 30, kSlate);
  Traffic(painter, {60, 50, 250, 380}, -0.28, 1015, 10);
  PaintBorder(painter, screen, 16, kSlate, 1014);
}

void PaintCircuit(QPainter& painter) {
  const QRectF screen(0, 0, 800, 600);
  painter.fillRect(screen, Downward(screen, {6, 10, 20}, {10, 18, 32}));
  Nebula(painter, screen, 1021, {0, 100, 180}, {150, 70, 60});
  Stars(painter, screen, 1022, 620);
  const QPointF sun(400, 296);
  Spot(painter, sun, 260, kAmber, 0.35);
  Spot(painter, sun, 90, kAmber, 0.7);
  Spot(painter, sun, 30, QColor(255, 240, 210), 1);
  PaintOrbits(painter, sun);
  Horizon(painter, {430, 1936}, 1404, 1025);
  Traffic(painter, {60, 40, 700, 500}, -0.2, 1026, 10);
  Station(painter, {684, 500}, 60, kSlate);
  PaintBorder(painter, screen, 16, kSlate, 1024);
}

void PaintLobby(QPainter& painter) {
  const QRectF screen(0, 0, 640, 520);
  const QRectF mouth(150, 60, 340, 190);
  painter.fillRect(screen, Downward(screen, {8, 14, 24}, {18, 28, 42}));
  Nebula(painter, mouth.adjusted(-40, -30, 40, 60), 1033, {0, 120, 200}, {60, 90, 190});
  Stars(painter, mouth, 1034, 160);
  World(painter, {400, 250}, 150, {70, 140, 190}, {20, 38, 66}, 1035);
  Spot(painter, {250, 130}, 150, kSlate.accent, 0.3);
  Station(painter, {236, 138}, 84, kSlate);
  Traffic(painter, mouth, 0.12, 1036, 12);
  PaintFloor(painter, {0, 258, 640, 262}, {320, 150});
  PaintRibs(painter, mouth);
  Vignette(painter, screen, 0.6);
  PaintBorder(painter, screen, 14, kSlate, 1032);
}

}  // namespace kv::datafile
