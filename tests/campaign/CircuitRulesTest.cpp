// The circuit: which tiles are open, what choosing one prepares, bankruptcy, and the hands of its matches;
// and the tips: what can be done on the card screen and on the circuit, and why something cannot.
#include "CampaignFixture.h"
#include "ai/clsAI_Normal.h"
#include "campaign/CampaignFixture.h"
#include "campaign/DeskTips.h"
#include "match/Dealing.h"
#include "support/Rows.h"
#include "vantri-campaign/CampaignPlay.h"

namespace kv::test {
namespace {

using CircuitRulesTest = CampaignFixture;

TEST_F(CircuitRulesTest, TilesFollowWinsAndCredits) {
  // By tile: "o" open, "g" grey, "." hidden.
  for (const auto& [what, wins, credits, expected] :
       Rows<const char*, std::array<std::int16_t, 6>, std::int32_t, std::string>{
           {"new", {}, 100, "o......"},
           {"nine against each", {9, 9, 9, 9, 9, 9}, 5000, "o......"},
           {"first unlock", {10}, 0, "oo....."},
           {"too poor for the third", {10, 10}, 99, "oog...."},
           {"just enough for the third", {10, 10}, 100, "ooo...."},
           {"one short of the last", {10, 10, 10, 10}, 749, "oooog.."},
           {"the last", {10, 10, 10, 10, 9}, 750, "ooooo.."},
           {"finished", {10, 10, 10, 10, 10}, 349, std::string("ooogg") + "oo"},
           {"finished and broke", {10, 10, 10, 10, 10, 3}, 0, "oogggoo"},
           {"special wins alone show nothing", {0, 0, 0, 0, 0, 10}, 750, "o......"}}) {
    SCOPED_TRACE(what);
    for (std::size_t i = 0; i < wins.size(); ++i) {
      (player.*(CircuitOpponents()[i].wins))->Value = wins[i];
    }
    player.Credits->Value = credits;
    Circuit circuit(game, player);
    std::string tiles;
    for (int i = 0; i < kCircuitTiles; ++i) {
      const CircuitTile tile = circuit.Tile(i);
      tiles += !tile.visible ? '.' : tile.enabled ? 'o' : 'g';
      EXPECT_EQ(circuit.Choose(i), tile.enabled);
    }
    EXPECT_EQ(tiles, expected);
    EXPECT_EQ(circuit.Finished(), wins[4] >= 10);
  }
  EXPECT_EQ(Circuit(game, player).Tile(kYourself).wins, -1);
}

TEST_F(CircuitRulesTest, ChoosingPreparesTheMatch) {
  std::vector<int> portraits;
  clsGame record(player, [&](int number, const std::string&) {
    portraits.push_back(number);
    return Picture();
  });
  player.Portrait = 12;
  player.Orrin_Wins->Value = player.Brummox_Wins->Value = 10;
  player.Credits->Value = 800;
  Circuit circuit(record, player);
  circuit.ChooseDeckView();
  EXPECT_EQ(record.Mode, "Deck Config");
  ASSERT_TRUE(circuit.Choose(4));
  EXPECT_EQ(record.Mode, "Campaign");
  EXPECT_EQ(record.OppName, "Orrin Vaal");
  EXPECT_EQ(record.MinWager, 750);
  EXPECT_EQ(record.MaxWager, 750);
  EXPECT_EQ(portraits.back(), 5);
  EXPECT_EQ(record.CreditsRef, player.Credits);

  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, player.Orrin_Wins);
  ASSERT_TRUE(circuit.Choose(kYourself));
  EXPECT_EQ(portraits.back(), 12);
  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, nullptr);
  record.Mode = kModeArcade;
  record.OppName = "H6-J8";
  DealMatch(record, player, random);
  EXPECT_EQ(record.CampaignWinRef, nullptr) << "arcade counts no wins against an opponent";
}

TEST_F(CircuitRulesTest, BankruptIsWhoHasNothingToSell) {
  player.Credits->Value = 0;
  EXPECT_TRUE(Circuit(game, player).Bankrupt()) << "the side deck does not count";
  player.Cards->setValue(4, 2, 1);
  EXPECT_FALSE(Circuit(game, player).Bankrupt());
  player.Cards->Fill(0);
  player.Credits->Value = 1;
  EXPECT_FALSE(Circuit(game, player).Bankrupt());
}

// The whole road, again and again: every match is booked once, and nothing is ever refused on the way (the
// simulation throws when a tile, a stake, a deal or a booking is).
TEST_F(CircuitRulesTest, WholeCampaignsKeepTheirBooks) {
  clsAI_Normal strategy;
  std::array<int, 3> ends{};
  for (std::uint64_t seed = 1; seed <= 6; ++seed) {
    SeededRandom chance(seed);
    const CampaignHabits habits{
        .stakes = static_cast<StakePolicy>(seed % 3), .patient = seed % 2 == 0, .mostMatches = 3000};
    const CampaignResult result = PlayCampaign(habits, strategy, chance);
    EXPECT_EQ(result.wins + result.losses, result.matches);
    EXPECT_GE(result.credits, 0);
    EXPECT_GE(result.wins, result.end == CampaignEnd::Finished ? 50 : 0);
    ++ends.at(static_cast<std::size_t>(result.end));
  }
  EXPECT_GT(ends[0], 0) << "a campaign can be finished";
  EXPECT_GT(ends[1], 0) << "and lost";
}

class DeskTips : public CampaignFixture {
 protected:
  /// What the stake's button says to this amount.
  std::string Stake(const char* amount) {
    WagerEntry entry(game, player, networkStake, true);
    static_cast<void>(entry.Change(amount, 0));
    return entry.ButtonTip();
  }
};

TEST_F(DeskTips, SayWhichLimitAStakeBreaks) {
  player.Credits->Value = 300;
  player.Tamsen_Wins->Value = kWinsToUnlock;
  Meet(2);  // 100 to 185
  EXPECT_EQ(Stake(""), "Say first what you play for.");
  EXPECT_EQ(Stake("301"), "You have only 300 credits.");
  EXPECT_EQ(Stake("186"), "The most in this match is 185.");
  EXPECT_EQ(Stake("99"), "The least in this match is 100.");
  EXPECT_NE(Stake("100").find("(Enter)"), std::string::npos);
  game.Mode = kModeArcade;
  game.MinWager = 0;
  EXPECT_EQ(Stake("0"), "The least in this match is 1.");
  game.Mode = kModeNetwork;
  EXPECT_EQ(WagerEntry(game, player, networkStake, false).ButtonTip(), "The other side has the word.");
}

TEST_F(DeskTips, SayWhatTheDeckLacks) {
  player.Credits->Value = 150;
  player.Cards->Fill(0);
  player.Cards->setValue(1, 1, 2);
  for (int slot = 1; slot <= kDeckSize; ++slot) player.Deck->setValue(slot, CardCode("ps2"));
  Meet(0);
  CardDesk desk(game, player, networkStake);
  const CardPlace one{1, 1};
  EXPECT_EQ(ContinueTip(desk), "The stake comes first.");
  EXPECT_EQ(BankTip(desk, one), "Adds 1 to your total.\nThe stake comes first.");
  desk.StakeSettled();
  EXPECT_EQ(BankTip(desk, one), "Adds 1 to your total.\nThe deck is full: take a card out first.");
  EXPECT_EQ(ContinueTip(desk), "Begins the match with this deck. (Enter)");
  ASSERT_TRUE(desk.RemoveCard(1));
  ASSERT_TRUE(desk.RemoveCard(2));
  EXPECT_EQ(ContinueTip(desk), "Ten cards make a deck: 2 are missing.");
  EXPECT_EQ(ViewTip(desk, CardView::Buy), "Fill the deck first.");
  EXPECT_EQ(DeckTip(desk, 1), "");
  desk.ClickBank(one);
  EXPECT_EQ(ContinueTip(desk), "Ten cards make a deck: 1 is missing.");
  desk.ClickBank(one);
  desk.YourDeck(CardView::Sell);
  EXPECT_EQ(BankTip(desk, one), "Adds 1 to your total.\nIt is in the deck: take it out to sell it.");
  EXPECT_EQ(ContinueTip(desk), "Go back to the deck first.");
  desk.YourDeck(CardView::Buy);
  EXPECT_NE(TradeTip(desk).find("more than your 150 credits is not offered"), std::string::npos);
  ASSERT_EQ(desk.ClickBank({1, 6}), BankClick::Picked);
  EXPECT_EQ(TradeTip(desk), "Buys it for 100 credits. (Space)");
  EXPECT_NE(BankTip(desk, {1, 6}).find("Costs 100 credits."), std::string::npos);
}

TEST_F(DeskTips, SayWhatOpensAnOpponent) {
  player.Credits->Value = 60;
  player.Brannock_Wins->Value = 9;
  Circuit circuit(game, player);
  EXPECT_EQ(OpponentTip(circuit.Tile(0), 60),
            "Plays for 0 to 10 credits.\n1 more win to open the next opponent.");
  EXPECT_EQ(ClosedTileTip(circuit.Tile(0)), "1 more win against Lucky Brannock to open this place.");
  EXPECT_EQ(ClosedTileTip(circuit.Tile(1)), "Someone who is still to come.");
  player.Brannock_Wins->Value = player.Tamsen_Wins->Value = kWinsToUnlock;
  EXPECT_EQ(OpponentTip(circuit.Tile(2), 60), "Plays for at least 100 credits; you have 60.");
  EXPECT_EQ(OpponentTip(circuit.Tile(1), 60), "Plays for 0 to 50 credits.");
}

}  // namespace
}  // namespace kv::test
