// How fast the rules run: complete matches between two strategies, without a screen.
#include <benchmark/benchmark.h>

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "match/HeadlessMatch.h"

namespace {

const kv::clsDeckArray& ArcadeDeck() {
  static const kv::clsDeckArray deck = [] {
    kv::clsDeckArray made;
    made.setAll({"s199", "s199", "s599", "s599", "fl3", "fl3", "fl4", "fl4", "fp5", "s299"});
    return made;
  }();
  return deck;
}

template <typename First, typename Second>
void Matches(benchmark::State& state) {
  First first;
  Second second;
  kv::SeededRandom random(1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(kv::PlayHeadless({first, second, ArcadeDeck(), ArcadeDeck(), {}}, random));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Matches<kv::clsAI_Normal, kv::clsAI_Normal>)->Name("match/standard-standard");
BENCHMARK(Matches<kv::clsAI_Normal, kv::clsAI_Ember>)->Name("match/standard-ember");
BENCHMARK(Matches<kv::clsAI_Ember, kv::clsAI_Ember>)->Name("match/ember-ember");

}  // namespace
