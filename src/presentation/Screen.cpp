#include "presentation/Screen.h"

#include <QCloseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/QtText.h"
#include "presentation/RoundWindow.h"

namespace kv {
namespace {

/// Keeps the light and the shadows of a picture and gives it another hue.
void Tint(QImage& image, QColor tint, int strength) {
  const double ratio = image.devicePixelRatio();
  image.setDevicePixelRatio(1);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Overlay);
  tint.setAlpha(strength);
  painter.fillRect(image.rect(), tint);
  painter.end();
  image.setDevicePixelRatio(ratio);
}

/// Folds the cold half of the colours over onto the warm one: steel becomes bronze, blue light amber, and
/// what is warm already stays. Greys take a little of the lamp's colour.
void WarmUp(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int red = qRed(line[x]);
      const int blue = qBlue(line[x]);
      const int high = std::max(red, blue);
      const int low = std::min(red, blue) * 13 / 16;
      const int green = std::min(qGreen(line[x]), (3 * high + low) / 4) * 15 / 16;
      line[x] = qRgb(high, green, low);
    }
  }
}

}  // namespace

Screen::Screen(const ScreenServices& services, std::string_view name, std::string_view style)
    : screenServices_(services), layout_(name, style), tmrShown_(services.scheduler.NewTimer(1, [this] {
        tmrShown_->setEnabled(false);
        Shown();
      })) {
  setObjectName(ToQString(name));
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);  // it has the keys while nothing else has, and is no stop of Tab's
  setFixedSize(layout_.size());
  const PropertyBag window = layout_.has(u"window") ? layout_.bag(u"window") : PropertyBag();
  if (window.has(u"picture")) background_ = TintedPicture(window.number(u"picture"));
  corners_ = window.number(u"corners", kScreenCorners);
  RoundWindow(*this, corners_);
}

Screen::~Screen() {
  // What the screen itself has to stop was stopped by CloseScreen; only the base is left here.
  lifetime_.Close();
}

Picture Screen::TintedPicture(int number) {
  const Picture picture = services().getPic(number);
  const PropertyBag window = layout_.has(u"window") ? layout_.bag(u"window") : PropertyBag();
  if (picture.empty() || (!window.flag(u"warm") && !window.has(u"tint"))) return picture;
  auto image = std::make_shared<QImage>(Tinted(*picture.image()));
  tinted_.emplace_back(number, image);
  return Picture(std::move(image));
}

QImage Screen::Tinted(const QImage& picture) const {
  const PropertyBag window = layout_.bag(u"window");
  QImage image = picture.convertToFormat(QImage::Format_RGB32);
  if (window.flag(u"warm")) WarmUp(image);
  if (window.has(u"tint")) Tint(image, window.colour(u"tint"), window.number(u"tint_strength", 255));
  return image;
}

void Screen::Resized() {
  for (const auto& [number, image] : tinted_) *image = Tinted(*services().getPic(number).image());
  update();
  SizeChanged();
}

void Screen::Open() {
  if (closing()) return;
  Activate();
  if (closing()) return;
  show();
  setFocus();
  tmrShown_->setEnabled(true);
}

void Screen::CloseScreen() {
  if (closing()) return;
  lifetime_.Close();
  tmrShown_->setEnabled(false);
  Closing();
  services().effects.StopEffects();
  hide();
}

void Screen::PlainHighlights() {
  services().buttons.unColor();
  if (titlebar_ != nullptr) titlebar_->unColorQuit();
  services().effects.StopCardPulse();
}

ctlButton* Screen::NewButton(QStringView control, std::function<void()> click) {
  auto* button = new ctlButton(this, services().buttons);
  button->ReadProperties(layout_.bag(control));
  layout_.Place(control, *button);
  button->Click = std::move(click);
  return button;
}

ctlTitlebar* Screen::NewTitlebar() {
  titlebar_ = new ctlTitlebar(this, services().buttons);
  if (layout_.bag(u"ctlTitlebar").flag(u"help", true)) {
    titlebar_->Help = [this] { services().navigator.OpenHelp(); };
  }
  titlebar_->ReadProperties(layout_.bag(u"ctlTitlebar"));
  layout_.Place(u"ctlTitlebar", *titlebar_);
  titlebar_->setButtonFocus(Qt::TabFocus);
  setWindowTitle(titlebar_->Caption());
  return titlebar_;
}

void Screen::GrowBelow(int height) {
  setFixedSize(layout_.size() + QSize(0, height));
}

std::unique_ptr<Timer> Screen::NewTimer(int milliseconds, std::function<void()> tick) const {
  return services().scheduler.NewTimer(milliseconds, std::move(tick));
}

void Screen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect pictured(QPoint(0, 0), layout_.size());
  if (background_.empty() || pictured != rect()) painter.fillRect(rect(), Qt::black);
  if (background_.empty()) return;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(pictured, *background_.image());
}

void Screen::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!closing()) LeaveProgram();
}

void Screen::mouseMoveEvent(QMouseEvent*) {
  PlainHighlights();
}

}  // namespace kv
