// The credits after each match as a line; it says what it shows at a match.
#pragma once

#include <string>
#include <vector>

#include "history/HistoryStats.h"
#include "history/ctlPlot.h"

namespace kv {

class ctlCreditsPlot final : public ctlPlot {
 public:
  ctlCreditsPlot(QWidget* parent, const PropertyBag& bag);

  /// From the oldest to the newest.
  void setPoints(std::vector<CreditPoint> points);
  /// What it shows at a point, for who does not see it.
  [[nodiscard]] std::string Sentence(std::size_t point) const;

 private:
  [[nodiscard]] std::size_t Points() const override { return points_.size(); }
  void PaintPlot(QPainter& painter) const override;
  [[nodiscard]] QPointF At(std::size_t point) const;
  void PaintLine(QPainter& painter) const;
  void PaintTexts(QPainter& painter) const;

  std::vector<CreditPoint> points_;
  std::int32_t least_ = 0;  // 0, unless somebody had less
  std::int32_t most_ = 0;
};

}  // namespace kv
