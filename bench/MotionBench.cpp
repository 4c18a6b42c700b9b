// What one frame of the match screen costs while something moves, at twice the size, without a graphics card.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <ctime>

#include "DenseDisplay.h"
#include "support/MatchScreen.h"

namespace {

constexpr int kFrame = 16;  // milliseconds

/// A match of twice the size at the player's first turn.
struct MovingMatch {
  explicit MovingMatch(const char* style)
      : match({.style = style,
               .hand = {"ps3", "ps4", "ps5", "s399"},
               .opponentHand = {"ps1", "ms-2", "fp3", "s299"},
               .draws = {2, 6, 4, 5, 2, 7, 4, 4, 3, 8},
               .pixelRatio = 2}) {
    match.Begin();
    for (int turn = 0; turn < 3; ++turn) {
      match.engine().person().EndTurn();
      match.Settle();
    }
    while (match.screen->motionLayer().moving()) Frame();
  }
  /// As the window system asks for it: what has changed is painted.
  void Frame() {
    match.scheduler.Advance(kFrame);
    QEvent update(QEvent::UpdateRequest);
    QApplication::sendEvent(match.screen->window(), &update);
  }
  kv::test::MatchScreen match;
};

template <typename Start>
void Frames(benchmark::State& state, const char* style, const Start& start) {
  const kv::bench::DenseDisplay display;
  auto moving = std::make_unique<MovingMatch>(style);
  double longest = 0;  // of processor time
  double memory = 0;
  for (auto _ : state) {
    if (!moving->match.screen->motionLayer().moving()) {
      state.PauseTiming();
      moving = std::make_unique<MovingMatch>(style);
      const double before = kv::bench::HeapKb();
      start(moving->match);
      memory = std::max(memory, kv::bench::HeapKb() - before);
      moving->Frame();  // the first shows what the move itself has changed
      state.ResumeTiming();
    }
    const std::clock_t before = std::clock();
    moving->Frame();
    longest = std::max(longest, 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
  }
  state.counters["longest_ms"] = longest;
  state.counters["memory_kb"] = memory;
}

void Play(benchmark::State& state, const char* style) {
  Frames(state, style, [](kv::test::MatchScreen& match) { match.engine().person().PlayHandCard(1); });
}
/// Four cards turn while one lands.
void Turn(benchmark::State& state, const char* style) {
  Frames(state, style, [](kv::test::MatchScreen& match) { match.engine().person().PlayHandCard(4); });
}
void Win(benchmark::State& state, const char* style) {
  Frames(state, style, [](kv::test::MatchScreen& match) { match.engine().peer().OppForfeit(); });
}
void Rest(benchmark::State& state, const char* style) {
  const kv::bench::DenseDisplay display;
  MovingMatch moving(style);
  moving.match.globals.effects.StopEffects();
  for (auto _ : state) moving.match.scheduler.Advance(kFrame);
  if (moving.match.scheduler.RunningTimers() != 0) state.SkipWithError("a timer runs at rest");
}

BENCHMARK_CAPTURE(Play, Slate, "Slate")->Name("match motion/play/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Play, Ember, "Ember")->Name("match motion/play/Ember")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Turn, Slate, "Slate")->Name("match motion/turn/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Turn, Ember, "Ember")->Name("match motion/turn/Ember")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Win, Slate, "Slate")->Name("match motion/win/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Win, Ember, "Ember")->Name("match motion/win/Ember")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rest, Slate, "Slate")->Name("match motion/rest/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Rest, Ember, "Ember")->Name("match motion/rest/Ember")->Unit(benchmark::kMillisecond);

}  // namespace
