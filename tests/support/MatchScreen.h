// The real match screen on the test's own clock, with named hands and named draws:
//
//   MatchScreen match({.style = "Ember", .hand = {"ps3", "fp2"}, .draws = {7, 4}});
//   match.Begin();  // the player is to act
//
// Pictures come from the folder in KV_ASSETS; without it every picture is empty.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "match/frmGame.h"
#include "support/MatchTable.h"
#include "support/MemorySettings.h"
#include "support/ScreenStage.h"

namespace kv::test {

struct MatchScreenSetup {
  std::string style = "Slate";
  std::vector<const char*> hand{"ps3", "fp2", "s11", "s51"};
  std::vector<const char*> opponentHand{"ps1", "ms-2", "fp3", "s299"};
  std::vector<int> draws{};  // main-deck cards in the order in which both sides draw them
  std::string mode{kModeArcade};
  std::function<void(clsPlayer&)> options{};
  const char* opponent = "Orrin Vaal";
  double pixelRatio = 1;
  bool newcomer = false;  // who is offered hints
};

class MatchScreen final : public ScreenStage, public MatchBooking, public RecordingNetwork {
 public:
  explicit MatchScreen(const MatchScreenSetup& setup) : ScreenStage(setup.style, setup.pixelRatio) {
    player.TurnMode_Opt = 1;
    player.KeysEn = true;
    if (setup.options) setup.options(player);
    for (const int draw : setup.draws) random.Add((draw - 0.5) / 10);
    DealGame(setup);
    screen = std::make_unique<frmGame>(
        frmGameServices{services(), player, game, *this, *this, setup.newcomer ? &settings : nullptr});
  }

  /// Shows the screen and lets the match run until nothing moves: the player is to act.
  void Begin() {
    screen->Open();
    Settle();
  }
  [[nodiscard]] MatchEngine& engine() { return screen->engine(); }

  void SaveWin() override { Book(); }
  void SaveLoss() override { Book(); }

  MemorySettings store;
  Settings settings{store};
  clsGame game;
  ScriptedStrategy strategy;
  std::unique_ptr<frmGame> screen;
  int bookings = 0;

 private:
  void DealGame(const MatchScreenSetup& setup) {
    game.Mode = setup.mode;
    game.OppName = setup.opponent;
    game.Wager = 10;
    game.YourPic = pictures.getPic(kPortraitBase + 7);
    game.OppPic = pictures.getPic(kPortraitBase + 5);
    game.SideDeck = DealtHand(setup.hand);
    game.CompDeck = DealtHand(setup.opponentHand);
    game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &strategy);
  }
  void Book() {
    ++bookings;
    game.Wager = -1;
  }
};

}  // namespace kv::test
