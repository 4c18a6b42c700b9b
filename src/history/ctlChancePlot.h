// The chance to win at each decision of a match, with its interval, in the colours of the layout; the dear
// decisions are marked. With the focus on it the arrow keys go from decision to decision.
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <vector>

#include "platform/Interval.h"
#include "platform/QtPropertyBag.h"

namespace kv {

struct ChancePoint {
  double chance = 0;  // of the move that was made, 0 to 1, as all that follow
  Interval within;
  double best = 0;
  bool dear = false;
  int set = 1;
};

class ctlChancePlot final : public QWidget {
 public:
  /// Takes "color" (text), "line", "grid", "accent" (the chosen decision, the focus), "dear" and "font".
  ctlChancePlot(QWidget* parent, const PropertyBag& bag);

  /// In the order of the match; `all` is how many there will be.
  void setPoints(std::vector<ChancePoint> points, std::size_t all);
  void setChosen(std::size_t point);
  /// The person has gone to a decision.
  std::function<void(std::size_t point)> Chosen;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] QRectF Area() const;
  [[nodiscard]] double Across(std::size_t point) const;
  [[nodiscard]] QPointF At(std::size_t point, double chance) const;
  void PaintGrid(QPainter& painter) const;
  void PaintSets(QPainter& painter) const;
  void PaintChances(QPainter& painter) const;
  void PaintMarks(QPainter& painter) const;

  QColor text_;
  QColor line_;
  QColor grid_;
  QColor accent_;
  QColor dear_;
  std::vector<ChancePoint> points_;
  std::size_t all_ = 0;
  std::size_t chosen_ = 0;
};

}  // namespace kv
