#include "Icon.h"

#include <QStringList>

namespace kv::icon {
namespace {

constexpr QPointF kMiddle(kSide / 2.0, kSide / 2.0);
constexpr QColor kBlue(0, 169, 251);

QPainterPath Square(double inset, double corner) {
  QPainterPath path;
  path.addRoundedRect(QRectF(inset, inset, kSide - 2 * inset, kSide - 2 * inset), corner, corner);
  return path;
}

QRectF Circle(double radius) {
  return {kMiddle.x() - radius, kMiddle.y() - radius, 2 * radius, 2 * radius};
}

QPainterPath Arcs(double radius, double reach) {
  QPainterPath path;
  for (const double middle : {0.0, 180.0}) {
    path.arcMoveTo(Circle(radius), middle - reach);
    path.arcTo(Circle(radius), middle - reach, 2 * reach);
  }
  return path;
}

/// The arcs as areas between two circles.
QPainterPath Bows(double inner, double outer, double reach) {
  QPainterPath path;
  for (const double middle : {0.0, 180.0}) {
    path.arcMoveTo(Circle(outer), middle - reach);
    path.arcTo(Circle(outer), middle - reach, 2 * reach);
    path.arcTo(Circle(inner), middle + reach, -2 * reach);
    path.closeSubpath();
  }
  return path;
}

QPainterPath Lozenge(double width, double height) {
  QPainterPath path;
  path.addPolygon(QPolygonF({kMiddle - QPointF(0, height), kMiddle + QPointF(width, 0),
                             kMiddle + QPointF(0, height), kMiddle - QPointF(width, 0)}));
  path.closeSubpath();
  return path;
}

void AddGlow(std::vector<Shape>& shapes, const QPainterPath& path, double width) {
  for (double spread = 44; spread > 6; spread -= 9) {
    shapes.push_back({path, kBlue, kBlue, width + spread, 0.07});
  }
}

QString PathData(const QPainterPath& path) {
  QStringList parts;
  const auto at = [&](int i) {
    const QPainterPath::Element element = path.elementAt(i);
    return QStringLiteral("%1 %2").arg(element.x, 0, 'f', 1).arg(element.y, 0, 'f', 1);
  };
  for (int i = 0; i < path.elementCount(); ++i) {
    switch (path.elementAt(i).type) {
      case QPainterPath::MoveToElement:
        parts += QStringLiteral("M") + at(i);
        break;
      case QPainterPath::LineToElement:
        parts += QStringLiteral("L") + at(i);
        break;
      default:  // a curve: its two handles and its end
        parts +=
            QStringLiteral("C") + at(i) + QStringLiteral(" ") + at(i + 1) + QStringLiteral(" ") + at(i + 2);
        i += 2;
    }
  }
  return parts.join(QString());
}

}  // namespace

std::vector<Shape> Shapes(bool small) {
  std::vector<Shape> shapes;
  shapes.push_back({Square(small ? 8 : 16, 100), {62, 86, 116}, {12, 19, 31}});
  if (small) {
    shapes.push_back({Square(60, 62), {5, 11, 20}, {12, 26, 42}});
    shapes.push_back({Arcs(150, 46), {120, 216, 255}, {0, 140, 226}, 54});
    shapes.push_back({Lozenge(84, 104), {255, 226, 150}, {226, 132, 36}});
    return shapes;
  }
  shapes.push_back({Square(21, 96), {176, 206, 232}, {14, 24, 38}, 10});
  shapes.push_back({Square(54, 66), {4, 9, 17}, {15, 32, 52}});
  shapes.push_back({Square(54, 66), {3, 6, 10}, {86, 122, 158}, 6});
  for (const double radius : {166.0, 118.0}) {
    const QPainterPath arcs = Arcs(radius, 48);
    AddGlow(shapes, arcs, 22);
    shapes.push_back({arcs, {140, 222, 255}, {0, 140, 226}, 24});
  }
  const QPainterPath lozenge = Lozenge(60, 76);
  shapes.push_back({lozenge.translated(5, 8), {0, 0, 0}, {0, 0, 0}, 0, 0.5});
  shapes.push_back({lozenge, {255, 222, 140}, {214, 116, 28}});
  shapes.push_back({lozenge, {255, 244, 214}, {150, 78, 18}, 6});
  return shapes;
}

void Paint(QPainter& painter, const std::vector<Shape>& shapes) {
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Shape& shape : shapes) {
    const QRectF area = shape.path.boundingRect();
    QLinearGradient light(area.topLeft(), area.bottomRight());
    light.setColorAt(0, shape.from);
    light.setColorAt(1, shape.to);
    painter.setOpacity(shape.opacity);
    if (shape.stroke > 0) {
      painter.strokePath(shape.path,
                         QPen(QBrush(light), shape.stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    } else {
      painter.fillPath(shape.path, light);
    }
  }
}

QString Svg(const std::vector<Shape>& shapes) {
  QString defs;
  QString body;
  int number = 0;
  for (const Shape& shape : shapes) {
    const QRectF area = shape.path.boundingRect();
    defs +=
        QStringLiteral(
            "  <linearGradient id=\"g%1\" gradientUnits=\"userSpaceOnUse\" x1=\"%2\" y1=\"%3\" x2=\"%4\" "
            "y2=\"%5\"><stop stop-color=\"%6\"/><stop offset=\"1\" stop-color=\"%7\"/></linearGradient>\n")
            .arg(number)
            .arg(area.left())
            .arg(area.top())
            .arg(area.right())
            .arg(area.bottom())
            .arg(shape.from.name(), shape.to.name());
    const QString paint = QStringLiteral("url(#g%1)").arg(number++);
    body += QStringLiteral("<path d=\"%1\" opacity=\"%2\" ").arg(PathData(shape.path)).arg(shape.opacity);
    body += shape.stroke > 0 ? QStringLiteral(
                                   "fill=\"none\" stroke=\"%1\" stroke-width=\"%2\" stroke-linecap=\"round\" "
                                   "stroke-linejoin=\"round\"/>\n")
                                   .arg(paint)
                                   .arg(shape.stroke)
                             : QStringLiteral("fill=\"%1\"/>\n").arg(paint);
  }
  return QStringLiteral(
             "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 "
             "%1\">\n<defs>\n%2</defs>\n%3</svg>\n")
      .arg(kSide)
      .arg(defs, body);
}

QString SymbolicSvg() {
  // Only what is filled takes the desktop's colour: the arcs are outlines, not strokes.
  QPainterPath sign = Bows(160, 228, 48);
  sign.addPath(Lozenge(108, 136));
  return QStringLiteral(
             "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\" viewBox=\"0 0 %1 %1\">\n"
             "<path fill=\"#2e3436\" d=\"%2\"/>\n</svg>\n")
      .arg(kSide)
      .arg(PathData(sign));
}

}  // namespace kv::icon
