// How long one decision takes to weigh: in the middle of a set, with a full hand of flip cards, whole matches
// as a review plays them and to the end of the set as the oracle does.
#include <benchmark/benchmark.h>

#include "ai/clsAI_Normal.h"
#include "match/HeadlessMatch.h"
#include "match/TurnCollector.h"
#include "support/Position.h"

namespace {

kv::MatchPosition Middle() {
  kv::MatchPosition position =
      kv::test::PositionOf({{"no6", "no7"}, {"fp2", "fp4", "s51", "s11"}}, {{"no9"}});
  kv::PositionSide& other = position.side(kv::Seat::Opponent);
  other.hand.fill(kv::CardCode(kv::CardType::FaceDown, 0));
  other.deck.emplace().setAll({"s199", "s199", "s599", "s599", "fl3", "fl3", "fl4", "fl4", "fp5", "s299"});
  return position;
}

void Decision(benchmark::State& state, bool toTheSetOnly) {
  const kv::MatchPosition position = Middle();
  kv::SeededRandom random(1);
  const int matches = static_cast<int>(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        kv::Weigh({.position = position, .matches = matches, .toTheSetOnly = toTheSetOnly}, random));
  }
  state.SetItemsProcessed(state.iterations() * matches);
}
BENCHMARK_CAPTURE(Decision, whole, false)->Name("decision/whole")->Arg(4000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Decision, set, true)->Name("decision/set")->Arg(4000)->Unit(benchmark::kMillisecond);

void WholeReview(benchmark::State& state) {
  kv::clsAI_Normal first;
  kv::clsAI_Normal second;
  kv::clsDeckArray deck;
  deck.setAll({"s199", "s199", "s599", "s599", "fl3", "fl3", "fl4", "fl4", "fp5", "s299"});
  kv::TurnCollector turns;
  turns.Tell({deck, deck}, 2);
  kv::SeededRandom random(1);
  static_cast<void>(kv::PlayHeadless({first, second, deck, deck, {}, &turns}, random));
  std::size_t decisions = 0;
  for (auto _ : state) decisions += kv::ReviewMatch(turns.turns(), {}).turns.size();
  state.counters["decisions"] = static_cast<double>(decisions) / static_cast<double>(state.iterations());
}
BENCHMARK(WholeReview)->Name("review/match")->Unit(benchmark::kMillisecond);

}  // namespace
