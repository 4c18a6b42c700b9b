// The example of a side card as a small table: the card comes from its place on the page, what it turns rolls
// over, and the sum counts up to what comes of it. At its end it is the picture that the page shows at rest.
#pragma once

#include <QColor>
#include <QFont>
#include <optional>
#include <vector>

#include "cards/ctlCard.h"
#include "presentation/MovingPicture.h"
#include "screens/HelpExamples.h"

namespace kv {

struct SceneStyle {
  QColor fill;
  QColor border;
  QColor text;
  QFont font;
};

class ExampleScene final : public Moving {
 public:
  /// `plate` is its top left corner, `card` where the card begins, `height` that card's; layout pixels. Cards
  /// are drawn in this ratio of device pixels.
  ExampleScene(const HelpExample& example, const CardLook& look, const SceneStyle& style, double ratio,
               QPointF plate = {}, QPointF card = {}, double height = 0);

  [[nodiscard]] QRegion Area(double way) const override;
  void Paint(QPainter& painter, double way) const override;
  /// Of every example, in layout pixels.
  [[nodiscard]] static QSize Size(const CardLook& look);
  /// As it is at its end.
  [[nodiscard]] QImage Picture() const;

 private:
  struct Lying {
    QPointF place;
    QImage picture;                     // at the end
    std::optional<FlyingPicture> roll;  // of a card that is turned
  };

  std::vector<Lying> table_;
  QImage played_;
  QPointF playedPlace_;
  std::optional<FlyingPicture> flight_;
  SceneStyle style_;
  double ratio_;
  QRect plate_;
  QRect sum_;
  int from_;
  int to_;
};

/// The face of a card, so high in layout pixels.
[[nodiscard]] QImage SmallCard(const CardCode& code, const CardLook& look, double height, double ratio);

}  // namespace kv
