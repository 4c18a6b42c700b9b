#include "cards/ctlCard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "cards/CardMeaning.h"
#include "platform/QtPropertyBag.h"
#include "platform/QtText.h"
#include "platform/Text.h"

namespace kv {

/// Sizes and places in layout pixels.
struct ctlCard::StyleLayout {
  const char* style;
  QSize size;
  QRect caption;
  int captionFont;  // points
  bool captionBold;
  QColor captionColour;
  bool captionOpaque;
  QColor plate;  // under the count, and under an opaque caption
  QPoint count;
  int countFont;  // points
};

namespace {

constexpr int kDimLevel = 105;
constexpr int kFacePictures = 200;
constexpr int kEmberStep = 20;
constexpr const char* kLabelFont = "BankGothic Lt BT";

/// A caption's text as it is shown: a doubled ampersand stands for one.
QString Shown(QString caption) {
  return caption.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

QImage Scaled(const Picture& picture, QSize size) {
  QImage image = picture.image()->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  image.setDevicePixelRatio(1);
  return image;
}

}  // namespace

const ctlCard::StyleLayout* ctlCard::LayoutOf(const QString& style) {
  static const StyleLayout kLayouts[] = {
      {"Slate", {48, 64}, {8, 19, 33, 16}, 11, false, {0, 169, 251}, true, {0, 12, 24}, {22, 52}, 10},
      {"Ember", {83, 102}, {20, 32, 43, 21}, 14, true, {180, 180, 160}, false, {24, 15, 8}, {52, 84}, 12},
  };
  for (const StyleLayout& layout : kLayouts) {
    if (style == QLatin1String(layout.style)) return &layout;
  }
  return nullptr;
}

ctlCard::ctlCard(QWidget* parent, const CardLook& look)
    : QWidget(parent), look_(look), layout_(LayoutOf(QStringLiteral("Slate"))) {
  setMouseTracking(true);
  setStyle(QString::fromStdString(look.interfaceStyle));
}

void ctlCard::ReadProperties(const PropertyBag& bag) {
  setCaption(bag.text(u"caption"));
  setCard(bag.text(u"card").toStdString());
  setCount(std::to_string(bag.number(u"count", -1)));
  setEnabled(bag.flag(u"enabled", true));
  const bool showCount = bag.flag(u"show_count", false);
  setShow_Count(showCount);
  setStyle(bag.text(u"style", QStringLiteral("Slate")));
}

void ctlCard::Alpha(const Picture& picture, int level) {
  overlay_ = picture;
  overlayLevel_ = qBound(0, level, 255);
  update();
}

void ctlCard::grey() {
  Refresh(true, true);
}

void ctlCard::setCaption(const QString& caption) {
  ShowCaption(caption);
}

void ctlCard::ShowCaption(const QString& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  update();
}

void ctlCard::setCard(std::string_view code) {
  const CardCode old = code_;
  code_ = CardCode(LowerAscii(code));
  setToolTip(ToQString(CardMeaning(code_)));
  Refresh(!isEnabled(), old.prefix() != code_.prefix());
}

void ctlCard::setCount(std::string_view text) {
  count_ = static_cast<std::int16_t>(NumberOf(text));
  countLabel_ = ToQString(text);
  update();
}

void ctlCard::setEnabled(bool enabled) {
  QWidget::setEnabled(enabled);
  if (!enabled) press_ = Press::None;
  Refresh(!enabled, true);
}

void ctlCard::setShow_Count(bool show) {
  showCount_ = show;
  update();
}

void ctlCard::setStyle(const QString& style) {
  style_ = style;
  const StyleLayout* layout = LayoutOf(style);
  if (layout == nullptr) return;
  layout_ = layout;
  resize(layout->size);
  countLabel_ = QStringLiteral("-1");
  showCount_ = false;
  Refresh(!isEnabled(), true);
}

void ctlCard::setPlace(const QString& place) {
  place_ = place;
  Refresh(!isEnabled(), false);
}

bool ctlCard::Ember() const {
  return style_ == QLatin1String("Ember");
}

void ctlCard::Refresh(bool dim, bool reloadPicture) {
  cardValue = static_cast<std::int16_t>(code_.cardValue());
  const QString spoken = QString::fromStdString(SpokenCard(code_));
  const QString name =
      spoken.isEmpty() || place_.isEmpty() ? spoken + place_ : spoken + QStringLiteral(", ") + place_;
  // A screen of many cards would tell a screen reader more at once than it listens to.
  if (name != accessibleName()) setAccessibleName(name);
  update();
  if (code_.type() == CardType::Placeholder) {
    cardValue = 0;
    ShowCaption(QStringLiteral("OOO"));
    return;
  }
  if (code_.empty()) {
    face_ = Picture();
    Alpha({}, 0);
    ShowCaption({});
    return;
  }
  if (reloadPicture) {
    face_ = look_.faces.CardFace(kFacePictures + (Ember() ? kEmberStep : 0) + code_.pictureSlot());
    Alpha({}, 0);
  }
  if (dim) Alpha(look_.picDim, kDimLevel);
  ShowCaption(QString::fromStdString(code_.Caption()));
}

QRect ctlCard::CaptionRect() const {
  return code_.captionHidden() || caption_.isEmpty() ? QRect() : layout_->caption;
}

QImage ctlCard::Surface(qreal ratio) const {
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  QImage surface(pixels, QImage::Format_ARGB32_Premultiplied);
  surface.fill(Qt::transparent);
  if (face_.empty()) return surface;
  QPainter painter(&surface);
  painter.drawImage(0, 0, Scaled(face_, pixels));
  if (!overlay_.empty() && overlayLevel_ > 0) {
    painter.setOpacity(overlayLevel_ / 255.0);
    painter.drawImage(0, 0, Scaled(overlay_, pixels));
    painter.setOpacity(1);
  }
  const Picture& mask = Ember() ? look_.imgMaskEmber : look_.imgMaskSlate;
  if (!mask.empty()) {
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, Scaled(mask, pixels));
  }
  painter.end();
  surface.setDevicePixelRatio(ratio);
  return surface;
}

void ctlCard::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(0, 0, Surface(devicePixelRatioF()));
  DrawLabels(painter);
  if (hasFocus()) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  }
}

void ctlCard::DrawLabels(QPainter& painter) const {
  painter.setPen(layout_->captionColour);
  const QRect caption = CaptionRect();
  if (!caption.isEmpty()) {
    if (layout_->captionOpaque) painter.fillRect(caption, layout_->plate);
    painter.setFont(FontOf(QLatin1String(kLabelFont), layout_->captionFont, layout_->captionBold));
    painter.drawText(caption, Qt::AlignCenter | Qt::TextDontClip, Shown(caption_));
  }
  if (showCount_) DrawCount(painter);
}

void ctlCard::DrawCount(QPainter& painter) const {
  painter.setFont(FontOf(QLatin1String(kLabelFont), layout_->countFont, false));
  const QRect area(layout_->count, QPoint(width() - 4, height() - 1));
  constexpr int kFlags = Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip;
  const QRect text = painter.boundingRect(area, kFlags, countLabel_);
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(layout_->plate);
  painter.drawRoundedRect(QRectF(text.adjusted(-3, 0, 3, 0)).intersected(rect()), 3, 3);
  painter.restore();
  painter.drawText(area, kFlags, countLabel_);
}

void ctlCard::Raise(const PointerEvent& event, const QMouseEvent& from) const {
  if (event) event(from.button(), from.modifiers(), from.position().toPoint());
}

void ctlCard::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->position().toPoint();
  press_ = CaptionRect().contains(pressedAt_) ? Press::Caption : Press::Surface;
  if (press_ == Press::Surface) Raise(MouseDown, *event);
}

void ctlCard::mouseMoveEvent(QMouseEvent* event) {
  // A release that went to a box over the window never arrives: no button down means no press.
  if (event->buttons() == Qt::NoButton && std::exchange(press_, Press::None) == Press::Surface) {
    Raise(MouseUp, *event);
  }
  // The caption keeps a press to itself; one that is drawn away from it has taken hold of the card.
  const QPoint moved = event->position().toPoint() - pressedAt_;
  if (press_ == Press::Caption && moved.manhattanLength() >= QApplication::startDragDistance() / 2) {
    press_ = Press::Surface;
    if (MouseDown) MouseDown(Qt::LeftButton, event->modifiers(), pressedAt_);
  }
  Raise(MouseMove, *event);
}

void ctlCard::mouseReleaseEvent(QMouseEvent* event) {
  const Press press = press_;
  press_ = Press::None;
  if (press == Press::None) return;
  if (press == Press::Surface) Raise(MouseUp, *event);
  if (rect().contains(event->position().toPoint()) && Click) Click();
}

void ctlCard::DoPress() {
  if (DblClick) DblClick();
}

void ctlCard::mouseDoubleClickEvent(QMouseEvent*) {
  DoPress();
}

}  // namespace kv
