#include "network/Lobby.h"

#include "network/NetworkGame.h"
#include "presentation/Navigator.h"
#include "profile/clsPlayer.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kNetWaitInterval = 200;
constexpr int kShowStartInterval = 2200;

constexpr std::int32_t kTradedCredits = 10;
constexpr std::string_view kPressStart = "Press start when you are ready.";

}  // namespace

Lobby::Lobby(const LobbyServices& services, LobbyScreen& screen)
    : services_(services),
      screen_(screen),
      tmrNetWait_(services.scheduler.NewTimer(kNetWaitInterval, [this] { NetWaitTick(); })),
      tmrShowStart_(services.scheduler.NewTimer(kShowStartInterval, [this] { ShowStart(); })) {}

void Lobby::Open() {
  play_ = {};
  if (services_.network.connected()) {
    services_.network.TellStats();
    if (!services_.network.versionMatches()) {
      RefuseStart();
      return;
    }
    tmrShowStart_->setEnabled(true);
    play_.state = "Connected.";
  }
  screen_.ShowPlay();
}

void Lobby::Close() {
  tmrNetWait_->setEnabled(false);
  tmrShowStart_->setEnabled(false);
}

void Lobby::Opening() {
  play_.state = services_.network.hosting() ? "Waiting for the other player to join..." : "Connecting...";
  screen_.ShowPlay();
}

void Lobby::Greet() {
  services_.navigator.CallPlayer();
  tmrShowStart_->setEnabled(true);
  play_.state = "Connected.";
  screen_.ShowGreeting();
  screen_.ShowPlay();
}

void Lobby::RefuseStart() {
  Close();
  play_.startShown = play_.startEnabled = false;
  play_.state = "The versions differ: only chat is possible.";
  screen_.ShowPlay();
}

void Lobby::ShowStart() {
  tmrShowStart_->setEnabled(false);
  play_ = {true, true, true, services_.network.hosting(), kPressStart};
  screen_.ShowPlay();
}

// --- Start and mode --------------------------------------------------------------------------------------

void Lobby::PressStart() {
  if (!play_.startEnabled) return;
  if (!TradeAWin()) return;
  play_.startEnabled = false;  // a mode change behind the box may have enabled it
  services_.network.PressStart();
  play_.state = "Waiting for the other player to press start...";
  tmrNetWait_->setEnabled(true);
  screen_.ShowPlay();
}

/// Who has nothing left to play for may trade a win for credits. False when the lobby was closed behind the
/// question.
bool Lobby::TradeAWin() {
  clsPlayer& player = services_.player;
  if (player.Credits_MP->Value != 0 || player.Wins_MP->Value < 1) return true;
  const bool trade = services_.dialogs.AskYesNo("Trade in 1 win for 10 credits?", "Kelm Vantri: No Credits",
                                                DialogIcon::Information);
  if (services_.life.closing()) return false;
  if (trade) {
    player.Credits_MP->Value = kTradedCredits;
    --player.Wins_MP->Value;
    screen_.ShowAccount();
  }
  return true;
}

void Lobby::NetWaitTick() {
  if (!services_.network.peerReady()) return;
  tmrNetWait_->setEnabled(false);
  services_.network.PrepareMatch();
  services_.navigator.OpenCards();
}

void Lobby::PressMode() {
  if (!play_.modeEnabled) return;
  services_.network.ToggleMode();
  tmrNetWait_->setEnabled(false);
  play_.startEnabled = true;
  play_.state = kPressStart;
  screen_.ShowPlay();
}

void Lobby::ModeReceived(bool arcade) {
  if (services_.network.arcade() != arcade) services_.network.ToggleMode();
  TakeStartBack();
}

void Lobby::TakeStartBack() {
  tmrNetWait_->setEnabled(false);
  play_.startEnabled = true;
  if (play_.startShown) play_.state = kPressStart;
  screen_.ShowPlay();
}

}  // namespace kv
