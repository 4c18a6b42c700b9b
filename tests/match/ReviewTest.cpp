// A match looked at again: the decision that lost it is found and said in words, and a second look agrees.
#include <gtest/gtest.h>

#include <thread>

#include "match/Review.h"
#include "support/Position.h"

namespace kv::test {
namespace {

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
