#include "history/ctlPlot.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kv {
namespace {

constexpr std::size_t kPages = 10;  // from one end to the other

}  // namespace

ctlPlot::ctlPlot(QWidget* parent, const PropertyBag& bag, const QMargins& around)
    : QWidget(parent),
      text_(bag.colour(u"color", Qt::white)),
      line_(bag.colour(u"line", Qt::white)),
      grid_(bag.colour(u"grid", Qt::gray)),
      accent_(bag.colour(u"accent", Qt::white)),
      around_(around) {
  setFont(bag.font(u"font", font()));
  setFocusPolicy(Qt::StrongFocus);
}

void ctlPlot::setChosen(std::size_t point) {
  chosen_ = point;
  update();
}

double ctlPlot::Across(std::size_t point) const {
  const double part = Places() < 2 ? 0.5 : static_cast<double>(point) / static_cast<double>(Places() - 1);
  return Area().left() + part * Area().width();
}

void ctlPlot::PaintLevel(QPainter& painter, double y) const {
  painter.setPen(QPen(grid_, 1));
  painter.drawLine(QPointF(Area().left(), y), QPointF(Area().right(), y));
}

void ctlPlot::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintPlot(painter);
  if (!hasFocus()) return;
  painter.setPen(QPen(accent_, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void ctlPlot::keyPressEvent(QKeyEvent* event) {
  const std::size_t last = Points() == 0 ? 0 : Points() - 1;
  const std::size_t page = std::max<std::size_t>(1, Points() / kPages);
  switch (event->key()) {
    case Qt::Key_Left:
      return GoTo(chosen_ - std::min<std::size_t>(1, chosen_));
    case Qt::Key_Right:
      return GoTo(std::min(last, chosen_ + 1));
    case Qt::Key_PageUp:
      return GoTo(chosen_ - std::min(page, chosen_));
    case Qt::Key_PageDown:
      return GoTo(std::min(last, chosen_ + page));
    case Qt::Key_Home:
      return GoTo(0);
    case Qt::Key_End:
      return GoTo(last);
    default:
      QWidget::keyPressEvent(event);
  }
}

void ctlPlot::mousePressEvent(QMouseEvent* event) {
  if (Points() == 0) return;
  const double part = std::clamp((event->position().x() - Area().left()) / Area().width(), 0.0, 1.0);
  const auto point = static_cast<std::size_t>(std::lround(part * static_cast<double>(Places() - 1)));
  GoTo(std::min(Points() - 1, point));
}

void ctlPlot::GoTo(std::size_t point) {
  if (Points() == 0) return;
  setChosen(point);
  if (Chosen) Chosen(point);
}

void ctlPlot::focusInEvent(QFocusEvent*) {
  update();
}

void ctlPlot::focusOutEvent(QFocusEvent*) {
  update();
}

}  // namespace kv
