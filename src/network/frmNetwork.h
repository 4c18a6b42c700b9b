// The lobby: one player hosts, the other joins by address; they chat, the host chooses the mode, both press
// Start. It shows what the network game holds and hands back what the person did.
#pragma once

#include <QLabel>
#include <QListWidget>

#include "match/ctlChat.h"
#include "network/Lobby.h"
#include "network/NetworkGame.h"
#include "presentation/PortraitCaller.h"
#include "presentation/Screen.h"
#include "profile/clsPlayer.h"
#include "screens/frmOptionsPortrait.h"

namespace kv {

/// All outlive the screen. `localAddresses` gives the machine's IPv4 addresses in the system's order.
struct frmNetworkServices {
  clsPlayer& player;
  NetworkGame& network;
  std::function<std::vector<std::string>()> localAddresses;
};

class frmNetwork final : public Screen, public PortraitCaller, private LobbyScreen {
 public:
  frmNetwork(const ScreenServices& services, const frmNetworkServices& lobby);
  ~frmNetwork() override;

  void LeaveProgram() override;
  void PortraitChosen(const Picture& picture) override;

  [[nodiscard]] Lobby& lobby() { return lobby_; }

 protected:
  void Activate() override;
  void Closing() override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildPlayer();
  void BuildConnection();
  void BuildPlay();
  void ShowPlayer();
  /// The connection buttons together.
  void EnableButtons(bool enabled);
  /// Which of "host" and "join" is chosen, and what goes with it.
  void ChooseSide(bool hosting);
  void AddressChanged();
  void ListLocalIPs();
  void ShowAddresses();
  void HideAddresses();
  void ChooseAddress(const QListWidgetItem& item);
  void imgYourPic_Click();
  void cmdConnect_Click();
  void cmdPort_Click();
  void ShowPlay() override;
  void ShowAccount() override { ShowPlayer(); }
  void ShowGreeting() override;
  /// A caption that changes, told with what it is the caption of.
  static void ShowCaption(ctlButton& button, const char* what, const QString& caption);
  [[nodiscard]] int Port() const;

  frmNetworkServices services_;
  Lobby lobby_;
  bool choosingPortrait_ = false;  // the picker is open
  QLabel* lblName_ = nullptr;      // children, as all that follow
  QLabel* lblCredits_ = nullptr;
  QLabel* lblWins_ = nullptr;
  QLabel* lblLosses_ = nullptr;
  QLabel* lblDCs_ = nullptr;
  QLabel* lblState_ = nullptr;
  frmOptionsPortrait* imgYourPic_ = nullptr;
  ctlButton* cmdHost_ = nullptr;
  ctlButton* cmdJoin_ = nullptr;
  ctlButton* cmdConnect_ = nullptr;
  ctlButton* cmdPort_ = nullptr;
  ctlButton* cmdDeviceIP_ = nullptr;
  ctlButton* cmdGameMode_ = nullptr;
  ctlButton* cmdStart_ = nullptr;
  QLineEdit* txtIP_ = nullptr;
  QListWidget* lstIPs_ = nullptr;
  ctlChat* chat_ = nullptr;
};

}  // namespace kv
