// The example of a side card as a small table: the card comes from its place on the page, what it turns rolls
// over, and the sum counts up to what comes of it. At its end it is the picture that the page shows at rest.
#pragma once

#include <QColor>
#include <QFont>
#include <functional>
#include <map>
#include <optional>
#include <string>
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

/// The face of a card, so high in layout pixels.
[[nodiscard]] QImage SmallCard(const CardCode& code, const CardLook& look, double height, double ratio);

/// The faces that lie on the tables of examples, each made once.
class SmallCards {
 public:
  /// `look` must outlive it; `ratio` is that of device pixels.
  SmallCards(const CardLook& look, double ratio) : look_(look), ratio_(ratio) {}
  [[nodiscard]] const QImage& Of(const CardCode& code);
  [[nodiscard]] const CardLook& look() const { return look_; }
  [[nodiscard]] double ratio() const { return ratio_; }

 private:
  std::reference_wrapper<const CardLook> look_;
  double ratio_;
  std::map<std::string, QImage> made_;
};

class ExampleScene final : public Moving {
 public:
  /// `plate` is its top left corner, in layout pixels.
  ExampleScene(const HelpExample& example, SmallCards& cards, const SceneStyle& style, QPointF plate = {});
  /// The played card comes from this place, where it lies as in `card`; without it, it just lies there at the
  /// end.
  void FlyFrom(const QImage& card, QPointF place);

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
  bool turns_ = false;  // it lies there with another face than on the page
  QPointF playedPlace_;
  std::optional<FlyingPicture> flight_;
  SceneStyle style_;
  double ratio_;
  QRect plate_;
  QRect sum_;
  int from_;
  int to_;
};

}  // namespace kv
