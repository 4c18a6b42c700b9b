#include "match/ctlFlip.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <memory>

#include "platform/QtKeys.h"

namespace kv {
namespace {

constexpr QColor kUnusable{0x80, 0x80, 0x80};

/// A half-circle arrow whose head points to the right (or, mirrored, to the left).
void DrawArrow(QPainter& painter, QPointF centre, qreal size, bool mirrored) {
  painter.save();
  painter.translate(centre);
  if (mirrored) painter.rotate(180);
  painter.drawLine(QPointF(-size, 0), QPointF(size, 0));
  const QPointF head[] = {{size * 0.5, -size * 0.5}, {size, 0}, {size * 0.5, size * 0.5}};
  painter.drawPolyline(head, 3);
  painter.restore();
}

struct Strokes {
  QColor line;
  QColor fill;
  double width;  // of the border
};

void DrawButton(QPainter& painter, QSize size, ctlFlip::Kind kind, const Strokes& strokes) {
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area(QPointF(0, 0), size);
  painter.setPen(QPen(strokes.line, strokes.width));
  painter.setBrush(strokes.fill);
  painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  const QPointF centre = area.center();
  const qreal unit = area.height() / 5.0;
  painter.setPen(QPen(strokes.line, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  DrawArrow(painter, centre - QPointF(0, unit * 0.8), unit * 1.3, false);
  DrawArrow(painter, centre + QPointF(0, unit * 0.8), unit * 1.3, true);
  painter.setFont(FontOf(QStringLiteral("BankGothic Md BT"), area.height() * 0.45, true));
  const qreal side = area.width() / 2.0 - unit * 1.6;
  const bool sign = kind == ctlFlip::Kind::Sign;
  painter.drawText(QRectF(0, 0, side, area.height()), Qt::AlignCenter,
                   sign ? QStringLiteral("+") : QStringLiteral("1"));
  painter.drawText(QRectF(area.width() - side, 0, side, area.height()), Qt::AlignCenter,
                   sign ? QStringLiteral("\u2212") : QStringLiteral("2"));
}

}  // namespace

ctlFlip::ctlFlip(QWidget* parent, Kind kind, const PropertyBag& bag, Picture hoverPicture)
    : QAbstractButton(parent),
      kind_(kind),
      hoverPicture_(std::move(hoverPicture)),
      color_(bag.colour(u"color")),
      hoverColor_(bag.colour(u"hover_color")),
      fillColor_(bag.colour(u"fill_color")) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (Click) Click();
  });
}

void ctlFlip::Plain() {
  if (!hovered_) return;
  hovered_ = false;
  update();
}

QColor ctlFlip::Line() const {
  if (!isEnabled()) return kUnusable;
  return hovered_ || hasFocus() ? hoverColor_ : color_;
}

Picture ctlFlip::HoverPicture(Kind kind, const PropertyBag& bag, QSize size, double pixelRatio) {
  QImage image((QSizeF(size) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(pixelRatio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  DrawButton(painter, size, kind,
             {.line = bag.colour(u"hover_color"), .fill = bag.colour(u"fill_color"), .width = 1});
  painter.end();
  return Picture(std::make_shared<const QImage>(std::move(image)));
}

void ctlFlip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (hovered_ && isEnabled() && !hasFocus() && !isDown()) {
    painter.drawImage(QPointF(0, 0), *hoverPicture_.image());
    return;
  }
  const QColor line = Line();
  DrawButton(
      painter, size(), kind_,
      {.line = line, .fill = isDown() ? line.darker(300) : fillColor_, .width = hasFocus() ? 2.0 : 1.0});
}

void ctlFlip::mouseMoveEvent(QMouseEvent* event) {
  if (!hovered_) {
    hovered_ = true;
    update();
  }
  QAbstractButton::mouseMoveEvent(event);
  event->accept();  // the panel below would take the highlight away again
}

void ctlFlip::leaveEvent(QEvent* event) {
  Plain();
  QAbstractButton::leaveEvent(event);
}

void ctlFlip::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace kv
