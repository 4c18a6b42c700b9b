#include "campaign/Settlement.h"

#include "campaign/Counter.h"
#include "match/clsGame.h"
#include "profile/clsPlayer.h"

namespace kv {

bool TakeStake(clsGame& game, PlayerFields& player, std::int32_t amount) {
  if (amount < 0 || amount > game.CreditsRef->Value) return false;
  game.Wager = amount;
  game.LastWagers[game.OppName] = amount;
  game.CreditsRef->Value -= amount;
  if (game.Mode == kModeNetwork) Raise(player.Disconnects);
  if (game.Mode == kModeCampaign) Raise(player.Losses->Value);
  return true;
}

bool SettleStake(clsGame& game, clsPlayer& player, std::int32_t amount) {
  if (!TakeStake(game, player, amount)) return false;
  // The record still holds the old credits, for CreditsRef is a working copy: the file now says that the
  // match is lost, and the stake leaves it when Continue stores the copy.
  if (game.Mode == kModeNetwork || game.Mode == kModeCampaign) player.WritePlayerFile();
  return true;
}

bool StakeRisksCampaign(const clsGame& game, std::int32_t amount) {
  return game.Mode == kModeCampaign && amount == game.CreditsRef->Value &&
         CountCards(game.CardsRef->getValue()) == 0;
}

bool AskRiskCampaign(Dialogs& dialogs) {
  return dialogs.AskYesNo("If you lose this match your campaign will be over! Are you sure?",
                          "Kelm Vantri: Wager warning", DialogIcon::Information);
}

void EndArcadeRun(const clsGame& game, clsPlayer& player) {
  if (game.CreditsRef->Value <= player.Arcade_Best) return;
  player.Arcade_Best = game.CreditsRef->Value;
  player.WritePlayerFile();
}

}  // namespace kv
