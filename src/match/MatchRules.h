// What follows from the tables as they lie: a turn that ends by itself, a set that is over, and who wins it
// by the first rule that applies. The rules look, and change nothing.
#pragma once

#include <optional>

#include "match/MatchShown.h"

namespace kv {

/// A set that is decided, before its result is shown.
struct SetDecision {
  SetRule rule;
  Seat closing;     // whose end of turn decided it
  GameStep result;  // SetTied, OpponentWins or PlayerWins
  bool endsMatch;
};

/// 20 exactly, or a ninth card: the player stands at once.
[[nodiscard]] inline bool StandsByItself(const MatchShown& shown) {
  return shown.Total(Seat::Player) == kTargetTotal || shown.TableFull(Seat::Player);
}
/// A low total, with the option on, unless the opponent stands on no more than the player has.
[[nodiscard]] bool EndsTurnByItself(const MatchShown& shown, const MatchOptions& options);

/// Why the side stands, with its table as it is: whatever was pressed, 20, nine cards or a bust are the
/// reason.
[[nodiscard]] StandReason StandReasonOf(const MatchShown& shown, Seat seat);

/// The set is over when both sides have stood (a bust makes both stand) or the closing side's table is full.
[[nodiscard]] inline bool SetIsOver(const MatchShown& shown, Seat closing) {
  return (shown.Stood(Seat::Player) && shown.Stood(Seat::Opponent)) || shown.TableFull(closing);
}
/// Of a set that is over.
[[nodiscard]] SetDecision DecideSet(const MatchShown& shown, Seat closing);

}  // namespace kv
