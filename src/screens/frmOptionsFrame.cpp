#include "screens/frmOptionsFrame.h"

#include <QPainter>

namespace kv {
namespace {

constexpr int kHeadingHeight = 26;  // layout pixels
constexpr int kHeadingIndent = 12;
constexpr int kFillAlpha = 226;  // the picture behind stays a hint
constexpr int kHeadingAlpha = 70;

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

void PaintHeading(QPainter& painter, const Panel& panel) {
  const QRect bar(panel.rect.left() + 1, panel.rect.top() + 1, panel.rect.width() - 2, kHeadingHeight - 1);
  QLinearGradient light(bar.topLeft(), bar.topRight());
  light.setColorAt(0, Faint(panel.border, 2 * kHeadingAlpha));
  light.setColorAt(1, Faint(panel.border, kHeadingAlpha / 4));
  painter.fillRect(bar, light);
  painter.fillRect(bar.left(), bar.bottom(), bar.width(), 1, panel.border);
  painter.setFont(panel.font);
  painter.setPen(panel.color);
  painter.drawText(bar.adjusted(kHeadingIndent, 0, 0, -1), Qt::AlignVCenter | Qt::AlignLeft, panel.heading);
}

}  // namespace

Panel PanelOf(const Layout& layout, QStringView control) {
  const PropertyBag bag = layout.bag(control);
  return {.rect = layout.rect(control),
          .fill = bag.colour(u"fill_color", Qt::black),
          .border = bag.colour(u"border_color", Qt::gray),
          .heading = bag.text(u"caption"),
          .font = bag.font(u"font"),
          .color = bag.colour(u"color", Qt::white)};
}

void PaintPanel(QPainter& painter, const Panel& panel) {
  QLinearGradient body(panel.rect.topLeft(), panel.rect.bottomLeft());
  body.setColorAt(0, Faint(panel.fill.lighter(150), kFillAlpha));
  body.setColorAt(0.4, Faint(panel.fill, kFillAlpha));
  body.setColorAt(1, Faint(panel.fill.darker(130), kFillAlpha));
  painter.fillRect(panel.rect, body);
  if (!panel.heading.isEmpty()) PaintHeading(painter, panel);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Faint(panel.border, 60), 1));
  painter.drawRect(QRectF(panel.rect).adjusted(-0.5, -0.5, 0.5, 0.5));
  painter.setPen(QPen(panel.border, 1));
  painter.drawRect(QRectF(panel.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

frmOptionsFrame::frmOptionsFrame(QWidget* parent, Layout& layout, QStringView control) : QWidget(parent) {
  setMouseTracking(true);
  layout.Place(control, *this);
}

void frmOptionsFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const Panel& panel : panels_) PaintPanel(painter, panel);
}

}  // namespace kv
