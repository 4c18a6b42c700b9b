#include "platform/QtDialogSign.h"

#include <QPainter>
#include <QPainterPath>
#include <QString>

#include "platform/QtPropertyBag.h"

namespace kv {
namespace {

constexpr int kSide = 44;  // layout pixels
constexpr int kLetter = 20;

struct Sign {
  QColor colour;
  char16_t letter;
};

Sign SignOf(DialogIcon icon) {
  switch (icon) {
    case DialogIcon::Exclamation:
      return {QColor(255, 176, 72), u'!'};
    case DialogIcon::Critical:
      return {QColor(236, 76, 64), u'\u00d7'};
    case DialogIcon::Question:
      return {QColor(0, 169, 251), u'?'};
    default:
      return {QColor(26, 178, 140), u'i'};
  }
}

QPainterPath Lozenge(double inset) {
  const double middle = kSide / 2.0;
  QPainterPath path;
  path.addPolygon(
      QPolygonF({{middle, inset}, {kSide - inset, middle}, {middle, kSide - inset}, {inset, middle}}));
  path.closeSubpath();
  return path;
}

}  // namespace

QPixmap DialogSign(DialogIcon icon, qreal ratio) {
  if (icon == DialogIcon::None) return {};
  const Sign sign = SignOf(icon);
  QPixmap pixmap((QSizeF(kSide, kSide) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient light(0, 0, kSide, kSide);
  light.setColorAt(0, sign.colour.darker(170));
  light.setColorAt(1, sign.colour.darker(420));
  painter.fillPath(Lozenge(1), light);
  painter.strokePath(Lozenge(1.5), QPen(sign.colour, 1.6));
  QColor inner = sign.colour;
  inner.setAlpha(90);
  painter.strokePath(Lozenge(5), QPen(inner, 1));
  QFont font = FontOf(QStringLiteral("BankGothic Md BT"));
  font.setPixelSize(kLetter);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, 0, kSide, kSide), Qt::AlignCenter, QString(QChar(sign.letter)));
  return pixmap;
}

}  // namespace kv
