#include "brush/Brush.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace kv::datafile {

double Chance::Unit() {
  state_ += 0x9e3779b97f4a7c15ULL;
  std::uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
  return static_cast<double>((z ^ (z >> 31)) >> 11) * 0x1p-53;
}

QColor Mix(QColor a, QColor b, double share) {
  const auto part = [&](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * share));
  };
  return QColor(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()),
                part(a.alpha(), b.alpha()));
}

QColor Faint(QColor colour, double opacity) {
  colour.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
  return colour;
}

QLinearGradient Downward(QRectF area, QColor top, QColor bottom) {
  QLinearGradient gradient(area.topLeft(), area.bottomLeft());
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  return gradient;
}

QPainterPath Cornered(QRectF area, double corner, bool rounded) {
  QPainterPath path;
  if (rounded) {
    path.addRoundedRect(area, corner, corner);
    return path;
  }
  path.moveTo(area.left() + corner, area.top());
  path.lineTo(area.right() - corner, area.top());
  path.lineTo(area.right(), area.top() + corner);
  path.lineTo(area.right(), area.bottom() - corner);
  path.lineTo(area.right() - corner, area.bottom());
  path.lineTo(area.left() + corner, area.bottom());
  path.lineTo(area.left(), area.bottom() - corner);
  path.lineTo(area.left(), area.top() + corner);
  path.closeSubpath();
  return path;
}

QPainterPath Polygon(QPointF centre, double radius, int sides, double turn) {
  QPainterPath path;
  for (int i = 0; i < sides; ++i) {
    const double angle = qDegreesToRadians(turn + 360.0 * i / sides);
    const QPointF corner = centre + QPointF(std::sin(angle), -std::cos(angle)) * radius;
    i == 0 ? path.moveTo(corner) : path.lineTo(corner);
  }
  path.closeSubpath();
  return path;
}

void Grain(QPainter& painter, QRectF area, std::uint64_t seed, double opacity, int stretch) {
  constexpr int kRatio = 2;
  QImage noise(static_cast<int>(area.width() * kRatio), static_cast<int>(area.height() * kRatio),
               QImage::Format_ARGB32);
  Chance chance(seed);
  for (int y = 0; y < noise.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(noise.scanLine(y));
    double value = chance.Unit() - 0.5;
    for (int x = 0; x < noise.width(); ++x) {
      value += (chance.Unit() - 0.5 - value) / stretch;
      const double strength = std::min(1.0, std::abs(value) * std::sqrt(stretch)) * opacity;
      line[x] = value > 0 ? qRgba(255, 255, 255, static_cast<int>(strength * 255))
                          : qRgba(0, 0, 0, static_cast<int>(strength * 255));
    }
  }
  painter.drawImage(area, noise);
}

void Vignette(QPainter& painter, QRectF area, double opacity) {
  QRadialGradient gradient(area.center(), std::hypot(area.width(), area.height()) / 2);
  gradient.setColorAt(0.45, Faint(Qt::black, 0));
  gradient.setColorAt(1, Faint(Qt::black, opacity));
  painter.fillRect(area, gradient);
}

void Glow(QPainter& painter, const QPainterPath& path, QColor colour, double width, double halo) {
  for (double spread = halo; spread > 0.4; spread *= 0.82) {
    painter.strokePath(
        path, QPen(Faint(colour, 0.05), width + spread * 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  painter.strokePath(path,
                     QPen(Mix(colour, Qt::white, 0.35), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Spot(QPainter& painter, QPointF centre, double radius, QColor colour, double opacity) {
  QRadialGradient gradient(centre, radius);
  gradient.setColorAt(0, Faint(colour, opacity));
  gradient.setColorAt(0.5, Faint(colour, opacity * 0.35));
  gradient.setColorAt(1, Faint(colour, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  painter.drawEllipse(centre, radius, radius);
}

void DropShadow(QPainter& painter, const QPainterPath& path, double depth, double opacity) {
  for (int i = 4; i >= 1; --i) {
    painter.strokePath(path.translated(depth * 0.25, depth * 0.5),
                       QPen(Faint(Qt::black, opacity / 4), depth * i / 2));
  }
}

void Board(QPainter& painter, QRectF area, const Style& style, std::uint64_t seed) {
  QLinearGradient gradient(area.left() + area.width() * 0.35, area.top(), area.left() + area.width() * 0.65,
                           area.bottom());
  gradient.setColorAt(0, Mix(style.base, style.edge, 0.08));
  gradient.setColorAt(0.4, style.base);
  gradient.setColorAt(1, style.baseShade);
  painter.fillRect(area, gradient);
  Grain(painter, area, seed, style.worn ? 0.05 : 0.045, style.worn ? 6 : 60);
  if (style.worn) {
    Chance chance(seed + 1);
    for (int i = 0; i < 90; ++i) {  // old scratches
      const QPointF from(area.left() + chance.Unit() * area.width(),
                         area.top() + chance.Unit() * area.height());
      const QPointF way(chance.Between(-26, 26), chance.Between(-5, 5));
      painter.setPen(QPen(Faint(i % 3 == 0 ? style.edge : style.edgeShade, chance.Between(0.03, 0.13)), 0.7));
      painter.drawLine(from, from + way);
    }
  }
  Vignette(painter, area, 0.6);
}

namespace {

/// Light on the upper left of a shape's border and shade on the lower right; the other way for sunken ones.
void EdgeLight(QPainter& painter, const QPainterPath& path, QColor light, QColor shade, double width) {
  QLinearGradient gradient(path.boundingRect().topLeft(), path.boundingRect().bottomRight());
  gradient.setColorAt(0, light);
  gradient.setColorAt(0.45, Mix(light, shade, 0.6));
  gradient.setColorAt(1, shade);
  painter.strokePath(path, QPen(gradient, width));
}

}  // namespace

void Plate(QPainter& painter, QRectF area, const Style& style, std::uint64_t seed, double corner) {
  const QPainterPath path = Cornered(area, corner, style.worn);
  DropShadow(painter, path, 5, 0.5);
  QLinearGradient gradient(area.topLeft(), area.bottomRight());
  gradient.setColorAt(0, Mix(style.plate, style.edge, 0.12));
  gradient.setColorAt(0.35, style.plate);
  gradient.setColorAt(1, style.plateShade);
  painter.fillPath(path, gradient);
  painter.save();
  painter.setClipPath(path);
  Grain(painter, area, seed, 0.05, style.worn ? 5 : 40);
  painter.restore();
  EdgeLight(painter, path, style.edge, style.edgeShade, style.worn ? 1.6 : 1);
  const QPainterPath inner = Cornered(area.adjusted(4, 4, -4, -4), corner - 2, style.worn);
  EdgeLight(painter, inner, Faint(style.edgeShade, 0.7), Faint(style.edge, 0.35), 1);
}

void Well(QPainter& painter, QRectF area, const Style& style, double corner) {
  const QPainterPath path = Cornered(area, corner, style.worn);
  painter.fillPath(path, Downward(area, style.wellShade, style.well));
  painter.save();
  painter.setClipPath(path);
  for (int i = 1; i <= 4; ++i) {  // the rim's shadow
    painter.strokePath(path.translated(0.7, 1), QPen(Faint(Qt::black, 0.2), i * 2));
  }
  painter.restore();
  EdgeLight(painter, Cornered(area.adjusted(-0.5, -0.5, 0.5, 0.5), corner, style.worn), style.edgeShade,
            Faint(style.edge, 0.6), style.worn ? 1.5 : 1);
}

void CardSlot(QPainter& painter, QRectF area, const Style& style) {
  const double corner = style.worn ? 6 : 4;
  Well(painter, area.adjusted(-1, -1, 1, 1), style, corner);
  const double reach = area.width() * 0.2;
  const QPainterPath mark = style.worn ? Polygon(area.center(), reach, 4) : Polygon(area.center(), reach, 6);
  painter.strokePath(mark, QPen(Faint(style.accent, 0.13), 1.2));
  painter.strokePath(Cornered(area.adjusted(4, 4, -4, -4), corner - 2, style.worn),
                     QPen(Faint(style.edge, 0.07), 1));
}

void PictureFrame(QPainter& painter, QRectF area, const Style& style) {
  Plate(painter, area.adjusted(-9, -9, 9, 9), style, 77, style.worn ? 8 : 10);
  Well(painter, area.adjusted(-2, -2, 2, 2), style, 2);
  const QRectF corners = area.adjusted(-5, -5, 5, 5);
  QPainterPath marks;
  for (const QPointF& at :
       {corners.topLeft(), corners.topRight(), corners.bottomLeft(), corners.bottomRight()}) {
    const QPointF inward((corners.center().x() - at.x()) / 4, (corners.center().y() - at.y()) / 4);
    marks.moveTo(at + QPointF(inward.x(), 0));
    marks.lineTo(at);
    marks.lineTo(at + QPointF(0, inward.y()));
  }
  Glow(painter, marks, style.accent, 0.8, 3);
}

void Socket(QPainter& painter, QRectF area, const Style& style, bool round) {
  const QRectF rim = area.adjusted(-3, -3, 3, 3);
  QPainterPath path;
  if (round) {
    path.addEllipse(rim);
  } else {
    path = Cornered(rim, 4, style.worn);
  }
  QLinearGradient gradient(rim.topLeft(), rim.bottomRight());
  gradient.setColorAt(0, Mix(style.plate, style.edge, 0.5));
  gradient.setColorAt(1, style.plateShade);
  painter.fillPath(path, gradient);
  painter.strokePath(path, QPen(Faint(style.edgeShade, 0.8), 1));
  QPainterPath hole;
  if (round) {
    hole.addEllipse(area);
  } else {
    hole = Cornered(area, 2.5, style.worn);
  }
  painter.fillPath(hole, Downward(area, style.edgeShade, style.well));
}

QPainterPath Emblem(QPointF centre, double radius) {
  QPainterPath path = Polygon(centre, radius * 0.46, 4);
  const QRectF round(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
  for (const double start : {-52.0, 128.0}) {
    path.arcMoveTo(round, start);
    path.arcTo(round, start, 104);
    const QRectF inner = round.adjusted(radius * 0.26, radius * 0.26, -radius * 0.26, -radius * 0.26);
    path.arcMoveTo(inner, start + 12);
    path.arcTo(inner, start + 12, 80);
  }
  return path;
}

void Engrave(QPainter& painter, const QPainterPath& path, const Style& style, double width) {
  painter.strokePath(path.translated(0.5, 0.8), QPen(Faint(style.edge, 0.16), width));
  painter.strokePath(path, QPen(Faint(style.edgeShade, 0.55), width));
}

void Rivet(QPainter& painter, QPointF centre, double radius, const Style& style) {
  QRadialGradient gradient(centre - QPointF(radius, radius) * 0.4, radius * 1.5);
  gradient.setColorAt(0, style.edge);
  gradient.setColorAt(0.5, style.plate);
  gradient.setColorAt(1, style.edgeShade);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(Qt::black, 0.45));
  painter.drawEllipse(centre + QPointF(0.6, 0.9), radius * 1.15, radius * 1.15);
  painter.setBrush(gradient);
  painter.drawEllipse(centre, radius, radius);
}

void Fasten(QPainter& painter, QRectF area, const Style& style) {
  const QRectF at = area.adjusted(9, 9, -9, -9);
  for (const QPointF& corner : {at.topLeft(), at.topRight(), at.bottomLeft(), at.bottomRight()}) {
    Rivet(painter, corner, style.worn ? 3 : 1.6, style);
  }
}

}  // namespace kv::datafile
