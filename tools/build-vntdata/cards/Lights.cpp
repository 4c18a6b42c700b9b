#include "cards/Lights.h"

#include "brush/Brush.h"

namespace kv::datafile {
namespace {

constexpr int kSlateLit = 458;
constexpr int kEmberLit = 462;
constexpr int kEmberUnlit = 465;

void PaintRing(QPainter& painter, QPointF centre, double radius, const Style& style) {
  QConicalGradient metal(centre, 45);
  metal.setColorAt(0, style.plateShade);
  metal.setColorAt(0.22, style.plate);
  metal.setColorAt(0.3, style.edge);
  metal.setColorAt(0.42, style.plate);
  metal.setColorAt(0.8, style.edgeShade);
  metal.setColorAt(1, style.plateShade);
  painter.setPen(QPen(style.edgeShade, radius * 0.06));
  painter.setBrush(metal);
  painter.drawEllipse(centre, radius, radius);
}

void PaintLens(QPainter& painter, QPointF centre, double radius, QColor colour, bool lit) {
  QRadialGradient glass(centre - QPointF(0.3, 0.35) * radius, radius * 1.5);
  glass.setColorAt(0, lit ? Mix(colour, Qt::white, 0.85) : Mix(colour, Qt::black, 0.55));
  glass.setColorAt(0.35, lit ? Mix(colour, Qt::white, 0.4) : Mix(colour, Qt::black, 0.75));
  glass.setColorAt(1, lit ? Mix(colour, Qt::black, 0.1) : Mix(colour, Qt::black, 0.92));
  painter.setPen(QPen(QColor(0, 0, 0, 220), radius * 0.1));
  painter.setBrush(glass);
  painter.drawEllipse(centre, radius, radius);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(Qt::white, lit ? 0.75 : 0.3));
  painter.drawEllipse(centre - QPointF(0.32, 0.42) * radius, radius * 0.26, radius * 0.16);
}

}  // namespace

void PaintLight(QPainter& painter, int number) {
  const bool ember = number == kEmberLit || number == kEmberUnlit;
  const bool lit = number == kSlateLit || number == kEmberLit;
  const Style& style = ember ? kEmber : kSlate;
  const double half = ember ? 27 : 12;
  const QPointF centre(half, half);
  PaintRing(painter, centre, half - 0.5, style);
  if (ember) {
    for (int i = 0; i < 8; ++i) {
      painter.save();
      painter.translate(centre);
      painter.rotate(22.5 + 45 * i);
      Rivet(painter, QPointF(0, -half + 5), 1.8, style);
      painter.restore();
    }
  }
  const double lens = half * (ember ? 0.62 : 0.68);
  if (lit) Spot(painter, centre, half, Mix(style.accent, Qt::white, 0.3), 1);  // its light on the ring
  PaintLens(painter, centre, lens, style.accent, lit);
  // Told without colour too: the lit lamp shows a star of light, the unlit one an empty ring.
  if (lit) {
    painter.setPen(QPen(Faint(Qt::white, 0.9), lens * 0.09, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre - QPointF(lens * 0.75, 0), centre + QPointF(lens * 0.75, 0));
    painter.drawLine(centre - QPointF(0, lens * 0.75), centre + QPointF(0, lens * 0.75));
    Spot(painter, centre, lens * 0.85, Qt::white, 1);
  } else {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Faint(style.edge, 0.25), lens * 0.1));
    painter.drawEllipse(centre, lens * 0.5, lens * 0.5);
  }
}

}  // namespace kv::datafile
