// The history of matches: storing one, reading the list of ten and of a hundred thousand, and what recording
// adds to a simulated match.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <filesystem>

#include "history/HistoryFile.h"
#include "history/HistoryStats.h"
#include "support/SampleMatch.h"
#include "support/TempFolder.h"

namespace {

constexpr std::size_t kDifferent = 500;  // matches

const std::vector<kv::MatchRecord>& Samples() {
  static const std::vector<kv::MatchRecord> samples = [] {
    std::vector<kv::MatchRecord> made;
    for (std::size_t i = 1; i <= kDifferent; ++i) made.push_back(kv::test::SampleMatch(i));
    return made;
  }();
  return samples;
}

/// A history of as many matches, made without waiting for each.
void Fill(const std::string& path, std::int64_t matches) {
  kv::HistoryFile history(path);
  for (std::int64_t i = 0; i < matches; ++i) {
    history.Store(Samples().at(static_cast<std::size_t>(i) % kDifferent));
  }
}

void StoreMatch(benchmark::State& state) {
  const kv::test::TempFolder folder;
  kv::HistoryFile history(folder / "a.history.sqlite");
  history.Open();
  benchmark::DoNotOptimize(Samples().size());  // made before, not while the clock runs
  std::size_t next = 0;
  double longest = 0;
  double longestProcessor = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t clock = std::clock();
    history.Store(Samples().at(next++ % kDifferent));
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    longest = std::max(longest, took.count());
    longestProcessor =
        std::max(longestProcessor, 1e3 * static_cast<double>(std::clock() - clock) / CLOCKS_PER_SEC);
  }
  state.counters["longest_ms"] = longest;
  state.counters["longest_cpu_ms"] = longestProcessor;
}
BENCHMARK(StoreMatch)->Name("history: storing a match")->Iterations(1000)->Unit(benchmark::kMicrosecond);

void ReadList(benchmark::State& state) {
  const kv::test::TempFolder folder;
  const std::string path = folder / "a.history.sqlite";
  Fill(path, state.range(0));
  for (auto _ : state) {
    kv::HistoryFile history(path);
    const auto lines = history.Lines();
    benchmark::DoNotOptimize(kv::RatesBy(kv::RateBy::Card, lines));
    benchmark::DoNotOptimize(kv::TotalsOf(lines));
    if (lines.size() != static_cast<std::size_t>(state.range(0))) state.SkipWithError("matches are missing");
  }
  state.counters["MB"] = static_cast<double>(std::filesystem::file_size(path)) / 1e6;
}
BENCHMARK(ReadList)
    ->Name("history: opening a list of")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

void Simulate(benchmark::State& state, bool recorded) {
  kv::SeededRandom random(3);
  kv::clsAI_Normal standard;
  kv::clsDeckArray deck;
  deck.DefaultDeckMP();
  kv::MatchRecorder recorder({});
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        kv::PlayHeadless({standard, standard, deck, deck, {}, recorded ? &recorder : nullptr}, random));
  }
}
BENCHMARK_CAPTURE(Simulate, plain, false)->Name("history: a simulated match, not recorded");
BENCHMARK_CAPTURE(Simulate, recorded, true)->Name("history: a simulated match, recorded");

}  // namespace
