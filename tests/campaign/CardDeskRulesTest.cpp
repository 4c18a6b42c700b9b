// The working copies of the card screen: deck editing, the views of the banks, the shop, and what Continue
// stores.
#include "campaign/CampaignFixture.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

class CardDeskRulesTest : public CampaignFixture {
 protected:
  CardDesk DeckView() {
    MeetDeckView();
    return {game, player, networkStake};
  }
  static std::string Shown(const CardDesk& desk, const CardPlace& place) {
    const BankCard card = desk.Bank(place);
    return card.visible ? card.enabled ? "on" : "dim" : "hidden";
  }
};

TEST_F(CardDeskRulesTest, PlacesAndPricesOfEveryCard) {
  for (const auto& [code, expected, buy, sell] :
       Rows<const char*, CardPlace, int, int>{{"ps1", {1, 1}, 600, 240},
                                              {"ps6", {1, 6}, 100, 40},
                                              {"ms4", {2, 4}, 330, 165},
                                              {"ms2", {2, 2}, 550, 275},
                                              {"fl3", {3, 3}, 850, 510},
                                              {"fp4", {3, 4}, 650, 390},
                                              {"fm5", {3, 5}, 420, 252},
                                              {"fn6", {3, 6}, 220, 132},
                                              {"s199", {4, 1}, 2000, 1400},
                                              {"s399", {4, 3}, 1000, 700},
                                              {"s599", {4, 5}, 2500, 1750},
                                              {"s699", {0, 0}, 0, 0},
                                              {"no5", {0, 0}, 0, 0},
                                              {"", {0, 0}, 0, 0},
                                              {"ps9", {1, 9}, 0, 0}}) {
    const CardPlace place = CardKindValue(CardCode(code));
    EXPECT_EQ(place, expected) << code;
    EXPECT_EQ(CardPrice(place.kind, place.value), buy) << code;
    EXPECT_EQ(SellValue(place), sell) << code;
    EXPECT_EQ(buy * SellFactor(place.kind) / 100, sell) << code;
    EXPECT_EQ(Affordable(place, buy), buy > 0) << code;
    EXPECT_FALSE(Affordable(place, buy - 1)) << code;
  }
  for (int kind = 1; kind <= kCardKinds; ++kind) {
    for (int value = 1; value <= kCardNumbers; ++value) {
      const CardCode code = CollectionCode({kind, value});
      const CardPlace expected = kind == 4 && value == 6 ? CardPlace{} : CardPlace{kind, value};
      EXPECT_EQ(CardKindValue(code), expected);
    }
  }
}

TEST_F(CardDeskRulesTest, OnlyAFullDeckGoesOn) {
  Meet(0);
  CardDesk desk(game, player, networkStake);
  EXPECT_EQ(desk.view(), CardView::Null);
  EXPECT_FALSE(desk.RemoveCard(1)) << "the wager panel is in front";
  EXPECT_FALSE(desk.Buttons().shown || desk.Buttons().next);
  desk.StakeSettled();
  EXPECT_TRUE(desk.Buttons().shown && desk.Buttons().buy && desk.Buttons().sell && desk.Buttons().next);

  ASSERT_TRUE(desk.RemoveCard(3));
  EXPECT_FALSE(desk.RemoveCard(3));
  EXPECT_FALSE(desk.Buttons().buy || desk.Buttons().sell || desk.Buttons().next);
  ASSERT_TRUE(desk.RemoveCard(5));
  EXPECT_EQ(Shown(desk, {1, 2}), "on");
  EXPECT_EQ(Shown(desk, {1, 3}), "on");
  EXPECT_EQ(desk.ClickBank({1, 2}), BankClick::Added);
  EXPECT_EQ(desk.Slot(3).text(), "ps2");
  EXPECT_EQ(Shown(desk, {1, 2}), "dim") << "spent, until the deck is full";
  EXPECT_EQ(desk.ClickBank({1, 2}), BankClick::Ignored);
  EXPECT_EQ(desk.ClickBank({1, 3}), BankClick::Added);
  EXPECT_EQ(Shown(desk, {1, 2}), "hidden");
  EXPECT_EQ(Shown(desk, {1, 3}), "dim") << "spent by the click that filled the deck";
  EXPECT_TRUE(desk.Buttons().buy && desk.Buttons().sell && desk.Buttons().next);
  EXPECT_EQ(*game.DeckRef, *player.Deck);
}

TEST_F(CardDeskRulesTest, ArcadeHasTenOfEachCardInEveryMatch) {
  for (int match = 0; match < 3; ++match) {
    CardDesk desk(game, player, networkStake);
    EXPECT_EQ(desk.Bank({4, 1}).count, 8);
    EXPECT_EQ(desk.Bank({3, 5}).count, 9) << "a chosen sign is the same card";
    EXPECT_EQ(desk.Bank({1, 1}).count, 10);
    EXPECT_EQ(Shown(desk, {4, 6}), "hidden");
    desk.StakeSettled();
    EXPECT_FALSE(desk.Buttons().shown);
    EXPECT_TRUE(desk.Buttons().next);
    EXPECT_EQ(desk.ClickBank({1, 1}), BankClick::Ignored) << "the deck is full";
    if (match == 0) continue;  // left without Continue: the edits of this match are forgotten
    ASSERT_TRUE(desk.RemoveCard(10));
    ASSERT_EQ(desk.ClickBank({4, 2}), BankClick::Added);
    if (match == 2) desk.Store();
    ASSERT_TRUE(match == 2 || desk.RemoveCard(1));
  }
  EXPECT_EQ(game.DeckRef, player.ArcadeDeck);
  EXPECT_EQ(player.ArcadeDeck->Value(10).text(), "s299");

  game.Mode = kModeNetworkArcade;
  CardDesk desk(game, player, networkStake);
  EXPECT_EQ(game.Wager, 0);
  EXPECT_TRUE(desk.LeavesFreely() && desk.Buttons().next);
  EXPECT_FALSE(desk.Buttons().shown);
  EXPECT_EQ(desk.Bank({4, 2}).count, 9);
}

TEST_F(CardDeskRulesTest, TheShopOffersWhatCanBePaidAndTakesWhatIsFree) {
  player.Credits->Value = 599;
  player.Cards->setValue(1, 5, 1);  // two more copies are in the deck
  CardDesk poor = DeckView();
  poor.YourDeck(CardView::Buy);
  EXPECT_EQ(Shown(poor, {1, 1}), "hidden");
  EXPECT_EQ(poor.ClickBank({1, 1}), BankClick::Ignored);
  EXPECT_EQ(Shown(poor, {1, 2}), "on");
  EXPECT_EQ(Shown(poor, {4, 6}), "hidden");
  EXPECT_FALSE(poor.Trade()) << "nothing is picked";

  player.Credits->Value = 600;
  CardDesk desk = DeckView();
  EXPECT_EQ(desk.ContinueCaption(), "ok");
  desk.YourDeck(CardView::Buy);
  ASSERT_EQ(desk.ClickBank({1, 1}), BankClick::Picked);
  EXPECT_EQ(desk.Shop().price, "600");
  EXPECT_EQ(desk.Shop().amount, "2");
  ASSERT_TRUE(desk.Trade());
  EXPECT_EQ(desk.Credits(), 0);
  for (int value = 1; value <= 6; ++value) EXPECT_EQ(Shown(desk, {1, value}), "hidden");
  EXPECT_EQ(desk.Shop().price, "?");

  desk.YourDeck(CardView::Sell);
  ASSERT_EQ(desk.ClickBank({1, 5}), BankClick::Picked);
  EXPECT_EQ(desk.Shop().amountHeader, "# Left:");
  EXPECT_EQ(desk.Shop().amount, "3");
  ASSERT_TRUE(desk.Trade());
  EXPECT_FALSE(desk.Trade()) << "the second click of a fast hand";
  EXPECT_EQ(desk.Credits(), 80);
  EXPECT_EQ(Shown(desk, {1, 5}), "dim");
  EXPECT_EQ(desk.ClickBank({1, 5}), BankClick::Ignored);
  EXPECT_EQ(Shown(desk, {1, 6}), "hidden");
  EXPECT_EQ(player.Credits->Value, 600) << "nothing is stored yet";
  EXPECT_EQ(player.Cards->Value(1, 1), 0);
  desk.Store();
  EXPECT_EQ(player.Credits->Value, 80);
  EXPECT_EQ(player.Cards->Value(1, 1), 1);
  EXPECT_FALSE(desk.RemoveCard(1));
}

TEST_F(CardDeskRulesTest, WhatCannotBeCountedAsACardIsNobodysChange) {
  player.Deck->setValue(2, CardCode("xx"));
  CardDesk desk = DeckView();
  EXPECT_TRUE(desk.Slot(2).empty());
  EXPECT_FALSE(desk.Changed());
  player.Cards->setValue(1, 1, 1);
  CardDesk filled = DeckView();
  filled.ClickBank({1, 1});
  EXPECT_TRUE(filled.Changed());
  filled.Store();
  EXPECT_FALSE(filled.Changed());
}

TEST_F(CardDeskRulesTest, LimitsOfCreditsAndCounts) {
  player.Credits->Value = 1999999999;
  player.Cards->setValue(4, 5, 1);
  player.Cards->setValue(1, 1, 32767);
  CardDesk desk = DeckView();
  EXPECT_FALSE(desk.RemoveCard(1)) << "the collection has no room";
  desk.YourDeck(CardView::Buy);
  desk.ClickBank({1, 1});
  EXPECT_FALSE(desk.Trade());
  EXPECT_EQ(desk.Credits(), 1999999999);
  desk.YourDeck(CardView::Sell);
  desk.ClickBank({4, 5});
  EXPECT_TRUE(desk.Trade());
  EXPECT_EQ(desk.Credits(), 2000000000);
}

TEST_F(CardDeskRulesTest, TheNetworkDeskStoresItsOwnAccountAndTheStake) {
  MeetPeer(100);
  CardDesk desk(game, player, networkStake);
  EXPECT_EQ(desk.Title(), "Network Match: Select Cards");
  EXPECT_TRUE(desk.LeavesFreely());
  ASSERT_TRUE(SettleStake(game, player, 30));
  EXPECT_FALSE(desk.LeavesFreely());
  desk.StakeSettled();
  desk.Store();
  EXPECT_EQ(player.Credits_MP->Value, 70);
  EXPECT_EQ(game.CreditsRef, player.Credits_MP);
  EXPECT_EQ(networkStake.last, 30);
}

}  // namespace
}  // namespace kv::test
