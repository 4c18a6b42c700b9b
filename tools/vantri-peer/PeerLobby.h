// The lobby without its window, and the one who sits in front of it: opens the connection, says hello,
// presses Start, and leaves when it has played as often as it was told to.
#pragma once

#include "network/Lobby.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

class PeerLobby final : public PeerScreen, private LobbyScreen {
 public:
  /// `greeted` is told once a connection stands.
  PeerLobby(const PeerServices& services, std::function<void()> greeted);

  [[nodiscard]] Lobby& lobby() { return lobby_; }
  void Open() override;

 protected:
  void Closing() override;

 private:
  void ShowPlay() override;
  void ShowAccount() override {}
  void ShowGreeting() override;

  void OpenConnection();
  void ChooseMode();
  void Start();

  std::function<void()> greeted_;
  Lobby lobby_;
  std::unique_ptr<Timer> tmrOpen_;
  std::unique_ptr<Timer> tmrMode_;
  std::unique_ptr<Timer> tmrStart_;
  bool said_ = false;
};

}  // namespace kv
