#include "presentation/GlobalPictures.h"

#include <QImage>
#include <QPainter>

namespace kv {
namespace {

constexpr int kScale = 2;
constexpr QSize kSlateCard(48, 64);
constexpr QSize kEmberCard(83, 102);
constexpr double kSlateCorner = 3.0;
constexpr double kEmberCorner = 5.0;

QImage Blank(QSize size) {
  QImage image(size * kScale, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(kScale);
  image.fill(Qt::transparent);
  return image;
}

Picture Keep(QImage image) {
  return Picture(std::make_shared<const QImage>(std::move(image)));
}

Picture Mask(QSize size, double corner) {
  QImage image = Blank(size);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(QPointF(0, 0), size), corner, corner);
  painter.end();
  return Keep(std::move(image));
}

// A warm light that is strongest at the rim, so that the card's value stays readable at full strength.
Picture Highlight() {
  QImage image = Blank(kEmberCard);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QRectF card(QPointF(0, 0), kEmberCard);
  QRadialGradient light(card.center(), card.height() * 0.62);
  light.setColorAt(0, QColor(255, 226, 150, 16));
  light.setColorAt(0.5, QColor(255, 222, 140, 44));
  light.setColorAt(0.8, QColor(255, 226, 150, 150));
  light.setColorAt(1, QColor(255, 244, 214, 255));
  painter.setBrush(light);
  painter.drawRoundedRect(card, kEmberCorner, kEmberCorner);
  painter.end();
  return Keep(std::move(image));
}

Picture Dim() {
  QImage image = Blank(kEmberCard);
  image.fill(QColor(10, 10, 12));
  return Keep(std::move(image));
}

}  // namespace

GlobalPictures::GlobalPictures()
    : picDim(Dim()),
      imgMaskSlate(Mask(kSlateCard, kSlateCorner)),
      imgMaskEmber(Mask(kEmberCard, kEmberCorner)) {}

const Picture& GlobalPictures::picHighlight() const {
  if (picHighlight_.empty()) picHighlight_ = Highlight();
  return picHighlight_;
}

}  // namespace kv
