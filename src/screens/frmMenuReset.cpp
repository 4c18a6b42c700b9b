#include "screens/frmMenuReset.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace kv {

frmMenuReset::frmMenuReset(QWidget* parent, const PropertyBag& bag)
    : QAbstractButton(parent), focusColor_(bag.colour(u"focus_color", Qt::white)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  setToolTip(bag.text(u"tooltip"));
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (const std::function<void()> handler = DblClick) handler();
  });
}

bool frmMenuReset::event(QEvent* event) {
  // The toolkit would show the tooltip of a disabled widget: nothing is offered that cannot be had.
  if (event->type() == QEvent::ToolTip && !isEnabled()) return true;
  return QAbstractButton::event(event);
}

void frmMenuReset::paintEvent(QPaintEvent*) {
  if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
  QPainter painter(this);
  painter.setPen(focusColor_);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void frmMenuReset::mouseMoveEvent(QMouseEvent*) {
  if (MouseMove) MouseMove();
}

void frmMenuReset::mousePressEvent(QMouseEvent*) {}

void frmMenuReset::mouseReleaseEvent(QMouseEvent*) {}

void frmMenuReset::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) click();
}

void frmMenuReset::keyPressEvent(QKeyEvent* event) {
  const bool activates =
      event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!activates) {
    QAbstractButton::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    click();
  }
}

}  // namespace kv
