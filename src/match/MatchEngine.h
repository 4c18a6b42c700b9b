// The rules of a match. It knows no window, clock or socket: it speaks to its screen through MatchView.
//
// A set is played towards 20. A turn begins with a card 1 to 10 from a common main deck of forty (four of
// each). The side may then play one of its four side cards, and ends its turn or stands; who stands takes no
// more turns. 20 exactly, or a ninth card, makes the player stand at once. The set ends when both have stood
// or a table of nine is full; the first rule that applies decides it:
//   1. the player over 20 loses;          2. the opponent over 20 loses;
//   3. nine cards of the player win;      4. nine cards of the opponent win;
//   5. equal totals: a tiebreaker as the last card of the side that closed the set wins it, else it is a tie;
//   6. the higher total wins.
// The first side with three sets wins the match; a tied set counts for nobody. The hand of four serves the
// whole match. Whoever forfeits loses the match.
//
// The person acts through MatchPerson, a strategy or a peer through MatchPeer. What a card does is in
// MatchBoard.
#pragma once

#include "match/MatchBoard.h"
#include "match/MatchBook.h"
#include "match/MatchPauses.h"
#include "match/MatchPeer.h"
#include "match/MatchPerson.h"

namespace kv {

class MatchEngine {
 public:
  /// All references must outlive the engine. The hands must be dealt. `view` hears nothing before Activate.
  MatchEngine(clsGame& game, const MatchOptions& options, MatchView& view, MatchNetwork& network,
              MatchBooking& booking, Dialogs& dialogs, Random& random);
  MatchEngine(MatchEngine&&) = delete;

  /// The screen was shown: decides who starts and begins the first set (or waits for the peer).
  void Activate();
  /// In the place of Activate, for simulations: the match goes on from there, unseen.
  void Resume(const MatchPosition& position);
  /// Starts a set.
  void Reset();
  /// The ticks of two timers; the others are those of pauses() and peer().
  void GameTick();
  void AutoDialogsTick();
  /// The banner's button, while it is enabled: the next set, or leaving the screen.
  void Continue();
  /// The screen is closing for good: timers stop, later calls do nothing.
  void Close();

  [[nodiscard]] const MatchShown& shown() const { return shown_; }
  [[nodiscard]] MatchPauses& pauses() { return pauses_; }
  [[nodiscard]] MatchBoard& board() { return board_; }
  [[nodiscard]] const MatchBoard& board() const { return board_; }
  [[nodiscard]] MatchPerson& person() { return person_; }
  [[nodiscard]] MatchPeer& peer() { return peer_; }
  [[nodiscard]] const MatchPeer& peer() const { return peer_; }
  /// Who is told what happens, from before Activate on; null for nobody. It must outlive the engine.
  void setObserver(MatchObserver* observer) { teller_.setObserver(observer); }

 private:
  friend class MatchPerson;
  friend class MatchPeer;

  void PlayerTurn();
  void OpponentTurn();
  void DrawFor(Seat seat);
  void EndPlayerTurn();
  void StandPlayer(bool byItself);
  void SettleBust(Seat seat);
  bool CheckSetEnd(Seat closing);
  void ShowResult();
  void BustWin();
  void BustLose();
  void AddSetWin(bool isOpponent);
  void LoseMatch(Seat loser);
  void StopMatch();
  void GoOn();
  void SetLights(bool player, bool opponent);
  void SetTurnControls(bool enabled);
  void StartGameTimer(GameStep next);

  clsGame& game_;
  const MatchOptions options_;
  MatchView& view_;
  MatchNetwork& net_;
  const bool network_;  // a peer plays the opponent
  const MatchPace pace_;
  MatchShown shown_;
  MatchTeller teller_;
  MatchBook book_;
  MatchPauses pauses_;
  MatchBoard board_;
  MatchPerson person_;
  MatchPeer peer_;
  std::optional<SetDecision> decision_;  // until its result is shown
  Seat turn_ = Seat::Player;             // whose turn it is, or comes next
  bool playerStarts_ = false;
  MatchStage stage_ = MatchStage::Opening;
  bool AutoStood = false;  // the player's last stand was automatic
};

}  // namespace kv
