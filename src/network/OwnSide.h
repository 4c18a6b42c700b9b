// This side of a network game: which of its screens is open, where it is therefore, and how the match that is
// under way here is booked when it ends before its time. It sends nothing and opens nothing.
#pragma once

#include "campaign/WagerView.h"
#include "match/MatchPartners.h"
#include "network/LobbyView.h"
#include "network/PeerPlace.h"
#include "platform/Dialogs.h"

namespace kv {

class MatchEngine;
class clsGame;
class clsPlayer;

/// Nothing here is owned. The first three stand from the first network game on; of the screens at most one is
/// open.
struct OwnSide {
  clsPlayer* player = nullptr;
  clsGame* game = nullptr;
  MatchBooking* booking = nullptr;
  LobbyView* lobby = nullptr;
  WagerView* cards = nullptr;
  MatchEngine* match = nullptr;
  Place left = Place::Lobby;  // where this side was before the present place

  /// A stake is open, which may be 0.
  [[nodiscard]] bool matchUnderWay() const;
  [[nodiscard]] Place place() const;
  /// Whichever was open is no longer.
  void ScreensClosed();

  /// The peer has come back to the lobby: before the match the stake is withdrawn, in a match the peer has
  /// left it. False: this side has nothing to come back from.
  [[nodiscard]] bool PeerIsInLobby();
  /// The peer has left. `unanswered`: it has not answered this side's last turn. True when that wins.
  bool WinByItsLeaving(bool unanswered);
  /// The peer gave up at the table while this side was at the cards.
  void WinAtTheDesk();
  /// The person leaves the game. `known`: the peer knows all that this side has done.
  void LoseByLeaving(bool known);
  /// The line is lost.
  void LineLost(Dialogs& dialogs);
};

}  // namespace kv
