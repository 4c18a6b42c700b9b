#include "match/ctlBust.h"

#include <QMouseEvent>
#include <QPainter>

#include "presentation/PanelPainter.h"

namespace kv {

ctlBust::ctlBust(QWidget* parent, Layout& layout, ButtonContext& context)
    : QWidget(parent),
      context_(context),
      look_(layout.bag(u"ctlBust")),
      message_(layout.NewLabel(u"lblBust", this)) {
  setMouseTracking(true);
  setStyle(look_.text(u"style", QStringLiteral("Slate")));
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
  PaintPanel(painter, rect(), look_);
}

void ctlBust::mouseMoveEvent(QMouseEvent*) {
  context_.unColor();
}

}  // namespace kv
