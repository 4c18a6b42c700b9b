// Pictures on their way: a flight from place to place, turning over or not; a panel that unfolds; a row of
// pictures that shakes.
#pragma once

#include <QImage>
#include <QPointF>
#include <utility>
#include <vector>

#include "presentation/Motion.h"

namespace kv {

/// Places are top left corners, in layout pixels of the screen.
struct Flight {
  QImage front{};
  QImage back{};  // not null: it is seen first, and the picture turns around its axis on the way
  QSizeF size{};  // where it lands; that of the front if none is given
  QPointF from{};
  QPointF to{};
  double fromScale = 1;
  double lift = 0;  // how much larger it is half-way, as if nearer to the eye; throws a shadow then
};

class FlyingPicture final : public Moving {
 public:
  explicit FlyingPicture(Flight flight);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  [[nodiscard]] double Height(double way) const;  // 0 on the table, 1 half-way
  [[nodiscard]] QRectF Place(double way) const;

  Flight flight_;
  QImage frontShade_;  // all dark, in its outline
  QImage backShade_;
  QSizeF size_;
};

/// Opens from its middle line to both sides.
class UnfoldingPicture final : public Moving {
 public:
  UnfoldingPicture(QImage picture, QRect place) : picture_(std::move(picture)), place_(place) {}
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  QImage picture_;
  QRect place_;
};

struct PlacedPicture {
  QImage picture;
  QRect place;
};

/// All of them together, from side to side, less and less.
class ShakingPictures final : public Moving {
 public:
  /// `reach` layout pixels to either side at first.
  ShakingPictures(std::vector<PlacedPicture> pictures, double reach);
  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;

 private:
  std::vector<PlacedPicture> pictures_;
  double reach_;
  QRect place_;
};

}  // namespace kv
