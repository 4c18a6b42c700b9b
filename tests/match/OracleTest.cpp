// The oracle in whole matches, and what it believes of a match between two sets.
#include <gtest/gtest.h>

#include "ai/clsAI_Normal.h"
#include "match/BetweenSets.h"
#include "match/PlayFrom.h"
#include "support/Position.h"
#include "vantri-strength/Tournament.h"

namespace kv::test {
namespace {

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
double Played(const SideCards& player, const SideCards& opponent) {
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
                Played({{}, mixedCodes, own}, {{}, poorCodes, other}), kNear)
        << own << ":" << other;
    EXPECT_NEAR(ChanceToWin({own, other, poor, mixed, true}),
                Played({{}, poorCodes, own}, {{}, mixedCodes, other}), kNear)
        << own << ":" << other;
  }
}

}  // namespace
}  // namespace kv::test
