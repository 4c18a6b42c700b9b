#include "platform/QtSizeFactor.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#if __has_include(<private/qhighdpiscaling_p.h>)
#include <private/qhighdpiscaling_p.h>
#define KV_SIZES 1
#else
#define KV_SIZES 0
#endif

namespace kv {
namespace {

constexpr double kLeast = 0.25;
constexpr double kMost = 8;

}  // namespace

QtSizeFactor::QtSizeFactor() {
  connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
    if (factor_ != 1) Apply(*screen);
  });
}

bool QtSizeFactor::Changeable() {
  return KV_SIZES != 0;
}

void QtSizeFactor::Set(double factor) {
  const double bounded = std::clamp(factor, kLeast, kMost);
  if (!Changeable() || bounded == factor_) return;
  factor_ = bounded;
  for (QScreen* screen : QGuiApplication::screens()) Apply(*screen);
  QtShrunken::Refresh();
}

void QtSizeFactor::Apply(QScreen& screen) {
#if KV_SIZES
  const auto known = desktop_.constFind(screen.name());
  const double desktop = known == desktop_.constEnd() ? QHighDpiScaling::factor(&screen) : *known;
  desktop_.insert(screen.name(), desktop);
  QHighDpiScaling::setScreenFactor(&screen, desktop * factor_);
#else
  static_cast<void>(screen);
#endif
}

QSizeF QtSizeFactor::WorkArea(const QScreen& screen) const {
  return QSizeF(screen.availableGeometry().size()) * factor_;
}

QSizeF QtSizeFactor::WholeArea(const QScreen& screen) const {
  return QSizeF(screen.geometry().size()) * factor_;
}

}  // namespace kv
