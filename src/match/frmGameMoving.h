// What moves on the match screen besides cards: a total that counts up, and the lid that closes over a table.
#pragma once

#include <QFont>
#include <QLabel>
#include <vector>

#include "presentation/MovingPicture.h"

namespace kv {

/// Stands for a label with a number, counting towards it; one that went too far shakes.
class CountingTotal final : public Moving {
 public:
  CountingTotal(const QLabel& label, QRect place, int from, int to, double reach);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  QFont font_;
  QColor colour_;
  Qt::Alignment alignment_;
  QRect place_;
  int from_;
  int to_;
  double reach_;  // layout pixels, to either side at first
};

/// Comes down over the cards of a table, which lie bright until its edge has passed them.
class ClosingLid final : public Moving {
 public:
  /// `cards` as they were; the last `arriving` of them are painted by their own motion until the lid moves.
  ClosingLid(std::vector<PlacedPicture> cards, int arriving, QColor light, int edge);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  [[nodiscard]] int Line(double way) const;

  std::vector<PlacedPicture> cards_;
  int arriving_;
  QColor light_;
  int edge_;  // height of the light along the edge, layout pixels
  QRect place_;
};

}  // namespace kv
