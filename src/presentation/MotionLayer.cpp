#include "presentation/MotionLayer.h"

#include <QApplication>
#include <QPaintEvent>
#include <algorithm>
#include <utility>

namespace kv {
namespace {

constexpr int kFrameInterval = 16;  // milliseconds

/// A picture that goes from one place to another passes over all that is between them.
QRegion Changed(const QRegion& before, const QRegion& now) {
  if (before.rectCount() > 1 || now.rectCount() > 1) return before + now;
  return before.boundingRect().united(now.boundingRect());
}

}  // namespace

MotionLayer::MotionLayer(QWidget& screen, Scheduler& scheduler)
    : QWidget(&screen),
      scheduler_(scheduler),
      tmrFrame_(scheduler.NewTimer(kFrameInterval, [this] { Frame(); })) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setGeometry(screen.rect());
}

void MotionLayer::Begin(std::unique_ptr<Moving> moving, const Timing& timing,
                        const std::vector<QWidget*>& standsFor) {
  if (closed_) return;
  for (const QWidget* control : standsFor) Finish(*control);
  Running running;
  running.moving = std::move(moving);
  running.timing = timing;
  running.begun = scheduler_.timeGetTime();
  for (QWidget* control : standsFor) {
    running.standsFor.emplace_back(control);
    Veil(*control);
  }
  running.painted = running.moving->Area(0);
  update(running.painted);
  if (timing.skippable && !std::exchange(watching_, true)) qApp->installEventFilter(this);
  motions_.push_back(std::move(running));
  raise();
  if (!tmrFrame_->Enabled()) tmrFrame_->setEnabled(true);
}

void MotionLayer::Frame() {
  const std::uint32_t now = scheduler_.timeGetTime();
  FinishWhich([now](const Running& each) {
    const bool gone = !each.standsFor.empty() && (!each.standsFor[0] || each.standsFor[0]->isHidden());
    return gone || static_cast<int>(now - each.begun) >= each.timing.delay + each.timing.length;
  });
  for (Running& each : motions_) {
    const int passed = static_cast<int>(now - each.begun) - each.timing.delay;
    if (passed <= 0) continue;
    each.way = Eased(each.timing.easing, static_cast<double>(passed) / each.timing.length);
    QRegion area = each.moving->Area(each.way);
    update(Changed(each.painted, area));
    each.painted = std::move(area);
  }
}

void MotionLayer::End(Running& running) {
  update(Changed(running.painted, running.moving->Area(1)));
  for (const QPointer<QWidget>& control : running.standsFor) {
    if (control) Unveil(*control);
  }
}

template <typename Which>
void MotionLayer::FinishWhich(const Which& which) {
  for (Running& each : motions_) {
    if (which(std::as_const(each))) End(each);
  }
  std::erase_if(motions_, which);
  if (motions_.empty()) tmrFrame_->setEnabled(false);
  const bool skippable = std::any_of(motions_.begin(), motions_.end(),
                                     [](const Running& each) { return each.timing.skippable; });
  if (watching_ && !skippable) {
    watching_ = false;
    qApp->removeEventFilter(this);
  }
}

void MotionLayer::Finish(const QWidget& control) {
  FinishWhich([&control](const Running& each) {
    return std::find(each.standsFor.begin(), each.standsFor.end(), &control) != each.standsFor.end();
  });
}

void MotionLayer::FinishAll() {
  FinishWhich([](const Running&) { return true; });
}

void MotionLayer::Close() {
  FinishAll();
  closed_ = true;
}

bool MotionLayer::moves(const QWidget& control) const {
  return std::any_of(motions_.begin(), motions_.end(), [&control](const Running& each) {
    return std::find(each.standsFor.begin(), each.standsFor.end(), &control) != each.standsFor.end();
  });
}

QImage MotionLayer::PictureOf(QWidget& control) {
  const double ratio = devicePixelRatioF();
  QImage picture((QSizeF(control.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  picturing_ = true;
  control.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
  picturing_ = false;
  return picture;
}

QRect MotionLayer::PlaceOf(const QWidget& control) const {
  return {control.mapTo(parentWidget(), QPoint(0, 0)), control.size()};
}

void MotionLayer::Veil(QWidget& control) {
  control.installEventFilter(this);
  control.update();
  for (QWidget* child : control.findChildren<QWidget*>()) child->installEventFilter(this);
}

void MotionLayer::Unveil(QWidget& control) {
  control.removeEventFilter(this);
  control.update();
  for (QWidget* child : control.findChildren<QWidget*>()) child->removeEventFilter(this);
}

bool MotionLayer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    // The application's filter sees every control; only the veiled ones are not drawn.
    if (picturing_) return false;
    for (const QObject* each = watched; each != nullptr && each != parent(); each = each->parent()) {
      if (each->isWidgetType() && moves(*static_cast<const QWidget*>(each))) return true;
    }
    return false;
  }
  if (watching_ && (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress)) {
    FinishWhich([](const Running& each) { return each.timing.skippable; });
  }
  return false;
}

void MotionLayer::paintEvent(QPaintEvent* event) {
  for (const Running& each : motions_) {
    if (!each.painted.intersects(event->region())) continue;
    QPainter painter(this);
    each.moving->Paint(painter, each.way);
  }
}

}  // namespace kv
