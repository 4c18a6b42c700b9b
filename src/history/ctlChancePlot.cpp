#include "history/ctlChancePlot.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace kv {
namespace {

// Layout pixels.
constexpr int kHead = 18;
constexpr int kFoot = 8;
constexpr int kScale = 44;  // left of the area: the per cents
constexpr int kEdge = 10;
constexpr double kMark = 3.5;
constexpr int kBandStrength = 70;  // of 255

}  // namespace

ctlChancePlot::ctlChancePlot(QWidget* parent, const PropertyBag& bag)
    : ctlPlot(parent, bag, {kScale, kHead, kEdge, kFoot}), dear_(bag.colour(u"dear", Qt::red)) {}

void ctlChancePlot::setPoints(std::vector<ChancePoint> points, std::size_t all) {
  points_ = std::move(points);
  all_ = all;
  setChosen(points_.empty() ? 0 : std::min(chosen(), points_.size() - 1));
  const auto dear = std::count_if(points_.begin(), points_.end(), [](const auto& each) { return each.dear; });
  QString name = QStringLiteral("Chance to win over the match: nothing weighed yet");
  if (!points_.empty()) {
    name = QStringLiteral("Chance to win over the match: from %1 to %2 % in %3 decisions, %4 of them dear")
               .arg(std::lround(100 * points_.front().chance))
               .arg(std::lround(100 * points_.back().chance))
               .arg(points_.size())
               .arg(dear);
  }
  setAccessibleName(name);
}

QPointF ctlChancePlot::At(std::size_t point, double chance) const {
  return {Across(point), Area().bottom() - chance * Area().height()};
}

void ctlChancePlot::PaintPlot(QPainter& painter) const {
  PaintGrid(painter);
  if (points_.empty()) return;
  PaintSets(painter);
  PaintChances(painter);
  PaintMarks(painter);
}

void ctlChancePlot::PaintGrid(QPainter& painter) const {
  for (const int percent : {0, 25, 50, 75, 100}) {
    const double y = At(0, percent / 100.0).y();
    PaintLevel(painter, y);
    if (percent % 50 != 0) continue;
    painter.setPen(text_);
    painter.drawText(QRectF(0, y - kFoot, kScale - 6, 2 * kFoot), Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("%1 %").arg(percent));
  }
}

void ctlChancePlot::PaintSets(QPainter& painter) const {
  for (std::size_t i = 0; i < points_.size(); ++i) {
    if (i > 0 && points_[i].set == points_[i - 1].set) continue;
    const double x = i == 0 ? Area().left() : (Across(i) + Across(i - 1)) / 2;
    painter.setPen(QPen(grid_, 1));
    painter.drawLine(QPointF(x, Area().top()), QPointF(x, Area().bottom()));
    painter.setPen(text_);
    painter.drawText(QRectF(x + 2, 0, 2 * kScale, kHead), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("set %1").arg(points_[i].set));
  }
}

void ctlChancePlot::PaintChances(QPainter& painter) const {
  QPolygonF band;
  QPolygonF line;
  for (std::size_t i = 0; i < points_.size(); ++i) {
    band << At(i, points_[i].within.high);
    line << At(i, points_[i].chance);
  }
  for (std::size_t i = points_.size(); i > 0; --i) band << At(i - 1, points_[i - 1].within.low);
  QColor pale = line_;
  pale.setAlpha(kBandStrength);
  painter.setPen(Qt::NoPen);
  painter.setBrush(pale);
  painter.drawPolygon(band);
  painter.setPen(QPen(line_, 1.6));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(line);
}

void ctlChancePlot::PaintMarks(QPainter& painter) const {
  for (std::size_t i = 0; i < points_.size(); ++i) {
    if (!points_[i].dear) continue;
    // From what the best move was worth down to what was made of it.
    painter.setPen(QPen(dear_, 2));
    painter.drawLine(At(i, points_[i].best), At(i, points_[i].chance));
    painter.setPen(Qt::NoPen);
    painter.setBrush(dear_);
    painter.drawRect(QRectF(At(i, points_[i].chance) - QPointF(kMark, kMark), QSizeF(2 * kMark, 2 * kMark)));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(accent_);
  painter.drawEllipse(At(chosen(), points_.at(chosen()).chance), kMark, kMark);
}

}  // namespace kv
