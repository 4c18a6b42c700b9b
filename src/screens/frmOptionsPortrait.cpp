#include "screens/frmOptionsPortrait.h"

#include <QKeyEvent>
#include <QPainter>

#include "platform/QtKeys.h"

namespace kv {
namespace {

constexpr int kFrame = 2;  // layout pixels

}  // namespace

frmOptionsPortrait::frmOptionsPortrait(QWidget* parent, Layout& layout, QStringView control)
    : QAbstractButton(parent) {
  const PropertyBag bag = layout.bag(control);
  border_ = bag.colour(u"border", Qt::gray);
  accent_ = bag.colour(u"accent", Qt::white);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  layout.Place(control, *this);
}

void frmOptionsPortrait::setPicture(const Picture& picture) {
  picture_ = picture;
  update();
}

void frmOptionsPortrait::setBorder(const QColor& color) {
  border_ = color;
  update();
}

void frmOptionsPortrait::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), Qt::black);
  if (!picture_.empty()) painter.drawImage(rect(), *picture_.image());
  const bool lit = isEnabled() && (underMouse() || hasFocus());
  painter.setPen(QPen(lit ? accent_ : border_, kFrame));
  painter.drawRect(QRectF(rect()).adjusted(kFrame / 2.0, kFrame / 2.0, -kFrame / 2.0, -kFrame / 2.0));
}

void frmOptionsPortrait::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace kv
