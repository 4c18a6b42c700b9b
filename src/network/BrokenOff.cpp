#include "network/BrokenOff.h"

#include <algorithm>
#include <utility>

#include "campaign/Counter.h"
#include "match/clsGame.h"
#include "profile/clsPlayer.h"

namespace kv {

void SaveDisconnect(clsGame& game, clsPlayer& player, MatchBooking& booking, Dialogs& dialogs) {
  if (game.Mode == kModeNetworkArcade) {
    game.Wager = -1;
    return;
  }
  if (game.Mode != kModeNetwork) {
    dialogs.Message("Bug: Saving for disconnect when not a network game (report me)", "Kelm Vantri: Error",
                    DialogIcon::None);
    booking.SaveLoss();
    return;
  }
  if (game.Wager == -1) return;
  StakeToRecord(game, player);
  const std::int64_t half = std::exchange(game.Wager, -1) / 2;
  clsLong& credits = *game.CreditsRef;
  credits.Value = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, credits.Value + half));
  player.WritePlayerFile();
}

void WithdrawStake(clsGame& game, clsPlayer& player) {
  if (game.Wager == -1) return;
  const std::int32_t stake = std::exchange(game.Wager, -1);
  if (game.Mode != kModeNetwork) return;
  if (game.CreditsRef == player.Credits_MP) game.CreditsRef->Value += stake;
  Lower(player.Disconnects);
  player.WritePlayerFile();
}

void StakeToRecord(clsGame& game, clsPlayer& player) {
  if (game.Mode != kModeNetwork || game.CreditsRef == player.Credits_MP) return;
  player.Credits_MP->Value -= game.Wager;
  game.CreditsRef = player.Credits_MP;
}

}  // namespace kv
