// What can be done on the card screen and on the circuit, and why something cannot.
#include "CampaignFixture.h"
#include "campaign/DeskTips.h"

namespace kv::test {
namespace {

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
