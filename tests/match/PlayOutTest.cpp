// Whole matches between the strategies: the rules hold at every step, equal seeds give equal matches, the
// strategies beat a careless player and the oracle the standard one; and what it believes of a match between
// two sets.
#include <gtest/gtest.h>

#include "ai/clsAI_Normal.h"
#include "match/BetweenSets.h"
#include "match/PlayFrom.h"
#include "platform/Interval.h"
#include "support/Position.h"
#include "vantri-strength/Tournament.h"

namespace kv::test {
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

TEST(Oracle, BeatsTheStandardStrategyAndDependsOnItsSeedAlone) {
  TournamentPlan plan{
      .first = {"oracle-60", "network"}, .second = {"standard", "network"}, .matches = 60, .seed = 4};
  plan.checkInvariants = true;
  plan.threads = 1;
  const TournamentResult one = PlayTournament(plan);
  EXPECT_GT(WilsonInterval(one.wins[0], one.matches).low, 0.5);
  plan.threads = 3;
  const TournamentResult three = PlayTournament(plan);
  EXPECT_EQ(one.wins, three.wins);
  EXPECT_EQ(one.sets, three.sets);
  EXPECT_THROW(
      static_cast<void>(PlayTournament({.first = {"nobody", "arcade"}, .second = {"ember", "arcade"}})),
      std::invalid_argument);
  EXPECT_EQ(MakeStrategy("oracle-"), nullptr);
  EXPECT_EQ(MakeStrategy("oracle-0"), nullptr);
  EXPECT_EQ(MakeStrategy("oracle-9x"), nullptr);
}

TEST(BetweenSets, TheTwoSidesShareOneWin) {
  const HandCards good{CardCode("s51"), CardCode("fp3"), CardCode("ps2"), CardCode()};
  const HandCards poor{CardCode("ps5"), CardCode("00"), CardCode(), CardCode()};
  for (int own = 0; own < kSetsToWin; ++own) {
    for (int other = 0; other < kSetsToWin; ++other) {
      const double chance = ChanceToWin({own, other, good, poor, true});
      EXPECT_NEAR(chance + ChanceToWin({other, own, poor, good, false}), 1, 0.02) << own << ":" << other;
      EXPECT_GT(chance, ChanceToWin({own, other, poor, poor, true}));
      EXPECT_GT(ChanceToWin({own + 1, other, good, poor, true}), chance);
    }
  }
  EXPECT_EQ(ChanceToWin({3, 2, poor, good, true}), 1.0);
  EXPECT_EQ(ChanceToWin({1, 3, good, poor, true}), 0.0);
}

/// The share of 2,000 matches of the standard strategy, from the start of a set, that the player wins.
double ShareOfWins(const SideCards& player, const SideCards& opponent) {
  clsAI_Normal first;
  clsAI_Normal second;
  SeededRandom random(9);
  MatchFrom match({first, second}, 2, random);
  constexpr int kMatches = 2000;
  int wins = 0;
  for (int i = 0; i < kMatches; ++i) {
    MatchPosition position = PositionOf(player, opponent);
    const int drawn = static_cast<int>(random.Rnd() * 10) + 1;
    position.side(Seat::Player).table = {CardCode(CardType::MainDeck, drawn)};
    ++position.drawn.at(static_cast<std::size_t>(drawn));
    position.startsNext = Seat::Opponent;
    wins += match.Play(position, nullptr) == Seat::Player ? 1 : 0;
  }
  return static_cast<double>(wins) / kMatches;
}

TEST(BetweenSets, TheEstimateIsWhatMatchesGive) {
  constexpr double kNear = 0.08;
  const HandCards mixed{CardCode("ps2"), CardCode("fp3"), CardCode("fp4"), CardCode("s51")};
  const HandCards poor{CardCode("ps1"), CardCode("ps5"), CardCode(), CardCode()};
  const std::vector<const char*> mixedCodes{"ps2", "fp3", "fp4", "s51"};
  const std::vector<const char*> poorCodes{"ps1", "ps5"};
  for (const auto& [own, other] : {std::pair{0, 0}, std::pair{2, 0}, std::pair{1, 2}, std::pair{2, 2}}) {
    EXPECT_NEAR(ChanceToWin({own, other, mixed, poor, true}),
                ShareOfWins({{}, mixedCodes, own}, {{}, poorCodes, other}), kNear)
        << own << ":" << other;
    EXPECT_NEAR(ChanceToWin({own, other, poor, mixed, true}),
                ShareOfWins({{}, poorCodes, own}, {{}, mixedCodes, other}), kNear)
        << own << ":" << other;
  }
}

}  // namespace
}  // namespace kv::test
