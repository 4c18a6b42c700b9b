// Whole network games between two programs: every match ends alike on both sides, and both book it.
#include <gtest/gtest.h>

#include "network/TwoPrograms.h"

namespace kv {
namespace {

using test::TwoPrograms;

TEST(WholeMatch, BothSidesBookTheStake) {
  TwoPrograms both;
  both.Meet();
  EXPECT_TRUE(both.host.Saw("[Connected with Gus]"));
  EXPECT_TRUE(both.guest.Saw("[Version Check (Pass): You - v1.2.4, Opp - v1.2.4]"));
  both.PlayMatch(50);
  ASSERT_EQ(both.host.results.size(), 1u);
  const bool hostWon = both.host.results[0][0] == kSetsToWin;
  const clsPlayer& winner = hostWon ? both.host.record() : both.guest.record();
  const clsPlayer& loser = hostWon ? both.guest.record() : both.host.record();
  EXPECT_EQ(winner.Credits_MP->Value, 155);
  EXPECT_EQ(loser.Credits_MP->Value, 50);
  EXPECT_EQ(winner.Wins_MP->Value, 1);
  EXPECT_EQ(loser.Losses_MP->Value, 1);
  EXPECT_EQ(winner.Disconnects + loser.Disconnects, 0);
}

}  // namespace
}  // namespace kv
