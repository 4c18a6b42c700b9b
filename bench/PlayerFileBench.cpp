// How long a player file takes to load and to save. Loading is to stay under a millisecond.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "profile/clsPlayer.h"

namespace {

/// Nobody is there to read a box; one that appears fails the benchmark.
class NoDialogs final : public kv::Dialogs {
 public:
  void Message(const std::string&, const std::string&, kv::DialogIcon) override { shown = true; }
  bool AskYesNo(const std::string&, const std::string&, kv::DialogIcon) override { return false; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }

  bool shown = false;
};

/// A saved player in the temporary folder.
struct SavedPlayer {
  SavedPlayer() {
    player.PIN = "4711";
    player.Name = "Somebody";
    player.Cards->Fill(12);
    player.FileName = path;
    player.WritePlayerFile();
  }
  SavedPlayer(const SavedPlayer&) = delete;
  SavedPlayer& operator=(const SavedPlayer&) = delete;
  ~SavedPlayer() { std::remove(path.c_str()); }

  const std::string path =
      (std::filesystem::temp_directory_path() / ("vantri-bench-" + std::to_string(::getpid()) + ".vnt"))
          .string();
  NoDialogs dialogs;
  kv::SeededRandom random{1};
  kv::clsPlayer player{dialogs, random};
};

void LoadPlayerFile(benchmark::State& state) {
  SavedPlayer saved;
  for (auto _ : state) {
    if (saved.player.LoadPlayerFile(saved.path) || saved.dialogs.shown) state.SkipWithError("load failed");
  }
}
BENCHMARK(LoadPlayerFile)->Unit(benchmark::kMicrosecond);

void WritePlayerFile(benchmark::State& state) {
  SavedPlayer saved;
  for (auto _ : state) {
    saved.player.WritePlayerFile();
    if (saved.dialogs.shown) state.SkipWithError("save failed");
  }
}
BENCHMARK(WritePlayerFile)->Unit(benchmark::kMicrosecond);

}  // namespace
