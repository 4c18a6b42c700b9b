#include "campaign/Circuit.h"

#include <algorithm>
#include <utility>

#include "match/clsGame.h"
#include "profile/PlayerFields.h"

namespace kv {
namespace {

// To add an opponent, add its row here and its deck in match/Dealing.cpp.
constexpr std::array<CircuitOpponent, kCircuitTiles> kOpponents = {{
    {"Lucky Brannock", 0, 10, 1, &PlayerFields::Brannock_Wins},
    {"Tamsen", 0, 50, 2, &PlayerFields::Tamsen_Wins},
    {"Vel'ir", 100, 185, 3, &PlayerFields::Velir_Wins},
    {"Brummox", 350, 500, 4, &PlayerFields::Brummox_Wins},
    {kFinalOpponent, 750, 750, 5, &PlayerFields::Orrin_Wins},
    {kSpecialOpponent, 0, 1000, 45, &PlayerFields::H6J8_Wins},
    {"Yourself", 0, 0, 0, nullptr},
}};
constexpr int kLastOfNarrow = 4;  // the tiles after it belong to the finished campaign

}  // namespace

const std::array<CircuitOpponent, kCircuitTiles>& CircuitOpponents() {
  return kOpponents;
}

std::shared_ptr<clsInteger> WinCounter(const PlayerFields& player, std::string_view opponent) {
  const auto* row = std::find_if(kOpponents.begin(), kOpponents.end(),
                                 [&](const CircuitOpponent& each) { return each.name == opponent; });
  return row == kOpponents.end() || row->wins == nullptr ? nullptr : player.*(row->wins);
}

Circuit::Circuit(clsGame& game, PlayerFields& player) : game_(game), player_(player) {
  game_.CreditsRef = player_.Credits;
  game_.WinsRef = player_.Wins;
  game_.LossesRef = player_.Losses;
  game_.CardsRef = player_.Cards;
  game_.DeckRef = player_.Deck;
  // A stake that was open on the card screen went with the working copies it was taken from.
  game_.Wager = -1;
}

CircuitTile Circuit::Tile(int index) const {
  const auto place = static_cast<std::size_t>(index);
  CircuitTile tile{.opponent = kOpponents.at(place), .wins = -1, .visible = true, .enabled = false};
  if (tile.opponent.wins != nullptr) tile.wins = (player_.*(tile.opponent.wins))->Value;
  if (index == kYourself) tile.opponent.portrait = player_.Portrait;
  if (index > kLastOfNarrow) {
    tile.visible = Finished();
  } else if (index > 0) {
    tile.visible = (player_.*(kOpponents.at(place - 1).wins))->Value >= kWinsToUnlock;
  }
  tile.enabled = tile.visible && player_.Credits->Value >= tile.opponent.minWager;
  return tile;
}

bool Circuit::Finished() const {
  return player_.Orrin_Wins->Value >= kWinsToUnlock;
}

bool Circuit::Bankrupt() const {
  return player_.Credits->Value == 0 && CountCards(player_.Cards->getValue()) == 0;
}

bool Circuit::TakeLevelUp() {
  return std::exchange(game_.CampaignWinRef, nullptr) != nullptr;
}

bool Circuit::Choose(int index) {
  const CircuitTile tile = Tile(index);
  if (!tile.enabled) return false;
  game_.Mode = kModeCampaign;
  game_.OppName = tile.opponent.name;
  game_.MinWager = tile.opponent.minWager;
  game_.MaxWager = tile.opponent.maxWager;
  game_.LoadPortraits(player_.Portrait, tile.opponent.portrait);
  // Whoever meets oneself sees one's own face twice, also when it comes from a picture file of one's own.
  if (index == kYourself) game_.OppPic = game_.YourPic;
  return true;
}

void Circuit::ChooseDeckView() {
  game_.Mode = kModeDeckConfig;
}

}  // namespace kv
