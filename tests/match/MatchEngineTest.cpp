// The rules of a set, each by a named deal.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"

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

TEST(MatchEnd, ThreeSetsAreBookedOnce) {
  MatchTable table(ThreeSets(9, 5));
  PlaySets(table, 2);
  EXPECT_EQ(table.bookings, 0);
  table.Continue();
  table.strategy.turns = {StandOpponent};
  table.Stand();
  EXPECT_EQ(table.booked, 1);
  EXPECT_TRUE(table.Heard("winmatch"));
  table.engine->person().Forfeit();  // the title bar's close now acts as the banner's button
  EXPECT_TRUE(table.left);
  EXPECT_TRUE(table.questions.empty());
  table.engine->Continue();
  EXPECT_EQ(table.bookings, 1);
}

TEST(Forfeit, AsksThenLosesWhateverTheScore) {
  MatchTable table(ThreeSets(9, 5));
  PlaySets(table, 2);
  table.Continue();
  table.answer = false;
  table.engine->person().Forfeit();
  EXPECT_EQ(table.questions.front(),
            "Kelm Vantri: Forfeit Match|Are you sure you wish to forfeit this match?|!");
  EXPECT_TRUE(table.engine->shown().controls.forfeit);
  EXPECT_EQ(table.bookings, 0);
  table.answer = true;
  table.engine->person().Forfeit();
  EXPECT_EQ(table.engine->shown().SetWins(Seat::Player), 2);
  EXPECT_EQ(table.engine->shown().SetWins(Seat::Opponent), 3);
  EXPECT_EQ(table.booked, -1);
  EXPECT_TRUE(table.engine->person().Stopped());
  EXPECT_FALSE(table.gameTimer);
  EXPECT_EQ(table.engine->shown().banner.text, "You have been defeated.");
  table.Continue();
  EXPECT_TRUE(table.left);
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

}  // namespace
}  // namespace kv::test
