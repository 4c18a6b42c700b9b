// The chance to win of every possible move, in positions whose answer is known.
#include <gtest/gtest.h>

#include "match/PossibleMoves.h"
#include "match/UnseenHand.h"
#include "match/Weigh.h"
#include "support/Position.h"

namespace kv::test {
namespace {

std::vector<WeighedMove> Weighed(const MatchPosition& position, int matches = 2000, std::uint64_t seed = 1) {
  SeededRandom random(seed);
  return Weigh({.position = position, .matches = matches}, random);
}

const WeighedMove& Find(const std::vector<WeighedMove>& all, const char* card, bool stands) {
  for (const WeighedMove& each : all) {
    if (each.move.card.text() == card && each.move.stands == stands) return each;
  }
  throw std::logic_error(std::string("no such move: ") + card);
}

TEST(Weigh, TheCardThatBeatsAStandingOpponentIsBest) {
  for (const int sets : {0, 1, 2}) {
    for (const Seat seat : {Seat::Player, Seat::Opponent}) {
      const SideCards own{{"no9", "no8"}, {"fp3", "ps1"}, sets};
      const SideCards other{{"no10", "no8"}, {}, sets, true};
      const bool player = seat == Seat::Player;
      const auto moves = Weighed(PositionOf(player ? own : other, player ? other : own, seat));
      EXPECT_EQ(moves.front().move.card.text(), "fp3") << sets;
      EXPECT_TRUE(moves.front().move.stands);
    }
  }
}

TEST(Weigh, SureThingsAreSure) {
  const auto moves = Weighed(PositionOf({{"no9", "no8"}, {"ps2"}, 2}, {{"no10", "no8"}, {}, 2, true}));
  EXPECT_EQ(moves.front().Chance(), 1.0);
  EXPECT_LT(moves.front().Within().low, 1.0) << "as sure as the matches make it";
  const WeighedMove& lost = Find(moves, "", true);
  EXPECT_GT(lost.matches, 0);
  EXPECT_EQ(lost.Chance(), 0.0);
  const auto over = Weighed(PositionOf({{"no9", "no8", "no7"}, {"ps2"}, 0}, {{"no10"}, {}, 2}));
  ASSERT_EQ(over.size(), 1U);
  EXPECT_EQ(over.front().Chance(), 0.0) << "over 20 with nothing that helps, and no set to spare";
}

TEST(Weigh, EqualSidesHaveHalfAChanceEach) {
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    const std::vector<const char*> hand{"ps1", "ps3", "ms-2", "ms-4"};
    MatchPosition position = PositionOf({{}, hand}, {{}, hand}, seat);
    position.side(seat).table.emplace_back("no5");
    ++position.drawn[5];
    for (PositionSide& side : position.sides) {
      side.deck.emplace().setAll({"ps1", "ps3", "ms-2", "ms-4", "ps1", "ps3", "ms-2", "ms-4", "ps3", "ms-2"});
    }
    const auto moves = Weighed(position, 6000);
    EXPECT_GT(Find(moves, "", false).Within().high, 0.47);
    EXPECT_LT(Find(moves, "", false).Within().low, 0.58) << "who is to move may have a little more";
  }
}

TEST(Weigh, WhatTheSideCannotSeeChangesNothing) {
  MatchPosition position =
      PositionOf({{"no9", "no6"}, {"fp2", "ps4"}}, {{"no10"}, {"ms-6", "ms-6", "fp1", "fp3"}});
  position.side(Seat::Opponent)
      .deck.emplace()
      .setAll({"ps1", "ps2", "ps3", "ps4", "ps5", "ps6", "ms-1", "ms-2", "ms-3", "ms-4"});
  const auto sees = [](const MatchPosition& at, std::uint64_t seed) {
    std::string all;
    for (const WeighedMove& each : Weighed(at, 500, seed)) {
      all += each.move.card.text() + (each.move.stands ? "! " : " ") +
             std::to_string(static_cast<int>(each.wins)) + "/" + std::to_string(each.matches) + "; ";
    }
    return all;
  };
  const std::string first = sees(position, 7);
  EXPECT_EQ(first, sees(position, 7)) << "equal seeds, equal weights";
  EXPECT_NE(first, sees(position, 8));
  position.side(Seat::Opponent).hand.fill(CardCode(CardType::FaceDown, 0));
  EXPECT_EQ(first, sees(position, 7)) << "the hand is not looked at";
  position.side(Seat::Opponent).hand[0] = CardCode();
  EXPECT_NE(first, sees(position, 7)) << "how many cards it holds is";
}

TEST(Weigh, ADeckGivesNoCardTwice) {
  MatchPosition position = PositionOf({{"no9"}, {}}, {{"no10"}, {"un0", "un0"}});
  PositionSide& other = position.side(Seat::Opponent);
  other.deck.emplace().setAll({"fl1", "fl1", "fl2", "s199", "s599", "ms3", "ps4", "s299", "ps5", "ps6"});
  other.played = {CardCode("fm-1"), CardCode("s5-2"), CardCode("ms-3")};
  UnseenHand unseen(position);
  SeededRandom random(1);
  std::map<std::string, int> seen;
  for (int i = 0; i < 700; ++i) {
    unseen.Deal(position, random);
    EXPECT_TRUE(other.hand[2].empty() && other.hand[3].empty());
    EXPECT_FALSE(other.hand[0] == other.hand[1]);
    ++seen[other.hand[0].text()];
    ++seen[other.hand[1].text()];
  }
  EXPECT_EQ(seen.size(), 7U);
  for (const auto& [card, times] : seen) EXPECT_NEAR(times, 200, 60) << card;
}

TEST(Weigh, TheMoveThatWasMadeIsWeighedToTheEndAndAStopIsAStop) {
  const MatchPosition position =
      PositionOf({{"no9", "no3"}, {"fp2", "fp4", "fp6", "fp1"}}, {{"no10"}, {"un0", "un0", "un0", "un0"}});
  const TurnMove foolish{.slot = 3, .card = CardCode("fm6")};
  SeededRandom random(3);
  const auto moves = Weigh({.position = position, .matches = 1000, .made = foolish}, random);
  EXPECT_GT(Find(moves, "fm6", false).matches, 100);
  EXPECT_LT(Find(moves, "fm6", false).Chance(), moves.front().Chance());
  const std::atomic<bool> stop = true;
  for (const WeighedMove& each : Weigh({.position = position, .stop = &stop}, random)) {
    EXPECT_EQ(each.matches, 0);
  }
}

}  // namespace
}  // namespace kv::test
