// The course of a match: opening, sets, timers, the banner and the forfeit. One turn is in MatchTurns.cpp,
// the end of a set in MatchResult.cpp.
#include "match/MatchEngine.h"

#include <cmath>

namespace kv {
namespace {

constexpr int kSlateTurnDelay = 380;  // milliseconds
constexpr int kEmberTurnDelay = 210;
constexpr int kNetworkTurnDelay = 210;  // whatever the speed, so that both sides keep pace
constexpr int kSpeedStep = 60;
constexpr int kSetPause = 350;

int BaseDelay(const MatchOptions& options, bool network) {
  if (network) return kNetworkTurnDelay;
  return options.emberStyle ? kEmberTurnDelay : kSlateTurnDelay;
}

}  // namespace

MatchEngine::MatchEngine(clsGame& game, const MatchOptions& options, MatchView& view, MatchNetwork& network,
                         MatchBooking& booking, Dialogs& dialogs, Random& random)
    : game_(game),
      options_(options),
      view_(view),
      net_(network),
      network_(game.isNetwork() ? &network : nullptr),
      booking_(booking),
      dialogs_(dialogs),
      random_(random),
      sides_{Side(*this, Seat::Player), Side(*this, Seat::Opponent)} {
  // A speed that the options screen does not offer is played as normal, so that every pause stays positive.
  const int speed = options.speed >= 0 && options.speed <= 2 ? options.speed : 1;
  speedOffset_ = (speed - 1) * kSpeedStep;
  turnDelay_ = BaseDelay(options, isNetwork()) - (isNetwork() ? 0 : speedOffset_);
  // The player's flips stay on the table: the hand that was dealt keeps its codes.
  side(Seat::Player).hand = std::make_shared<clsDeckArray>(*game.SideDeck);
  side(Seat::Opponent).hand = game.CompDeck;
}

void MatchEngine::Activate() {
  if (!isNetwork() || net_.hosting()) {
    if (isNetwork() || options_.turnMode == 0 || options_.turnMode == 2) {
      playerStarts_ = std::floor(random_.Rnd() + 0.5) != 0;
    } else {
      playerStarts_ = options_.turnMode == 1;
    }
  }
  if (!isNetwork()) {
    Reset();
    return;
  }
  if (net_.hosting()) net_.NetSend(std::string("[WhoS]") + (playerStarts_ ? "False" : "True"));
  controls_.hand = false;
  view_.ControlsChanged();
  WaitForPeer(PeerWait::NextSet);
}

void MatchEngine::Reset() {
  if (closed_) return;
  ++epoch_;
  gameState_ = GameStep::None;
  begun_ = true;
  betweenSets_ = false;
  opponentActs_ = AutoStood = false;
  decision_.reset();
  turn_ = playerStarts_ ? Seat::Player : Seat::Opponent;
  banner_.caption = "continue";
  mainDeckCount_.fill(0);
  controls_.table = {true, true};
  for (Side& each : sides_) {
    each.stood = false;
    each.total = 0;
    each.table.clear();
  }
  for (const Seat seat : {Seat::Player, Seat::Opponent}) view_.TableChanged(seat, 0);
  view_.ControlsChanged();
  view_.BannerChanged();
  if (!Wait(kSetPause - speedOffset_ / 2.0)) return;
  gameState_ = playerStarts_ ? GameStep::PlayerTurn : GameStep::OpponentTurn;
  if (isNetwork() || options_.turnMode == 2) playerStarts_ = !playerStarts_;
  banner_.visible = false;
  banner_.buttonEnabled = true;
  view_.BannerChanged();
  view_.RunTimer(MatchTimer::Game, true);
}

void MatchEngine::GameTick() {
  view_.RunTimer(MatchTimer::Game, false);
  if (closed_) return;
  switch (gameState_) {
    case GameStep::PlayerTurn:
      PlayerTurn();
      break;
    case GameStep::OpponentTurn:
      OpponentTurn();
      break;
    case GameStep::SetTied:
    case GameStep::OpponentWins:
    case GameStep::PlayerWins:
      ShowResult(gameState_);
      break;
    case GameStep::None:
      break;
  }
}

void MatchEngine::AutoDialogsTick() {
  view_.RunTimer(MatchTimer::AutoDialogs, false);
  if (closed_ || !banner_.visible) return;
  view_.PlaySound("click");
  GoOn();
}

void MatchEngine::Continue() {
  if (!closed_ && banner_.visible && banner_.buttonEnabled) GoOn();
}

void MatchEngine::GoOn() {
  view_.RunTimer(MatchTimer::AutoDialogs, false);
  banner_.buttonEnabled = false;
  const bool matchBooked = game_.Wager == -1;
  if (isNetwork()) {
    banner_.caption = "(waiting)";
    view_.BannerChanged();
    WaitForPeer(matchBooked ? PeerWait::Leave : PeerWait::NextSet);
  } else if (matchBooked) {
    view_.Leave();
  } else {
    Reset();
  }
}

void MatchEngine::WaitForPeer(PeerWait next) {
  peerWait_ = next;
  net_.NetSend("[Play]");
  view_.RunTimer(MatchTimer::NetWait, true);
}

void MatchEngine::NetWaitTick() {
  if (closed_ || !net_.peerReady()) return;
  view_.RunTimer(MatchTimer::NetWait, false);
  const PeerWait next = std::exchange(peerWait_, PeerWait::None);
  if (next == PeerWait::NextSet) Reset();
  if (next == PeerWait::Leave) view_.Leave();
}

void MatchEngine::Close() {
  if (closed_) return;
  closed_ = true;
  ++epoch_;
  gameState_ = GameStep::None;
  for (const MatchTimer timer :
       {MatchTimer::Game, MatchTimer::AutoDialogs, MatchTimer::NetWait, MatchTimer::Quiet}) {
    view_.RunTimer(timer, false);
  }
}

void MatchEngine::WhenQuiet(std::function<void()> act) {
  if (pauses_ == 0) {
    act();
    return;
  }
  whenQuiet_ = std::move(act);
  view_.RunTimer(MatchTimer::Quiet, true);
}

void MatchEngine::QuietTick() {
  if (pauses_ > 0) return;
  view_.RunTimer(MatchTimer::Quiet, false);
  if (!closed_ && whenQuiet_) std::exchange(whenQuiet_, {})();
}

void MatchEngine::Forfeit() {
  if (closed_) return;
  if (game_.Wager != -1) {
    WhenQuiet([this] { AskForfeit(); });
    return;
  }
  if (!banner_.buttonEnabled) return;
  view_.PlaySound("click");
  Continue();
}

void MatchEngine::AskForfeit() {
  if (game_.Wager == -1) return;  // it ended in the pause that the question waited for
  const bool sure = dialogs_.AskYesNo("Are you sure you wish to forfeit this match?",
                                      "Kelm Vantri: Forfeit Match", DialogIcon::Exclamation);
  // The match went on behind the question: it may be over, or the screen gone. One that is decided is no
  // longer given up, for the peer knows the result already.
  if (closed_ || game_.Wager == -1) return;
  if (!sure || (decision_ && decision_->endsMatch)) {
    view_.ControlsChanged();  // the Forfeit button disabled itself when it was clicked
    return;
  }
  stopped_ = true;
  StopMatch();
  if (isNetwork()) net_.NetSend("[Forf]");
  while (SetWins(Seat::Opponent) < kSetsToWin - 1) AddSetWin(true);
  gameState_ = GameStep::OpponentWins;
  GameTick();
}

void MatchEngine::OppForfeit() {
  if (closed_ || game_.Wager == -1) return;
  StopMatch();
  controls_.titlebar = false;
  view_.ControlsChanged();
  while (SetWins(Seat::Player) < kSetsToWin - 1) AddSetWin(false);
  gameState_ = GameStep::PlayerWins;
  GameTick();
}

/// Nothing of the match goes on: timers, running turns, lights and everything that can be used.
void MatchEngine::StopMatch() {
  ++epoch_;
  opponentActs_ = false;
  decision_.reset();
  peerWait_ = PeerWait::None;
  gameState_ = GameStep::None;
  for (const MatchTimer timer : {MatchTimer::Game, MatchTimer::AutoDialogs, MatchTimer::NetWait}) {
    view_.RunTimer(timer, false);
  }
  SetLights(false, false);
  controls_ = MatchControls{};
  controls_.opponentHand = false;
  controls_.table = {false, false};
  view_.ControlsChanged();
}

std::string MatchEngine::Title() const {
  if (game_.Mode == kModeArcade) return "Arcade Match";
  if (game_.Mode == kModeCampaign) return "Campaign Match";
  if (game_.Mode == kModeNetwork) return "Network Match";
  if (game_.Mode == kModeNetworkArcade) return "Network Arcade Match";
  return "Kelm Vantri Match";
}

std::string MatchEngine::WagerText() const {
  std::string text = "Wager: " + std::to_string(game_.Wager);
  if (game_.Mode == kModeNetwork) {
    text += "\nBonus: " + std::to_string(static_cast<std::int64_t>(std::floor(game_.Wager * 0.1)));
  }
  return text;
}

void MatchEngine::SetLights(bool player, bool opponent) {
  side(Seat::Player).light = player;
  side(Seat::Opponent).light = opponent;
  view_.LightsChanged();
}

void MatchEngine::SetTurnControls(bool enabled) {
  controls_.endTurn = controls_.stand = controls_.forfeit = controls_.hand = enabled;
  view_.ControlsChanged();
}

void MatchEngine::StartGameTimer(GameStep next) {
  gameState_ = next;
  if (!stopped_) view_.RunTimer(MatchTimer::Game, true);
}

bool MatchEngine::Wait(double milliseconds) {
  const std::uint32_t epoch = epoch_;
  ++pauses_;
  const bool passed = view_.Pause(static_cast<int>(milliseconds));
  --pauses_;
  return passed && !closed_ && epoch == epoch_;
}

}  // namespace kv
