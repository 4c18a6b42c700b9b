#include "network/OwnSide.h"

#include "match/MatchEngine.h"
#include "network/BrokenOff.h"

namespace kv {

bool OwnSide::matchUnderWay() const {
  return game->Wager != -1;
}

Place OwnSide::place() const {
  if (match == nullptr) {
    if (cards == nullptr) return Place::Lobby;
    return matchUnderWay() ? Place::Desk : Place::Cards;
  }
  if (!matchUnderWay()) return Place::Over;
  const MatchPeer& peer = match->peer();
  if (!peer.begun()) return Place::Opening;
  if (peer.decision()) return Place::Decided;
  if (peer.betweenSets()) return Place::Banner;
  switch (peer.peerTurn()) {
    case PeerTurn::Theirs:
      return Place::Theirs;
    case PeerTurn::Soon:
      return Place::Handover;
    case PeerTurn::NotTheirs:
      break;
  }
  return Place::Ours;
}

void OwnSide::ScreensClosed() {
  if (game != nullptr) left = place();
  lobby = nullptr;
  cards = nullptr;
  match = nullptr;
}

bool OwnSide::PeerIsInLobby() {
  switch (place()) {
    case Place::Lobby:
    case Place::Over:  // its banner leads to the lobby
      return false;
    case Place::Cards:
    case Place::Desk:
      WithdrawStake(*game, *player);
      return true;
    case Place::Opening:
      match->peer().BrokenOff([this] { WithdrawStake(*game, *player); });
      return true;
    default:
      match->peer().Gone();
      match->peer().WinByItsLeaving();
      return match != nullptr;  // the line may be lost while a failed save is told
  }
}

bool OwnSide::WinByItsLeaving(bool unanswered) {
  if (match != nullptr) {
    // A result that the peer knew stands; it did not know what this side's last turn had decided if it never
    // answered it.
    const auto& decision = match->peer().decision();
    const bool known = !unanswered || (decision && decision->closing == Seat::Opponent);
    if (decision && decision->endsMatch && known) {
      const bool won = decision->result == GameStep::PlayerWins;
      return match->peer().BookDecision() && won;
    }
    if (place() == Place::Over) {
      const bool reversed = !known && match->peer().LostByPlay();
      if (reversed) match->peer().WinAfterAll();
      return reversed;
    }
  }
  if (!matchUnderWay()) return false;
  if (match == nullptr) {
    WinAtTheDesk();
    return true;
  }
  StakeToRecord(*game, *player);
  match->peer().WinByItsLeaving();
  return true;
}

void OwnSide::WinAtTheDesk() {
  StakeToRecord(*game, *player);
  booking->SaveWin();
}

void OwnSide::LoseByLeaving(bool known) {
  if (!matchUnderWay()) return;
  if (match != nullptr && known && match->peer().BookDecision()) return;
  StakeToRecord(*game, *player);
  if (match != nullptr) {
    match->person().LoseByLeaving();
  } else {
    booking->SaveLoss();
  }
}

void OwnSide::LineLost(Dialogs& dialogs) {
  const auto settle = [this, &dialogs] { SaveDisconnect(*game, *player, *booking, dialogs); };
  if (match != nullptr && matchUnderWay()) {
    match->peer().BrokenOff(settle);
  } else {
    settle();
  }
}

}  // namespace kv
