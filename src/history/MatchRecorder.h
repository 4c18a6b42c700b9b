// Makes a record of a match out of what is told of it. It looks and keeps nothing of the engine; what becomes
// of the record is its owner's business.
#pragma once

#include <functional>

#include "history/MatchRecord.h"
#include "match/MatchObserver.h"

namespace kv {

class MatchRecorder final : public MatchObserver {
 public:
  /// The match is booked; told again, with the corrected record, when the booking was turned into a win.
  using Booked = std::function<void(const MatchRecord& record)>;

  /// `head` from RecordOf. `booked` must not call back into the match.
  explicit MatchRecorder(MatchRecord head, Booked booked = {});

  void Happened(const MatchEvent& event) override;

  /// The match so far: the last that has begun. One recorder takes many, one after the other.
  [[nodiscard]] MatchRecord record() const;
  /// Whether a set has begun that was never booked.
  [[nodiscard]] bool unbooked() const { return !sets_.empty() && !record_.booking; }

 private:
  void Note(const event::MatchBegun& begun);
  void Note(const event::SetBegun& begun);
  void Note(const event::Drew& drew);
  void Note(const event::Flipped& flipped);
  void Note(const event::Played& played);
  void Note(const event::EndedTurn& ended);
  void Note(const event::Stood& stood);
  void Note(const event::SetDecided& decided);
  void Note(const event::MatchDecided& decided);
  void Note(const event::Booked& booked);
  void Note(const event::Forfeited& forfeited);
  void Note(const event::PeerGone& gone);
  void Add(MoveKind kind, Seat seat, int slot, const CardCode& card);

  struct NotedSet {
    Seat starts = Seat::Player;
    std::size_t first = 0;  // of its moves
    std::optional<RecordedResult> result;
  };

  MatchRecord record_;               // without its sets
  std::vector<RecordedMove> moves_;  // of all sets: a match allocates nothing for each
  std::vector<NotedSet> sets_;
  Booked booked_;
  bool full_ = false;  // more sets than are recorded
};

}  // namespace kv
