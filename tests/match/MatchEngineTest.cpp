// The rules of a set, each by a named deal: turns, cards, how a set is decided, and what a decided match is
// booked as.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

TEST(Turn, OneSideCardOnly) {
  MatchTable table({.hand = {"ps3", "ps2"}, .draws = {7, 5, 2}});
  table.Start();
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3");
  table.Play(2);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3") << "a second card in the same turn";
  EXPECT_TRUE(table.engine->shown().HandCard(Seat::Player, 1).empty());
  EXPECT_EQ(table.sent, (std::vector<std::string>{"[Hand]1ps3"}));
  table.EndTurn();
  EXPECT_EQ(table.Cards(Seat::Opponent), "no5");
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3 no2");
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3 no2") << "an empty slot plays nothing";
  table.Play(2);
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 14);
}

TEST(Turn, NothingCanBePressedWhileACardThatReachesTwentyIsLookedAt) {
  MatchTable table({.hand = {"ps10", "ps1"}, .draws = {10}, .mode = std::string(kModeNetwork)});
  table.engine->peer().setPlayerStarts(true);
  table.Start();
  table.PeerReady();
  table.sent.clear();
  table.pauses.clear();
  table.inPause = [&] {
    EXPECT_FALSE(table.screen.controls.endTurn || table.screen.controls.stand ||
                 table.screen.controls.forfeit || table.screen.controls.hand);
    table.engine->person().PlayHandCard(2);
    table.engine->person().EndTurn();
    table.engine->person().Stand();
  };
  table.Play(1);
  EXPECT_EQ(table.sent, (std::vector<std::string>{"[Hand]1ps10", "[Stnd]", "[Turn]", "(repeat)"}));
  EXPECT_EQ(table.pauses, (std::vector<int>{125, 210, 210})) << "the card, the hand-over, the peer's turn";
  EXPECT_EQ(table.Cards(Seat::Player), "no10 ps10");
}

TEST(Turn, FlipsStayUsableUntilAForfeit) {
  MatchTable table({.hand = {"ps3", "fp2", "s51"}, .draws = {7, 5, 2}});
  table.engine->Activate();
  table.engine->person().FirstFlip(2);
  EXPECT_EQ(table.engine->shown().HandCard(Seat::Player, 2).text(), "fp2") << "not before the first turn";
  table.Run();
  table.Play(1);
  table.engine->person().FirstFlip(2);
  table.engine->person().SecondFlip(3);
  EXPECT_EQ(table.engine->shown().HandCard(Seat::Player, 2).text(), "fm2");
  EXPECT_EQ(table.engine->shown().HandCard(Seat::Player, 3).text(), "s52");
  EXPECT_EQ(table.game.SideDeck->Value(2).text(), "fp2") << "the dealt hand keeps its codes";
  table.engine->person().Forfeit();
  table.engine->person().FirstFlip(2);
  EXPECT_EQ(table.engine->shown().HandCard(Seat::Player, 2).text(), "fm2");
}

TEST(SpecialCards, DoubleAndInvertersLand) {
  MatchTable table({.hand = {"s299", "s399"}, .draws = {7, 1, 1}});
  table.Start();
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 s27");
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 14);
  table.EndTurn();
  table.LoadTable(Seat::Player, {"no2", "ps4", "fm4", "s24", "no6"});
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 15 + 2 + 4 - 4 + 4 + 6);
  table.Play(2);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 s27 no1 no-2 pi4 fj4 s24 no6 s300");
}

TEST(Network, MovesAreHandedToThePeer) {
  MatchTable host({.hand = {"ps3"}, .draws = {8, 7}, .mode = std::string(kModeNetwork), .hosting = true});
  host.Start();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[WhoS]False", "[Play]"}));
  EXPECT_TRUE(host.netTimer);
  host.engine->peer().NetWaitTick();
  EXPECT_EQ(host.Cards(Seat::Player), "");
  host.ready = true;
  host.engine->peer().NetWaitTick();
  host.Run();
  EXPECT_FALSE(host.netTimer);
  EXPECT_EQ(host.Cards(Seat::Player), "no7");
  host.sent.clear();
  host.Play(1);
  host.Stand();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[Hand]1ps3", "[Stnd]", "[Turn]", "(repeat)"}));
  EXPECT_EQ(host.engine->shown().wager, "Wager: 10\nBonus: 1");
  EXPECT_EQ(host.engine->shown().title, "Network Match");

  // The peer plays: its messages drive the opponent's side and no strategy is asked.
  EXPECT_EQ(host.strategy.asked, 0);
  host.engine->board().LoadNextCard(CardCode("no9"), true);
  host.engine->board().PlayCard(CardCode("ps2"), true);
  host.engine->peer().OppStand();
  host.engine->peer().AI_EndTurn();
  host.Run();
  EXPECT_EQ(host.engine->shown().banner.text, "The opponent wins the set.");
  host.sent.clear();
  host.Continue();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[Play]"}));
  EXPECT_EQ(host.engine->shown().banner.caption, "(waiting)");
  host.engine->person().Forfeit();
  EXPECT_EQ(host.sent.back(), "[Forf]");
}

TEST(Network, ThePeerGivesUp) {
  MatchTable guest({.mode = std::string(kModeNetworkArcade)});
  guest.Start();
  EXPECT_EQ(guest.sent, (std::vector<std::string>{"[Play]"}));
  EXPECT_EQ(guest.engine->shown().wager, "Wager: 10");
  guest.engine->peer().OppForfeit();
  EXPECT_EQ(guest.booked, 1);
  EXPECT_FALSE(guest.engine->shown().controls.titlebar);
  guest.engine->peer().OppForfeit();
  EXPECT_EQ(guest.bookings, 1);
  guest.Continue();
  guest.ready = true;
  guest.engine->peer().NetWaitTick();
  EXPECT_TRUE(guest.left);
}

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
  won.Continue();
  EXPECT_TRUE(won.left);
  EXPECT_EQ(won.bookings, 1);
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
