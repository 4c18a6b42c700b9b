// The program's moving effects: fades of one picture over another and the pulse of the card under the
// pointer. One fade and one pulse run at a time. While neither does, no timer runs.
#pragma once

#include <QPointer>
#include <array>
#include <memory>

#include "cards/PulsingCard.h"
#include "platform/Scheduler.h"
#include "presentation/ButtonContext.h"
#include "presentation/FadeTarget.h"
#include "presentation/GlobalPictures.h"

namespace kv {

class Effects {
 public:
  /// One picture that fades in over a box; a destination that is gone is passed over.
  struct Pair {
    Picture source;
    QPointer<FadeTarget> destination;
  };
  /// Strengths in 0 to 255.
  struct Fade {
    int start = 0;
    int end = 255;
    int step = 15;
  };

  /// All three must outlive it; the player's options are the context's.
  Effects(Scheduler& scheduler, ButtonContext& context, const GlobalPictures& pictures);

  static void AlphaBlendPicture(const Picture& source, FadeTarget& destination, int alpha);

  /// Fades the pairs in, from 0 by `step` every 20 ms up to `end`, once. Replaces a running fade.
  void FadeOnce(const Pair& pair, const Fade& fade, const Pair& pair2 = {});
  /// The same, then back and forth between `start` and 255 until StopFade.
  void FadeLoop(const Pair& pair, const Fade& fade, const Pair& pair2 = {});
  void StopFade();

  /// Pulses the card under the pointer; only in the "Ember" style with the player's LightPulse_Opt on. Not
  /// owned: stop the pulse before the card goes, unless the card is a widget.
  void StartCardPulse(PulsingCard* card);
  void StopCardPulse();

  /// Stops both and forgets the highlighted button.
  void StopEffects();

  [[nodiscard]] bool fading() const { return tmrFade_->Enabled(); }
  [[nodiscard]] const PulsingCard* pulsingCard() const { return pulsing_; }

 private:
  void StartFade(const Pair& pair, const Fade& fade, const Pair& pair2, bool loop);
  void FadeStep();
  void PulseStep();

  ButtonContext& context_;
  const GlobalPictures& pictures_;
  std::unique_ptr<Timer> tmrFade_;
  std::unique_ptr<Timer> tmrCardPulse_;
  std::array<Pair, 2> pairs_;
  Fade fade_;
  bool loop_ = false;
  PulsingCard* pulsing_ = nullptr;
  QPointer<QObject> pulsingWidget_;  // null for a card that is no widget
  bool pulsingIsWidget_ = false;
};

}  // namespace kv
