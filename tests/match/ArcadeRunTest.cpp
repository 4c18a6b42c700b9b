// The match record of an arcade run.
#include <gtest/gtest.h>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/clsGame.h"
#include "profile/clsPlayer.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

namespace kv {
namespace {

class ArcadeRunTest : public testing::Test {
 protected:
  ArcadeRunTest() {
    player.FileName = folder / "Player.vnt";
    player.Arcade_Best = 1000;
  }

  test::TempFolder folder;
  test::ScriptedDialogs dialogs;
  SeededRandom random{1};
  clsPlayer player{dialogs, random};
};

TEST_F(ArcadeRunTest, TheRecordFollowsThePlayersOptions) {
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
}  // namespace kv
