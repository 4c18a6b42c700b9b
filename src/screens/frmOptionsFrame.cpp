#include "screens/frmOptionsFrame.h"

#include <QLabel>
#include <QPainter>

namespace kv {
namespace {

constexpr int kHeadingHeight = 26;  // layout pixels
constexpr int kHeadingIndent = 12;
constexpr int kFillStrength = 226;  // the picture behind stays a hint
constexpr int kHeadingAlpha = 70;
constexpr int kShadow = 3;  // layout pixels
constexpr int kCorner = 9;

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

QRect HeadingOf(const Panel& panel) {
  return {panel.rect.left() + 1, panel.rect.top() + 1, panel.rect.width() - 2, kHeadingHeight - 1};
}

void PaintHeading(QPainter& painter, const Panel& panel) {
  const QRect bar = HeadingOf(panel);
  QLinearGradient light(bar.topLeft(), bar.topRight());
  light.setColorAt(0, Faint(panel.border, 2 * kHeadingAlpha));
  light.setColorAt(1, Faint(panel.border, kHeadingAlpha / 4));
  painter.fillRect(bar, light);
  painter.fillRect(bar.left(), bar.bottom(), bar.width(), 1, panel.border);
}

/// Bright corners, and the shadow that the panel casts on the picture.
void PaintCorners(QPainter& painter, const Panel& panel) {
  for (int i = 1; i <= kShadow; ++i) {
    painter.setPen(QPen(QColor(0, 0, 0, 90 / i), 1));
    painter.drawLine(panel.rect.left() + i, panel.rect.bottom() + i, panel.rect.right() + i,
                     panel.rect.bottom() + i);
    painter.drawLine(panel.rect.right() + i, panel.rect.top() + i, panel.rect.right() + i,
                     panel.rect.bottom() + i);
  }
  const QRect at = panel.rect;
  const QColor bright = panel.border.lighter(170);
  for (const int x : {at.left(), at.right() - kCorner + 1}) {
    for (const int y : {at.top(), at.bottom() - 1}) painter.fillRect(x, y, kCorner, 2, bright);
  }
  for (const int x : {at.left(), at.right() - 1}) {
    for (const int y : {at.top(), at.bottom() - kCorner + 1}) painter.fillRect(x, y, 2, kCorner, bright);
  }
}

}  // namespace

Panel PanelOf(const Layout& layout, QStringView control) {
  const PropertyBag bag = layout.bag(control);
  return {.rect = layout.rect(control),
          .fill = Faint(bag.colour(u"fill", Qt::black), bag.number(u"fill_strength", kFillStrength)),
          .border = bag.colour(u"border", Qt::gray),
          .headed = bag.has(u"caption")};
}

void PaintPanel(QPainter& painter, const Panel& panel) {
  QLinearGradient body(panel.rect.topLeft(), panel.rect.bottomLeft());
  body.setColorAt(0, panel.fill.lighter(150));
  body.setColorAt(0.4, panel.fill);
  body.setColorAt(1, panel.fill.darker(130));
  painter.fillRect(panel.rect, body);
  if (panel.headed) PaintHeading(painter, panel);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Faint(panel.border, 60), 1));
  painter.drawRect(QRectF(panel.rect).adjusted(-0.5, -0.5, 0.5, 0.5));
  painter.setPen(QPen(panel.border, 1));
  painter.drawRect(QRectF(panel.rect).adjusted(0.5, 0.5, -0.5, -0.5));
  PaintCorners(painter, panel);
}

frmOptionsFrame::frmOptionsFrame(QWidget* parent, Layout& layout, QStringView control) : QWidget(parent) {
  setMouseTracking(true);
  layout.Place(control, *this);
}

void frmOptionsFrame::AddPanel(Layout& layout, QStringView control) {
  const Panel panel = PanelOf(layout, control);
  if (panel.headed) {
    layout.NewLabel(control, this)->setGeometry(HeadingOf(panel).adjusted(kHeadingIndent, 0, 0, -1));
  }
  panels_.push_back(panel);
}

void frmOptionsFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const Panel& panel : panels_) PaintPanel(painter, panel);
}

}  // namespace kv
