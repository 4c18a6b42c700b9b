// The rules of a set, each by a named deal.
#include <gtest/gtest.h>

#include "support/MatchTable.h"

namespace kv {
namespace {

using test::Deal;
using test::MatchTable;

void StandOpponent(AiOperations& side) {
  side.AI_Stand();
}

TEST(Turn, BeginsWithADrawAndWaitsForThePlayer) {
  MatchTable table({.hand = {"ps3"}, .draws = {7}});
  table.Start();
  EXPECT_EQ(table.Cards(Seat::Player), "no7");
  EXPECT_EQ(table.engine->Total(Seat::Player), 7);
  EXPECT_TRUE(table.engine->Light(Seat::Player));
  EXPECT_TRUE(table.engine->controls().endTurn && table.engine->controls().hand &&
              table.engine->controls().forfeit);
  EXPECT_EQ(table.sounds, (std::vector<std::string>{"turn", "draw"}));
  EXPECT_EQ(table.pauses, (std::vector<int>{350, 380}));
}

TEST(Turn, OneSideCardOnly) {
  MatchTable table({.hand = {"ps3", "ps2"}, .draws = {7, 5, 2}});
  table.Start();
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3");
  table.Play(2);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3") << "a second card in the same turn";
  EXPECT_TRUE(table.engine->HandCard(Seat::Player, 1).empty());
  EXPECT_EQ(table.sent, (std::vector<std::string>{"[Hand]1ps3"}));
  table.EndTurn();
  EXPECT_EQ(table.Cards(Seat::Opponent), "no5");
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3 no2");
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 ps3 no2") << "an empty slot plays nothing";
  table.Play(2);
  EXPECT_EQ(table.engine->Total(Seat::Player), 14);
}

TEST(Turn, TwentyStandsByItself) {
  MatchTable drawn({.draws = {10, 3, 10, 4, 4, 6, 5}});
  drawn.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); }, StandOpponent};
  drawn.Start();
  drawn.EndTurn();
  EXPECT_TRUE(drawn.engine->PlayerStood());
  EXPECT_EQ(drawn.engine->banner().text, "you win the set.");

  MatchTable played({.hand = {"fp4"}, .draws = {6, 1, 10, 2}});
  played.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); }, StandOpponent};
  played.Start();
  played.EndTurn();
  played.Play(1);
  EXPECT_EQ(played.engine->Total(Seat::Player), 20);
  EXPECT_TRUE(played.engine->PlayerStood());
  EXPECT_EQ(played.engine->SetWins(Seat::Player), 1);
}

TEST(Turn, TheWaitBeforeAnAutomaticStandTakesNoPresses) {
  MatchTable table({.hand = {"ps10"}, .draws = {10, 3, 3}});
  table.strategy.turns = {StandOpponent};
  table.Start();
  table.inPause = [&] {
    table.engine->EndTurn();
    table.engine->Stand();
  };
  table.Play(1);
  EXPECT_EQ(table.strategy.asked, 1);
  EXPECT_EQ(table.engine->SetWins(Seat::Player), 1);
}

TEST(Turn, LowTotalsEndByThemselvesUnlessTheOpponentStandsBehind) {
  MatchTable table({.draws = {4, 3, 5, 2, 7}, .options = {.turnMode = 1, .autoTurn = true}});
  table.Start();
  EXPECT_EQ(table.Cards(Seat::Player), "no4 no5 no7");
  EXPECT_TRUE(table.engine->controls().endTurn);

  MatchTable behind({.draws = {3, 3, 1}, .options = {.turnMode = 1, .autoTurn = true}});
  behind.strategy.turns = {StandOpponent};
  behind.Start();
  EXPECT_EQ(behind.Cards(Seat::Player), "no3 no1") << "4 against a standing 3 is the player's to decide";
  EXPECT_TRUE(behind.engine->controls().stand);
}

TEST(Turn, WhoStoodTakesNoMoreTurns) {
  MatchTable table({.draws = {10, 5, 6, 7}});
  table.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); },
                          [](AiOperations& side) { side.AI_EndTurn(); }, StandOpponent};
  table.Start();
  table.Stand();
  EXPECT_EQ(table.Cards(Seat::Player), "no10");
  EXPECT_EQ(table.Cards(Seat::Opponent), "no5 no6 no7");
  EXPECT_EQ(table.engine->banner().text, "The opponent wins the set.");
}

TEST(Turn, FlipsStayUsableUntilAForfeit) {
  MatchTable table({.hand = {"ps3", "fp2", "s51"}, .draws = {7, 5, 2}});
  table.engine->Activate();
  table.engine->FirstFlip(2);
  EXPECT_EQ(table.engine->HandCard(Seat::Player, 2).text(), "fp2") << "not before the first turn";
  table.Run();
  table.Play(1);
  table.engine->FirstFlip(2);
  table.engine->SecondFlip(3);
  EXPECT_EQ(table.engine->HandCard(Seat::Player, 2).text(), "fm2");
  EXPECT_EQ(table.engine->HandCard(Seat::Player, 3).text(), "s52");
  EXPECT_EQ(table.game.SideDeck->Value(2).text(), "fp2") << "the dealt hand keeps its codes";
  table.engine->Forfeit();
  table.engine->FirstFlip(2);
  EXPECT_EQ(table.engine->HandCard(Seat::Player, 2).text(), "fm2");
}

TEST(SpecialCards, DoubleAndInvertersLand) {
  MatchTable table({.hand = {"s299", "s399"}, .draws = {7, 1, 1}});
  table.Start();
  table.Play(1);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 s27");
  EXPECT_EQ(table.engine->Total(Seat::Player), 14);
  table.EndTurn();
  table.LoadTable(Seat::Player, {"no2", "ps4", "fm4", "s24", "no6"});
  EXPECT_EQ(table.engine->Total(Seat::Player), 15 + 2 + 4 - 4 + 4 + 6);
  table.Play(2);
  EXPECT_EQ(table.Cards(Seat::Player), "no7 s27 no1 no-2 pi4 fj4 s24 no6 s300");
}

TEST(SetEnd, BustIsDecidedBeforeAllElse) {
  for (const bool opponentOver : {false, true}) {
    MatchTable table({.draws = {5}});
    table.Start();
    table.LoadTable(Seat::Player, {"no10", "no10"});
    if (opponentOver) table.LoadTable(Seat::Opponent, {"no10", "no10", "no5"});
    table.EndTurn();
    EXPECT_EQ(table.engine->banner().text, "The opponent wins the set.");
  }
  MatchTable table({.draws = {5, 10}});
  table.strategy.turns = {[](AiOperations& side) { side.AI_EndTurn(); }};
  table.Start();
  table.LoadTable(Seat::Opponent, {"no10", "no1"});
  table.EndTurn();
  EXPECT_EQ(table.engine->banner().text, "you win the set.");
  EXPECT_TRUE(table.Heard("bust"));
}

TEST(SetEnd, ExactlyTwentyIsNoBust) {
  MatchTable table({.draws = {5, 10, 1}});
  table.Start();
  table.LoadTable(Seat::Opponent, {"no10"});
  table.EndTurn();
  EXPECT_FALSE(table.engine->OpponentStood());
  EXPECT_EQ(table.Cards(Seat::Player), "no5 no1");
}

TEST(SetEnd, NineCardsWin) {
  const std::vector<const char*> eight(8, "no1");
  MatchTable drawn({.draws = {1}});
  drawn.engine->Activate();
  drawn.LoadTable(Seat::Opponent, {"no10", "no9"});
  drawn.LoadTable(Seat::Player, eight);
  drawn.Run();
  EXPECT_EQ(drawn.engine->banner().text, "you win the set.") << "a lower total, but nine cards";

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
  EXPECT_EQ(opponent.engine->Table(Seat::Opponent).size(), 9U);
  EXPECT_EQ(opponent.engine->banner().text, "The opponent wins the set.");
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
    EXPECT_EQ(table.engine->banner().text, c.text);
  }
  MatchTable table({.hand = {"s11"}, .draws = {5, 6}, .playerStarts = false});
  table.strategy.turns = {StandOpponent};
  table.Start();
  table.LoadTable(Seat::Opponent, {"no2"});
  table.Play(1);
  table.Stand();
  EXPECT_EQ(table.engine->banner().text, "you win the set.");
}

TEST(MatchEnd, ThreeSetsAreBookedOnce) {
  MatchTable table({.draws = {9, 5, 9, 5, 9, 5}});
  for (int set = 0; set < 3; ++set) table.strategy.turns.emplace_back(StandOpponent);
  table.Start();
  for (int set = 1; set <= 3; ++set) {
    table.Stand();
    EXPECT_EQ(table.engine->SetWins(Seat::Player), set);
    EXPECT_EQ(table.bookings, set == 3 ? 1 : 0);
    if (set < 3) table.Continue();
  }
  EXPECT_EQ(table.booked, 1);
  EXPECT_EQ(table.engine->banner().text, "You have defeated your opponent!");
  EXPECT_TRUE(table.Heard("winmatch"));
  table.engine->Forfeit();  // the title bar's close now acts as the banner's button
  EXPECT_TRUE(table.left);
  EXPECT_TRUE(table.questions.empty());
  table.engine->Continue();
  EXPECT_EQ(table.bookings, 1);
}

TEST(MatchEnd, ATieCountsForNobodyAndIsReplayed) {
  MatchTable table({.draws = {5, 5, 8}});
  table.strategy.turns = {StandOpponent};
  table.Start();
  table.Stand();
  EXPECT_EQ(table.engine->banner().text, "The set is tied.");
  EXPECT_TRUE(table.Heard("tie"));
  table.Continue();
  EXPECT_EQ(table.engine->SetWins(Seat::Player) + table.engine->SetWins(Seat::Opponent), 0);
  EXPECT_EQ(table.Cards(Seat::Player), "no8");
  EXPECT_EQ(table.engine->MainDeckCount(5), 0) << "the main deck is renewed";
}

TEST(Forfeit, AsksThenLosesWhateverTheScore) {
  MatchTable table({.draws = {9, 5, 9, 5, 9, 5}});
  table.strategy.turns = {StandOpponent, StandOpponent};
  table.Start();
  table.Stand();
  table.Continue();
  table.Stand();
  table.Continue();
  table.answer = false;
  table.engine->Forfeit();
  EXPECT_EQ(table.questions.front(),
            "Kelm Vantri: Forfeit Match|Are you sure you wish to forfeit this match?|!");
  EXPECT_TRUE(table.engine->controls().forfeit);
  EXPECT_EQ(table.bookings, 0);
  table.answer = true;
  table.engine->Forfeit();
  EXPECT_EQ(table.engine->SetWins(Seat::Player), 2);
  EXPECT_EQ(table.engine->SetWins(Seat::Opponent), 3);
  EXPECT_EQ(table.booked, -1);
  EXPECT_TRUE(table.engine->Stopped());
  EXPECT_FALSE(table.gameTimer);
  EXPECT_EQ(table.engine->banner().text, "You have been defeated.");
  table.Continue();
  EXPECT_TRUE(table.left);
}

TEST(Forfeit, InAnyPauseEndsTheMatchOnceAndLeavesNothingRunning) {
  // The pause in which the player gives up is counted through the whole of a set.
  for (int at = 1; at <= 9; ++at) {
    MatchTable table({.hand = {"ps1"}, .opponentHand = {"ps2"}, .draws = {9, 5, 9, 5, 9, 5}});
    table.strategy.turns = {[](AiOperations& side) {
      side.AI_PlayCard(1);
      side.AI_Stand();
    }};
    int pause = 0;
    table.inPause = [&] {
      if (++pause == at) table.engine->Forfeit();
    };
    table.Start();
    table.Play(1);
    table.EndTurn();
    table.Stand();
    EXPECT_LE(table.bookings, 1) << at;
    if (pause < at) continue;
    EXPECT_EQ(table.booked, -1) << at;
    EXPECT_EQ(table.engine->SetWins(Seat::Opponent), 3) << at;
    EXPECT_FALSE(table.gameTimer) << at;
    EXPECT_FALSE(table.engine->controls().endTurn || table.engine->controls().hand) << at;
  }
}

TEST(Forfeit, AQuestionThatOutlivesTheMatchIsDropped) {
  MatchTable table({.draws = {9, 5, 9, 5, 9, 5}});
  for (int set = 0; set < 3; ++set) table.strategy.turns.emplace_back(StandOpponent);
  table.Start();
  table.inQuestion = [&] {
    for (int set = 1; set <= 3; ++set) {
      table.Stand();
      if (set < 3) table.Continue();
    }
  };
  table.engine->Forfeit();
  EXPECT_EQ(table.booked, 1);
  EXPECT_EQ(table.bookings, 1);
}

TEST(Close, InAnyPauseLeavesNothingRunning) {
  for (int at = 1; at <= 8; ++at) {
    MatchTable table({.opponentHand = {"ps2"}, .draws = {9, 5, 9, 5}});
    table.strategy.turns = {[](AiOperations& side) {
      side.AI_PlayCard(1);
      side.AI_Stand();
    }};
    int pause = 0;
    table.inPause = [&] {
      if (++pause != at) return;
      table.closing = true;
      table.engine->Close();
    };
    table.Start();
    table.Stand();
    if (!table.closing) continue;
    EXPECT_FALSE(table.gameTimer || table.autoTimer || table.netTimer) << at;
    EXPECT_EQ(table.bookings, 0);
    const std::size_t soundsThen = table.sounds.size();
    table.engine->GameTick();
    table.engine->Continue();
    table.engine->Forfeit();
    table.EndTurn();
    EXPECT_EQ(table.sounds.size(), soundsThen) << at;
  }
}

TEST(Starts, FollowTheTurnSystem) {
  MatchTable player({.draws = {3}});
  player.Start();
  EXPECT_EQ(player.Cards(Seat::Player), "no3");
  EXPECT_TRUE(player.engine->PlayerStarts());

  // An even chance from one draw: below a half the opponent begins, and the starts alternate.
  MatchTable alternating({.draws = {2, 5, 6, 9}, .options = {.turnMode = 2}});
  alternating.strategy.turns = {StandOpponent};
  alternating.Start();
  EXPECT_EQ(alternating.Cards(Seat::Opponent), "no5");
  alternating.Stand();
  EXPECT_TRUE(alternating.engine->PlayerStarts());
  alternating.Continue();
  EXPECT_EQ(alternating.Cards(Seat::Player), "no9");
  EXPECT_EQ(alternating.Cards(Seat::Opponent), "");
}

TEST(Delays, FollowStyleAndSpeed) {
  const auto delay = [](MatchOptions options, std::string mode = std::string(kModeArcade)) {
    return MatchTable({.options = options, .mode = std::move(mode)}).engine->TurnDelay();
  };
  EXPECT_EQ(delay({.speed = 1}), 380);
  EXPECT_EQ(delay({.speed = 2}), 320);
  EXPECT_EQ(delay({.speed = 0, .emberStyle = true}), 270);
  EXPECT_EQ(delay({.speed = 250, .emberStyle = true}), 210);
  EXPECT_EQ(delay({.speed = 2}, std::string(kModeNetwork)), 210);
}

TEST(AutoDialogs, ConfirmAfterTheirTick) {
  MatchTable table({.draws = {9, 5, 7}, .options = {.turnMode = 1, .autoDialogs = true}});
  table.strategy.turns = {StandOpponent};
  table.Start();
  table.Stand();
  EXPECT_TRUE(table.autoTimer);
  EXPECT_FALSE(table.engine->banner().buttonEnabled);
  table.engine->Continue();
  EXPECT_TRUE(table.engine->banner().visible) << "the disabled button does nothing";
  table.engine->AutoDialogsTick();
  table.Run();
  EXPECT_FALSE(table.engine->banner().visible);
  EXPECT_EQ(table.Cards(Seat::Player), "no7");
}

TEST(MainDeck, HoldsFourOfEachValue) {
  MatchTable table({.draws = {3, 3, 3, 3, 3, 3, 8, 1}});
  table.engine->Activate();
  for (int i = 0; i < 4; ++i) table.engine->DeductDrawCard(3);
  table.Run();
  EXPECT_EQ(table.Cards(Seat::Player), "no8");
  EXPECT_THROW(table.engine->DeductDrawCard(0), std::out_of_range);
  EXPECT_THROW(table.engine->DeductDrawCard(11), std::out_of_range);
}

TEST(MainDeck, ReportedDrawsWithoutEndDoNotStopTheNext) {
  MatchTable table({.draws = {8}});
  table.engine->Activate();
  for (int value = 1; value <= 10; ++value) {
    for (int i = 0; i < 5; ++i) table.engine->DeductDrawCard(value);
  }
  table.Run();
  EXPECT_EQ(table.Cards(Seat::Player), "no8");
}

TEST(Network, MovesAreHandedToThePeer) {
  MatchTable host({.hand = {"ps3"}, .draws = {8, 7}, .mode = std::string(kModeNetwork), .hosting = true});
  host.Start();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[WhoS]False", "[Play]"}));
  EXPECT_TRUE(host.netTimer);
  host.engine->NetWaitTick();
  EXPECT_EQ(host.Cards(Seat::Player), "");
  host.ready = true;
  host.engine->NetWaitTick();
  host.Run();
  EXPECT_FALSE(host.ready || host.netTimer);
  EXPECT_EQ(host.Cards(Seat::Player), "no7");
  host.sent.clear();
  host.Play(1);
  host.Stand();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[Hand]1ps3", "[Stnd]", "[Turn]", "(repeat)"}));
  EXPECT_EQ(host.engine->WagerText(), "Wager: 10\nBonus: 1");
  EXPECT_EQ(host.engine->Title(), "Network Match");

  // The peer plays: its messages drive the opponent's side and no strategy is asked.
  EXPECT_EQ(host.strategy.asked, 0);
  host.engine->LoadNextCard(CardCode("no9"), true);
  host.engine->PlayCard(CardCode("ps2"), true);
  host.engine->OppStand();
  host.engine->AI_EndTurn();
  host.Run();
  EXPECT_EQ(host.engine->banner().text, "The opponent wins the set.");
  host.sent.clear();
  host.Continue();
  EXPECT_EQ(host.sent, (std::vector<std::string>{"[Play]"}));
  EXPECT_EQ(host.engine->banner().caption, "(waiting)");
  host.engine->Forfeit();
  EXPECT_EQ(host.sent.back(), "[Forf]");
}

TEST(Network, ThePeerGivesUp) {
  MatchTable guest({.mode = std::string(kModeNetworkArcade)});
  guest.Start();
  EXPECT_EQ(guest.sent, (std::vector<std::string>{"[Play]"}));
  EXPECT_EQ(guest.engine->WagerText(), "Wager: 10");
  guest.engine->OppForfeit();
  EXPECT_EQ(guest.booked, 1);
  EXPECT_FALSE(guest.engine->controls().titlebar);
  guest.engine->OppForfeit();
  EXPECT_EQ(guest.bookings, 1);
  guest.Continue();
  guest.ready = true;
  guest.engine->NetWaitTick();
  EXPECT_TRUE(guest.left);
}

}  // namespace
}  // namespace kv
