// How long a picture takes: the first time, when it is decoded, and again, which is to stay under a
// microsecond.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "presentation/Pictures.h"

namespace {

constexpr int kEmberMatch = 107;
constexpr int kFirstCard = 201;
constexpr double kScreenRatio = 1;

/// The data file lies beside this program.
std::string DataFile() {
  return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "vntdata.dat").string();
}

void RepeatedPicture(benchmark::State& state) {
  kv::Pictures pictures(kScreenRatio);
  if (!pictures.OpenDataFile(DataFile()) || pictures.getPic(kFirstCard).empty()) {
    state.SkipWithError("no data file; build the target vntdata");
    return;
  }
  for (auto _ : state) benchmark::DoNotOptimize(pictures.getPic(kFirstCard));
}
BENCHMARK(RepeatedPicture)->Name("picture/again");

void FirstPicture(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    kv::Pictures pictures(kScreenRatio);
    if (!pictures.OpenDataFile(DataFile())) {
      state.SkipWithError("no data file; build the target vntdata");
      return;
    }
    state.ResumeTiming();
    benchmark::DoNotOptimize(pictures.getPic(static_cast<int>(state.range(0))));
  }
}
BENCHMARK(FirstPicture)
    ->Name("picture/first")
    ->Arg(kFirstCard)
    ->Arg(kEmberMatch)
    ->Unit(benchmark::kMicrosecond);

void OpenDataFile(benchmark::State& state) {
  for (auto _ : state) {
    kv::Pictures pictures(kScreenRatio);
    if (!pictures.OpenDataFile(DataFile())) state.SkipWithError("no data file; build the target vntdata");
  }
}
BENCHMARK(OpenDataFile)->Name("picture/open-data-file")->Unit(benchmark::kMicrosecond);

}  // namespace
