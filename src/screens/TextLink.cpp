#include "screens/TextLink.h"

#include <QPainter>

namespace kv {
namespace {

constexpr double kUnusable = 0.45;  // how strongly a disabled link is drawn

}  // namespace

TextLink::TextLink(QWidget* parent, const PropertyBag& bag)
    : QAbstractButton(parent),
      color_(bag.colour(u"color", Qt::white)),
      hoverColor_(bag.colour(u"hover_color", Qt::white)),
      alignment_(Qt::AlignVCenter) {
  const QString align = bag.text(u"align");
  alignment_ |= align == QStringLiteral("right")    ? Qt::AlignRight
                : align == QStringLiteral("center") ? Qt::AlignHCenter
                                                    : Qt::AlignLeft;
  setText(bag.text(u"caption"));
  QFont underlined = bag.font(u"font", font());
  underlined.setUnderline(true);
  setFont(underlined);
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
}

QSize TextLink::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()};
}

void TextLink::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool byKeyboard = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
  if (!isEnabled()) painter.setOpacity(kUnusable);
  painter.setPen(isEnabled() && (underMouse() || byKeyboard) ? hoverColor_ : color_);
  painter.drawText(rect(), static_cast<int>(alignment_), text());
  if (byKeyboard) painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace kv
