// The lobby: before anything is chosen, with the list of addresses, and with a guest who has joined.
#include "Gallery.h"
#include "match/clsGame.h"
#include "network/frmNetwork.h"
#include "support/LoopbackSocket.h"
#include "support/ScreenHand.h"

namespace kv {
namespace {

constexpr int kPort = 6000;
constexpr const char* kHostAddress = "192.168.0.12";
constexpr const char* kGuestAddress = "192.168.0.31";

/// Books nothing: no match is played here.
struct NoBooking final : MatchBooking {
  void SaveWin() override {}
  void SaveLoss() override {}
};

struct LobbyStage {
  explicit LobbyStage(const Gallery& gallery) : stage(gallery.style(), gallery.scale()) {
    FillSamplePlayer(stage.player);
    network.Begin(stage.player, game, booking);
    screen = std::make_unique<frmNetwork>(
        stage.services(), frmNetworkServices{stage.player, network, [] {
                                               return std::vector<std::string>{kHostAddress, "10.8.0.2"};
                                             }});
    network.LobbyOpened(screen->lobby());
    screen->Open();
    stage.Settle();
  }
  void Click(const char* control) {
    test::ScreenHand(*screen).Click(*screen->findChild<QWidget*>(QString::fromUtf8(control)));
    stage.Settle(100);
  }
  void GuestJoins() {
    Click("cmdConnect");
    guest.Connected = [this] {
      for (const char* message :
           {"[Vers]1.2.4", "[Name]Mara", "[Chat][Mara: 240 credits, 6 wins, 3 losses, 0 disconnects]",
            "[Port]34", "[File]0", "[Chat]Mara: hello! shall we play for 40?"}) {
        guest.SendData(std::string(message) + kSeparatorByte);
      }
    };
    guest.DataArrival = [] {};
    guest.setRemoteHost(kHostAddress);
    guest.setRemotePort(kPort);
    guest.Connect();
    stage.Settle();
  }

  test::ScreenStage stage;
  test::LoopbackNet net{stage.scheduler};
  test::LoopbackSocket host{net, kHostAddress};
  test::LoopbackSocket guest{net, kGuestAddress};
  NoBooking booking;
  NetworkStake stake;
  clsGame game{stage.player, {}};
  NetworkGame network{
      NetworkServices{stage.scheduler, stage.dialogs, *stage.navigator, stake, [](std::string_view) {}, [] {},
                      [this](int number, const std::string& name, bool& found) {
                        return stage.portraits.GetPortrait(number, name, found);
                      },
                      [](bool) {}, [] {}},
      host};
  std::unique_ptr<frmNetwork> screen;
};

}  // namespace

void RenderLobby(Gallery& gallery) {
  LobbyStage lobby(gallery);
  gallery.Save(*lobby.screen, "lobby");
  lobby.Click("cmdDeviceIP");
  gallery.Save(*lobby.screen, "lobby-addresses");
  test::ScreenHand(*lobby.screen).Key(Qt::Key_Escape);
  lobby.GuestJoins();
  gallery.Save(*lobby.screen, "lobby-joined");
  lobby.network.ScreensClosed();
}

}  // namespace kv
