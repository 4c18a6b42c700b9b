// The three places of a network game without their windows: what each screen of the program does besides
// showing.
#pragma once

#include <functional>
#include <memory>

#include "campaign/CardRound.h"
#include "match/MatchEngine.h"
#include "network/Lobby.h"
#include "network/NetworkGame.h"
#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"

namespace kv::interleave {

/// All outlive the rooms.
struct RoomServices {
  Scheduler& scheduler;
  Dialogs& dialogs;
  Random& random;
  Navigator& navigator;
  NetworkGame& network;
  clsPlayer& player;
  clsGame& game;
  MatchBooking& booking;
  NetworkStake& stake;
};

class LobbyRoom final : public LobbyScreen {
 public:
  LobbyRoom(const RoomServices& services, std::function<void()> traded)
      : traded_(std::move(traded)),
        lobby_({services.scheduler, services.dialogs, services.navigator, services.network, services.player,
                life_},
               *this) {}

  [[nodiscard]] Lobby& lobby() { return lobby_; }
  void Close() {
    life_.Close();
    lobby_.Close();
  }
  void ShowPlay() override {}
  void ShowAccount() override { traded_(); }
  void ShowGreeting() override {}

 private:
  std::function<void()> traded_;
  Lifetime life_;
  Lobby lobby_;
};

class CardRoom final : public CardRoundView {
 public:
  explicit CardRoom(const RoomServices& services)
      : round_({services.scheduler, services.dialogs, services.random, services.navigator, services.player,
                services.game, services.network, services.stake, life_},
               *this) {}

  [[nodiscard]] CardRound& round() { return round_; }
  void Close() {
    life_.Close();
    round_.Close();
  }
  void ShowWager() override {}
  void ShowSettled() override {}
  void PlaySound(std::string_view) override {}

 private:
  Lifetime life_;
  CardRound round_;
};

class MatchRoom final : public MatchView {
 public:
  explicit MatchRoom(const RoomServices& services);

  [[nodiscard]] MatchEngine& engine() { return engine_; }
  void Close();
  /// The window system's close.
  void LeaveProgram();

  void TableChanged(Seat, int) override {}
  void HandChanged(Seat, int) override {}
  void SetWinAdded(Seat) override {}
  void ControlsChanged() override {}
  void LightsChanged() override {}
  void BannerChanged() override {}
  void RunTimer(MatchTimer timer, bool run) override;
  void PlaySound(std::string_view) override {}
  bool Pause(int milliseconds) override { return services_.scheduler.Pause(milliseconds, life_); }
  void Leave() override;

 private:
  void AskToLeave();

  RoomServices services_;
  Lifetime life_;
  MatchEngine engine_;
  std::array<std::unique_ptr<Timer>, 4> timers_;  // by MatchTimer
};

}  // namespace kv::interleave
