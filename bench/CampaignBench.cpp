// How fast campaigns run without a screen: the way of every single match through desk, stake, deal, match and
// booking.
#include <benchmark/benchmark.h>

#include "ai/clsAI_Normal.h"
#include "vantri-campaign/CampaignPlay.h"

namespace {

void Campaigns(benchmark::State& state, const kv::CampaignHabits& habits) {
  kv::clsAI_Normal strategy;
  std::uint64_t seed = 0;
  std::int64_t matches = 0;
  for (auto _ : state) {
    kv::SeededRandom random(++seed * 0x9E3779B97F4A7C15U);
    matches += kv::PlayCampaign(habits, strategy, random).matches;
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["matches"] = benchmark::Counter(static_cast<double>(matches), benchmark::Counter::kIsRate);
}
BENCHMARK_CAPTURE(Campaigns, hasty, {.stakes = kv::StakePolicy::Most, .buys = true, .patient = false})
    ->Name("campaign/hasty");
BENCHMARK_CAPTURE(Campaigns, patient, {.stakes = kv::StakePolicy::Quarter, .buys = true, .patient = true})
    ->Name("campaign/patient");

}  // namespace
