#include "vantri-peer/PeerMatch.h"

namespace kv {
namespace {

// Milliseconds; all but the last are those of the match screen.
constexpr int kGameInterval = 50;
constexpr int kAutoDialogsInterval = 800;
constexpr int kNetWaitInterval = 50;
constexpr int kQuietInterval = 20;
constexpr int kReadingInterval = 50;

}  // namespace

PeerMatch::PeerMatch(const PeerServices& services)
    : PeerScreen(services),
      engine_(services.game, MatchOptionsOf(services.player), *this, services.network, services.booking,
              services.report, services.random),
      timers_{NewTimer(kGameInterval, [this] { engine_.GameTick(); }),
              NewTimer(kAutoDialogsInterval, [this] { engine_.AutoDialogsTick(); }),
              NewTimer(kNetWaitInterval, [this] { engine_.peer().NetWaitTick(); }),
              NewTimer(kQuietInterval, [this] { engine_.pauses().QuietTick(); })},
      tmrContinue_(NewTimer(kReadingInterval, [this] {
        tmrContinue_->setEnabled(false);
        engine_.Continue();
      })) {
  engine_.person().setStrategy(&services.strategy);
}

void PeerMatch::Closing() {
  tmrContinue_->setEnabled(false);
  engine_.Close();
}

void PeerMatch::BannerChanged() {
  tmrContinue_->setEnabled(engine_.shown().banner.visible && engine_.shown().banner.buttonEnabled);
}

void PeerMatch::RunTimer(MatchTimer timer, bool run) {
  timers_.at(static_cast<std::size_t>(timer))->setEnabled(run);
}

void PeerMatch::Leave() {
  Close();
  services().navigator.LeaveMatch();
}

}  // namespace kv
