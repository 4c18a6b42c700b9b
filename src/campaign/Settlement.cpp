#include "campaign/Settlement.h"

#include "campaign/Counter.h"
#include "match/clsGame.h"
#include "profile/clsPlayer.h"

namespace kv {

bool SettleStake(clsGame& game, clsPlayer& player, std::int32_t amount) {
  if (amount < 0 || amount > game.CreditsRef->Value) return false;
  game.Wager = amount;
  game.CreditsRef->Value -= amount;
  // The credits in the record are still the old ones, for CreditsRef is a working copy: the file gets the
  // entry that the match is lost, and the stake leaves it when Continue stores the copy.
  if (game.Mode == kModeNetwork) {
    Raise(player.Disconnects);
    player.WritePlayerFile();
  } else if (game.Mode == kModeCampaign) {
    Raise(player.Losses->Value);
    player.WritePlayerFile();
  }
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
