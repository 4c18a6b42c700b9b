// The second line of the banner.
#include <gtest/gtest.h>

#include "match/MatchReasons.h"

namespace kv {
namespace {

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
  EXPECT_EQ(After(Decided(SetRule::HigherTotal, GameStep::OpponentWins, 12, 18)), "18 to 12");
  EXPECT_EQ(After(event::SetBegun{}), "");
  EXPECT_EQ(After(Decided(SetRule::OpponentOver, GameStep::PlayerWins, 5, 23)), "over 20");
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

}  // namespace
}  // namespace kv
