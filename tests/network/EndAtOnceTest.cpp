// A program that the system ends in the middle of a network match: its peer hears of it.
#include <gtest/gtest.h>

#include "network/TwoPrograms.h"

namespace kv::test {
namespace {

TEST(EndAtOnce, ThePeerHearsThatTheOtherSideHasEnded) {
  TwoPrograms both;
  both.Meet();
  both.Start();
  both.PlayUntil([&] { return both.BothOn("frmGame"); });
  both.host.dialogs.boxes.clear();
  both.host.program->EndAtOnce();
  both.Pass(300);
  EXPECT_EQ(both.host.quits, 1) << "nobody waits for the farewell of a match";
  EXPECT_TRUE(both.host.dialogs.boxes.empty());
  EXPECT_EQ(both.host.record().Losses_MP->Value, 1);
  both.Pass(1000);
  ASSERT_FALSE(both.guest.dialogs.boxes.empty());
  EXPECT_EQ(both.guest.dialogs.boxes.back().text, "Opponent has quit! You Win!");
}

TEST(EndAtOnce, WithoutAPeerThereIsNothingToWaitFor) {
  TwoPrograms both;
  both.host.program->EndAtOnce();
  EXPECT_EQ(both.host.quits, 1);
}

}  // namespace
}  // namespace kv::test
