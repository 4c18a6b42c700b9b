#include "match/MatchShown.h"

#include <cmath>

#include "match/clsGame.h"

namespace kv {

std::string MatchTitle(const clsGame& game) {
  if (game.Mode == kModeArcade) return "Arcade Match";
  if (game.Mode == kModeCampaign) return "Campaign Match";
  if (game.Mode == kModeNetwork) return "Network Match";
  if (game.Mode == kModeNetworkArcade) return "Network Arcade Match";
  return "Kelm Vantri Match";
}

std::string WagerText(const clsGame& game) {
  std::string text = "Wager: " + std::to_string(game.Wager);
  if (game.Mode == kModeNetwork) {
    text += "\nBonus: " + std::to_string(static_cast<std::int64_t>(std::floor(game.Wager * 0.1)));
  }
  return text;
}

}  // namespace kv
