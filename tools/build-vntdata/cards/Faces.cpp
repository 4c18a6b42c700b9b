#include "cards/Faces.h"

#include <array>

#include "brush/Brush.h"

namespace kv::datafile {
namespace {

enum Slot { kBack = 1, kMain, kPlus, kMinus, kFlipUp, kFlipDown, kSpecial };

struct Face {
  const Style& style;
  QRectF card;     // the whole face
  QRectF caption;  // where the value stands
  int slot;
  QColor colour;
  QColor second;  // of a split card's other half
};

constexpr QColor kPlusBlue{52, 132, 224};
constexpr QColor kMinusRed{206, 62, 58};
constexpr QColor kSpecialGold{226, 178, 64};
constexpr QColor kSteel{120, 138, 158};
constexpr QColor kBrass{168, 132, 84};

QColor ColourOf(int slot, bool ember) {
  switch (slot) {
    case kPlus:
    case kFlipUp:
      return ember ? QColor(44, 150, 126) : kPlusBlue;
    case kMinus:
    case kFlipDown:
      return ember ? QColor(186, 66, 38) : kMinusRed;
    case kSpecial:
      return kSpecialGold;
    default:
      return ember ? kBrass : kSteel;
  }
}

/// The coloured field of a face: its outline is what the eye reads first.
QPainterPath FieldOf(const Face& face) {
  const double inset = face.card.width() * 0.1;
  const QRectF in = face.card.adjusted(inset, inset, -inset, -inset);
  const double peak = in.height() * 0.17;
  QPainterPath path;
  if (face.slot == kPlus) {
    path.addPolygon(QPolygonF({{in.left(), in.bottom()},
                               {in.left(), in.top() + peak},
                               {in.center().x(), in.top()},
                               {in.right(), in.top() + peak},
                               {in.right(), in.bottom()}}));
    path.closeSubpath();
  } else if (face.slot == kMinus) {
    path.addPolygon(QPolygonF({{in.left(), in.top()},
                               {in.right(), in.top()},
                               {in.right(), in.bottom() - peak},
                               {in.center().x(), in.bottom()},
                               {in.left(), in.bottom() - peak}}));
    path.closeSubpath();
  } else if (face.slot == kSpecial) {
    path = Cornered(in, in.width() * 0.28, false);
  } else {
    path = Cornered(in, face.style.worn ? 5 : 2.5, true);
  }
  return path;
}

void PaintBody(QPainter& painter, const Face& face) {
  const double corner = face.card.width() * 0.09;
  const QPainterPath body = Cornered(face.card.adjusted(0.5, 0.5, -0.5, -0.5), corner, true);
  QLinearGradient metal(face.card.topLeft(), face.card.bottomRight());
  metal.setColorAt(0, face.style.edge);
  metal.setColorAt(0.3, face.style.plate);
  metal.setColorAt(1, face.style.plateShade);
  painter.fillPath(body, metal);
  painter.strokePath(body, QPen(face.style.edgeShade, 1));
  const QPainterPath rim = Cornered(face.card.adjusted(1.5, 1.5, -1.5, -1.5), corner - 1, true);
  painter.strokePath(rim, QPen(Faint(Qt::white, face.style.worn ? 0.12 : 0.2), 0.6));
  if (!face.style.worn) return;
  const QRectF corners = face.card.adjusted(5, 5, -5, -5);
  for (const QPointF& at :
       {corners.topLeft(), corners.topRight(), corners.bottomLeft(), corners.bottomRight()}) {
    Rivet(painter, at, 1.5, face.style);
  }
}

/// Enamel: a slanting reflection over the upper left, and a shadow that the frame casts on the field.
void PaintGloss(QPainter& painter, const QPainterPath& field, double strength) {
  const QRectF area = field.boundingRect();
  painter.save();
  painter.setClipPath(field);
  QPainterPath shine;
  shine.addPolygon(QPolygonF({area.topLeft(), area.topRight() - QPointF(area.width() * 0.2, 0),
                              area.bottomLeft() - QPointF(0, area.height() * 0.25)}));
  shine.closeSubpath();
  painter.fillPath(shine, Downward(area, Faint(Qt::white, strength), Faint(Qt::white, strength / 10)));
  for (int i = 1; i <= 3; ++i) {
    painter.strokePath(field.translated(0.4, 0.7), QPen(Faint(Qt::black, 0.16), i * area.width() * 0.035));
  }
  painter.restore();
}

void PaintField(QPainter& painter, const Face& face) {
  const QPainterPath field = FieldOf(face);
  const QRectF area = field.boundingRect();
  painter.fillPath(field.translated(0, 0.8), Faint(Qt::black, 0.5));
  painter.fillPath(field,
                   Downward(area, Mix(face.colour, Qt::black, 0.25), Mix(face.colour, Qt::black, 0.68)));
  if (face.second.isValid()) {  // split along the diagonal
    painter.save();
    painter.setClipPath(field);
    QPainterPath half;
    const bool up = face.slot == kFlipUp;
    const QPointF tip = up ? area.bottomRight() : area.topLeft();
    half.addPolygon(QPolygonF({area.topRight() + QPointF(1, 0), tip, area.bottomLeft() - QPointF(1, 0)}));
    half.closeSubpath();
    painter.fillPath(half,
                     Downward(area, Mix(face.second, Qt::black, 0.35), Mix(face.second, Qt::black, 0.72)));
    painter.setPen(QPen(Faint(Qt::white, 0.55), 0.9));
    painter.drawLine(area.bottomLeft(), area.topRight());
    painter.restore();
  }
  PaintGloss(painter, field, face.style.worn ? 0.16 : 0.09);  // fainter on the small cards
  painter.strokePath(field, QPen(Mix(face.colour, Qt::white, 0.3), face.card.width() * 0.022));
}

QPainterPath Arrow(QPointF centre, double size, bool up) {
  const double way = up ? -1 : 1;
  QPainterPath path;
  path.addPolygon(QPolygonF({centre + QPointF(0, way * size), centre + QPointF(size, -way * size * 0.6),
                             centre + QPointF(-size, -way * size * 0.6)}));
  path.closeSubpath();
  return path;
}

QPainterPath Star(QPointF centre, double radius) {
  QPainterPath path;
  for (int i = 0; i < 8; ++i) {
    const QPainterPath corner = Polygon(centre, i % 2 == 0 ? radius : radius * 0.38, 8, 0);
    const QPointF at = corner.elementAt(i);
    i == 0 ? path.moveTo(at) : path.lineTo(at);
  }
  path.closeSubpath();
  return path;
}

/// One sign above the value and one below it.
void PaintSigns(QPainter& painter, const Face& face) {
  const double unit = face.card.width() / 48;
  const QPointF top(face.card.center().x(), face.card.top() + 12.5 * unit);
  const QPointF low(face.card.center().x(), face.card.top() + (face.style.worn ? 45 : 44.5) * unit);
  const QColor bright = Mix(face.colour, Qt::white, 0.72);
  const QPen pen(bright, 2.4 * unit, Qt::SolidLine, Qt::FlatCap);
  painter.setPen(pen);
  switch (face.slot) {
    case kPlus:
      painter.drawLine(low - QPointF(0, 5 * unit), low + QPointF(0, 5 * unit));
      [[fallthrough]];
    case kMinus:
      painter.drawLine(low - QPointF(5 * unit, 0), low + QPointF(5 * unit, 0));
      painter.fillPath(
          Arrow(top + QPointF(0, face.slot == kPlus ? 1.5 * unit : -1 * unit), 3 * unit, face.slot == kPlus),
          bright);
      break;
    case kFlipUp:
    case kFlipDown: {
      const bool up = face.slot == kFlipUp;
      const QColor other = Mix(face.second, Qt::white, 0.6);
      painter.fillPath(Arrow(top, 4 * unit, true), up ? bright : Faint(other, 0));
      painter.strokePath(Arrow(top, 4 * unit, true), QPen(up ? bright : other, unit));
      painter.fillPath(Arrow(low, 4 * unit, false), up ? Faint(other, 0) : bright);
      painter.strokePath(Arrow(low, 4 * unit, false), QPen(up ? other : bright, unit));
      break;
    }
    case kSpecial:
      painter.fillPath(Star(top + QPointF(0, 0.5 * unit), 5 * unit), bright);
      painter.fillPath(Star(low, 6 * unit), bright);
      break;
    default:
      for (int i = -1; i <= 1; ++i) {
        painter.fillPath(Polygon(top + QPointF(i * 6 * unit, 0), 1.8 * unit, 4), bright);
        painter.fillPath(Polygon(low + QPointF(i * 6 * unit, 0), 1.8 * unit, 4), bright);
      }
  }
}

void PaintCaptionPlate(QPainter& painter, const Face& face) {
  const QRectF plate = face.caption.adjusted(-1.5, -1.5, 1.5, 1.5);
  const QPainterPath path = Cornered(plate, face.style.worn ? 4 : 2, true);
  painter.fillPath(path, face.style.worn ? face.style.wellShade : QColor(0, 12, 24));
  painter.strokePath(path, QPen(Mix(face.colour, face.style.edge, 0.5), 1));
}

void PaintBack(QPainter& painter, const Face& face) {
  const double unit = face.card.width() / 48;
  const QRectF in = face.card.adjusted(4 * unit, 4 * unit, -4 * unit, -4 * unit);
  const QPainterPath field = Cornered(in, 3 * unit, true);
  painter.fillPath(field, Downward(in, face.style.well, face.style.wellShade));
  painter.save();
  painter.setClipPath(field);
  for (int i = -12; i <= 24; ++i) {  // a lattice that runs away from the middle
    const double x = in.left() + i * 4 * unit;
    painter.setPen(QPen(Faint(face.style.edge, 0.2), 0.7 * unit));
    painter.drawLine(QPointF(x, in.top()), QPointF(x + in.height(), in.bottom()));
    painter.drawLine(QPointF(x + in.height(), in.top()), QPointF(x, in.bottom()));
  }
  Spot(painter, in.center(), 20 * unit, face.style.accentShade, 0.9);
  painter.restore();
  painter.strokePath(field, QPen(Mix(face.style.accent, face.style.edge, 0.3), unit));
  const QPointF centre = in.center();
  painter.fillPath(Polygon(centre, 13 * unit, 6), face.style.wellShade);
  painter.strokePath(Polygon(centre, 13 * unit, 6), QPen(face.style.edge, 1.2 * unit));
  painter.strokePath(Emblem(centre, 8.6 * unit),
                     QPen(face.style.accent, 1.3 * unit, Qt::SolidLine, Qt::RoundCap));
  painter.fillPath(Polygon(centre, 2.4 * unit, 4), Mix(face.style.accent, Qt::white, 0.5));
}

}  // namespace

void PaintFace(QPainter& painter, int number) {
  const bool ember = number >= 220;
  const int slot = number % 10;
  const QRectF card = ember ? QRectF(0, 0, 83, 102) : QRectF(0, 0, 48, 64);
  const QRectF caption = ember ? QRectF(20, 32, 43, 21) : QRectF(8, 19, 33, 16);
  Face face{ember ? kEmber : kSlate, card, caption, slot, ColourOf(slot, ember), {}};
  if (slot == kFlipUp) face.second = ColourOf(kMinus, ember);
  if (slot == kFlipDown) face.second = ColourOf(kPlus, ember);
  PaintBody(painter, face);
  if (slot == kBack) return PaintBack(painter, face);
  PaintField(painter, face);
  PaintSigns(painter, face);
  PaintCaptionPlate(painter, face);
}

}  // namespace kv::datafile
