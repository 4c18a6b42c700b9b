// What can be done, and why something cannot.
#include <gtest/gtest.h>

#include "match/MatchTips.h"
#include "support/MatchTable.h"

namespace kv {
namespace {

TEST(MatchTips, SayWhyNothingCanBeDone) {
  test::MatchTable table({.hand = {"ps3", "fm2", "s1-1", "s51"}, .draws = {7, 6, 9, 10}});
  const MatchShown& shown = table.engine->shown();
  EXPECT_EQ(StandTip(shown), "It is not your turn.");
  table.Start();
  EXPECT_EQ(StandTip(shown), "Keeps your total of 7 and draws no more in this set.");
  EXPECT_EQ(HandTip(shown, 1), "Adds 3 to your total.\nDouble-click it, or drag it onto the table.");
  table.Play(1);
  EXPECT_EQ(HandTip(shown, 1), "");
  EXPECT_EQ(HandTip(shown, 2),
            "Takes 2 from your total: turn the sign with the button below it.\nOne side card a turn.");
  table.strategy.turns = {test::StandOpponent};
  table.Stand();
  EXPECT_EQ(EndTurnTip(shown), shown.banner.visible ? "The set is over: continue first."
                                                    : "You have stood: the other side plays on.");
}

}  // namespace
}  // namespace kv
