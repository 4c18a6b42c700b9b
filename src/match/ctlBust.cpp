#include "match/ctlBust.h"

#include <QMouseEvent>
#include <QPainter>

#include "presentation/PanelPainter.h"

namespace kv {
namespace {

// Layout pixels.
constexpr int kGripWidth = 80;
constexpr int kGripAt = 12;  // its middle, from the upper edge

}  // namespace

ctlBust::ctlBust(QWidget* parent, Layout& layout, ButtonContext& context)
    : QWidget(parent),
      context_(context),
      look_(layout.bag(u"ctlBust")),
      highest_(layout.rect(u"ctlTitlebar").height()),
      message_(layout.NewLabel(u"lblBust", this)),
      reason_(layout.NewLabel(u"lblReason", this)) {
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
  PanelDrag::Paint(painter, {width() / 2 - kGripWidth / 2, 0, kGripWidth, 2 * kGripAt},
                   look_.colour(u"border_color", Qt::gray));
}

void ctlBust::mousePressEvent(QMouseEvent* event) {
  drag_.Press(*event);
}

void ctlBust::mouseMoveEvent(QMouseEvent* event) {
  context_.unColor();
  drag_.Move(*this, *event, highest_);
}

void ctlBust::mouseReleaseEvent(QMouseEvent*) {
  drag_.Release();
}

}  // namespace kv
