#include "campaign/frmCampaignTarget.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "platform/QtKeys.h"

namespace kv {

frmCampaignTarget::frmCampaignTarget(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  connect(this, &QAbstractButton::clicked, this, [this] { Click(); });
}

void frmCampaignTarget::enterEvent(QEnterEvent*) {
  Entered();
}

void frmCampaignTarget::leaveEvent(QEvent*) {
  Left();
}

void frmCampaignTarget::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) Entered();
}

void frmCampaignTarget::focusOutEvent(QFocusEvent* event) {
  QAbstractButton::focusOutEvent(event);
  Left();
}

void frmCampaignTarget::mousePressEvent(QMouseEvent* event) {
  QAbstractButton::mousePressEvent(event);
  if (isDown()) Pressed();
}

void frmCampaignTarget::mouseReleaseEvent(QMouseEvent* event) {
  if (!hitButton(event->position().toPoint())) Left();
  QAbstractButton::mouseReleaseEvent(event);
}

void frmCampaignTarget::keyPressEvent(QKeyEvent* event) {
  if (!ClickByKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace kv
