// The hint in a match.
#include <gtest/gtest.h>

#include "match/MatchHint.h"
#include "support/MatchTable.h"

namespace kv {
namespace {

TEST(MatchHint, TakesTheWinThatLiesThereAndLeavesTheMatchAsItIs) {
  test::MatchTable table(
      {.hand = {"ps5", "ms6", "ms6", "ms6"}, .opponentHand = {"ps6"}, .draws = {10, 10, 5}});
  MatchHint hint(table.game, 2);
  table.engine->setObserver(&hint);
  table.Start();
  table.strategy.turns = {[](AiOperations& side) {
    side.AI_PlayCard(1);
    side.AI_Stand();
  }};
  table.EndTurn();
  ASSERT_EQ(table.engine->shown().Total(Seat::Player), 15);
  const WeighedMove best = hint.Best();
  EXPECT_EQ(best.move.slot, 1) << "15 and 5 against a standing 16";
  EXPECT_TRUE(HintText(best).starts_with("Hint: play plus 5 and ")) << HintText(best);
  EXPECT_EQ(table.engine->shown().Total(Seat::Player), 15);
  EXPECT_EQ(hint.Best().Chance(), best.Chance()) << "the same question, the same answer";
}

}  // namespace
}  // namespace kv
