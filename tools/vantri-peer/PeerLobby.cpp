#include "vantri-peer/PeerLobby.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kHostInterval = 20;
constexpr int kJoinInterval = 1000;  // also between one try and the next
constexpr int kModeInterval = 1000;  // before the other side can press Start
constexpr int kStartInterval = 20;   // until Start is pressed once it can be

}  // namespace

PeerLobby::PeerLobby(const PeerServices& services, std::function<void()> greeted)
    : PeerScreen(services),
      greeted_(std::move(greeted)),
      lobby_({services.scheduler, services.report, services.navigator, services.network, services.player,
              life()},
             *this),
      tmrOpen_(
          NewTimer(services.options.hosting ? kHostInterval : kJoinInterval, [this] { OpenConnection(); })),
      tmrMode_(NewTimer(kModeInterval, [this] { ChooseMode(); })),
      tmrStart_(NewTimer(kStartInterval, [this] { Start(); })) {}

void PeerLobby::Closing() {
  for (Timer* timer : {tmrOpen_.get(), tmrMode_.get(), tmrStart_.get()}) timer->setEnabled(false);
  lobby_.Close();
}

void PeerLobby::Open() {
  NetworkGame& network = services().network;
  if (network.connected()) {
    said_ = true;
  } else {
    network.setHosting(services().options.hosting);
    tmrOpen_->setEnabled(true);
  }
  lobby_.Open();
}

void PeerLobby::OpenConnection() {
  tmrOpen_->setEnabled(false);
  const PeerOptions& options = services().options;
  const std::string& local = options.hosting ? options.address : options.from;
  if (!local.empty()) services().network.Bind(options.port, local);
  services().network.Open(options.port, options.hosting ? services().player.LastIP : options.address);
}

void PeerLobby::ShowGreeting() {
  greeted_();
  tmrMode_->setEnabled(services().options.hosting);
}

void PeerLobby::ChooseMode() {
  tmrMode_->setEnabled(false);
  if (services().network.arcade() != services().options.arcade) services().network.ToggleMode();
}

void PeerLobby::ShowPlay() {
  if (!services().network.versionMatches())
    services().report.Note("the versions differ: no match can be played");
  tmrStart_->setEnabled(lobby_.play().startShown && lobby_.play().startEnabled);
}

void PeerLobby::Start() {
  tmrStart_->setEnabled(false);
  NetworkGame& network = services().network;
  if (!network.connected()) return;  // the line is lost; it will be given up in a moment
  const PeerOptions& options = services().options;
  if (options.matches > 0 && services().report.booked() >= options.matches) {
    network.LeaveLobby();
    return;
  }
  if (!std::exchange(said_, true)) network.SubmitChat("Hello, " + services().game.OppName + ". Good luck!");
  lobby_.PressStart();
}

}  // namespace kv
