#include "platform/QtCaretRest.h"

#include <QApplication>
#include <QEvent>

namespace kv {

QtCaretRest::QtCaretRest(Scheduler& scheduler)
    : flashTime_(QApplication::cursorFlashTime()), tmrRest_(scheduler.NewTimer(kAfter, [this] { Rest(); })) {
  qApp->installEventFilter(this);
  tmrRest_->setEnabled(true);
}

bool QtCaretRest::eventFilter(QObject*, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::FocusIn) Blink();
  return false;
}

void QtCaretRest::Blink() {
  if (QApplication::cursorFlashTime() != flashTime_) QApplication::setCursorFlashTime(flashTime_);
  tmrRest_->setEnabled(true);
}

void QtCaretRest::Rest() {
  tmrRest_->setEnabled(false);
  QApplication::setCursorFlashTime(0);
}

}  // namespace kv
