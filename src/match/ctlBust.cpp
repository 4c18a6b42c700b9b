#include "match/ctlBust.h"

#include <QMouseEvent>
#include <QPainter>

namespace kv {

ctlBust::ctlBust(QWidget* parent, Layout& layout, ButtonContext& context)
    : QWidget(parent), context_(context), message_(layout.NewLabel(u"lblBust", this)) {
  setMouseTracking(true);
  const PropertyBag bag = layout.bag(u"ctlBust");
  setStyle(bag.text(u"style", QStringLiteral("Slate")));
  border_ = bag.colour(u"border_color");
  fill_ = bag.colour(u"fill_color");
  message_->setWordWrap(true);
  button_ = new ctlButton(this, context);
  button_->ReadProperties(layout.bag(u"cmdBust"));
  layout.Place(u"cmdBust", *button_);
  layout.Place(u"ctlBust", *this);
  button_->Click = [this] {
    if (Click) Click();
  };
}

void ctlBust::setStyle(const QString& style) {
  if (style == QLatin1String("Slate") || style == QLatin1String("Ember")) style_ = style;
}

void ctlBust::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  QLinearGradient body(area.topLeft(), area.bottomLeft());
  body.setColorAt(0, fill_.lighter(220));
  body.setColorAt(0.35, fill_);
  body.setColorAt(1, fill_.darker(130));
  painter.fillRect(rect(), fill_);
  painter.setBrush(body);
  painter.setPen(QPen(border_, 2));
  painter.drawRect(area);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(border_.darker(200), 1));
  painter.drawRect(area.adjusted(4, 4, -4, -4));
}

void ctlBust::mouseMoveEvent(QMouseEvent*) {
  context_.unColor();
}

}  // namespace kv
