#include "vantri-peer/PeerProgram.h"

#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"
#include "vantri-peer/PeerCards.h"
#include "vantri-peer/PeerLobby.h"
#include "vantri-peer/PeerStrategy.h"

namespace kv {
namespace {

// Milliseconds.
constexpr int kSweepInterval = 100;
constexpr int kQuitInterval = 50;

constexpr int kMostTries = 30;  // to join: a host may not stand ready yet

std::unique_ptr<Strategy> StrategyOf(const PlayerFields& player) {
  std::unique_ptr<Strategy> mind;
  if (player.ArcadeAI_Opt == 1) {
    mind = std::make_unique<clsAI_Ember>();
  } else {
    mind = std::make_unique<clsAI_Normal>();
  }
  return std::make_unique<PersonsStrategy>(std::move(mind));
}

}  // namespace

PeerProgram::PeerProgram(const PeerParts& parts)
    : parts_(parts),
      game_(parts.player, {}),
      book_(game_, parts.player, parts.report),
      booking_(book_, game_, parts.report, [this](bool own) { return SetWins(own); }),
      network_(Services(), parts.socket),
      strategy_(StrategyOf(parts.player)),
      tmrSweep_(parts.scheduler.NewTimer(kSweepInterval, [this] { Sweep(); })),
      tmrMisplay_(parts.scheduler.NewTimer(parts.options.misplay ? parts.options.misplay->every : 1,
                                           [this] { MisplayTick(); })),
      tmrQuit_(parts.scheduler.NewTimer(kQuitInterval, [this] {
        if (network_.connected()) return;  // the link is closed after a second in any case
        tmrQuit_->setEnabled(false);
        parts_.quit(tries_ > kMostTries ? 1 : 0);
      })) {
  game_.Mode = kModeNetwork;
}

PeerProgram::~PeerProgram() {
  CloseCurrent();
}

NetworkServices PeerProgram::Services() {
  return {parts_.scheduler,
          parts_.report,
          *this,
          stake_,
          [](std::string_view) {},
          [] {},
          [](int, const std::string&, bool& found) {
            found = false;
            return Picture();
          },
          [](bool) {},
          [] {}};
}

PeerServices PeerProgram::ScreenServices() {
  return {parts_.options, parts_.scheduler, parts_.random, parts_.report, *this, network_, parts_.player,
          game_,          booking_,         stake_,        *strategy_};
}

int PeerProgram::SetWins(bool own) const {
  return match_ == nullptr ? 0 : match_->engine().shown().SetWins(own ? Seat::Player : Seat::Opponent);
}

void PeerProgram::Start() {
  network_.Begin(parts_.player, game_, booking_);
  tmrMisplay_->setEnabled(parts_.options.misplay != nullptr);
  ShowLobby();
}

// --- From place to place ---------------------------------------------------------------------------------

void PeerProgram::Show(std::shared_ptr<PeerScreen> next, PeerMatch* match) {
  screen_ = std::move(next);
  match_ = match;
  network_.MirrorChat([this](const std::string& log) { parts_.report.Chat(log); });
  screen_->Open();
}

void PeerProgram::CloseCurrent() {
  network_.ScreensClosed();
  match_ = nullptr;
  if (screen_ == nullptr) return;
  screen_->Close();
  retired_.push_back(std::move(screen_));
  tmrSweep_->setEnabled(true);
}

void PeerProgram::Sweep() {
  if (parts_.scheduler.PauseDepth() > 0) return;
  tmrSweep_->setEnabled(false);
  retired_.clear();
}

void PeerProgram::OpenCards() {
  CloseCurrent();
  disconnects_ = parts_.player.Disconnects;
  parts_.report.MatchBegins();
  auto cards = std::make_shared<PeerCards>(ScreenServices());
  network_.CardsOpened(cards->round());
  Show(cards);
}

void PeerProgram::OpenMatch() {
  CloseCurrent();
  auto match = std::make_shared<PeerMatch>(ScreenServices());
  network_.MatchOpened(match->engine());
  Show(match, match.get());
}

void PeerProgram::OpenLobby() {
  parts_.report.MatchLeft(match_ != nullptr || parts_.player.Disconnects != disconnects_);
  CloseCurrent();
  if (finished_ || (!network_.connected() && !MayMeetAgain())) {
    Finish();
    return;
  }
  ShowLobby();
}

void PeerProgram::ShowLobby() {
  auto lobby = std::make_shared<PeerLobby>(ScreenServices(), [this] { met_ = true; });
  network_.LobbyOpened(lobby->lobby());
  Show(lobby);
}

bool PeerProgram::MayMeetAgain() {
  const PeerOptions& options = parts_.options;
  if (!std::exchange(met_, false)) {
    // Nobody was reached. An address that cannot be listened at will not become free by waiting.
    tries_ = options.hosting ? kMostTries + 1 : tries_ + 1;
    return tries_ <= kMostTries;
  }
  const bool enough = options.matches > 0 && parts_.report.booked() >= options.matches;
  return options.hosting && !options.once && !enough;
}

// --- The end -----------------------------------------------------------------------------------------------

void PeerProgram::Leave() {
  if (finished_) {
    parts_.quit(0);
  } else {
    network_.SubmitChat("/quit");
  }
}

void PeerProgram::Finish() {
  if (std::exchange(finished_, true)) return;
  tmrMisplay_->setEnabled(false);
  CloseCurrent();
  parts_.report.Summary();
  tmrQuit_->setEnabled(true);
}

void PeerProgram::MisplayTick() {
  MisplayScene scene{network_, parts_.socket, parts_.random, match_ == nullptr ? nullptr : &match_->engine(),
                     misplayed_};
  parts_.options.misplay->act(scene);
}

}  // namespace kv
