// How a set is decided, each rule by a named deal, and what a decided match is booked as.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"

namespace kv {
namespace {

using test::MatchTable;
using test::PlaySets;
using test::ThreeSets;

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
  table.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); }};
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

TEST(SetEnd, NineCardsWin) {
  const std::vector<const char*> eight(8, "no1");
  MatchTable drawn({.draws = {1}});
  drawn.engine->Activate();
  drawn.LoadTable(Seat::Opponent, {"no10", "no9"});
  drawn.LoadTable(Seat::Player, eight);
  drawn.Run();
  EXPECT_EQ(drawn.engine->shown().banner.text, "you win the set.") << "a lower total, but nine cards";

  MatchTable opponent({.opponentHand = {"ps1"}, .draws = {1, 1}, .playerStarts = false});
  opponent.strategy.turns = {[](AiOperations& side) {
    side.AI_PlayCard(1);
    side.AI_PlayCard(1);
    side.AI_EndTurn();
  }};
  opponent.engine->Activate();
  opponent.LoadTable(Seat::Player, {"no10", "no9"});
  opponent.LoadTable(Seat::Opponent, {"no1", "no1", "no1", "no1", "no1", "no1", "no1"});
  opponent.Run();
  EXPECT_EQ(opponent.engine->shown().Table(Seat::Opponent).size(), 9U);
  EXPECT_EQ(opponent.engine->shown().banner.text, "The opponent wins the set.");
}

TEST(SetEnd, OnlyTheClosingSidesLastCardBreaksATie) {
  struct Case {
    const char* playerLast;
    const char* opponentLast;
    const char* text;
  };
  // The player stands first; the opponent closes the set.
  for (const Case& c :
       {Case{"no1", "no1", "The set is tied."}, Case{"s11", "no1", "The set is tied."},
        Case{"no1", "s11", "The opponent wins the set."}, Case{"s11", "s11", "The opponent wins the set."}}) {
    MatchTable table({.draws = {5, 5}});
    table.strategy.turns = {[&](AiOperations& side) {
      table.LoadTable(Seat::Opponent, {c.opponentLast});
      side.AI_Stand();
    }};
    table.Start();
    table.LoadTable(Seat::Player, {c.playerLast});
    table.Stand();
    EXPECT_EQ(table.engine->shown().banner.text, c.text);
  }
  MatchTable table({.hand = {"s11"}, .draws = {5, 6}, .playerStarts = false});
  table.strategy.turns = {test::StandOpponent};
  table.Start();
  table.LoadTable(Seat::Opponent, {"no2"});
  table.Play(1);
  table.Stand();
  EXPECT_EQ(table.engine->shown().banner.text, "you win the set.");
}

TEST(SetEnd, NineCardsOverTwentyLose) {
  MatchTable table({.draws = {5}});
  table.engine->Activate();
  table.LoadTable(Seat::Player, {"no2", "no2", "no2", "no2", "no2", "no2", "no2", "no2"});
  table.Run();
  EXPECT_EQ(table.engine->shown().Table(Seat::Player).size(), 9U);
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 21);
  EXPECT_EQ(table.screen.banner.text, "The opponent wins the set.");

  MatchTable opponent({.draws = {5}, .playerStarts = false});
  opponent.engine->Activate();
  opponent.LoadTable(Seat::Opponent, {"no2", "no2", "no2", "no2", "no2", "no2", "no2", "no2"});
  opponent.Run();
  EXPECT_EQ(opponent.engine->shown().Table(Seat::Opponent).size(), 9U);
  EXPECT_EQ(opponent.screen.banner.text, "you win the set.");
}

TEST(SetEnd, NineAgainstNineIsThePlayers) {
  const std::vector<const char*> eight(8, "no1");
  for (const bool playerStarts : {true, false}) {
    MatchTable table({.draws = {1, 1}, .playerStarts = playerStarts});
    table.engine->Activate();
    table.LoadTable(Seat::Player, eight);
    table.LoadTable(Seat::Opponent, eight);
    table.LoadTable(playerStarts ? Seat::Opponent : Seat::Player, {"no2"});
    table.Run();
    EXPECT_EQ(table.engine->shown().Table(Seat::Player).size(), 9U);
    EXPECT_EQ(table.engine->shown().Table(Seat::Opponent).size(), 9U);
    EXPECT_EQ(table.screen.banner.text, "you win the set.") << "whoever lays the last one";
  }
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

TEST(SetEnd, ATiebreakerCountsAsTheLastCardOfThePlayerWhoCloses) {
  struct Case {
    std::vector<const char*> player;  // both on 8 in the end
    std::vector<const char*> opponent;
    const char* text;
  };
  // The opponent begins and stands first; the player closes the set.
  for (const Case& c :
       {Case{{"no2", "s11"}, {"no3"}, "you win the set."}, Case{{"s11", "no2"}, {"no3"}, "The set is tied."},
        Case{{"no3"}, {"no2", "s11"}, "The set is tied."},
        Case{{"no2", "s11"}, {"no2", "s11"}, "you win the set."},
        Case{{"no4", "s1-1"}, {"no3"}, "you win the set."},
        Case{{"no2", "s51"}, {"no3"}, "The set is tied."}}) {
    MatchTable table({.draws = {5, 5}, .playerStarts = false});
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
  lost.strategy.turns = {test::StandOpponent};
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
}  // namespace kv
