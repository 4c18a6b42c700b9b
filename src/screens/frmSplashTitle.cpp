#include "screens/frmSplashTitle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace kv {
namespace {

constexpr int kFullStrength = 255;
constexpr Effects::Fade kFadeIn{.start = 0, .end = kFullStrength, .step = 9};
constexpr Effects::Fade kGlow{.start = 0, .end = kFullStrength, .step = 2};
constexpr int kInitialInterval = 50;  // milliseconds
constexpr int kPulseInterval = 100;   // milliseconds
// A glow that nobody looks at rests after a minute, so that a machine left alone does nothing. The length is
// twelve times there and back (256 steps of 20 ms), so that it is lit then, and nothing jumps.
constexpr int kRestAfter = 12 * 256 * 20;  // milliseconds

}  // namespace

frmSplashTitle::frmSplashTitle(QWidget& window, Layout& layout, Effects& effects, Scheduler& scheduler,
                               Look look)
    : window_(window),
      effects_(effects),
      look_(std::move(look)),
      tmrInitial_(scheduler.NewTimer(kInitialInterval, [this] { InitialTick(); })),
      tmrPulse_(scheduler.NewTimer(kPulseInterval, [this] { PulseTick(); })),
      tmrRest_(scheduler.NewTimer(kRestAfter, [this] { RestTick(); })),
      imgFadeText_Target_(new FadeTarget(&window)),
      imgFadeLine_Target_(new FadeTarget(&window)) {
  imgFadeText_Target_->setFocusPolicy(Qt::TabFocus);
  imgFadeText_Target_->installEventFilter(this);
  imgFadeText_Target_->Click = [this] { EndPulse(); };
  for (FadeTarget* target : {imgFadeText_Target_, imgFadeLine_Target_}) {
    target->MouseMove = [this] {
      if (MouseMove) MouseMove();
    };
  }
  layout.Place(u"imgFadeText_Target", *imgFadeText_Target_);
  layout.Place(u"imgFadeLine_Target", *imgFadeLine_Target_);
  imgFadeText_Target_->setPicture(look_.textOff);
  imgFadeLine_Target_->setPicture(look_.lineOff);
}

void frmSplashTitle::Begin() {
  if (pulseEnded_) return;
  effects_.FadeOnce({look_.imgFadeText, imgFadeText_Target_}, kFadeIn,
                    {look_.imgFadeLine, imgFadeLine_Target_});
  tmrInitial_->setEnabled(true);
}

void frmSplashTitle::InitialTick() {
  if (effects_.fading()) return;
  tmrInitial_->setEnabled(false);
  tmrPulse_->setEnabled(true);
}

// The loop goes on by itself; one tick is enough to start it. A fade begins without a trace of its source:
// the title, lit by now, takes the lit picture as its own and fades to the unlit one, so that nothing jumps.
void frmSplashTitle::PulseTick() {
  tmrPulse_->setEnabled(false);
  imgFadeText_Target_->setPicture(look_.imgFadeText);
  imgFadeLine_Target_->setPicture(look_.imgFadeLine);
  effects_.FadeLoop({look_.textOff, imgFadeText_Target_}, kGlow, {look_.lineOff, imgFadeLine_Target_});
  tmrRest_->setEnabled(true);
}

void frmSplashTitle::RestTick() {
  Stop();
  resting_ = true;
  ShowLit();
}

void frmSplashTitle::Stir() {
  if (!std::exchange(resting_, false) || pulseEnded_) return;
  tmrPulse_->setEnabled(true);
}

void frmSplashTitle::Stop() {
  tmrInitial_->setEnabled(false);
  tmrPulse_->setEnabled(false);
  tmrRest_->setEnabled(false);
  resting_ = false;
  effects_.StopFade();
}

void frmSplashTitle::EndPulse() {
  pulseEnded_ = true;
  Stop();
  ShowLit();
}

void frmSplashTitle::ShowLit() {
  imgFadeText_Target_->setPicture(look_.textOff);
  imgFadeLine_Target_->setPicture(look_.lineOff);
  Effects::AlphaBlendPicture(look_.imgFadeText, *imgFadeText_Target_, kFullStrength);
  Effects::AlphaBlendPicture(look_.imgFadeLine, *imgFadeLine_Target_, kFullStrength);
}

// The title is both: a click ends the glow, and the window is dragged by it. Which one a press is shows when
// the pointer moves.
bool frmSplashTitle::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      press_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      return false;
    case QEvent::MouseMove:
      Moved(*static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::MouseButtonRelease: {
      drag_.Release();
      const bool click = press_.has_value();
      press_.reset();
      return !click;
    }
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space) return false;
      EndPulse();
      return true;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      window_.update();  // it draws the frame of the focus around the title
      return false;
    default:
      return QObject::eventFilter(watched, event);
  }
}

void frmSplashTitle::Moved(const QMouseEvent& event) {
  if (!event.buttons().testFlag(Qt::LeftButton)) press_.reset();
  if (press_) {
    const QPoint point = event.globalPosition().toPoint();
    if ((point - *press_).manhattanLength() < QApplication::startDragDistance()) return;
    const QPointF from = *press_;
    press_.reset();
    drag_.Press(*window_.window(),
                QMouseEvent(QEvent::MouseButtonPress, window_.window()->mapFromGlobal(from), from,
                            Qt::LeftButton, Qt::LeftButton, event.modifiers()));
  }
  drag_.Move(*window_.window(), event);
}

}  // namespace kv
