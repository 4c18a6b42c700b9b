#include "screens/MenuTexts.h"

namespace kv {
namespace {

constexpr std::int32_t kMostCredits = 2'000'000'000;
constexpr int kWinsOverLastOpponent = 10;

template <typename Number>
std::string Decimal(Number number) {
  return std::to_string(number);
}

std::string Record(std::int32_t credits, int wins, int losses) {
  return Decimal(credits) + " credits, " + Decimal(wins) + " wins, " + Decimal(losses) + " losses.";
}

}  // namespace

bool CampaignLost(const PlayerFields& player) {
  return player.Credits->Value == 0 && CountCards(player.Cards->getValue()) <= 0;
}

bool CampaignWon(const PlayerFields& player) {
  return player.Orrin_Wins->Value >= kWinsOverLastOpponent;
}

MenuTexts MenuTextsOf(const PlayerFields& player) {
  MenuTexts texts;
  texts.cmdPlayer = "current player: " + player.Name;
  texts.lblArcadeHigh = "Arcade Highscore: " + Decimal(player.Arcade_Best) + " credits.";
  if (player.Arcade_Best == kMostCredits) texts.lblArcadeHigh += "(VICTORY)";
  texts.lblSPStats =
      "Current campaign stats: " + Record(player.Credits->Value, player.Wins->Value, player.Losses->Value);
  if (CampaignLost(player)) {
    texts.lblSPStats += " (DEFEATED: No credits or extra cards to sell)";
  } else if (CampaignWon(player)) {
    texts.lblSPStats += " (VICTORY: All players defeated)";
  }
  texts.lblMPStats = "Current multiplayer stats: " +
                     Record(player.Credits_MP->Value, player.Wins_MP->Value, player.Losses_MP->Value) + " " +
                     Decimal(player.Disconnects) + " disconnects.";
  return texts;
}

}  // namespace kv
