// A flip button under a hand card: turns the card's sign, or 1 into 2. Shows its hover picture while the
// pointer is over it; Space and Enter click it.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <functional>

#include "platform/Picture.h"
#include "platform/QtPropertyBag.h"

namespace kv {

class ctlFlip final : public QAbstractButton {
 public:
  enum class Kind {
    Sign,      // imgFlip: plus and minus
    OneOrTwo,  // imgFlip2
  };
  /// Colours from the bag: "color", "hover_color", "fill_color". `hoverPicture` is what it shows while the
  /// pointer is over it.
  ctlFlip(QWidget* parent, Kind kind, const PropertyBag& bag, Picture hoverPicture);

  /// The hover picture of all buttons of a kind, `size` layout pixels large on a screen of this density.
  [[nodiscard]] static Picture HoverPicture(Kind kind, const PropertyBag& bag, QSize size, double pixelRatio);

  std::function<void()> Click;

  /// Back to the plain picture.
  void Plain();
  [[nodiscard]] bool hovered() const { return hovered_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QColor Line() const;

  Kind kind_;
  Picture hoverPicture_;
  QColor color_;
  QColor hoverColor_;
  QColor fillColor_;
  bool hovered_ = false;
};

}  // namespace kv
