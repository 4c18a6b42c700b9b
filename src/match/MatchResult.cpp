// The end of a set and of the match: won sets, the banner and the booking. Who wins is in SetDecision.cpp.
#include "match/MatchEngine.h"

namespace kv {

void MatchEngine::SettleBust(Seat seat) {
  if (shown_.Total(seat) <= kTargetTotal) return;
  for (MatchSide& each : shown_.sides) each.stood = true;
}

bool MatchEngine::CheckSetEnd(Seat closing) {
  if (!SetIsOver(shown_, closing)) return false;
  decision_ = DecideSet(shown_, closing);
  teller_.SetDecided(*decision_);
  if (network_) net_.SetDecided();
  shown_.controls.table = {false, false};
  view_.ControlsChanged();
  // A pause that was cut short leaves the set undecided: the match is being closed or has just been
  // forfeited.
  if (pauses_.Wait(pace_.turnDelay / 1.5)) StartGameTimer(decision_->result);
  return true;
}

void MatchEngine::ShowResult() {
  MatchBanner& banner = shown_.banner;
  if (shown_.step == GameStep::SetTied) {
    view_.PlaySound("tie");
    banner.text = "The set is tied.";
  } else if (shown_.step == GameStep::OpponentWins) {
    BustLose();
  } else {
    BustWin();
  }
  if (pauses_.closed()) return;  // the screen was left while the booking told of a failed save
  shown_.step = GameStep::None;
  decision_.reset();
  stage_ = MatchStage::BetweenSets;
  banner.visible = true;
  banner.caption = "continue";  // it may have read "(waiting)" when the match was given up
  banner.buttonEnabled = !options_.autoDialogs;
  view_.BannerChanged();
  if (options_.autoDialogs) view_.RunTimer(MatchTimer::AutoDialogs, true);
}

void MatchEngine::BustLose() {
  AddSetWin(true);
  if (shown_.SetWins(Seat::Opponent) == kSetsToWin) {
    view_.PlaySound("losematch");
    shown_.banner.text = "You have been defeated.";
    teller_.MatchDecided(Seat::Opponent);
    book_.Result(Seat::Opponent);
  } else {
    view_.PlaySound("loseset");
    shown_.banner.text = "The opponent wins the set.";
  }
}

void MatchEngine::BustWin() {
  AddSetWin(false);
  if (shown_.SetWins(Seat::Player) == kSetsToWin) {
    view_.PlaySound("winmatch");
    shown_.banner.text = "You have defeated your opponent!";
    teller_.MatchDecided(Seat::Player);
    book_.Result(Seat::Player);
  } else {
    view_.PlaySound("winset");
    shown_.banner.text = "you win the set.";
  }
}

void MatchEngine::AddSetWin(bool isOpponent) {
  const Seat seat = isOpponent ? Seat::Opponent : Seat::Player;
  ++shown_.side(seat).setWins;
  view_.SetWinAdded(seat);
}

/// A match that was given up ends with the last set that the other side needs.
void MatchEngine::LoseMatch(Seat loser) {
  const Seat winner = loser == Seat::Player ? Seat::Opponent : Seat::Player;
  while (shown_.SetWins(winner) < kSetsToWin - 1) AddSetWin(winner == Seat::Opponent);
  shown_.step = winner == Seat::Player ? GameStep::PlayerWins : GameStep::OpponentWins;
  GameTick();
}

}  // namespace kv
