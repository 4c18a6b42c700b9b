// How long the rules take to open, and what they and their moving examples hold, at twice the size.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <algorithm>

#include "platform/Folders.h"
#include "presentation/LayoutText.h"
#include "screens/frmHelp.h"
#include "support/ScreenStage.h"

namespace {

constexpr int kCardsPage = 1;
constexpr int kFrame = 16;  // milliseconds

/// Of the heap, in KB.
double HeldKb() {
  const struct mallinfo2 heap = ::mallinfo2();
  return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

struct HelpDisplay {
  HelpDisplay() : application((Prepare(), argc), nullptr) {}
  static void Prepare() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("KV_ASSETS", QByteArray::fromStdString(kv::ProgramFolder()));
  }
  int argc = 0;
  QApplication application;
};

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
  const HelpDisplay display;
  Rules rules(style);
  double held = 0;
  for (auto _ : state) {
    state.PauseTiming();
    rules.help.reset();
    const double before = HeldKb();
    state.ResumeTiming();
    rules.Open(style);
    held = std::max(held, HeldKb() - before);
  }
  state.counters["memory_kb"] = held;
}

/// A frame while the examples of the cards play.
void PlayExamples(benchmark::State& state, const char* style) {
  const HelpDisplay display;
  Rules rules(style);
  rules.Open(style);
  const double before = HeldKb();
  double held = 0;
  for (auto _ : state) {
    if (!rules.help->motionLayer().moving()) {
      state.PauseTiming();
      rules.help->lstPages().setCurrentRow(0);
      rules.help->lstPages().setCurrentRow(kCardsPage);
      held = std::max(held, HeldKb() - before);
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
