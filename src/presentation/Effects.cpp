#include "presentation/Effects.h"

#include <cstdlib>
#include <string>

#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr int kFadeInterval = 20;   // milliseconds
constexpr int kPulseInterval = 20;  // milliseconds
constexpr int kFullStrength = 255;

// The pulse swings between 20 and 200; a value below zero is on its way down.
constexpr int kPulseStep = 20;
constexpr int kPulseTop = 180;
constexpr int kPulseBottom = -30;

}  // namespace

Effects::Effects(Scheduler& scheduler, ButtonContext& context, const GlobalPictures& pictures)
    : context_(context),
      pictures_(pictures),
      tmrFade_(scheduler.NewTimer(kFadeInterval, [this] { FadeStep(); })),
      tmrCardPulse_(scheduler.NewTimer(kPulseInterval, [this] { PulseStep(); })) {
  tmrFade_->Tag = "0";
  tmrCardPulse_->Tag = "0";
}

void Effects::AlphaBlendPicture(const Picture& source, FadeTarget& destination, int alpha) {
  destination.Blend(source, alpha);
}

void Effects::FadeOnce(const Pair& pair, const Fade& fade, const Pair& pair2) {
  StartFade(pair, fade, pair2, false);
}

void Effects::FadeLoop(const Pair& pair, const Fade& fade, const Pair& pair2) {
  StartFade(pair, fade, pair2, true);
}

void Effects::StartFade(const Pair& pair, const Fade& fade, const Pair& pair2, bool loop) {
  pairs_ = {pair, pair2};
  fade_ = fade;
  loop_ = loop;
  tmrFade_->Tag = "0";
  tmrFade_->setEnabled(true);
}

void Effects::StopFade() {
  tmrFade_->setEnabled(false);
  pairs_ = {};
}

void Effects::FadeStep() {
  int t = std::stoi(tmrFade_->Tag);
  for (const Pair& pair : pairs_) {
    if (pair.destination) AlphaBlendPicture(pair.source, *pair.destination, std::abs(t));
  }
  t += fade_.step;
  const bool rising = t <= kFullStrength && t <= fade_.end;
  const bool turns = !rising || (t < 0 && t > -fade_.start);
  if (turns && loop_) t = rising ? fade_.start : -kFullStrength;
  if (turns && !loop_) tmrFade_->setEnabled(false);
  tmrFade_->Tag = std::to_string(t);
}

void Effects::StartCardPulse(PulsingCard* card) {
  const clsPlayer* player = context_.player();
  if (player == nullptr || player->Interface_Opt == "Slate" || !player->LightPulse_Opt) return;
  if (pulsingIsWidget_ && !pulsingWidget_)
    StopCardPulse();  // another card may lie at the address of one that is gone
  if (card == nullptr || card == pulsing_) return;
  StopCardPulse();
  pulsing_ = card;
  pulsingWidget_ = dynamic_cast<QObject*>(card);
  pulsingIsWidget_ = pulsingWidget_ != nullptr;
  if (!tmrCardPulse_->Enabled()) tmrCardPulse_->setEnabled(true);
}

void Effects::PulseStep() {
  if (pulsingIsWidget_ && !pulsingWidget_) pulsing_ = nullptr;  // gone while it pulsed
  // Nothing moves without a card: the timer rests, and its value waits for the next one.
  if (pulsing_ == nullptr) {
    tmrCardPulse_->setEnabled(false);
    return;
  }
  int p = std::stoi(tmrCardPulse_->Tag);
  pulsing_->Alpha(pictures_.picHighlight(), std::abs(p));
  if (p > kPulseTop || (p > kPulseBottom && p < 0)) p = -p;
  tmrCardPulse_->Tag = std::to_string(p + kPulseStep);
}

void Effects::StopCardPulse() {
  const bool gone = pulsingIsWidget_ && !pulsingWidget_;
  if (pulsing_ != nullptr && !gone && pulsing_->Enabled()) pulsing_->Alpha(pictures_.picHighlight(), 0);
  pulsing_ = nullptr;
  pulsingWidget_ = nullptr;
  pulsingIsWidget_ = false;
}

void Effects::StopEffects() {
  StopFade();
  StopCardPulse();
  context_.Remember(nullptr);
}

}  // namespace kv
