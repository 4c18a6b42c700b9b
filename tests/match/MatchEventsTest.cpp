// What happened in a match, told once each and for both sides: whoever hears the events alone knows every
// card and every total. And what the screen is told, and when, as a player sees and hears it.
#include <gtest/gtest.h>

#include "match/MatchCourse.h"
#include "support/EventLog.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

using Lines = std::vector<std::string>;

struct Told {
  explicit Told(const Deal& deal) : table(deal) {
    table.engine->setObserver(&log);
    table.Start();
  }
  EventLog log;
  MatchTable table;
};

TEST(Events, AMatchFromItsFirstCardToAForfeit) {
  Told told({.hand = {"fp2", "s299", "s399", "ps4"},
             .opponentHand = {"ms-2"},
             .draws = {7, 10, 6, 9, 10, 5, 10, 10, 10, 4}});
  MatchTable& table = told.table;
  table.engine->person().FirstFlip(1);
  table.Play(1);
  table.strategy.turns = {PlayFirst, StandOpponent};
  table.EndTurn();
  table.Play(3);
  table.Stand();
  EXPECT_EQ(
      told.log.lines,
      (Lines{"match for 10", "player begins set 1 at 0:0", "player draws no7 = 7", "player flips 1 to fm2",
             "player plays 1 fm2 = 5", "player ends", "opponent draws no10 = 10", "opponent plays 1 ms-2 = 8",
             "opponent ends", "player draws no6 = 11", "player plays 3 s399 as s300 turns 2 to fj2 = 15",
             "player stands", "opponent draws no9 = 17", "opponent stands", "opponent wins the set 15:17"}));
  told.log.lines.clear();
  table.Continue();
  table.EndTurn();
  EXPECT_EQ(told.log.lines,
            (Lines{"player begins set 2 at 0:1", "player draws no10 = 10", "player ends",
                   "opponent draws no5 = 5", "opponent ends", "player draws no10 = 20",
                   "player stands on twenty", "opponent draws no10 = 15", "opponent ends",
                   "opponent draws no10 = 25", "opponent stands over twenty", "player wins the set 20:25"}))
      << "a turn that only passes is none";
  told.log.lines.clear();
  table.Continue();
  table.engine->person().Forfeit();
  EXPECT_EQ(told.log.lines, (Lines{"player begins set 3 at 1:1", "player draws no4 = 4", "player gives up",
                                   "opponent wins the match 1:3", "booked lost 10: 0 to 0"}));
  EXPECT_EQ(told.log.wrongTotals, 0);
}

TEST(Events, ATurnThatEndsByItselfIsToldAndOneThatOnlyPassesIsNot) {
  for (const std::string_view mode : {kModeArcade, kModeNetwork}) {
    EventLog log;
    MatchCourse course{std::string(mode)};
    course.table.engine->setObserver(&log);
    course.Play();
    const auto times = [&](const char* line) { return std::count(log.lines.begin(), log.lines.end(), line); };
    EXPECT_EQ(times("player ends"), 1) << mode;
    EXPECT_EQ(times("player stands on twenty"), 1) << mode;
    EXPECT_EQ(times("opponent ends"), 1) << mode;
    EXPECT_EQ(times("opponent stands"), 1) << mode;
  }
}

/// The rule that decided the set that the table shows, when it closes on `closing`.
SetRule RuleOf(const std::vector<const char*>& yours, const std::vector<const char*>& theirs,
               Seat closing = Seat::Player) {
  MatchTable table({});
  table.LoadTable(Seat::Player, yours);
  table.LoadTable(Seat::Opponent, theirs);
  return DecideSet(table.engine->shown(), closing).rule;
}

TEST(Events, ASetIsDecidedByTheFirstRuleThatApplies) {
  const std::vector<const char*> nine(9, "no1");
  EXPECT_EQ(RuleOf({"no10", "no10", "no1"}, {"no10", "no10", "no2"}), SetRule::PlayerOver);
  EXPECT_EQ(RuleOf(nine, {"no10", "no10", "no2"}), SetRule::OpponentOver);
  EXPECT_EQ(RuleOf(nine, nine), SetRule::PlayerNine);
  EXPECT_EQ(RuleOf({"no9"}, nine), SetRule::OpponentNine);
  EXPECT_EQ(RuleOf({"no8", "s11"}, {"no9"}), SetRule::Tiebreaker);
  EXPECT_EQ(RuleOf({"no8", "s11"}, {"no9"}, Seat::Opponent), SetRule::Equal) << "not of the closing side";
  EXPECT_EQ(RuleOf({"no8"}, {"no9"}), SetRule::HigherTotal);
}

TEST(Events, APeerThatGoesIsToldWhateverBecomesOfTheStake) {
  Told told({.draws = {9, 7}, .mode = std::string(kModeNetwork), .hosting = true});
  told.table.PeerReady();
  told.log.lines.clear();
  told.table.engine->peer().BrokenOff([&] { told.table.game.Wager = -1; });
  EXPECT_EQ(told.log.lines, (Lines{"peer gone", "booked broken off 10: 0 to 0"}));
}

TEST(Events, AllObserversOfAMatchHearTheSame) {
  EventLog first, second;
  MatchObservers both;
  both.Add(first);
  both.Add(second);
  MatchTable table({.draws = {5, 6, 7}});
  table.engine->setObserver(&both);
  table.Start();
  EXPECT_EQ(first.lines, second.lines);
  const std::size_t heard = first.lines.size();
  both.Remove(first);
  table.EndTurn();
  EXPECT_EQ(first.lines.size(), heard) << "it has gone";
  EXPECT_GT(second.lines.size(), heard);
}

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

TEST(Sounds, BustIsHeardAtTwentyOneAndAfterTheDraw) {
  for (const auto& [before, bust] :
       Rows<std::vector<const char*>, bool>{{{"no10", "no5"}, false}, {{"no10", "no6"}, true}}) {
    for (const bool opponent : {false, true}) {
      MatchTable table({.draws = {5, 5}, .playerStarts = !opponent});
      table.engine->Activate();
      table.LoadTable(opponent ? Seat::Opponent : Seat::Player, before);
      table.engine->GameTick();
      EXPECT_EQ(table.screen.Lines({"sound"}), bust ? (Lines{"sound turn", "sound draw", "sound bust"})
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
