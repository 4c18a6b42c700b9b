// The options of a match: who begins, how long it pauses, what goes on by itself; and the main deck.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

TEST(MainDeck, ReportedDrawsWithoutEndDoNotStopTheNext) {
  MatchTable table({.draws = {8}});
  table.engine->Activate();
  for (int value = 1; value <= 10; ++value) {
    for (int i = 0; i < 5; ++i) table.engine->board().DeductDrawCard(value);
  }
  table.Run();
  EXPECT_EQ(table.Cards(Seat::Player), "no8");
  EXPECT_THROW(table.engine->board().DeductDrawCard(0), std::out_of_range);
  EXPECT_THROW(table.engine->board().DeductDrawCard(11), std::out_of_range);
}

/// Who begins each of three sets: "p" the player, "o" the opponent. Every set is tied on 5.
std::string Starters(MatchOptions options, int firstDraw, const std::string& mode = std::string(kModeArcade),
                     bool hosting = true) {
  Deal deal{.draws = {}, .options = options, .mode = mode, .hosting = hosting};
  if (firstDraw > 0) deal.draws = {firstDraw};
  deal.draws.insert(deal.draws.end(), 6, 5);
  MatchTable table(deal);
  table.strategy.turns.assign(3, StandOpponent);
  if (!hosting) table.engine->peer().setPlayerStarts(true);
  const bool network = mode != kModeArcade;
  table.Start();
  std::string starters;
  while (starters.size() < 3) {
    if (network) table.PeerReady();
    table.PeerStands(5);
    table.Stand();
    table.PeerStands(5);
    EXPECT_EQ(table.screen.banner.text, "The set is tied.");
    EXPECT_TRUE(table.Heard("tie"));
    EXPECT_EQ(table.engine->shown().SetWins(Seat::Player) + table.engine->shown().SetWins(Seat::Opponent), 0);
    starters += table.screen.Lines({"light on"}).at(0) == "your light on" ? "p" : "o";
    table.screen.story.clear();
    if (starters.size() < 3) table.Continue();
  }
  return starters;
}

TEST(Starts, FollowTheTurnSystem) {
  // Drawn once, an even chance: below a half the opponent begins.
  EXPECT_EQ(Starters({.turnMode = 0}, 5), "ooo");
  EXPECT_EQ(Starters({.turnMode = 0}, 6), "ppp");
  EXPECT_EQ(Starters({.turnMode = 1}, 0), "ppp");
  EXPECT_EQ(Starters({.turnMode = 2}, 5), "opo");
  EXPECT_EQ(Starters({.turnMode = 2}, 6), "pop");
  EXPECT_EQ(Starters({.turnMode = 3}, 0), "ooo");
}

TEST(Starts, AlternateInANetworkMatchWhateverTheOption) {
  for (const int mode : {0, 1, 2}) {
    EXPECT_EQ(Starters({.turnMode = mode}, 5, std::string(kModeNetwork)), "opo") << mode;
    EXPECT_EQ(Starters({.turnMode = mode}, 6, std::string(kModeNetworkArcade)), "pop") << mode;
    EXPECT_EQ(Starters({.turnMode = mode}, 0, std::string(kModeNetwork), false), "pop") << "as the host said";
  }
}

TEST(Pace, FollowsStyleAndSpeed) {
  // In milliseconds, of a set that knows every pause.
  for (const auto& [speed, ember, pauses] : Rows<int, bool, std::vector<int>>{
           {0, false, {380, 440, 374, 440, 280, 175, 440, 125, 440, 440, 280, 293}},
           {1, false, {350, 380, 323, 380, 250, 175, 380, 125, 380, 380, 250, 253}},
           {-1, false, {350, 380, 323, 380, 250, 175, 380, 125, 380, 380, 250, 253}},
           {3, false, {350, 380, 323, 380, 250, 175, 380, 125, 380, 380, 250, 253}},
           {250, false, {350, 380, 323, 380, 250, 175, 380, 125, 380, 380, 250, 253}},
           {2, false, {320, 320, 272, 320, 220, 175, 320, 125, 320, 320, 220, 213}},
           {0, true, {380, 270, 229, 270, 280, 175, 270, 125, 270, 270, 280, 180}},
           {1, true, {350, 210, 178, 210, 250, 175, 210, 125, 210, 210, 250, 140}},
           {2, true, {320, 150, 127, 150, 220, 175, 150, 125, 150, 150, 220, 100}}}) {
    MatchCourse course(std::string(kModeArcade), {.speed = speed, .emberStyle = ember});
    course.Play();
    EXPECT_EQ(course.table.pauses, pauses) << speed << (ember ? " Ember" : " Slate");
  }
}

TEST(Pace, OfTheTurnsIsTheSameForBothSidesOfANetworkMatch) {
  for (const std::string_view mode : {kModeNetwork, kModeNetworkArcade}) {
    for (const int speed : {0, 1, 2}) {
      MatchCourse course(std::string(mode), {.speed = speed});
      course.Play();
      std::vector<int> expected = MatchCourse::Pauses(std::string(mode));
      expected.front() = 350 - (speed - 1) * 30;  // only the pause before a set follows the speed
      EXPECT_EQ(course.table.pauses, expected) << speed;
    }
  }
}

TEST(Pace, AnAutomaticStandIsWaitedForOnce) {
  MatchTable table({.hand = {"ps10"}, .draws = {10, 3, 4}});
  table.strategy.turns = {EndOpponent, StandOpponent};
  table.Start();
  table.pauses.clear();
  table.Play(1);
  EXPECT_EQ(table.pauses, (std::vector<int>{125, 380, 380, 250, 380, 250, 253}))
      << "the opponent goes on alone without a further wait";
}

TEST(AutoTurn, EndsATurnBelowTen) {
  for (const auto& [drawn, option, ends] :
       Rows<int, bool, bool>{{9, true, true}, {10, true, false}, {9, false, false}, {1, true, true}}) {
    MatchTable table({.draws = {drawn, 5, 9}, .options = {.turnMode = 1, .autoTurn = option}});
    table.Start();
    EXPECT_EQ(table.strategy.asked, ends ? 1 : 0) << drawn;
    EXPECT_TRUE(table.screen.controls.endTurn);
  }
}

TEST(AutoTurn, LeavesTheTurnToAPlayerWhoIsNotBehindAStandingOpponent) {
  for (const int drawn : {4, 5, 6}) {
    MatchTable table({.draws = {5, drawn, 9}, .playerStarts = false, .options = {.autoTurn = true}});
    table.strategy.turns = {StandOpponent};
    table.Start();
    EXPECT_EQ(table.engine->shown().Table(Seat::Player).size(), drawn < 5 ? 2U : 1U) << drawn << " against 5";
  }
}

TEST(AutoDialogs, ConfirmTheEndOfTheMatchToo) {
  MatchTable table({.draws = {9}, .options = {.turnMode = 1, .autoDialogs = true}});
  table.Start();
  table.engine->person().Forfeit();
  EXPECT_TRUE(table.autoTimer);
  EXPECT_FALSE(table.screen.banner.buttonEnabled);
  table.sounds.clear();
  table.engine->person().Forfeit();  // the title bar's close acts as the banner's button, which is off
  EXPECT_TRUE(table.sounds.empty());
  EXPECT_FALSE(table.left);
  table.engine->AutoDialogsTick();
  EXPECT_TRUE(table.left);
  EXPECT_FALSE(table.autoTimer);
  EXPECT_EQ(table.sounds, std::vector<std::string>{"click"});

  MatchTable off({.draws = {9}});
  off.Start();
  off.sounds.clear();
  off.engine->AutoDialogsTick();
  EXPECT_TRUE(off.sounds.empty()) << "no banner, nothing to confirm";
  off.engine->person().Forfeit();
  EXPECT_FALSE(off.autoTimer);
  EXPECT_TRUE(off.screen.banner.buttonEnabled);
}

TEST(MainDeck, AFifthCopyIsDrawnAgainAndEverySetHasAWholeDeck) {
  MatchTable table({.draws = {3, 3, 3, 3, 3, 8, 5, 3}});
  table.strategy.turns = {EndOpponent, EndOpponent, StandOpponent};
  table.Start();
  table.EndTurn();
  table.EndTurn();
  EXPECT_EQ(table.Cards(Seat::Opponent), "no3 no3") << "the fourth copy is still there";
  EXPECT_EQ(table.Cards(Seat::Player), "no3 no3 no8") << "the fifth is not";
  table.Stand();
  EXPECT_EQ(table.Cards(Seat::Opponent), "no3 no3 no5");
  table.Continue();
  EXPECT_EQ(table.Cards(Seat::Player), "no3");
  for (int value = 1; value <= 10; ++value) {
    EXPECT_EQ(table.engine->board().MainDeckCount(value), value == 3 ? 1 : 0) << value;
  }
}

TEST(MainDeck, IsOneForBothSidesOfANetworkMatch) {
  for (const int peersCopies : {2, 3}) {
    MatchTable table({.draws = {9, 3, 3, 8}, .mode = std::string(kModeNetwork), .hosting = true});
    table.Start();
    table.PeerReady();
    table.EndTurn();
    for (int copy = 0; copy < peersCopies; ++copy) table.engine->board().DeductDrawCard(3);
    table.engine->peer().AI_EndTurn();
    table.Run();
    EXPECT_EQ(table.Cards(Seat::Player), peersCopies == 2 ? "no3 no3" : "no3 no8");
    EXPECT_EQ(table.sent.back(), peersCopies == 2 ? "[Card]no3" : "[Card]no8");
  }
}

}  // namespace
}  // namespace kv::test
