// The lobby without its window: opens the connection, says hello, presses Start, and leaves when it has
// played as often as it was told to.
#pragma once

#include "network/LobbyView.h"
#include "vantri-peer/PeerScreen.h"

namespace kv {

class PeerLobby final : public PeerScreen, public LobbyView {
 public:
  /// `greeted` is told once a connection stands.
  PeerLobby(const PeerServices& services, std::function<void()> greeted);

  void Open() override;
  void Greet() override;
  void RefuseStart() override;
  void ModeReceived(bool arcade) override;
  [[nodiscard]] bool waiting() const override { return tmrNetWait_->Enabled(); }

 protected:
  void Closing() override;

 private:
  void OpenConnection();
  void ChooseMode();
  void Start();
  void TradeWin();
  void NetWaitTick();

  std::function<void()> greeted_;
  std::unique_ptr<Timer> tmrOpen_;
  std::unique_ptr<Timer> tmrMode_;
  std::unique_ptr<Timer> tmrShowStart_;
  std::unique_ptr<Timer> tmrNetWait_;
  bool said_ = false;
};

}  // namespace kv
