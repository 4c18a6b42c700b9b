// The match screen without its window: the engine's timers and pauses, and a strategy in the person's seat.
#pragma once

#include "match/MatchEngine.h"
#include "match/MatchView.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

class PeerMatch final : public PeerScreen, public MatchView {
 public:
  explicit PeerMatch(const PeerServices& services);

  [[nodiscard]] MatchEngine& engine() { return engine_; }
  void Open() override { engine_.Activate(); }

  void TableChanged(Seat, int) override {}
  void HandChanged(Seat, int) override {}
  void SetWinAdded(Seat) override {}
  void ControlsChanged() override {}
  void LightsChanged() override {}
  void BannerChanged() override;
  void RunTimer(MatchTimer timer, bool run) override;
  void PlaySound(std::string_view) override {}
  bool Pause(int milliseconds) override { return services().scheduler.Pause(milliseconds, life()); }
  void Leave() override;

 protected:
  void Closing() override;

 private:
  MatchEngine engine_;
  std::array<std::unique_ptr<Timer>, 4> timers_;  // by MatchTimer
  std::unique_ptr<Timer> tmrContinue_;            // the banner has been read
};

}  // namespace kv
