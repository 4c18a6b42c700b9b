// How a set is decided, each rule by a named deal, and what a decided match is booked as.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

TEST(SetEnd, BustIsDecidedBeforeAllElse) {
  for (const bool opponentOver : {false, true}) {
    MatchTable table({.draws = {5}});
    table.Start();
    table.LoadTable(Seat::Player, {"no10", "no10"});
    if (opponentOver) table.LoadTable(Seat::Opponent, {"no10", "no10", "no5"});
    table.EndTurn();
    EXPECT_EQ(table.engine->shown().banner.text, "The opponent wins the set.");
  }
  MatchTable table({.draws = {5, 10}});
  table.Start();
  table.LoadTable(Seat::Opponent, {"no10", "no1"});
  table.EndTurn();
  EXPECT_EQ(table.engine->shown().banner.text, "you win the set.");
  EXPECT_TRUE(table.Heard("bust"));
}

TEST(SetEnd, ExactlyTwentyIsNoBust) {
  MatchTable table({.draws = {5, 10, 1}});
  table.Start();
  table.LoadTable(Seat::Opponent, {"no10"});
  table.EndTurn();
  EXPECT_FALSE(table.engine->shown().Stood(Seat::Opponent));
  EXPECT_EQ(table.Cards(Seat::Player), "no5 no1");
}

TEST(SetEnd, NineCardsWinUnlessTheyAreTooMuch) {
  const std::vector<const char*> ones(8, "no1");
  const std::vector<const char*> twos(8, "no2");
  const std::vector<const char*> ninth{"no1", "no1", "no1", "no1", "no1", "no1", "no1", "no1", "no2"};
  for (const auto& [what, player, opponent, playerDraws, draw, playerWins] :
       Rows<const char*, std::vector<const char*>, std::vector<const char*>, bool, int, bool>{
           {"a lower total", ones, {"no10", "no9"}, true, 1, true},
           {"over twenty", twos, {}, true, 5, false},
           {"the opponent over twenty", {}, twos, false, 5, true},
           {"nine against nine", ones, ninth, true, 1, true},
           {"nine against nine, the opponent's last", ninth, ones, false, 1, true}}) {
    MatchTable table({.draws = {draw}, .playerStarts = playerDraws});
    table.engine->Activate();
    table.LoadTable(Seat::Player, player);
    table.LoadTable(Seat::Opponent, opponent);
    table.Run();
    const Seat drew = playerDraws ? Seat::Player : Seat::Opponent;
    EXPECT_EQ(table.engine->shown().Table(drew).size(), 9U) << what;
    EXPECT_EQ(table.screen.banner.text, playerWins ? "you win the set." : "The opponent wins the set.")
        << what;
  }
  MatchTable table({.opponentHand = {"ps1"}, .draws = {1, 1}, .playerStarts = false});
  table.strategy.turns = {[](AiOperations& side) {
    side.AI_PlayCard(1);
    side.AI_PlayCard(1);
    side.AI_EndTurn();
  }};
  table.engine->Activate();
  table.LoadTable(Seat::Player, {"no10", "no9"});
  table.LoadTable(Seat::Opponent, std::vector<const char*>(7, "no1"));
  table.Run();
  EXPECT_EQ(table.engine->shown().Table(Seat::Opponent).size(), 9U);
  EXPECT_EQ(table.engine->shown().banner.text, "The opponent wins the set.");
}

TEST(SetEnd, ANinthCardFromTheHandStandsByItself) {
  MatchTable table({.hand = {"ps1"}, .draws = {1}});
  table.engine->Activate();
  table.LoadTable(Seat::Player, {"no1", "no1", "no1", "no1", "no1", "no1", "no1"});
  table.Run();
  EXPECT_FALSE(table.engine->shown().Stood(Seat::Player)) << "eight are not yet nine";
  table.Play(1);
  EXPECT_EQ(table.screen.banner.text, "you win the set.");
  EXPECT_EQ(table.strategy.asked, 0);
}

TEST(SetEnd, OnlyTheClosingSidesLastCardBreaksATie) {
  struct Case {
    bool playerStarts;  // whoever starts stands first, and the other closes the set
    std::vector<const char*> player;
    std::vector<const char*> opponent;
    const char* text;
  };
  for (const Case& c : {
           Case{true, {"no1"}, {"no1"}, "The set is tied."},
           Case{true, {"s11"}, {"no1"}, "The set is tied."},
           Case{true, {"no1"}, {"s11"}, "The opponent wins the set."},
           Case{true, {"s11"}, {"s11"}, "The opponent wins the set."},
           Case{false, {"no2", "s11"}, {"no3"}, "you win the set."},
           Case{false, {"s11", "no2"}, {"no3"}, "The set is tied."},
           Case{false, {"no3"}, {"no2", "s11"}, "The set is tied."},
           Case{false, {"no2", "s11"}, {"no2", "s11"}, "you win the set."},
           Case{false, {"no4", "s1-1"}, {"no3"}, "you win the set."},
           Case{false, {"no2", "s51"}, {"no3"}, "The set is tied."},
       }) {
    MatchTable table({.draws = {5, 5}, .playerStarts = c.playerStarts});
    table.strategy.turns = {[&](AiOperations& side) {
      table.LoadTable(Seat::Opponent, c.opponent);
      side.AI_Stand();
    }};
    table.Start();
    table.LoadTable(Seat::Player, c.player);
    table.Stand();
    EXPECT_EQ(table.engine->shown().Total(Seat::Player), table.engine->shown().Total(Seat::Opponent));
    EXPECT_EQ(table.screen.banner.text, c.text) << table.Cards(Seat::Player);
  }
}

TEST(Booking, ADecidedLastSetIsBookedBeforeItIsShown) {
  for (const int theirs : {5, 9}) {
    MatchTable table(ThreeSets(7, theirs));
    EXPECT_FALSE(table.engine->peer().BookDecision());
    std::vector<std::string> story;
    table.inPause = [&] {
      if (!table.engine->peer().decision()) return;
      const bool last = table.engine->peer().decision()->endsMatch;
      EXPECT_EQ(table.engine->peer().BookDecision(), last);
      story = table.screen.story;
    };
    PlaySets(table, 3);
    EXPECT_EQ(table.booked, theirs == 5 ? 1 : -1);
    EXPECT_EQ(table.bookings, 1);
    EXPECT_EQ(table.screen.story, story) << "the result is not shown any more";
    EXPECT_TRUE(table.screen.AllDark());
    EXPECT_FALSE(table.gameTimer);
    EXPECT_FALSE(table.engine->peer().BookDecision()) << "only once";
  }
}

TEST(Booking, OnlyAMatchLostAtTheTableIsWonAfterAll) {
  MatchTable lost(ThreeSets(5, 9));
  EXPECT_FALSE(lost.engine->peer().LostByPlay());
  PlaySets(lost, 2);
  EXPECT_FALSE(lost.engine->peer().LostByPlay());
  lost.engine->peer().WinAfterAll();
  EXPECT_EQ(lost.turned, 0);
  lost.Continue();
  lost.strategy.turns = {StandOpponent};
  lost.Stand();
  EXPECT_TRUE(lost.engine->peer().LostByPlay());
  lost.engine->peer().WinAfterAll();
  lost.engine->peer().WinAfterAll();
  EXPECT_EQ(lost.turned, 1);
  EXPECT_EQ(lost.engine->shown().SetWins(Seat::Opponent), 2);
  EXPECT_EQ(lost.screen.banner.text, "You have defeated your opponent!");
  EXPECT_EQ(lost.sounds.back(), "winmatch");

  MatchTable won(ThreeSets(9, 5));
  PlaySets(won, 3);
  MatchTable givenUp(ThreeSets(9, 5));
  givenUp.Start();
  givenUp.engine->person().Forfeit();
  for (MatchTable* table : {&won, &givenUp}) {
    EXPECT_FALSE(table->engine->peer().LostByPlay());
    table->engine->peer().WinAfterAll();
    EXPECT_EQ(table->turned, 0);
  }
}

}  // namespace
}  // namespace kv::test
