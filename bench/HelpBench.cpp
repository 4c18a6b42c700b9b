// How long the rules take to open, and what they and their moving examples hold, at twice the size.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>

#include "DenseDisplay.h"
#include "presentation/LayoutText.h"
#include "screens/frmHelp.h"
#include "support/ScreenStage.h"

namespace {

constexpr int kCardsPage = 1;
constexpr int kFrame = 16;  // milliseconds

struct Rules {
  explicit Rules(const char* style) : stage(style, 2) {}
  void Open(const char* style) {
    help = std::make_unique<kv::frmHelp>(stage.services(), style,
                                         kv::HelpPages(kv::LayoutText("README"), &stage.player), true);
    help->Open();
    stage.Settle(10);
    Paint();
  }
  void Paint() {
    QEvent update(QEvent::UpdateRequest);
    QApplication::sendEvent(help->window(), &update);
  }
  kv::test::ScreenStage stage;
  std::unique_ptr<kv::frmHelp> help;
};

void OpenRules(benchmark::State& state, const char* style) {
  const kv::bench::DenseDisplay display;
  Rules rules(style);
  double held = 0;
  for (auto _ : state) {
    state.PauseTiming();
    rules.help.reset();
    const double before = kv::bench::HeapKb();
    state.ResumeTiming();
    rules.Open(style);
    held = std::max(held, kv::bench::HeapKb() - before);
  }
  state.counters["memory_kb"] = held;
}

/// A frame while the examples of the cards play.
void PlayExamples(benchmark::State& state, const char* style) {
  const kv::bench::DenseDisplay display;
  Rules rules(style);
  rules.Open(style);
  const double before = kv::bench::HeapKb();
  double held = 0;
  for (auto _ : state) {
    if (!rules.help->motionLayer().moving()) {
      state.PauseTiming();
      rules.help->lstPages().setCurrentRow(0);
      rules.help->lstPages().setCurrentRow(kCardsPage);
      held = std::max(held, kv::bench::HeapKb() - before);
      rules.stage.scheduler.Advance(kFrame);
      rules.Paint();
      state.ResumeTiming();
    }
    rules.stage.scheduler.Advance(kFrame);
    rules.Paint();
  }
  state.counters["memory_kb"] = held;
}

BENCHMARK_CAPTURE(OpenRules, Slate, "Slate")->Name("rules/open/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenRules, Ember, "Ember")->Name("rules/open/Ember")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlayExamples, Slate, "Slate")->Name("rules/play/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlayExamples, Ember, "Ember")->Name("rules/play/Ember")->Unit(benchmark::kMillisecond);

}  // namespace
