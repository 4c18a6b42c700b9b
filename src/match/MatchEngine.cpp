// The course of a match: opening, sets, timers, the banner's button and how a match is broken off. One turn
// is in MatchTurns.cpp, the end of a set in MatchResult.cpp.
#include "match/MatchEngine.h"

#include <string>

namespace kv {
namespace {

constexpr int kSetPause = 350;  // milliseconds

}  // namespace

MatchEngine::MatchEngine(clsGame& game, const MatchOptions& options, MatchView& view, MatchNetwork& network,
                         MatchBooking& booking, Dialogs& dialogs, Random& random)
    : game_(game),
      options_(options),
      view_(view),
      net_(network),
      network_(game.isNetwork()),
      pace_(PaceOf(options, network_)),
      teller_(shown_, game),
      book_(game, booking, teller_),
      pauses_(view),
      board_(shown_, game, view, teller_, random),
      person_(*this, dialogs),
      peer_(*this) {
  shown_.title = MatchTitle(game);
  shown_.wager = WagerText(game);
}

void MatchEngine::Activate() {
  teller_.MatchBegun();
  if (!network_ || net_.hosting()) {
    if (network_ || options_.turnMode == 0 || options_.turnMode == 2) {
      playerStarts_ = board_.EvenChance();
    } else {
      playerStarts_ = options_.turnMode == 1;
    }
  }
  if (!network_) {
    Reset();
    return;
  }
  if (net_.hosting()) net_.NetSend(std::string("[WhoS]") + (playerStarts_ ? "False" : "True"));
  shown_.controls.hand = false;
  view_.ControlsChanged();
  peer_.WaitForPlay(MatchPeer::Then::NextSet);
}

void MatchEngine::Reset() {
  if (pauses_.closed()) return;
  pauses_.MoveOn();
  peer_.setActs(false);
  shown_.step = GameStep::None;
  stage_ = MatchStage::Set;
  AutoStood = false;
  decision_.reset();
  turn_ = playerStarts_ ? Seat::Player : Seat::Opponent;
  shown_.banner.caption = "continue";
  shown_.controls.table = {true, true};
  for (MatchSide& each : shown_.sides) each.stood = false;
  board_.Clear();
  teller_.SetBegun(turn_);
  view_.ControlsChanged();
  view_.BannerChanged();
  if (!pauses_.Wait(kSetPause - pace_.speedOffset / 2.0)) return;
  shown_.step = playerStarts_ ? GameStep::PlayerTurn : GameStep::OpponentTurn;
  if (network_ || options_.turnMode == 2) playerStarts_ = !playerStarts_;
  shown_.banner.visible = false;
  shown_.banner.buttonEnabled = true;
  view_.BannerChanged();
  view_.RunTimer(MatchTimer::Game, true);
}

void MatchEngine::GameTick() {
  view_.RunTimer(MatchTimer::Game, false);
  if (pauses_.closed()) return;
  switch (shown_.step) {
    case GameStep::PlayerTurn:
      PlayerTurn();
      break;
    case GameStep::OpponentTurn:
      OpponentTurn();
      break;
    case GameStep::SetTied:
    case GameStep::OpponentWins:
    case GameStep::PlayerWins:
      ShowResult();
      break;
    case GameStep::None:
      break;
  }
}

void MatchEngine::AutoDialogsTick() {
  view_.RunTimer(MatchTimer::AutoDialogs, false);
  if (pauses_.closed() || !shown_.banner.visible) return;
  view_.PlaySound("click");
  GoOn();
}

void MatchEngine::Continue() {
  if (!pauses_.closed() && shown_.banner.visible && shown_.banner.buttonEnabled) GoOn();
}

void MatchEngine::GoOn() {
  view_.RunTimer(MatchTimer::AutoDialogs, false);
  shown_.banner.buttonEnabled = false;
  const bool matchBooked = game_.Wager == -1;
  if (network_) {
    shown_.banner.caption = "(waiting)";
    view_.BannerChanged();
    peer_.WaitForPlay(matchBooked ? MatchPeer::Then::Leave : MatchPeer::Then::NextSet);
  } else if (matchBooked) {
    view_.Leave();
  } else {
    Reset();
  }
}

void MatchEngine::Close() {
  if (pauses_.closed()) return;
  pauses_.Close();
  shown_.step = GameStep::None;
  for (const MatchTimer timer :
       {MatchTimer::Game, MatchTimer::AutoDialogs, MatchTimer::NetWait, MatchTimer::Quiet}) {
    view_.RunTimer(timer, false);
  }
}

/// Nothing of the match goes on: timers, running turns, lights and everything that can be used.
void MatchEngine::StopMatch() {
  pauses_.MoveOn();
  peer_.Stop();
  decision_.reset();
  shown_.step = GameStep::None;
  for (const MatchTimer timer : {MatchTimer::Game, MatchTimer::AutoDialogs, MatchTimer::NetWait}) {
    view_.RunTimer(timer, false);
  }
  SetLights(false, false);
  shown_.controls = MatchControls{};
  shown_.controls.opponentHand = false;
  shown_.controls.table = {false, false};
  view_.ControlsChanged();
}

void MatchEngine::SetLights(bool player, bool opponent) {
  shown_.side(Seat::Player).light = player;
  shown_.side(Seat::Opponent).light = opponent;
  view_.LightsChanged();
}

void MatchEngine::SetTurnControls(bool enabled) {
  MatchControls& controls = shown_.controls;
  controls.endTurn = controls.stand = controls.forfeit = controls.hand = enabled;
  view_.ControlsChanged();
}

void MatchEngine::StartGameTimer(GameStep next) {
  shown_.step = next;
  if (!person_.Stopped()) view_.RunTimer(MatchTimer::Game, true);
}

}  // namespace kv
