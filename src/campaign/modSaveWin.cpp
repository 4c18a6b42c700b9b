#include "campaign/modSaveWin.h"

#include <algorithm>
#include <utility>

#include "campaign/Circuit.h"
#include "campaign/Counter.h"
#include "match/clsGame.h"
#include "platform/Dialogs.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

constexpr std::int32_t kBonusDivisor = 10;  // a network win earns a tenth of the stake on top

constexpr const char* kFinishedTitle = "Kelm Vantri: Opponent Unlocked!";
constexpr const char* kFinishedText =
    "Congratulations on finishing the Kelm Vantri campaign. You have unlocked a special opponent.";
constexpr const char* kArcadeOppTitle = "Kelm Vantri: Arcade Opponent!";
constexpr const char* kArcadeOppText = "Congratulations! You have unlocked H6-J8 as your Arcade opponent!";

/// Takes the open stake, so that nothing that runs while a box of ours is open can book the match again.
std::int32_t CloseStake(clsGame& game) {
  return std::exchange(game.Wager, -1);
}

void AddCredits(clsLong& credits, std::int64_t gain) {
  credits.Value = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, credits.Value + gain));
}

void CountCampaignWin(clsGame& game, PlayerFields& player, Dialogs& dialogs) {
  Lower(game.LossesRef->Value);
  if (game.CampaignWinRef) {
    Raise(game.CampaignWinRef->Value);
    if (game.CampaignWinRef->Value != kWinsToUnlock) game.CampaignWinRef.reset();
  }
  // All is in the record before a box opens: whatever saves the player meanwhile saves the whole result.
  if (game.OppName == kFinalOpponent && player.Orrin_Wins->Value == kWinsToUnlock) {
    dialogs.Message(kFinishedText, kFinishedTitle, DialogIcon::Information);
  } else if (game.OppName == kSpecialOpponent && player.H6J8_Wins->Value == kWinsToArcadeOpp) {
    player.ArcadeOpp_Opt = 1;
    game.CampaignWinRef = player.H6J8_Wins;
    dialogs.Message(kArcadeOppText, kArcadeOppTitle, DialogIcon::Information);
  }
}

}  // namespace

bool BookWin(clsGame& game, PlayerFields& player, Dialogs& dialogs) {
  if (game.Wager == -1) return false;
  const std::int32_t stake = CloseStake(game);
  Raise(game.WinsRef->Value);
  AddCredits(*game.CreditsRef, std::int64_t{2} * stake);
  if (game.Mode == kModeNetwork) {
    Lower(player.Disconnects);
    AddCredits(*game.CreditsRef, stake / kBonusDivisor);
  } else if (game.Mode == kModeCampaign) {
    CountCampaignWin(game, player, dialogs);
  }
  return true;
}

bool BookLoss(clsGame& game, PlayerFields& player) {
  if (game.Wager == -1) return false;
  static_cast<void>(CloseStake(game));
  if (game.Mode == kModeCampaign) {
    game.CampaignWinRef.reset();
  } else if (game.Mode == kModeNetwork) {
    Lower(player.Disconnects);
    Raise(game.LossesRef->Value);
  }
  return true;
}

void SaveBooking::SaveWin() {
  lost_ = -1;
  if (BookWin(game_, player_, dialogs_)) player_.WritePlayerFile();
}

void SaveBooking::SaveLoss() {
  if (game_.Wager != -1) lost_ = game_.Wager;
  if (BookLoss(game_, player_)) player_.WritePlayerFile();
}

void SaveBooking::TurnLossIntoWin() {
  if (lost_ == -1 || game_.Wager != -1) return;
  game_.Wager = lost_;
  if (game_.Mode == kModeNetwork) {
    Lower(game_.LossesRef->Value);
    Raise(player_.Disconnects);
  }
  SaveWin();
}

std::string SaveBooking::Progress() const {
  if (game_.Mode == kModeArcade && game_.CreditsRef->Value > player_.Arcade_Best) {
    return "new high score: " + std::to_string(game_.CreditsRef->Value);
  }
  const auto wins = game_.Mode == kModeCampaign ? WinCounter(player_, game_.OppName) : nullptr;
  const int needed = game_.OppName == kSpecialOpponent ? kWinsToArcadeOpp : kWinsToUnlock;
  if (wins == nullptr || wins->Value > needed) return {};
  return std::to_string(wins->Value) + " of " + std::to_string(needed) + " wins";
}

}  // namespace kv
