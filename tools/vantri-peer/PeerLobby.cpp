#include "vantri-peer/PeerLobby.h"

namespace kv {
namespace {

// Milliseconds; all but the first three are those of the lobby.
constexpr int kHostInterval = 20;
constexpr int kJoinInterval = 1000;  // also between one try and the next
constexpr int kModeInterval = 1000;  // before the other side can press Start: the two must not cross
constexpr int kShowStartInterval = 2200;
constexpr int kNetWaitInterval = 200;

constexpr std::int32_t kTradedCredits = 10;

}  // namespace

PeerLobby::PeerLobby(const PeerServices& services, std::function<void()> greeted)
    : PeerScreen(services),
      greeted_(std::move(greeted)),
      tmrOpen_(
          NewTimer(services.options.hosting ? kHostInterval : kJoinInterval, [this] { OpenConnection(); })),
      tmrMode_(NewTimer(kModeInterval, [this] { ChooseMode(); })),
      tmrShowStart_(NewTimer(kShowStartInterval, [this] { Start(); })),
      tmrNetWait_(NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })) {}

void PeerLobby::Closing() {
  for (Timer* timer : {tmrOpen_.get(), tmrMode_.get(), tmrShowStart_.get(), tmrNetWait_.get()})
    timer->setEnabled(false);
}

void PeerLobby::Open() {
  NetworkGame& network = services().network;
  if (!network.connected()) {
    network.setHosting(services().options.hosting);
    tmrOpen_->setEnabled(true);
    return;
  }
  said_ = true;
  network.TellStats();
  if (network.versionMatches()) tmrShowStart_->setEnabled(true);
}

void PeerLobby::OpenConnection() {
  tmrOpen_->setEnabled(false);
  const PeerOptions& options = services().options;
  const std::string& local = options.hosting ? options.address : options.from;
  if (!local.empty()) services().network.Bind(options.port, local);
  services().network.Open(options.port, options.hosting ? services().player.LastIP : options.address);
}

void PeerLobby::Greet() {
  greeted_();
  tmrMode_->setEnabled(services().options.hosting);
  tmrShowStart_->setEnabled(true);
}

void PeerLobby::RefuseStart() {
  tmrShowStart_->setEnabled(false);
  services().report.Note("the versions differ: no match can be played");
}

void PeerLobby::ModeReceived(bool arcade) {
  tmrNetWait_->setEnabled(false);
  if (services().network.arcade() != arcade) services().network.ToggleMode();
  if (services().network.versionMatches()) tmrShowStart_->setEnabled(true);
}

void PeerLobby::ChooseMode() {
  tmrMode_->setEnabled(false);
  if (services().network.arcade() != services().options.arcade) services().network.ToggleMode();
}

void PeerLobby::Start() {
  tmrShowStart_->setEnabled(false);
  NetworkGame& network = services().network;
  if (!network.connected()) return;  // the line is lost; it will be given up in a moment
  const PeerOptions& options = services().options;
  if (options.matches > 0 && services().report.booked() >= options.matches) {
    network.LeaveLobby();
    return;
  }
  if (!std::exchange(said_, true)) network.SubmitChat("Hello, " + services().game.OppName + ". Good luck!");
  TradeWin();
  network.PressStart();
  tmrNetWait_->setEnabled(true);
}

/// As a person would who has nothing left to play for.
void PeerLobby::TradeWin() {
  clsPlayer& player = services().player;
  if (player.Credits_MP->Value != 0 || player.Wins_MP->Value < 1) return;
  player.Credits_MP->Value = kTradedCredits;
  --player.Wins_MP->Value;
}

void PeerLobby::NetWaitTick() {
  if (!services().network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  services().network.PrepareMatch();
  services().navigator.OpenCards();
}

}  // namespace kv
