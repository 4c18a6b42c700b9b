// What is dealt, and the record with which an arcade run begins.
#include <gtest/gtest.h>

#include <map>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/Dealing.h"
#include "match/clsGame.h"
#include "profile/clsPlayer.h"
#include "support/ScriptedDialogs.h"

namespace kv::test {
namespace {

std::string HandText(const clsDeckArray& hand) {
  std::string text;
  for (int slot = 1; slot <= kHandSize; ++slot) text += (slot > 1 ? " " : "") + hand.Value(slot).text();
  return text;
}

TEST(Dealing, DrawsFourDifferentPositionsInHandForm) {
  clsGame game;
  game.DeckRef = std::make_shared<clsDeckArray>();
  game.DeckRef->setAll({"s199", "s599", "fl1", "fl2", "ms3", "s299", "s399", "s499", "ps5", "fl6"});
  SeededRandom random(4);
  std::map<std::string, int> seen;
  for (int deal = 0; deal < 200; ++deal) {
    DealYourHand(game, random);
    for (int slot = 1; slot <= kHandSize; ++slot) ++seen[game.SideDeck->Value(slot).text()];
    for (int a = 1; a < kHandSize; ++a) {
      for (int b = a + 1; b <= kHandSize; ++b) {
        EXPECT_FALSE(game.SideDeck->Value(a) == game.SideDeck->Value(b)) << "a position was drawn twice";
      }
    }
  }
  EXPECT_EQ(seen.size(), 10U);
  for (const char* code : {"s11", "s51", "fp1", "fp6", "ms3", "s299"}) EXPECT_GT(seen[code], 40) << code;
}

TEST(Dealing, OpponentsHoldTheirOwnDecks) {
  SeededRandom random(1);
  clsGame game;
  game.DeckRef = std::make_shared<clsDeckArray>();
  game.DeckRef->DefaultDeckMP();
  DealYourHand(game, random);
  game.OppName = "Lucky Brannock";
  SetupCompHand(game, random);
  EXPECT_EQ(HandText(*game.CompDeck), "ms-6 ms-6 ms-6 ms-6");
  game.OppName = "Yourself";
  SetupCompHand(game, random);
  clsDeckArray sorted = *game.SideDeck;
  AI_SortDeck(sorted);
  EXPECT_EQ(HandText(*game.CompDeck), HandText(sorted));
  for (const char* name : {"Orrin Vaal", "Tamsen", "Vel'ir", "Brummox", "H6-J8"}) {
    EXPECT_FALSE(OpponentDeck(name) == clsDeckArray()) << name;
  }
}

TEST(Dealing, SortsByKind) {
  clsDeckArray deck;
  const char* codes[] = {"fp2", "ps3", "s11", "ms-1"};
  for (int i = 0; i < 4; ++i) deck.setValue(i + 1, CardCode(codes[i]));
  AI_SortDeck(deck);
  EXPECT_EQ(HandText(deck), "ps3 ms-1 fp2 s11");
}

TEST(ArcadeRun, StartsWithAQuarterOfTheBestScore) {
  for (const auto& [best, credits] : {std::pair{0, 100},
                                      {100, 100},
                                      {400, 100},
                                      {402, 100},
                                      {406, 102},
                                      {407, 102},
                                      {410, 102},
                                      {1000, 250},
                                      {2000000000, 500000000}}) {
    EXPECT_EQ(ArcadeStartCredits(best), credits) << best;
  }
}

TEST(ArcadeRun, FollowsThePlayersOptions) {
  ScriptedDialogs dialogs;
  SeededRandom random(1);
  clsPlayer player(dialogs, random);
  player.Arcade_Best = 1000;
  std::vector<std::string> asked;
  const PortraitSource portraits = [&](int number, const std::string& name) {
    asked.push_back(std::to_string(number) + ":" + name);
    return Picture();
  };
  const clsGame standard(player, portraits);
  EXPECT_EQ(standard.OppName, "Orrin Vaal");
  EXPECT_NE(dynamic_cast<clsAI_Normal*>(standard.AI.get()), nullptr);
  EXPECT_EQ(standard.CreditsRef->Value, 250);
  EXPECT_EQ(standard.Wager, -1);
  EXPECT_EQ(standard.DeckRef, player.ArcadeDeck);
  EXPECT_EQ(CountCards(standard.CardsRef->getValue()), 240);

  player.ArcadeOpp_Opt = 1;
  player.ArcadeAI_Opt = 1;
  const clsGame ember(player, portraits);
  EXPECT_EQ(ember.OppName, "H6-J8");
  EXPECT_NE(dynamic_cast<clsAI_Ember*>(ember.AI.get()), nullptr);
  player.ArcadeOpp_Opt = 2;
  EXPECT_EQ(clsGame(player, portraits).OppName, "");
  EXPECT_EQ(asked, (std::vector<std::string>{"7:", "5:0", "7:", "45:0"}));
}

}  // namespace
}  // namespace kv::test
