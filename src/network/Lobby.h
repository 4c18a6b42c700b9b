// The lobby without its window: Start, the game mode, and the wait for the peer's Start. It decides what can
// be pressed and what a press leads to; how that looks, and which address to reach, is its screen's.
#pragma once

#include <memory>
#include <string_view>

#include "network/LobbyView.h"
#include "platform/Dialogs.h"
#include "platform/Scheduler.h"

namespace kv {

class Navigator;
class NetworkGame;
class clsPlayer;

/// What the person may use, and a line that says what is awaited.
struct LobbyPlay {
  bool startShown = false;
  bool startEnabled = false;
  bool modeShown = false;
  bool modeEnabled = false;
  std::string_view state = "Choose to host or to join a game.";
};

/// How the lobby is shown.
class LobbyScreen {
 public:
  virtual ~LobbyScreen() = default;
  /// Lobby::play() or the game mode has changed.
  virtual void ShowPlay() = 0;
  /// A win was traded in: the player's credits and wins are others now.
  virtual void ShowAccount() = 0;
  /// A connection was made: what leads to one is shut off, the entry line is emptied and gets the focus.
  virtual void ShowGreeting() = 0;
};

/// All outlive the lobby. `life` is that of its screen.
struct LobbyServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Navigator& navigator;
  NetworkGame& network;
  clsPlayer& player;
  const Lifetime& life;
};

class Lobby final : public LobbyView {
 public:
  Lobby(const LobbyServices& services, LobbyScreen& screen);

  /// The lobby is shown. Connected (back from a match), both sides see the statistics, and Start appears
  /// after its time.
  void Open();
  /// Its timers stand still from now on.
  void Close();
  /// The connection is being opened.
  void Opening();

  /// The buttons; each does nothing while it is disabled. The lobby may be closed afterwards.
  void PressStart();
  void PressMode();

  void Greet() override;
  void RefuseStart() override;
  void ModeReceived(bool arcade) override;
  void TakeStartBack() override;
  [[nodiscard]] bool waiting() const override { return tmrNetWait_->Enabled(); }

  [[nodiscard]] const LobbyPlay& play() const { return play_; }

 private:
  void NetWaitTick();
  void ShowStart();
  [[nodiscard]] bool TradeAWin();

  LobbyServices services_;
  LobbyScreen& screen_;
  LobbyPlay play_;
  std::unique_ptr<Timer> tmrNetWait_;
  std::unique_ptr<Timer> tmrShowStart_;
};

}  // namespace kv
