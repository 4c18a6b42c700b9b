// A match that is taken up from a position, in the middle of a turn.
#include "match/MatchEngine.h"
#include "match/MatchPosition.h"

namespace kv {

void MatchEngine::Resume(const MatchPosition& position) {
  pauses_.MoveOn();
  shown_.step = GameStep::None;
  stage_ = MatchStage::Set;
  AutoStood = false;
  decision_.reset();
  turn_ = position.turn;
  playerStarts_ = position.startsNext == Seat::Player;
  shown_.banner.visible = false;
  shown_.banner.buttonEnabled = true;
  board_.TakeUp(position);
  if (turn_ == Seat::Opponent) {
    if (game_.AI != nullptr) peer_.Ask(*game_.AI);
    return;
  }
  shown_.controls.flips = true;
  SetTurnControls(true);
  shown_.controls.hand = !position.cardPlayed;
  person_.Ask();
}

}  // namespace kv
