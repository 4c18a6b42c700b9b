// A line of text that can be clicked, like a link on a page: underlined, brighter under the pointer or with
// the focus. It does not know what it leads to.
#pragma once

#include <QAbstractButton>
#include <QColor>

#include "platform/QtPropertyBag.h"

namespace kv {

class TextLink final : public QAbstractButton {
 public:
  /// Takes "caption", "font", "align" ("left", "center", "right"), "color", and "hover_color" (white).
  TextLink(QWidget* parent, const PropertyBag& bag);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor color_;
  QColor hoverColor_;
  Qt::Alignment alignment_;
};

}  // namespace kv
