// One turn of either side: the draw, ending the turn and standing. The moves in between are those of the
// person (MatchPerson) and of the opponent (MatchPeer).
#include "match/MatchEngine.h"

namespace kv {
namespace {

constexpr int kThinkingPause = 250;  // milliseconds before the strategy moves

}  // namespace

void MatchEngine::PlayerTurn() {
  shown_.step = GameStep::None;
  if (shown_.Stood(Seat::Player)) {
    EndPlayerTurn();
    return;
  }
  SetLights(true, false);
  view_.PlaySound("turn");
  if (!pauses_.Wait(pace_.turnDelay)) return;
  DrawFor(Seat::Player);
  if (shown_.Total(Seat::Player) > kTargetTotal) view_.PlaySound("bust");
  if (StandsByItself(shown_)) {
    StandPlayer(true);
  } else if (EndsTurnByItself(shown_, options_)) {
    if (!pauses_.Wait(pace_.turnDelay * 0.85)) return;
    teller_.EndedTurn(Seat::Player);
    EndPlayerTurn();
  } else {
    shown_.controls.flips = true;
    SetTurnControls(true);
    person_.Ask();
  }
}

void MatchEngine::DrawFor(Seat seat) {
  const CardCode code = board_.DrawMainCard();
  board_.Draw(seat, code);
  view_.PlaySound("draw");
  if (network_) net_.NetSend("[Card]" + code.text());
}

void MatchEngine::EndPlayerTurn() {
  turn_ = Seat::Opponent;
  if (network_) {
    net_.NetSend("[Turn]");
    net_.startTurnRepeat();
  }
  SetLights(false, shown_.Light(Seat::Opponent));
  SetTurnControls(false);
  SettleBust(Seat::Player);
  if (CheckSetEnd(Seat::Player)) return;
  if (AutoStood && !pauses_.Wait(pace_.turnDelay)) return;
  AutoStood = false;
  StartGameTimer(GameStep::OpponentTurn);
}

void MatchEngine::StandPlayer(bool byItself) {
  if (byItself) AutoStood = true;
  shown_.controls.table[0] = false;
  if (network_) net_.NetSend("[Stnd]");
  shown_.side(Seat::Player).stood = true;
  teller_.Stood(Seat::Player);
  EndPlayerTurn();
}

void MatchEngine::OpponentTurn() {
  shown_.step = GameStep::None;
  if (shown_.Stood(Seat::Opponent)) {
    if (network_) {
      SetLights(false, shown_.Light(Seat::Opponent));
      peer_.setActs(true);
    } else {
      StartGameTimer(GameStep::PlayerTurn);
    }
    return;
  }
  SetLights(false, true);
  view_.PlaySound("turn");
  if (!pauses_.Wait(pace_.turnDelay)) return;
  if (!network_) DrawFor(Seat::Opponent);
  if (shown_.Total(Seat::Opponent) > kTargetTotal) view_.PlaySound("bust");
  if (network_) {
    peer_.setActs(true);
    return;
  }
  if (!pauses_.Wait(kThinkingPause - pace_.speedOffset / 2.0)) return;
  if (game_.AI != nullptr) peer_.Ask(*game_.AI);
}

}  // namespace kv
