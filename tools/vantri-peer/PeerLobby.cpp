#include "vantri-peer/PeerLobby.h"

namespace kv {
namespace {

// Milliseconds; all but the first are those of the lobby.
constexpr int kOpenInterval = 1000;
constexpr int kShowStartInterval = 2200;
constexpr int kNetWaitInterval = 200;

constexpr std::int32_t kTradedCredits = 10;

}  // namespace

PeerLobby::PeerLobby(const PeerServices& services, std::function<void()> greeted)
    : PeerScreen(services),
      greeted_(std::move(greeted)),
      tmrOpen_(NewTimer(kOpenInterval, [this] { OpenConnection(); })),
      tmrShowStart_(NewTimer(kShowStartInterval, [this] { Start(); })),
      tmrNetWait_(NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })) {}

void PeerLobby::Closing() {
  for (Timer* timer : {tmrOpen_.get(), tmrShowStart_.get(), tmrNetWait_.get()}) timer->setEnabled(false);
}

void PeerLobby::Open() {
  NetworkGame& network = services().network;
  if (!network.connected()) {
    network.setHosting(services().options.hosting);
    // A host stands ready at once; who joins gives it a moment, and whoever failed waits before the next try.
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

void PeerLobby::Start() {
  tmrShowStart_->setEnabled(false);
  NetworkGame& network = services().network;
  const PeerOptions& options = services().options;
  if (options.matches > 0 && services().report.booked() >= options.matches) {
    network.LeaveLobby();
    return;
  }
  if (!std::exchange(said_, true)) network.SubmitChat("Hello, " + services().game.OppName + ". Good luck!");
  if (options.hosting && network.arcade() != options.arcade) network.ToggleMode();
  TradeWin();
  network.SendReady();
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
  services().network.clearPeerReady();
  services().network.PrepareMatch();
  services().navigator.OpenCards();
}

}  // namespace kv
