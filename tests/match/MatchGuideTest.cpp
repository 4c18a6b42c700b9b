// What a newcomer is told, and when it goes.
#include <gtest/gtest.h>

#include "match/MatchGuide.h"
#include "profile/Settings.h"
#include "profile/clsPlayer.h"
#include "support/MatchTable.h"
#include "support/MemorySettings.h"
#include "support/ScriptedDialogs.h"

namespace kv::test {
namespace {

class GuideTest : public testing::Test {
 protected:
  struct Guided {
    Guided(GuideTest& test, const Deal& deal)
        : table(deal), guide(table.game, test.player, &test.settings, table.engine->shown()) {
      table.engine->setObserver(&guide);
    }
    /// Starts, and looks when the person may act, as the screen does.
    void Start() {
      table.Start();
      guide.Look();
    }
    void EndTurn() {
      table.EndTurn();
      guide.Look();
    }
    MatchTable table;
    MatchGuide guide;
  };

  MemorySettings store;
  Settings settings{store};
  ScriptedDialogs dialogs;
  SeededRandom random{1};
  clsPlayer player{dialogs, random};
};

TEST_F(GuideTest, IsOfferedOnceInTheFirstArcadeMatchOnly) {
  player.FileName = "/players/J\xC3\xB6rg.vnt";
  const MatchShown shown;
  const auto offered = [&](std::string_view mode, int best) {
    clsGame game;
    game.Mode = mode;
    player.Arcade_Best = best;
    return MatchGuide(game, player, &settings, shown).active();
  };
  EXPECT_TRUE(offered(kModeArcade, 0));
  for (const std::string_view mode : {kModeCampaign, kModeNetwork, kModeNetworkArcade}) {
    EXPECT_FALSE(offered(mode, 0)) << mode;
  }
  EXPECT_FALSE(offered(kModeArcade, 100)) << "a run lies behind this player";
  EXPECT_FALSE(MatchGuide(clsGame(), player, nullptr, shown).active());
  settings.setHints(false);
  EXPECT_FALSE(offered(kModeArcade, 0));
  settings.setHints(true);
  player.Arcade_Best = 0;
  MatchGuide(clsGame(), player, &settings, shown).Decline();
  EXPECT_FALSE(offered(kModeArcade, 0)) << "for good";
  for (const auto& [key, text] : store.texts) {
    EXPECT_EQ(key.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_."),
              std::string::npos)
        << key << " would not be kept";
  }
  player.FileName = "/players/Jerg.vnt";
  EXPECT_TRUE(offered(kModeArcade, 0)) << "another player of the same house";
}

TEST_F(GuideTest, AnOfferThatNobodyAnswersGoesWithTheSet) {
  Guided match(*this, {.draws = {10, 9, 8}});
  match.table.strategy.turns = {StandOpponent};
  match.Start();
  EXPECT_EQ(match.guide.now(), Guidance::Offer);
  match.table.Stand();
  EXPECT_EQ(match.guide.now(), Guidance::None);
  EXPECT_FALSE(Guided(*this, {}).guide.active());
}

TEST_F(GuideTest, EachHintComesWhenItMattersAndGoesWithItsMove) {
  Guided match(*this, {.hand = {"fp6", "ps2", "ps1", "s299"}, .draws = {5, 3, 10, 3, 10, 3}});
  match.Start();
  match.guide.Accept();
  EXPECT_EQ(match.guide.now(), Guidance::Turn);
  match.EndTurn();
  EXPECT_EQ(match.table.engine->shown().Total(Seat::Player), 15);
  EXPECT_EQ(match.guide.now(), Guidance::SideCard) << "plus 2 makes 17";
  EXPECT_NE(match.guide.text().find("+2 would bring you closer"), std::string::npos) << match.guide.text();
  match.table.Play(2);
  EXPECT_EQ(match.guide.now(), Guidance::Stand);
  EXPECT_EQ(match.guide.text().substr(0, 2), "17");
  match.EndTurn();
  EXPECT_EQ(match.table.engine->shown().Total(Seat::Player), 27) << "too much";
  EXPECT_EQ(match.guide.now(), Guidance::Special) << "neither sign helps, and there is a double";
  match.EndTurn();
  EXPECT_EQ(match.guide.now(), Guidance::None);
}

TEST_F(GuideTest, TheSignIsTurnedByTheButtonItSpeaksOf) {
  player.FileName = "ann.vnt";
  for (const char* seen : {"first_turn_ann", "first_stand_ann", "first_side_card_ann"})
    settings.setHintSeen(seen);
  Guided match(*this, {.hand = {"fp4", "ps1", "ps1", "ps1"}, .draws = {10, 3, 9, 3, 3, 3}});
  match.Start();
  match.guide.Accept();
  match.EndTurn();
  match.EndTurn();
  ASSERT_EQ(match.table.engine->shown().Total(Seat::Player), 22);
  EXPECT_EQ(match.guide.now(), Guidance::Sign);
  match.table.engine->person().FirstFlip(1);
  EXPECT_NE(match.guide.now(), Guidance::Sign);
  EXPECT_TRUE(settings.hintSeen("first_sign_ann"));
}

TEST_F(GuideTest, WhatWasNotSeenWaitsForTheNextMatch) {
  player.FileName = "ann.vnt";
  {
    Guided match(*this, {.draws = {5}});
    match.Start();
    match.guide.Accept();
    EXPECT_EQ(match.guide.now(), Guidance::Turn);
  }
  player.Arcade_Best = 300;
  Guided next(*this, {.draws = {5, 4, 5}});
  next.Start();
  EXPECT_EQ(next.guide.now(), Guidance::Turn) << "without another offer";
  next.EndTurn();
  EXPECT_EQ(next.guide.now(), Guidance::None);
}

}  // namespace
}  // namespace kv::test
