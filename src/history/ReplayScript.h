// A record as the script of a match: where in it the engine is, the cards that chance gives, and what either
// side does in its turn. It compares what happens with what is written, and stops at the first difference.
#pragma once

#include "ai/Strategy.h"
#include "history/MatchRecord.h"
#include "platform/Random.h"

namespace kv {

class ReplayScript final : public Random {
 public:
  explicit ReplayScript(const MatchRecord& record) : record_(record) {}

  [[nodiscard]] const RecordedSet& set() const { return record_.sets.at(set_); }
  /// The next move, null after the last of the set.
  [[nodiscard]] const RecordedMove* Next() const;
  /// The same if it is of this kind.
  [[nodiscard]] const RecordedMove* Next(MoveKind kind) const;
  /// Goes on to the next set; false when there is none.
  [[nodiscard]] bool NextSet();
  /// Whether something of the record is not played yet.
  [[nodiscard]] bool left() const { return Next() != nullptr || set_ + 1 < record_.sets.size(); }
  /// All is played of a match that ended in the middle of a set.
  [[nodiscard]] bool atEnd() const;
  /// Takes what has happened for the next of the script. False: it is not, and the script stops.
  [[nodiscard]] bool Take(const MatchEvent& event);
  void Fail() { failed_ = true; }
  [[nodiscard]] bool failed() const { return failed_; }
  [[nodiscard]] bool stopped() const { return failed_ || cut_; }
  /// How many turns have been closed so far.
  [[nodiscard]] int turns() const { return turns_; }

  void Randomize() override {}
  /// The next card of the main deck.
  [[nodiscard]] double Rnd() override;

 private:
  [[nodiscard]] bool Fits(const event::MatchBegun&) { return true; }
  [[nodiscard]] bool Fits(const event::SetBegun& begun);
  [[nodiscard]] bool Fits(const event::Drew& drew);
  [[nodiscard]] bool Fits(const event::Flipped& flipped);
  [[nodiscard]] bool Fits(const event::Played& played);
  [[nodiscard]] bool Fits(const event::EndedTurn& ended);
  [[nodiscard]] bool Fits(const event::Stood& stood);
  [[nodiscard]] bool Fits(const event::SetDecided& decided);
  template <typename Other>
  [[nodiscard]] bool Fits(const Other&) {
    return false;
  }
  [[nodiscard]] bool FitsMove(const RecordedMove& move);

  const MatchRecord& record_;
  std::size_t set_ = 0;
  std::size_t move_ = 0;
  std::size_t asked_ = 0;  // how often chance was asked without a card that was drawn
  int turns_ = 0;
  bool failed_ = false;
  bool cut_ = false;  // the engine goes on where the match was broken off
};

/// What a side may ask of the replay while its turn lasts.
class ReplayActions {
 public:
  virtual ~ReplayActions() = default;
  /// The person's flips that come next.
  virtual void Flip() = 0;
};

class ScriptedSide final : public Strategy {
 public:
  ScriptedSide(Seat seat, ReplayScript& script, ReplayActions& actions)
      : seat_(seat), script_(script), actions_(actions) {}

  void AI(AiOperations& side, int, int, int, int, bool, bool) override;

 private:
  /// False when the turn is over.
  bool Move(AiOperations& side);

  Seat seat_;
  ReplayScript& script_;
  ReplayActions& actions_;
};

}  // namespace kv
