// What the opponent's side does in a match, be it a strategy or the peer of a network match, and where a
// match stands as the peer's messages need to know. It plays no move by itself.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "cards/CardCode.h"
#include "match/MatchRules.h"
#include "match/SideOperations.h"

namespace kv {

class MatchEngine;

class MatchPeer {
 public:
  /// Belongs to the engine.
  explicit MatchPeer(MatchEngine& engine) : engine_(engine), operations_(engine, Seat::Opponent) {}

  /// The peer's "[WhoS]".
  void setPlayerStarts(bool starts);
  /// The peer draws 1 to 10 from the common main deck; any other number throws std::out_of_range.
  void OppDraw(int value);
  /// Plays `code` from hand slot 1 to 4, which is empty afterwards.
  void OppPlayHand(int slot, const CardCode& code);
  /// A strategy plays the card of a hand slot, and a pause lets the person see it.
  void AI_PlayCard(int slot);
  void AI_EndTurn();
  void AI_Stand();
  void OppStand();
  void OppForfeit();
  /// Lets `strategy` play the opponent's turn.
  void Ask(Strategy& strategy) { operations_.Ask(strategy); }

  /// Whether the moves of the peer's turn can be taken now. Soon: they are due, but this side has not come to
  /// them yet (a pause is under way, or its own turn is just ending).
  [[nodiscard]] PeerTurn peerTurn() const;
  /// The set that is decided while its result is not shown yet; nothing at any other time.
  [[nodiscard]] const std::optional<SetDecision>& decision() const;
  /// False until the first set begins.
  [[nodiscard]] bool begun() const;
  /// A set's result is shown and this side has not begun the next one.
  [[nodiscard]] bool betweenSets() const;

  /// The match was lost at the table, and booked so.
  [[nodiscard]] bool LostByPlay() const;
  /// Turns that into a win: the peer had given up before it knew the result.
  void WinAfterAll();
  /// Books a decided set that ends the match now, before its result is shown: the person leaves. False when
  /// there is none.
  bool BookDecision();
  /// The peer has left, which decides nothing yet.
  void Gone();
  /// The match is won here and now, without a banner.
  void WinByItsLeaving();
  /// The line is lost; `book` settles the stake.
  void BrokenOff(const std::function<void()>& book);

  /// What follows once the peer's "[Play]" has arrived.
  enum class Then : std::uint8_t { Nothing, NextSet, Leave };
  /// This side has come as far, says so, and waits.
  void WaitForPlay(Then next);
  [[nodiscard]] bool waitsForPeer() const { return then_ != Then::Nothing; }
  /// The tick of MatchTimer::NetWait.
  void NetWaitTick();
  /// The peer's moves are taken from now on; `false`: nothing of the peer's turn, or its "[Play]", counts.
  void setActs(bool acts) { acts_ = acts; }
  void Stop();

 private:
  void OppEndTurn();

  MatchEngine& engine_;
  SideOperations operations_;
  bool acts_ = false;  // in a network match: the peer's moves are taken
  Then then_ = Then::Nothing;
};

}  // namespace kv
