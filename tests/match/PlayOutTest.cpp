// Whole matches between the strategies: the rules hold at every step, equal seeds give equal matches, and the
// strategies beat a careless player.
#include <gtest/gtest.h>

#include "platform/Interval.h"
#include "vantri-strength/Tournament.h"

namespace kv {
namespace {

TEST(PlayOut, RulesHoldAtEveryStep) {
  for (const char* deck : {"arcade", "network", "H6-J8", "Vel'ir", "Brummox"}) {
    TournamentPlan plan{
        .first = {"standard", deck}, .second = {"ember", "arcade"}, .matches = 1500, .seed = 7};
    plan.checkInvariants = true;
    EXPECT_EQ(PlayTournament(plan).matches, 1500) << deck;
  }
}

/// One number for how a thousand matches went. A change of the rules, the strategies or the order of random
/// draws moves it: then the new number goes here, and the commit says why it moved.
TEST(PlayOut, FingerprintOfTheRules) {
  TournamentPlan plan{
      .first = {"standard", "arcade"}, .second = {"ember", "network"}, .matches = 4000, .seed = 11};
  const TournamentResult one = PlayTournament(plan);
  plan.threads = 3;
  const TournamentResult three = PlayTournament(plan);
  EXPECT_EQ(one.wins, three.wins) << "the number of threads changes nothing";
  EXPECT_EQ(one.sets, three.sets);
  const std::int64_t fingerprint = one.wins[0] * 1000003 + one.sets * 10007 + one.ties * 101 +
                                   one.busts[0] * 31 + one.busts[1] + one.winsAsPlayer[0] * 7;
  EXPECT_EQ(fingerprint, 3817725180);
}

TEST(PlayOut, BothStrategiesBeatACarelessPlayer) {
  for (const char* strategy : {"standard", "ember"}) {
    const TournamentResult result = PlayTournament(
        {.first = {strategy, "arcade"}, .second = {"careless", "arcade"}, .matches = 4000, .seed = 5});
    EXPECT_GT(WilsonInterval(result.wins[0], result.matches).low, 0.6) << strategy;
  }
}

TEST(PlayOut, UnknownNamesAreRefused) {
  EXPECT_THROW(
      static_cast<void>(PlayTournament({.first = {"nobody", "arcade"}, .second = {"ember", "arcade"}})),
      std::invalid_argument);
}

}  // namespace
}  // namespace kv
