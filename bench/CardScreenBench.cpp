// How long the card screen takes to open, and a card from the click to the painted deck.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include "campaign/frmCards.h"
#include "match/clsGame.h"
#include "platform/Folders.h"
#include "support/ScreenHand.h"
#include "support/ScreenStage.h"

namespace {

/// Everything that an arcade run's card screen needs, with the real pictures.
struct Desk {
  explicit Desk(const char* style) : stage(style) { game.Mode = kv::kModeArcade; }

  void Open() {
    screen = std::make_unique<kv::frmCards>(stage.services(),
                                            kv::frmCardsServices{stage.player, game, network, networkStake});
    screen->Open();
    stage.Settle(10);
    Paint();
  }
  void Paint() { screen->render(&image); }

  kv::test::ScreenStage stage;
  kv::MatchNetwork network;
  kv::NetworkStake networkStake;
  kv::clsGame game{stage.player, {}};
  QImage image{1024, 690, QImage::Format_RGB32};
  std::unique_ptr<kv::frmCards> screen;
};

/// The display that a benchmark paints on: none is needed.
struct Display {
  Display() : application((Prepare(), argc), nullptr) {}
  static void Prepare() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("KV_ASSETS", QByteArray::fromStdString(kv::ProgramFolder()));
  }
  int argc = 0;
  QApplication application;
};

void Open(benchmark::State& state, const char* style) {
  const Display display;
  Desk desk(style);
  for (auto _ : state) {
    desk.Open();
    state.PauseTiming();
    desk.screen.reset();
    state.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(Open, Slate, "Slate")->Name("card screen/open/Slate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Open, Ember, "Ember")->Name("card screen/open/Ember")->Unit(benchmark::kMillisecond);

void AddCard(benchmark::State& state, const char* style) {
  const Display display;
  Desk desk(style);
  desk.Open();
  kv::test::ScreenHand hand(*desk.screen);
  desk.screen->wager().gettxtWager().setText(QStringLiteral("10"));
  hand.Click(desk.screen->wager().getcmdWager());
  for (auto _ : state) {
    state.PauseTiming();
    hand.Click(desk.screen->ctlDeck(1));
    state.ResumeTiming();
    hand.Click(*desk.screen->Bank({1, 1}));
    desk.Paint();
    if (desk.screen->ctlDeck(1).isHidden()) state.SkipWithError("no card was added");
  }
}
BENCHMARK_CAPTURE(AddCard, Slate, "Slate")
    ->Name("card screen/add a card/Slate")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AddCard, Ember, "Ember")
    ->Name("card screen/add a card/Ember")
    ->Unit(benchmark::kMillisecond);

}  // namespace
