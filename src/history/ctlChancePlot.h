// The chance to win at each decision of a match, with its interval; the dear decisions are marked.
#pragma once

#include <vector>

#include "history/ctlPlot.h"
#include "platform/Interval.h"

namespace kv {

struct ChancePoint {
  double chance = 0;  // of the move that was made, 0 to 1, as all that follow
  Interval within;
  double best = 0;
  bool dear = false;
  int set = 1;
};

class ctlChancePlot final : public ctlPlot {
 public:
  /// Takes what every plot takes, and "dear".
  ctlChancePlot(QWidget* parent, const PropertyBag& bag);

  /// In the order of the match; `all` is how many there will be.
  void setPoints(std::vector<ChancePoint> points, std::size_t all);

 private:
  [[nodiscard]] std::size_t Points() const override { return points_.size(); }
  [[nodiscard]] std::size_t Places() const override { return all_; }
  void PaintPlot(QPainter& painter) const override;
  [[nodiscard]] QPointF At(std::size_t point, double chance) const;
  void PaintGrid(QPainter& painter) const;
  void PaintSets(QPainter& painter) const;
  void PaintChances(QPainter& painter) const;
  void PaintMarks(QPainter& painter) const;

  const QColor dear_;
  std::vector<ChancePoint> points_;
  std::size_t all_ = 0;
};

}  // namespace kv
