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

void AddCredits(clsLong& credits, std::int64_t gain) {
  credits.Value = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, credits.Value + gain));
}

}  // namespace

void SaveBooking::SaveWin() {
  if (game_.Wager == -1) return;
  const std::int32_t stake = TakeStake();
  Raise(game_.WinsRef->Value);
  PayOut(stake);
  if (game_.Mode == kModeCampaign) CountCampaignWin();
  player_.WritePlayerFile();
}

void SaveBooking::SaveLoss() {
  if (game_.Wager == -1) return;
  static_cast<void>(TakeStake());
  if (game_.Mode == kModeCampaign) {
    game_.CampaignWinRef.reset();
  } else if (game_.Mode == kModeNetwork) {
    Lower(player_.Disconnects);
    Raise(game_.LossesRef->Value);
  }
  player_.WritePlayerFile();
}

std::int32_t SaveBooking::TakeStake() {
  return std::exchange(game_.Wager, -1);
}

void SaveBooking::PayOut(std::int32_t stake) {
  AddCredits(*game_.CreditsRef, std::int64_t{2} * stake);
  if (game_.Mode != kModeNetwork) return;
  Lower(player_.Disconnects);
  AddCredits(*game_.CreditsRef, stake / kBonusDivisor);
}

void SaveBooking::CountCampaignWin() {
  Lower(game_.LossesRef->Value);
  if (game_.CampaignWinRef) {
    Raise(game_.CampaignWinRef->Value);
    if (game_.CampaignWinRef->Value != kWinsToUnlock) game_.CampaignWinRef.reset();
  }
  // All is in the record before a box opens: whatever saves the player meanwhile saves the whole result.
  if (game_.OppName == kFinalOpponent && player_.Orrin_Wins->Value == kWinsToUnlock) {
    dialogs_.Message(kFinishedText, kFinishedTitle, DialogIcon::Information);
  } else if (game_.OppName == kSpecialOpponent && player_.H6J8_Wins->Value == kWinsToArcadeOpp) {
    player_.ArcadeOpp_Opt = 1;
    game_.CampaignWinRef = player_.H6J8_Wins;
    dialogs_.Message(kArcadeOppText, kArcadeOppTitle, DialogIcon::Information);
  }
}

}  // namespace kv
