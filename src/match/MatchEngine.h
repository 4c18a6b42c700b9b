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
// Either side can be driven by a person (the operations below), a strategy, or a peer.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ai/Strategy.h"
#include "cards/clsDeckArray.h"
#include "match/MatchPartners.h"
#include "match/MatchState.h"
#include "match/MatchView.h"
#include "match/SideOperations.h"
#include "match/clsGame.h"
#include "platform/Dialogs.h"
#include "platform/Random.h"

namespace kv {

class MatchEngine {
 public:
  /// All references must outlive the engine. The game's hands must be dealt. No call reaches `view` before
  /// Activate.
  MatchEngine(clsGame& game, const MatchOptions& options, MatchView& view, MatchNetwork& network,
              MatchBooking& booking, Dialogs& dialogs, Random& random);
  MatchEngine(const MatchEngine&) = delete;
  MatchEngine& operator=(const MatchEngine&) = delete;

  // --- The course of a match -------------------------------------------------------------------------------
  /// The screen was shown: decides who starts and begins the first set (or waits for the peer).
  void Activate();
  /// Starts a set.
  void Reset();
  /// The ticks of the three timers.
  void GameTick();
  void AutoDialogsTick();
  void NetWaitTick();
  void QuietTick();
  /// The banner's button, while it is enabled: the next set, or leaving the screen.
  void Continue();
  /// The screen is closing for good: timers stop, later calls do nothing.
  void Close();

  // --- The person at this screen; each does nothing while its control is disabled
  // ---------------------------
  void EndTurn();
  void Stand();
  void PlayHandCard(int slot);
  void FirstFlip(int slot);
  void SecondFlip(int slot);
  /// The Forfeit button and the title bar's close: asks, then gives up the match; after the match it is
  /// Continue.
  void Forfeit();
  /// Does `act` as soon as no pause of the match is under way: at once, or when it has ended. A box that
  /// opened inside a pause would hold up the rules, and a peer with them, for as long as it is read.
  void WhenQuiet(std::function<void()> act);

  // --- The opponent's side, as the network layer drives it
  // ---------------------------------------------------
  void OppStand();
  void OppEndTurn();
  void OppForfeit();
  void AI_PlayCard(int slot) { operations(Seat::Opponent).AI_PlayCard(slot); }
  void AI_Stand() { operations(Seat::Opponent).AI_Stand(); }
  void AI_EndTurn() { operations(Seat::Opponent).AI_EndTurn(); }
  [[nodiscard]] int AI_CardCount() const { return sides_[1].operations.AI_CardCount(); }
  /// Plays `code` on a table with the effects of its type.
  void PlayCard(const CardCode& code, bool isOpponent);
  /// Lays `code` on a table; a full table takes no more.
  void LoadNextCard(const CardCode& code, bool isOpponent);
  /// The peer plays `code` from hand slot 1 to 4, which is empty afterwards.
  void OppPlayHand(int slot, const CardCode& code);
  /// A card drawn on either side leaves the common main deck. Throws std::out_of_range outside 1 to 10.
  void DeductDrawCard(int value);
  /// The peer's "[WhoS]".
  void setPlayerStarts(bool starts) { playerStarts_ = starts; }

  /// Whether the moves of the peer's turn can be taken now. Soon: they are due, but this side has not come to
  /// them yet (a pause is under way, or its own turn is just ending).
  [[nodiscard]] PeerTurn peerTurn() const;
  /// The set that is decided while its result is not shown yet; nothing at any other time.
  [[nodiscard]] const std::optional<SetDecision>& decision() const { return decision_; }
  /// False until the first set begins.
  [[nodiscard]] bool begun() const { return begun_; }
  /// A set's result is shown and this side has not begun the next one.
  [[nodiscard]] bool betweenSets() const { return betweenSets_; }
  /// This side has gone on and waits for the peer's "[Play]".
  [[nodiscard]] bool waitsForPeer() const { return peerWait_ != PeerWait::None; }
  /// The match was lost at the table, and booked so.
  [[nodiscard]] bool LostByPlay() const;
  /// Turns that into a win: the peer had given up before it knew the result.
  void WinAfterAll();
  /// Books a decided set that ends the match now, before its result is shown: the person leaves. False when
  /// there is none.
  bool BookDecision();

  /// The operations through which a strategy plays a side.
  [[nodiscard]] AiOperations& operations(Seat seat) { return side(seat).operations; }
  /// Lets a strategy play the player's side too (simulations); it must outlive the engine.
  void setPlayerStrategy(Strategy* strategy) { playerStrategy_ = strategy; }

  // --- What the screen shows
  // ---------------------------------------------------------------------------------
  [[nodiscard]] GameStep GameState() const { return gameState_; }
  [[nodiscard]] bool PlayerStarts() const { return playerStarts_; }
  [[nodiscard]] bool Stopped() const { return stopped_; }
  [[nodiscard]] bool PlayerStood() const { return sides_[0].stood; }
  [[nodiscard]] bool OpponentStood() const { return sides_[1].stood; }
  [[nodiscard]] int SpeedOffset() const { return speedOffset_; }
  [[nodiscard]] int TurnDelay() const { return turnDelay_; }
  [[nodiscard]] int MainDeckCount(int value) const {
    return mainDeckCount_.at(static_cast<std::size_t>(value));
  }
  [[nodiscard]] std::span<const CardCode> Table(Seat seat) const { return side(seat).table; }
  [[nodiscard]] const CardCode& HandCard(Seat seat, int slot) const { return side(seat).hand->Value(slot); }
  [[nodiscard]] int Total(Seat seat) const { return side(seat).total; }
  [[nodiscard]] int SetWins(Seat seat) const { return side(seat).setWins; }
  [[nodiscard]] bool Light(Seat seat) const { return side(seat).light; }
  [[nodiscard]] const MatchControls& controls() const { return controls_; }
  [[nodiscard]] const MatchBanner& banner() const { return banner_; }
  /// "Arcade Match" and so on, by the mode.
  [[nodiscard]] std::string Title() const;
  /// "Wager: 10", in a "Network" match with the bonus on a second line.
  [[nodiscard]] std::string WagerText() const;

 private:
  friend class SideOperations;

  /// What follows once the peer's "[Play]" has arrived.
  enum class PeerWait : std::uint8_t { None, NextSet, Leave };

  struct Side {
    Side(MatchEngine& engine, Seat seat) : operations(engine, seat) { table.reserve(kTableSize); }
    std::vector<CardCode> table;
    std::shared_ptr<clsDeckArray> hand;
    SideOperations operations;
    int total = 0;
    int setWins = 0;
    bool stood = false;
    bool light = false;
  };

  [[nodiscard]] Side& side(Seat seat) { return sides_[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] const Side& side(Seat seat) const { return sides_[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] static Seat SeatOf(bool isOpponent) { return isOpponent ? Seat::Opponent : Seat::Player; }
  [[nodiscard]] bool TableFull(Seat seat) const { return side(seat).table.size() == kTableSize; }

  // One turn
  void PlayerTurn();
  void OpponentTurn();
  void RunStrategy(Strategy& strategy, Seat seat);
  void OpenPlayerTurn();
  [[nodiscard]] bool EndsTurnByItself() const;
  void EndPlayerTurn();
  void StandPlayer();
  [[nodiscard]] CardCode DrawMainCard();
  void DrawFor(Seat seat);
  void InvertTable(Seat seat, int a, int b);
  void EmptyHandSlot(Seat seat, int slot);
  [[nodiscard]] static int TableTotal(std::span<const CardCode> table);

  // The end of a set and of the match
  bool CheckSetEnd(Seat closing, bool tableFull);
  [[nodiscard]] SetDecision Decide(Seat closing) const;
  [[nodiscard]] GameStep DecideSet(Seat closing) const;
  void ShowResult(GameStep result);
  void BustWin();
  void BustLose();
  void AddSetWin(bool isOpponent);
  void GoOn();
  void WaitForPeer(PeerWait next);
  void AskForfeit();
  void StopMatch();
  void SettleBust(Seat seat);

  // Small steps
  void SetLights(bool player, bool opponent);
  void SetTurnControls(bool enabled);
  void StartGameTimer(GameStep next);
  /// False when the pause was cut short or the match has moved on meanwhile: the caller returns at once.
  [[nodiscard]] bool Wait(double milliseconds);
  [[nodiscard]] bool isNetwork() const { return network_ != nullptr; }

  clsGame& game_;
  MatchOptions options_;
  MatchView& view_;
  MatchNetwork& net_;
  MatchNetwork* network_;  // net_ in a network match, otherwise null
  MatchBooking& booking_;
  Dialogs& dialogs_;
  Random& random_;
  Strategy* playerStrategy_ = nullptr;

  std::array<Side, 2> sides_;
  MatchControls controls_;
  MatchBanner banner_;
  std::array<std::uint8_t, 11> mainDeckCount_{};  // [1] to [10]
  GameStep gameState_ = GameStep::None;
  bool playerStarts_ = false;
  Seat turn_ = Seat::Player;   // whose turn it is, or comes next
  bool opponentActs_ = false;  // in a network match: the peer's moves are taken
  std::optional<SetDecision> decision_;
  bool begun_ = false;
  bool betweenSets_ = false;
  bool AutoStood = false;  // the player's last stand was automatic
  bool stopped_ = false;
  bool closed_ = false;
  int pauses_ = 0;                   // under way, one in another
  std::function<void()> whenQuiet_;  // what waits for their end
  PeerWait peerWait_ = PeerWait::None;
  int speedOffset_ = 0;              // milliseconds
  int turnDelay_ = 0;                // milliseconds
  std::uint32_t epoch_ = 0;          // moves on whenever a running turn loses its ground
  std::uint32_t strategyEpoch_ = 0;  // the epoch in which the running strategy was asked
  bool strategyRuns_ = false;
};

}  // namespace kv
