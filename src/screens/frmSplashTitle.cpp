// The title of the start screen: its fade-in, its glow, and that the window is dragged by it.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "screens/frmSplash.h"

namespace kv {
namespace {

constexpr int kFullStrength = 255;
constexpr Effects::Fade kFadeIn{.start = 0, .end = kFullStrength, .step = 9};
constexpr Effects::Fade kGlow{.start = 0, .end = kFullStrength, .step = 2};

}  // namespace

void frmSplash::BuildTitle() {
  imgFadeText_Target_ = new FadeTarget(this);
  imgFadeText_Target_->setFocusPolicy(Qt::TabFocus);
  imgFadeText_Target_->installEventFilter(this);
  imgFadeText_Target_->Click = [this] { EndPulse(); };
  imgFadeText_Target_->MouseMove = [this] { PlainHighlights(); };
  layout().Place(u"imgFadeText_Target", *imgFadeText_Target_);
  imgFadeLine_Target_ = new FadeTarget(this);
  imgFadeLine_Target_->MouseMove = [this] { PlainHighlights(); };
  layout().Place(u"imgFadeLine_Target", *imgFadeLine_Target_);

  const PropertyBag text = layout().bag(u"imgFadeText_Target");
  const PropertyBag line = layout().bag(u"imgFadeLine_Target");
  textOff_ = TintedPicture(text.number(u"picture_off"));
  lineOff_ = TintedPicture(line.number(u"picture_off"));
  imgFadeText_ = TintedPicture(text.number(u"picture"));
  imgFadeLine_ = TintedPicture(line.number(u"picture"));
  imgFadeText_Target_->setPicture(textOff_);
  imgFadeLine_Target_->setPicture(lineOff_);
}

void frmSplash::StartFadeIn() {
  if (pulseEnded_) return;
  services().effects.FadeOnce({imgFadeText_, imgFadeText_Target_}, kFadeIn,
                              {imgFadeLine_, imgFadeLine_Target_});
  tmrInitial_->setEnabled(true);
}

void frmSplash::InitialTick() {
  if (services().effects.fading()) return;
  tmrInitial_->setEnabled(false);
  tmrPulse_->setEnabled(true);
}

// The loop goes on by itself; one tick is enough to start it. A fade begins without a trace of its source:
// the title, lit by now, takes the lit picture as its own and fades to the unlit one, so that nothing jumps.
void frmSplash::PulseTick() {
  tmrPulse_->setEnabled(false);
  if (pulseEnded_) return;
  imgFadeText_Target_->setPicture(imgFadeText_);
  imgFadeLine_Target_->setPicture(imgFadeLine_);
  services().effects.FadeLoop({textOff_, imgFadeText_Target_}, kGlow, {lineOff_, imgFadeLine_Target_});
}

void frmSplash::EndPulse() {
  pulseEnded_ = true;
  StopTitle();
  imgFadeText_Target_->setPicture(textOff_);
  imgFadeLine_Target_->setPicture(lineOff_);
  Effects::AlphaBlendPicture(imgFadeText_, *imgFadeText_Target_, kFullStrength);
  Effects::AlphaBlendPicture(imgFadeLine_, *imgFadeLine_Target_, kFullStrength);
}

void frmSplash::StopTitle() {
  tmrInitial_->setEnabled(false);
  tmrPulse_->setEnabled(false);
  services().effects.StopFade();
}

// The title is both: a click ends the glow, and the window is dragged by it. Which one a press is shows when
// the pointer moves.
bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
  if (watched != imgFadeText_Target_) return Screen::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      press_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      return false;
    case QEvent::MouseMove:
      TitleMoved(*static_cast<QMouseEvent*>(event));
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
      update();
      return false;
    default:
      return false;
  }
}

void frmSplash::TitleMoved(const QMouseEvent& event) {
  if (!event.buttons().testFlag(Qt::LeftButton)) press_.reset();
  if (press_) {
    const QPoint point = event.globalPosition().toPoint();
    if ((point - *press_).manhattanLength() < QApplication::startDragDistance()) return;
    const QPointF from = *press_;
    press_.reset();
    drag_.Press(*this, QMouseEvent(QEvent::MouseButtonPress, mapFromGlobal(from), from, Qt::LeftButton,
                                   Qt::LeftButton, event.modifiers()));
  }
  drag_.Move(*this, event);
}

}  // namespace kv
