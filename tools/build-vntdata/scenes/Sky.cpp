#include "scenes/Sky.h"

#include <cmath>

namespace kv::datafile {

namespace {

constexpr double kTownReach = 440;  // how far along the horizon towns lie, in layout pixels

/// The lights of towns on the night side of a world's horizon.
void Towns(QPainter& painter, QPointF centre, double radius, double reach, std::uint64_t seed) {
  Chance chance(seed);
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 420; ++i) {
    const double turn = chance.Between(-reach, reach * 0.8) + 0.02 * std::floor(chance.Unit() * 4);
    const double depth = radius * (1 - std::pow(chance.Unit(), 2) * 0.04) - 4;
    const QPointF at = centre + QPointF(std::sin(turn), -std::cos(turn)) * depth;
    painter.setBrush(Faint(Mix(kAmber, Qt::white, chance.Unit() * 0.5), chance.Between(0.15, 0.8)));
    const double size = chance.Between(0.3, 0.9);
    painter.drawEllipse(at, size * 1.6, size * 0.7);
  }
}

}  // namespace

void Stars(QPainter& painter, QRectF area, std::uint64_t seed, int count) {
  Chance chance(seed);
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < count; ++i) {
    const QPointF at(area.left() + chance.Unit() * area.width(), area.top() + chance.Unit() * area.height());
    const double size = 0.3 + std::pow(chance.Unit(), 6) * 1.5;
    const QColor tint = Mix(QColor(170, 200, 255), QColor(255, 226, 190), chance.Unit());
    if (size > 1) Spot(painter, at, size * 5, tint, 0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(tint, chance.Between(0.35, 1)));
    painter.drawEllipse(at, size, size);
  }
}

void Nebula(QPainter& painter, QRectF area, std::uint64_t seed, QColor first, QColor second) {
  Chance chance(seed);
  painter.save();
  painter.setClipRect(area);
  for (int i = 0; i < 46; ++i) {
    const double along = chance.Unit();
    const double spread = (chance.Unit() + chance.Unit() - 1) * area.height() * 0.45;
    const QPointF at(area.left() + along * area.width(),
                     area.center().y() + (0.5 - along) * area.height() * 0.7 + spread);
    Spot(painter, at, chance.Between(0.08, 0.3) * area.width(), Mix(first, second, chance.Unit()),
         chance.Between(0.03, 0.11));
  }
  painter.restore();
}

void World(QPainter& painter, QPointF centre, double radius, QColor lit, QColor shade, std::uint64_t seed) {
  Spot(painter, centre, radius * 1.25, lit, 0.3);
  QPainterPath ball;
  ball.addEllipse(centre, radius, radius);
  QRadialGradient body(centre - QPointF(0.4, 0.45) * radius, radius * 1.5);
  body.setColorAt(0, Mix(lit, Qt::white, 0.35));
  body.setColorAt(0.4, lit);
  body.setColorAt(0.8, shade);
  body.setColorAt(1, Mix(shade, Qt::black, 0.75));
  painter.fillPath(ball, body);
  painter.save();
  painter.setClipPath(ball);
  Chance chance(seed);
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < 16; ++i) {  // bands of cloud, bent by the ball
    const double y = centre.y() + chance.Between(-1, 1) * radius;
    painter.setBrush(Faint(i % 2 == 0 ? lit : Mix(shade, Qt::black, 0.5), chance.Between(0.05, 0.2)));
    painter.drawEllipse(QPointF(centre.x(), y), radius * 1.4, radius * chance.Between(0.02, 0.1));
  }
  QRadialGradient night(centre - QPointF(0.5, 0.5) * radius, radius * 1.75);
  night.setColorAt(0.5, Faint(Qt::black, 0));
  night.setColorAt(0.85, Faint(kNight, 0.9));
  painter.fillPath(ball, night);
  painter.restore();
}

void Ring(QPainter& painter, QPointF centre, double radius, double tilt, QColor colour, bool front) {
  painter.save();
  painter.translate(centre);
  painter.rotate(tilt);
  for (int i = 0; i < 9; ++i) {
    const double r = radius * (1 + i * 0.035);
    const double opacity = i == 4 ? 0.08 : 0.25 + 0.4 * ((i * 5) % 4) / 4;
    painter.setPen(QPen(Faint(colour, opacity), radius * 0.026, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(-r, -r * 0.2, 2 * r, r * 0.4), front ? 180 * 16 : 0, 180 * 16);
  }
  painter.restore();
}

void Station(QPainter& painter, QPointF centre, double size, const Style& style) {
  painter.save();
  painter.translate(centre);
  painter.scale(size, size);
  const QPainterPath spindle = [] {
    QPainterPath path;
    path.addPolygon(QPolygonF({{-0.03, -1},
                               {0.03, -1},
                               {0.06, -0.35},
                               {0.16, -0.2},
                               {0.16, 0.12},
                               {0.07, 0.3},
                               {0.02, 0.85},
                               {-0.02, 0.85},
                               {-0.07, 0.3},
                               {-0.16, 0.12},
                               {-0.16, -0.2},
                               {-0.06, -0.35}}));
    path.closeSubpath();
    return path;
  }();
  QLinearGradient metal(-0.2, 0, 0.2, 0);
  metal.setColorAt(0, style.edge);
  metal.setColorAt(0.4, style.plate);
  metal.setColorAt(1, style.edgeShade);
  const auto wheel = [&](bool front) {
    for (int i = 0; i < 3; ++i) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(i == 0   ? Mix(style.plateShade, Qt::black, 0.3)
                          : i == 1 ? style.plate
                                   : style.edge,
                          i == 0   ? 0.11
                          : i == 1 ? 0.07
                                   : 0.012,
                          Qt::SolidLine, Qt::FlatCap));
      painter.drawArc(QRectF(-0.8, -0.25 - i * 0.008, 1.6, 0.4), front ? 180 * 16 : 0, 180 * 16);
    }
  };
  wheel(false);
  painter.fillPath(spindle, metal);
  wheel(true);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(style.accent, Qt::white, 0.4));
  for (int i = 1; i < 24; ++i) {  // lit windows around the wheel
    const double angle = 3.14159265 * i / 24;
    painter.drawEllipse(QPointF(-0.8 * std::cos(angle), -0.05 + 0.2 * std::sin(angle)), 0.012, 0.009);
  }
  for (int i = 0; i < 5; ++i) painter.drawEllipse(QPointF(-0.04, -0.15 + 0.07 * i), 0.012, 0.012);
  painter.restore();
}

void Horizon(QPainter& painter, QPointF centre, double radius, std::uint64_t seed) {
  for (int i = 12; i >= 1; --i) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(kSlate.accent, 0.028));
    painter.drawEllipse(centre, radius + i * 3.2, radius + i * 3.2);
  }
  QPainterPath ball;
  ball.addEllipse(centre, radius, radius);
  QRadialGradient body(centre, radius);
  body.setColorAt(0.8, QColor(4, 8, 15));
  body.setColorAt(0.97, QColor(10, 24, 40));
  body.setColorAt(1, QColor(60, 140, 190));
  painter.fillPath(ball, body);
  Towns(painter, centre, radius, kTownReach / radius, seed);
  painter.strokePath(ball, QPen(Faint(QColor(170, 226, 255), 0.8), 1.2));
}

}  // namespace kv::datafile
