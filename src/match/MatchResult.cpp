// The end of a set and of the match: the order of decisions, won sets, the banner and the booking.
#include "match/MatchEngine.h"

namespace kv {

void MatchEngine::SettleBust(Seat seat) {
  if (Total(seat) <= kTargetTotal) return;
  for (Side& each : sides_) each.stood = true;
}

bool MatchEngine::CheckSetEnd(Seat closing, bool tableFull) {
  const bool over = tableFull || (PlayerStood() && OpponentStood());
  if (!over) return false;
  decision_ = Decide(closing);
  if (isNetwork()) net_.SetDecided();
  controls_.table = {false, false};
  view_.ControlsChanged();
  // A pause that was cut short leaves the set undecided: the match is being closed or has just been
  // forfeited.
  if (Wait(turnDelay_ / 1.5)) StartGameTimer(decision_->result);
  return true;
}

SetDecision MatchEngine::Decide(Seat closing) const {
  const GameStep result = DecideSet(closing);
  const bool last = (result == GameStep::PlayerWins && SetWins(Seat::Player) == kSetsToWin - 1) ||
                    (result == GameStep::OpponentWins && SetWins(Seat::Opponent) == kSetsToWin - 1);
  return {closing, result, last};
}

bool MatchEngine::BookDecision() {
  if (!decision_ || !decision_->endsMatch) return false;
  const bool won = decision_->result == GameStep::PlayerWins;
  StopMatch();
  if (won) {
    booking_.SaveWin();
  } else {
    booking_.SaveLoss();
  }
  return true;
}

bool MatchEngine::LostByPlay() const {
  return begun_ && !stopped_ && game_.Wager == -1 && SetWins(Seat::Opponent) == kSetsToWin;
}

void MatchEngine::WinAfterAll() {
  if (!LostByPlay()) return;
  side(Seat::Opponent).setWins = kSetsToWin - 1;  // its last one does not count
  booking_.TurnLossIntoWin();
  if (closed_) return;
  view_.PlaySound("winmatch");
  banner_.text = "You have defeated your opponent!";
  view_.BannerChanged();
}

GameStep MatchEngine::DecideSet(Seat closing) const {
  const Side& player = side(Seat::Player);
  const Side& opponent = side(Seat::Opponent);
  if (player.total > kTargetTotal) return GameStep::OpponentWins;
  if (opponent.total > kTargetTotal) return GameStep::PlayerWins;
  if (player.table.size() == kTableSize) return GameStep::PlayerWins;
  if (opponent.table.size() == kTableSize) return GameStep::OpponentWins;
  if (player.total == opponent.total) {
    const Side& closer = side(closing);
    const bool broken = !closer.table.empty() && closer.table.back().type() == CardType::Tiebreaker;
    if (!broken) return GameStep::SetTied;
    return closing == Seat::Player ? GameStep::PlayerWins : GameStep::OpponentWins;
  }
  return player.total > opponent.total ? GameStep::PlayerWins : GameStep::OpponentWins;
}

void MatchEngine::ShowResult(GameStep result) {
  if (result == GameStep::SetTied) {
    view_.PlaySound("tie");
    banner_.text = "The set is tied.";
  } else if (result == GameStep::OpponentWins) {
    BustLose();
  } else {
    BustWin();
  }
  if (closed_) return;  // the screen was left while the booking told of a failed save
  gameState_ = GameStep::None;
  decision_.reset();
  betweenSets_ = true;
  banner_.visible = true;
  banner_.caption = "continue";  // it may have read "(waiting)" when the match was given up
  banner_.buttonEnabled = !options_.autoDialogs;
  view_.BannerChanged();
  if (options_.autoDialogs) view_.RunTimer(MatchTimer::AutoDialogs, true);
}

void MatchEngine::BustLose() {
  AddSetWin(true);
  if (SetWins(Seat::Opponent) == kSetsToWin) {
    view_.PlaySound("losematch");
    banner_.text = "You have been defeated.";
    booking_.SaveLoss();
  } else {
    view_.PlaySound("loseset");
    banner_.text = "The opponent wins the set.";
  }
}

void MatchEngine::BustWin() {
  AddSetWin(false);
  if (SetWins(Seat::Player) == kSetsToWin) {
    view_.PlaySound("winmatch");
    banner_.text = "You have defeated your opponent!";
    booking_.SaveWin();
  } else {
    view_.PlaySound("winset");
    banner_.text = "you win the set.";
  }
}

void MatchEngine::AddSetWin(bool isOpponent) {
  ++side(SeatOf(isOpponent)).setWins;
  view_.SetWinAdded(SeatOf(isOpponent));
}

}  // namespace kv
