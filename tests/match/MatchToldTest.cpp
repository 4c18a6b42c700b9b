// What the screen is told, and when: lights, dimmed cards, buttons and sounds, as a player sees and hears
// them.
#include <gtest/gtest.h>

#include "support/MatchTable.h"

namespace kv::test {
namespace {

using Lines = std::vector<std::string>;

TEST(Told, ATurnFromItsLightToItsEnd) {
  MatchTable table({.hand = {"ps3"}, .draws = {7, 5, 9}});
  table.Start();
  EXPECT_EQ(table.screen.story, (Lines{"pause 350", "your light on", "sound turn", "pause 380", "sound draw",
                                       "end turn on", "stand on", "forfeit on", "flips on", "hand on"}));
  table.screen.story.clear();
  table.Play(1);
  EXPECT_EQ(table.screen.story, (Lines{"hand off", "sound playcard"})) << "the hand is dimmed, nothing else";
  table.screen.story.clear();
  table.EndTurn();
  EXPECT_EQ(table.screen.story, (Lines{"your light off", "end turn off", "stand off", "forfeit off",
                                       "their light on", "sound turn", "pause 380", "sound draw", "pause 250",
                                       "their light off", "your light on", "sound turn", "pause 380",
                                       "sound draw", "end turn on", "stand on", "forfeit on", "hand on"}));
}

TEST(Told, ATableIsDimmedWhenItsSideStandsAndLitWithTheNextSet) {
  MatchTable table({.draws = {7, 5, 9, 4, 6, 8}});
  table.strategy.turns = {EndOpponent, StandOpponent};
  table.Start();
  table.screen.story.clear();
  table.Stand();
  EXPECT_EQ(table.screen.Lines({"table", "light", "set", "banner"}),
            (Lines{"your light off", "your table off", "their light on", "their light off", "their light on",
                   "their table off", "their light off", "sound loseset", "banner on"}));
  table.screen.story.clear();
  table.Continue();
  EXPECT_EQ(
      table.screen.Lines({"table", "banner", "pause", "your light"}),
      (Lines{"your table on", "their table on", "pause 350", "banner off", "your light on", "pause 380"}));
  table.screen.story.clear();
  table.strategy.turns = {StandOpponent};
  table.EndTurn();
  EXPECT_TRUE(table.screen.controls.table[0]);
  EXPECT_FALSE(table.screen.controls.table[1]) << "the opponent has stood, the player has not";
}

TEST(Told, ADecidedSetDimsBothTables) {
  MatchTable table({.draws = {5}});
  table.Start();
  table.LoadTable(Seat::Player, {"no10", "no10"});
  table.inPause = [&] { EXPECT_EQ(table.screen.controls.table, (std::array<bool, 2>{false, false})); };
  table.EndTurn();
  EXPECT_EQ(table.screen.banner.text, "The opponent wins the set.");
}

TEST(Told, TheBannersButtonIsItselfAgainAsSoonAsThePeerHasComeToo) {
  MatchTable table({.draws = {9, 7}, .mode = std::string(kModeNetwork), .hosting = true});
  table.Start();
  EXPECT_FALSE(table.screen.controls.hand) << "the peer is not there yet";
  table.PeerReady();
  table.Stand();
  table.PeerStands(5);
  table.Continue();
  EXPECT_EQ(table.screen.banner.caption, "(waiting)");
  int pauses = 0;
  table.inPause = [&] {
    if (++pauses > 1) return;
    EXPECT_EQ(table.screen.banner.caption, "continue") << "before the set begins";
  };
  table.PeerReady();
  EXPECT_GE(pauses, 1);
  EXPECT_FALSE(table.screen.banner.visible);
}

TEST(Told, AForfeitDarkensEverything) {
  for (const bool own : {true, false}) {
    MatchTable table({.hand = {"fp1"}, .draws = {9, 5}, .mode = std::string(kModeNetwork), .hosting = true});
    table.Start();
    table.PeerReady();
    EXPECT_FALSE(table.screen.AllDark());
    table.screen.story.clear();
    own ? table.engine->person().Forfeit() : table.engine->peer().OppForfeit();
    EXPECT_TRUE(table.screen.AllDark());
    EXPECT_EQ(table.screen.controls.titlebar, own) << "which closes the match that was given up here";
    EXPECT_EQ(table.screen.story.front(), "your light off");
    EXPECT_EQ(table.screen.story.back(), "banner on");
    EXPECT_TRUE(table.Heard(own ? "losematch" : "winmatch"));
  }
}

TEST(Sounds, BustIsHeardAtTwentyOneAndAfterTheDraw) {
  struct Case {
    std::vector<const char*> before;
    bool bust;
  };
  for (const Case& c : {Case{{"no10", "no5"}, false}, Case{{"no10", "no6"}, true}}) {
    for (const bool opponent : {false, true}) {
      MatchTable table({.draws = {5, 5}, .playerStarts = !opponent});
      table.engine->Activate();
      table.LoadTable(opponent ? Seat::Opponent : Seat::Player, c.before);
      table.engine->GameTick();
      EXPECT_EQ(table.screen.Lines({"sound"}), c.bust ? (Lines{"sound turn", "sound draw", "sound bust"})
                                                      : (Lines{"sound turn", "sound draw"}))
          << opponent;
    }
  }
}

TEST(Sounds, APlayedCardIsHeardOnEitherSide) {
  MatchTable table({.hand = {"ps3"}, .opponentHand = {"ps9"}, .draws = {10, 8, 2}});
  table.strategy.turns = {PlayFirst};
  table.Start();
  table.Play(1);
  table.sounds.clear();
  table.EndTurn();
  EXPECT_EQ(table.sounds, (Lines{"turn", "draw", "playcard", "turn", "draw"}));
}

}  // namespace
}  // namespace kv::test
