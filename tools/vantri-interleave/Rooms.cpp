#include "vantri-interleave/Rooms.h"

namespace kv::interleave {
namespace {

// Milliseconds, those of the match screen.
constexpr int kGameInterval = 50;
constexpr int kAutoDialogsInterval = 800;
constexpr int kNetWaitInterval = 50;
constexpr int kQuietInterval = 20;

}  // namespace

MatchRoom::MatchRoom(const RoomServices& services)
    : services_(services),
      engine_(services.game, MatchOptionsOf(services.player), *this, services.network, services.booking,
              services.dialogs, services.random),
      timers_{services.scheduler.NewTimer(kGameInterval, [this] { engine_.GameTick(); }),
              services.scheduler.NewTimer(kAutoDialogsInterval, [this] { engine_.AutoDialogsTick(); }),
              services.scheduler.NewTimer(kNetWaitInterval, [this] { engine_.peer().NetWaitTick(); }),
              services.scheduler.NewTimer(kQuietInterval, [this] { engine_.pauses().QuietTick(); })} {}

void MatchRoom::Close() {
  life_.Close();
  engine_.Close();
}

void MatchRoom::RunTimer(MatchTimer timer, bool run) {
  timers_.at(static_cast<std::size_t>(timer))->setEnabled(run);
}

void MatchRoom::Leave() {
  Close();
  services_.navigator.LeaveMatch();
}

void MatchRoom::LeaveProgram() {
  engine_.pauses().WhenQuiet([this] { AskToLeave(); });
}

void MatchRoom::AskToLeave() {
  const bool sure = services_.game.Wager == -1 ||
                    services_.dialogs.AskYesNo("Are you sure you wish to forfeit this match?",
                                               "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  if (sure && !life_.closing()) services_.network.SubmitChat("/quit");
}

}  // namespace kv::interleave
