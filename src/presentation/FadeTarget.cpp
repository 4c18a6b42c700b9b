#include "presentation/FadeTarget.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace kv {
namespace {

void Call(const std::function<void()>& handler) {
  if (const std::function<void()> kept = handler) kept();
}

}  // namespace

FadeTarget::FadeTarget(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
}

void FadeTarget::setPicture(const Picture& picture) {
  picture_ = picture;
  source_ = Picture();
  alpha_ = -1;
  update();
}

void FadeTarget::Blend(const Picture& source, int alpha) {
  const int level = std::clamp(alpha, 0, 255);
  if (level == alpha_ && source == source_) return;
  source_ = source;
  alpha_ = level;
  update();
}

void FadeTarget::DoPress() {
  Call(Click);
}

void FadeTarget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!picture_.empty()) painter.drawImage(QPointF(0, 0), *picture_.image());
  if (source_.empty() || alpha_ <= 0) return;
  painter.setOpacity(alpha_ / 255.0);
  painter.drawImage(QPointF(0, 0), *source_.image());
}

void FadeTarget::mouseMoveEvent(QMouseEvent*) {
  Call(MouseMove);
}

void FadeTarget::mousePressEvent(QMouseEvent*) {}  // accepted, so that the release comes here too

void FadeTarget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Call(Click);
}

void FadeTarget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Call(DblClick);
}

}  // namespace kv
