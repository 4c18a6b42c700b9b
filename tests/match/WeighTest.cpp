// The chance to win of every possible move, in positions whose answer is known; and a match looked at again:
// the decision that lost it is found and said in words, and a second look agrees.
#include <gtest/gtest.h>

#include <thread>

#include "match/PossibleMoves.h"
#include "match/Review.h"
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

/// The player ends on 17 against a standing 18 with the card that wins in hand, after two turns that were
/// fine.
std::vector<PlayedTurn> LostMatch() {
  const std::vector<const char*> theirs{"un0", "un0"};
  return {{PositionOf({{"no4"}, {"ps2", "fp5"}, 2}, {{}, theirs, 2}), {}},
          {PositionOf({{"no4"}, {"ps2", "fp5"}, 2}, {{"no8"}, theirs, 2}, Seat::Opponent), {}},
          {PositionOf({{"no4", "no6"}, {"ps2", "fp5"}, 2}, {{"no8", "no10"}, theirs, 2, true}), {}},
          {PositionOf({{"no4", "no6", "no7"}, {"ps2", "fp5"}, 2}, {{"no8", "no10"}, theirs, 2, true}),
           {.slot = 0, .card = {}, .stands = true}}};
}

TEST(Review, NamesTheDecisionThatLost) {
  const std::vector<PlayedTurn> match = LostMatch();
  std::vector<std::size_t> told;
  const Review review = ReviewMatch(
      match, {.matches = 600, .weighed = [&](const ReviewedTurn& each) { told.push_back(each.turn); }});
  EXPECT_TRUE(review.whole);
  EXPECT_EQ(told, (std::vector<std::size_t>{0, 2, 3})) << "the opponent's turn is not the player's decision";
  ASSERT_EQ(review.dearest, (std::vector<std::size_t>{2}));
  const ReviewedTurn& dear = review.turns[2];
  EXPECT_EQ(dear.Cost(), 1.0);
  EXPECT_EQ(ReviewWords(match[3].position, dear),
            "Stood on 17 against a standing 18: 0 %; playing +2 and standing wins 100 %.");
  EXPECT_EQ(ReviewWords(match[2].position, review.turns[1]).substr(0, 35),
            "Ended on 10 against a standing 18: ");

  const Review second = ReviewMatch(match, {.matches = 600, .seed = 2});
  for (std::size_t i = 0; i < review.turns.size(); ++i) {
    const Interval one = review.turns[i].Made().Within();
    const Interval two = second.turns[i].Made().Within();
    EXPECT_TRUE(one.low <= two.high && two.low <= one.high) << "turn " << i;
  }
}

TEST(Review, SaysWhatWasPlayed) {
  const auto said = [](const MatchPosition& position, const TurnMove& made) {
    const Review review = ReviewMatch({{position, made}}, {.matches = 60});
    const std::string words = ReviewWords(position, review.turns.front());
    return words.substr(0, words.find(':'));
  };
  const MatchPosition position = PositionOf({{"no10", "no4"}, {"fp2", "s399", "ms6"}}, {{"no9"}, {"un0"}});
  EXPECT_EQ(said(position, {1, CardCode("fm-2"), false}), "Played -2 and ended on 12 against a total of 9");
  EXPECT_EQ(said(position, {2, CardCode("s399"), true}), "Played 2&4 and stood on 6 against a total of 9");
  EXPECT_EQ(said(PositionOf({{"no10", "no4", "no8"}}, {{}}), {.slot = 0, .card = {}, .stands = true}),
            "Went over 20");
}

TEST(Review, EndsAtOnceWhenItIsStopped) {
  const std::vector<PlayedTurn> match(40, LostMatch().front());
  std::atomic<bool> stop = false;
  std::atomic<int> weighed = 0;
  Review review;
  std::thread background([&] {
    review = ReviewMatch(match, {.matches = 50, .stop = &stop, .weighed = [&](const ReviewedTurn&) {
                                   if (++weighed == 3) stop = true;
                                 }});
  });
  background.join();
  EXPECT_FALSE(review.whole);
  EXPECT_EQ(review.turns.size(), 3U) << "what was weighed stays";
}

}  // namespace
}  // namespace kv::test
