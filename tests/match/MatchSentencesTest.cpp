// What a match says: its sentences, from which somebody who only hears them knows every card on both tables
// and every total; the second line of the banner, tips and hints.
#include <gtest/gtest.h>

#include "match/MatchHint.h"
#include "match/MatchReasons.h"
#include "match/MatchSentences.h"
#include "match/MatchTips.h"
#include "support/MatchTable.h"

namespace kv::test {
namespace {

using Lines = std::vector<std::string>;

struct Spoken {
  explicit Spoken(const Deal& deal) : table(deal) {
    table.game.OppName = "Orrin Vaal";
    table.engine->setObserver(&sentences);
    table.Start();
  }
  Lines Said() { return std::exchange(said, {}); }

  Lines said;
  MatchSentences sentences{[this](const std::string& sentence) { said.push_back(sentence); }};
  MatchTable table;
};

TEST(Sentences, ASetIsHeardFromItsFirstCardToItsResult) {
  Spoken match({.hand = {"fp2", "s299", "s399", "ps4"}, .opponentHand = {"ms-3"}, .draws = {7, 4, 6, 9}});
  match.table.engine->person().FirstFlip(1);
  match.table.Play(1);
  match.table.strategy.turns = {PlayFirst, StandOpponent};
  match.table.EndTurn();
  match.table.Play(3);
  match.table.Stand();
  EXPECT_EQ(
      match.Said(),
      (Lines{"The match against Orrin Vaal begins, for 10 credits.", "Set 1. You begin.",
             "Your turn. You draw 7, total 7.", "You flip to minus 2.", "You play minus 2, total 5.",
             "You end your turn.", "Orrin Vaal draws 4, plays minus 3, total 1.",
             "Your turn. You draw 6, total 11.", "You play 2 and 4 card, card 2 is now 2, total 15.",
             "You stand on 15.", "Orrin Vaal draws 9, total 10, stands.", "You win the set, 15 to 10."}));
  EXPECT_EQ(TableText(match.table.engine->shown(), "Orrin Vaal"),
            "Your table: 7, 2, 6, 0, total 15, stands. Orrin Vaal's table: 4, minus 3, 9, total 10, stands. "
            "0 cards in hand. Sets 1 to 0. Hand: double; plus 4.");
}

TEST(Sentences, AMatchThatIsGivenUpInTheMiddleOfATurn) {
  Spoken match({.draws = {9, 5}, .mode = std::string(kModeNetwork), .hosting = true});
  match.table.PeerReady();
  match.table.EndTurn();
  match.table.engine->peer().OppDraw(4);
  match.said.clear();
  match.table.engine->peer().OppForfeit();
  EXPECT_EQ(match.Said(), (Lines{"Orrin Vaal draws 4, total 4.", "Orrin Vaal gives up the match.",
                                 "You win the match, 3 to 0."}));
  match.table.engine->peer().Gone();
  EXPECT_EQ(match.Said(), Lines{"Orrin Vaal has left the match."});
}

TEST(Sentences, CardsOfTheHandAreNamedSoThatTheyCanBeToldApart) {
  const auto words = [](const char* code) { return CardWords(CardCode(code)); };
  EXPECT_EQ(words("ps3"), "plus 3");
  EXPECT_EQ(words("fm2"), "minus 2");
  EXPECT_EQ(words("s1-1"), "tiebreaker minus 1");
  EXPECT_EQ(words("s52"), "one or two, plus 2");
  EXPECT_EQ(words("s299"), "double");
  EXPECT_EQ(words("s499"), "3 and 6 card");
  MatchTable empty({});
  EXPECT_EQ(HandText(empty.engine->shown()), "Hand: empty.");
}

TEST(Sentences, ASetOfSpecialCardsIsHeardOnBothSides) {
  Spoken match(
      {.hand = {"s299", "s1-1", "s499"}, .opponentHand = {"s399", "s299"}, .draws = {4, 2, 6, 3, 8, 10, 5}});
  match.table.strategy.turns = {PlayFirst,
                                [](AiOperations& side) {
                                  side.AI_PlayCard(2);
                                  side.AI_EndTurn();
                                },
                                EndOpponent};
  match.table.Play(1);
  match.table.EndTurn();
  match.table.Play(3);
  match.table.EndTurn();
  EXPECT_EQ(match.Said(),
            (Lines{"The match against Orrin Vaal begins, for 10 credits.", "Set 1. You begin.",
                   "Your turn. You draw 4, total 4.", "You play double, 4, total 8.", "You end your turn.",
                   "Orrin Vaal draws 2, plays 2 and 4 card, card 1 is now minus 2, total minus 2.",
                   "Your turn. You draw 6, total 14.",
                   "You play 3 and 6 card, card 3 is now minus 6, total 2.", "You end your turn.",
                   "Orrin Vaal draws 3, plays double, 3, total 4.", "Your turn. You draw 8, total 10."}));
}

// The second line of the banner.
struct Progressing final : MatchBooking {
  void SaveWin() override {}
  void SaveLoss() override {}
  [[nodiscard]] std::string Progress() const override { return "3 of 10 wins"; }
};

event::SetDecided Decided(SetRule rule, GameStep result, int yours, int theirs) {
  return {{rule, Seat::Player, result, false}, {yours, theirs}};
}

struct Reasons : ::testing::Test {
  std::string After(const MatchEvent& event) {
    reasons.Happened(event);
    return reasons.text();
  }
  Progressing booking;
  MatchReasons reasons{booking};
};

TEST_F(Reasons, ASetSaysWhyAndTheNextBeginsWithout) {
  EXPECT_EQ(After(Decided(SetRule::HigherTotal, GameStep::OpponentWins, 12, 18)), "18 to 12")
      << "the winner's first";
  EXPECT_EQ(After(event::SetBegun{}), "");
  EXPECT_EQ(After(Decided(SetRule::PlayerOver, GameStep::OpponentWins, 22, 18)), "over 20");
  EXPECT_EQ(After(Decided(SetRule::OpponentOver, GameStep::PlayerWins, 5, 23)), "over 20");
  EXPECT_EQ(After(Decided(SetRule::OpponentNine, GameStep::OpponentWins, 9, 18)), "nine cards on the table");
  EXPECT_EQ(After(Decided(SetRule::Tiebreaker, GameStep::PlayerWins, 18, 18)), "the tiebreaker wins the tie");
  EXPECT_EQ(After(Decided(SetRule::Equal, GameStep::SetTied, 18, 18)), "18 to 18");
}

TEST_F(Reasons, TheLastSetSaysWhatTheMatchHasChanged) {
  reasons.Happened(Decided(SetRule::HigherTotal, GameStep::PlayerWins, 19, 7));
  EXPECT_EQ(After(event::Booked{event::Result::Won, 40, 60, 140}), "19 to 7; +40 credits; 3 of 10 wins");
  EXPECT_EQ(After(event::Booked{event::Result::Lost, 1, 60, 60}), "19 to 7; -1 credit");
  // A match for nothing, and one whose line was lost: half of the stake is back.
  EXPECT_EQ(After(event::Booked{event::Result::Lost, 0, 60, 60}), "19 to 7");
  EXPECT_EQ(After(event::Booked{event::Result::BrokenOff, 10, 60, 65}), "19 to 7; -5 credits");
}

TEST_F(Reasons, WhoGaveUpIsNamed) {
  reasons.Happened(event::MatchBegun{.opponent = "Tamsen", .stake = 10, .hands = {}});
  EXPECT_EQ(After(event::Forfeited{Seat::Opponent}), "Tamsen gave up");
  EXPECT_EQ(After(event::Forfeited{Seat::Player}), "you gave up");
  EXPECT_EQ(After(event::PeerGone{}), "Tamsen has left");
}

TEST(MatchTips, SayWhyNothingCanBeDone) {
  MatchTable table({.hand = {"ps3", "fm2", "s1-1", "s51"}, .draws = {7, 6, 9, 10}});
  const MatchShown& shown = table.engine->shown();
  EXPECT_EQ(StandTip(shown), "It is not your turn.");
  table.Start();
  EXPECT_EQ(StandTip(shown), "Keeps your total of 7 and draws no more in this set.");
  EXPECT_EQ(HandTip(shown, 1), "Adds 3 to your total.\nDouble-click it, or drag it onto the table.");
  table.Play(1);
  EXPECT_EQ(HandTip(shown, 1), "");
  EXPECT_EQ(HandTip(shown, 2),
            "Takes 2 from your total: turn the sign with the button below it.\nOne side card a turn.");
  table.strategy.turns = {StandOpponent};
  table.Stand();
  EXPECT_EQ(EndTurnTip(shown), shown.banner.visible ? "The set is over: continue first."
                                                    : "You have stood: the other side plays on.");
}

TEST(MatchHint, TakesTheWinThatLiesThereAndLeavesTheMatchAsItIs) {
  MatchTable table({.hand = {"ps5", "ms6", "ms6", "ms6"}, .opponentHand = {"ps6"}, .draws = {10, 10, 5}});
  MatchHint hint(table.game, 2);
  table.engine->setObserver(&hint);
  table.Start();
  table.strategy.turns = {PlayFirstAndStand};
  table.EndTurn();
  ASSERT_EQ(table.engine->shown().Total(Seat::Player), 15);
  const WeighedMove best = hint.Best();
  EXPECT_EQ(best.move.slot, 1) << "15 and 5 against a standing 16";
  EXPECT_TRUE(HintText(best).starts_with("Hint: play plus 5 and ")) << HintText(best);
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 15);
  EXPECT_EQ(hint.Best().Chance(), best.Chance()) << "the same question, the same answer";
}

}  // namespace
}  // namespace kv::test
