#include "presentation/ctlButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "platform/QtKeys.h"

namespace kv {
namespace {

struct ColorStyle {
  const char16_t* name;
  QRgb normal;
  QRgb hover;
  QRgb pressed;
};

constexpr ColorStyle kColorStyles[] = {
    {u"Slate", qRgb(0, 169, 251), qRgb(255, 255, 0), qRgb(255, 0, 0)},
    {u"Ember", qRgb(102, 77, 0), qRgb(180, 180, 160), qRgb(255, 255, 255)},
    {u"Ember_Menu", qRgb(26, 178, 140), qRgb(255, 255, 255), qRgb(180, 180, 160)},
};
constexpr QRgb kDisabledColor = qRgb(0x80, 0x80, 0x80);

constexpr int kDarkestOnDark = 64;  // lightness below which a caption needs a bright ground
constexpr int kCaptionMargin = 6;   // layout pixels kept free left and right of the caption

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

// A frame of one layout pixel, in whole pixels so that it has exactly its colour at every scale.
void DrawFrame(QPainter& painter, const QRect& r, const QColor& color) {
  painter.fillRect(r.left(), r.top(), r.width(), 1, color);
  painter.fillRect(r.left(), r.bottom(), r.width(), 1, color);
  painter.fillRect(r.left(), r.top() + 1, 1, r.height() - 2, color);
  painter.fillRect(r.right(), r.top() + 1, 1, r.height() - 2, color);
}

// A dark pane, lit from above in the colour of the state.
void DrawDarkPane(QPainter& painter, const QRect& r, const QColor& color) {
  painter.fillRect(r, QColor(0, 0, 0, 190));
  QLinearGradient light(r.topLeft(), r.bottomLeft());
  light.setColorAt(0, Faint(color, 72));
  light.setColorAt(0.5, Faint(color, 16));
  light.setColorAt(0.51, Faint(color, 6));
  light.setColorAt(1, Faint(color, 40));
  painter.fillRect(r, light);
}

// A bright plate of the same hue, on which a dark state colour can be read.
void DrawPlate(QPainter& painter, const QRect& r, const QColor& color) {
  QLinearGradient metal(r.topLeft(), r.bottomLeft());
  metal.setColorAt(0, QColor::fromHsv(color.hue(), 96, 248));
  metal.setColorAt(0.5, QColor::fromHsv(color.hue(), 126, 234));
  metal.setColorAt(1, QColor::fromHsv(color.hue(), 136, 218));
  painter.fillRect(r, metal);
}

void DrawPane(QPainter& painter, const QRect& r, const QColor& color, bool captioned) {
  const bool plate = captioned && color.lightness() < kDarkestOnDark;
  if (plate) {
    DrawPlate(painter, r, color);
  } else {
    DrawDarkPane(painter, r, color);
  }
  DrawFrame(painter, r.adjusted(1, 1, -1, -1), Faint(color, 48));
  // An edge that catches the light above and turns away from it below.
  painter.fillRect(r.left() + 2, r.top() + 1, r.width() - 4, 1, QColor(255, 255, 255, plate ? 150 : 44));
  painter.fillRect(r.left() + 2, r.bottom() - 1, r.width() - 4, 1, QColor(0, 0, 0, plate ? 90 : 110));
  DrawFrame(painter, r, color);
}

}  // namespace

ctlButton::ctlButton(QWidget* parent, ButtonContext& context)
    : QAbstractButton(parent),
      context_(context),
      identity_(context.NewButtonId()),
      disabled_(kDisabledColor) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  setColor_Style(QStringLiteral("Slate"));
  connect(this, &QAbstractButton::clicked, this, [this] { DoClick(); });
}

int ctlButton::getLabelWidth() const {
  return static_cast<int>(std::lround(QFontMetricsF(font()).horizontalAdvance(caption_)));
}

void ctlButton::unColor() {
  if (isEnabled() && color_ != normal_) Paint(normal_);
}

void ctlButton::setCaption(const QString& caption) {
  if (accessibleName().isEmpty() || accessibleName() == caption_) setAccessibleName(caption);
  caption_ = caption;
  update();
}

void ctlButton::setColor_Style(const QString& style) {
  colorStyle_ = style;
  const auto* found = std::ranges::find_if(
      kColorStyles, [&style](const ColorStyle& s) { return QStringView(s.name) == style; });
  if (found != std::end(kColorStyles)) {
    normal_ = found->normal;
    hover_ = found->hover;
    pressed_ = found->pressed;
  }
  Paint(isEnabled() ? normal_ : disabled_);
}

void ctlButton::setEnabled(bool enabled) {
  QWidget::setEnabled(enabled);
  Paint(isEnabled() ? normal_ : disabled_);
  if (!isEnabled() || !hadFocus_) return;
  hadFocus_ = false;
  if (window()->focusWidget() == nullptr) setFocus(Qt::OtherFocusReason);
}

void ctlButton::setLabelOffset(int pixels) {
  labelOffset_ = pixels;
  update();
}

void ctlButton::ReadProperties(const PropertyBag& bag) {
  setCaption(bag.text(u"caption"));
  setClick_Sound(bag.text(u"Click_Sound", QStringLiteral("click")).toStdString());
  setColor_Style(bag.text(u"Color_Style", QStringLiteral("Slate")));
  setEnabled(bag.flag(u"enabled", true));
  setFont(bag.font(u"font", font()));
  setLabelOffset(bag.number(u"LabelOffset"));
}

QSize ctlButton::sizeHint() const {
  return {getLabelWidth() + 4 * kCaptionMargin, 2 * fontMetrics().height()};
}

void ctlButton::Paint(const QColor& color) {
  color_ = color;
  update();
}

void ctlButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawPane(painter, rect(), color_, !caption_.isEmpty());
  const bool byKeyboard = window()->testAttribute(Qt::WA_KeyboardFocusChange);
  if (hasFocus() && byKeyboard) DrawFrame(painter, rect().adjusted(3, 3, -3, -3), color_);
  // A substitute typeface may run wider than the one the layout was made for.
  const int room = width() - 2 * kCaptionMargin;
  if (const int wide = getLabelWidth(); wide > room && room > 0) {
    QFont narrower = font();
    narrower.setPixelSize(std::max(6, QFontInfo(narrower).pixelSize() * room / wide));
    painter.setFont(narrower);
  }
  painter.setPen(color_);
  painter.drawText(rect().translated(0, labelOffset_), Qt::AlignCenter, caption_);
}

void ctlButton::mouseMoveEvent(QMouseEvent*) {
  ctlButton* remembered = context_.RememberedButton();
  if (remembered != nullptr && remembered->buttonID() != identity_) remembered->unColor();
  context_.Remember(this);
  if (color_ != hover_ && color_ != pressed_) {
    Paint(hover_);
    context_.PlayHover();
  }
  if (MouseMove) MouseMove();
}

// A highlight does not stay behind when the pointer leaves the window straight from the button.
void ctlButton::leaveEvent(QEvent* event) {
  if (color_ == hover_) unColor();
  QAbstractButton::leaveEvent(event);
}

void ctlButton::mousePressEvent(QMouseEvent*) {
  Paint(pressed_);
}

void ctlButton::mouseReleaseEvent(QMouseEvent* event) {
  Paint(normal_);
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) click();
}

void ctlButton::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event, true)) QAbstractButton::keyPressEvent(event);
}

void ctlButton::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) Paint(isEnabled() ? normal_ : disabled_);
  QAbstractButton::changeEvent(event);
}

void ctlButton::DoClick() {
  hadFocus_ = window()->focusWidget() == this;
  if (hadFocus_) clearFocus();  // otherwise disabling would hand the focus on to a neighbour
  setEnabled(false);
  context_.PlayEffect(clickSound_);
  if (const std::function<void()> handler = Click) handler();
}

}  // namespace kv
