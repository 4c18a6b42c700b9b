// The real match screen on the test's own clock, with named hands and named draws:
//
//   MatchScreen match({.style = "Ember", .hand = {"ps3", "fp2"}, .draws = {7, 4}});
//   match.Begin();  // the player is to act
//
// Pictures come from the folder in KV_ASSETS; without it every picture is empty.
#pragma once

#include <QCoreApplication>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "app/frmGlobals.h"
#include "match/frmGame.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"
#include "presentation/Sounds.h"
#include "support/HandScheduler.h"
#include "support/MatchTable.h"
#include "support/RecordingSound.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedRandom.h"

namespace kv::test {

struct MatchScreenSetup {
  std::string style = "Slate";
  std::vector<const char*> hand{"ps3", "fp2", "s11", "s51"};
  std::vector<const char*> opponentHand{"ps1", "ms-2", "fp3", "s299"};
  std::vector<int> draws{};  // main-deck cards in the order in which both sides draw them
  std::string mode{kModeArcade};
  std::function<void(clsPlayer&)> options{};
  double pixelRatio = 1;
};

class MatchScreen final : public Navigator, public MatchBooking, public MatchNetwork {
 public:
  explicit MatchScreen(const MatchScreenSetup& setup)
      : sounds(sound),
        buttons(sounds),
        globals(scheduler, buttons),
        player(dialogs, padding),
        pictures(setup.pixelRatio) {
    player.Name = "Player";
    player.Interface_Opt = setup.style;
    player.TurnMode_Opt = 1;
    player.KeysEn = true;
    if (setup.options) setup.options(player);
    buttons.setPlayer(&player);
    sounds.setPlayer(&player);
    sounds.InitEffects("");
    if (const char* assets = std::getenv("KV_ASSETS")) {
      static_cast<void>(pictures.OpenDataFile(std::string(assets) + "/" + kDataFileName));
    }
    globals.look.faces.LoadCardPictures([this](int number) { return pictures.getPic(number); });
    globals.look.interfaceStyle = setup.style;
    for (const int draw : setup.draws) random.Add((draw - 0.5) / 10);
    DealGame(setup);
    screen = std::make_unique<frmGame>(frmGameServices{
        scheduler, dialogs, random, buttons, globals.effects, globals.look,
        [this](int number) { return pictures.getPic(number); }, player, game, *this, *this, *this});
  }

  /// Shows the screen and lets the match run until nothing moves: the player is to act.
  void Begin() {
    screen->show();
    Settle();
  }
  /// Lets the events be handled and three seconds pass, longer than anything in a match takes by itself.
  void Settle() {
    QCoreApplication::processEvents();
    scheduler.Advance(3000);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] MatchEngine& engine() { return screen->engine(); }

  void LeaveMatch() override { ++left; }
  void EndProgram() override { ++ended; }
  void SaveWin() override { Book(); }
  void SaveLoss() override { Book(); }
  void NetSend(const std::string& message) override { sent.push_back(message); }

  HandScheduler scheduler;
  ScriptedDialogs dialogs;
  ScriptedRandom random{};
  RecordingSound sound;
  Sounds sounds;
  ButtonContext buttons;
  frmGlobals globals;
  SeededRandom padding{1};
  clsPlayer player;
  Pictures pictures;
  clsGame game;
  ScriptedStrategy strategy;
  std::unique_ptr<frmGame> screen;
  std::vector<std::string> sent;
  int left = 0;
  int ended = 0;
  int bookings = 0;

 private:
  void DealGame(const MatchScreenSetup& setup) {
    game.Mode = setup.mode;
    game.OppName = "Orrin Vaal";
    game.Wager = 10;
    game.YourPic = pictures.getPic(kPortraitBase + 7);
    game.OppPic = pictures.getPic(kPortraitBase + 5);
    game.SideDeck = Hand(setup.hand);
    game.CompDeck = Hand(setup.opponentHand);
    game.AI = std::shared_ptr<Strategy>(std::shared_ptr<Strategy>(), &strategy);
  }
  static std::shared_ptr<clsDeckArray> Hand(const std::vector<const char*>& codes) {
    auto hand = std::make_shared<clsDeckArray>();
    for (std::size_t i = 0; i < codes.size(); ++i) {
      hand->setValue(static_cast<int>(i) + 1, CardCode(codes[i]));
    }
    return hand;
  }
  void Book() {
    ++bookings;
    game.Wager = -1;
  }
};

}  // namespace kv::test
