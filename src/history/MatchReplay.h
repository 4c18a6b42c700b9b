// Plays a recorded match again in the real engine, which is fed with the recorded draws and moves, and shows
// what the engine makes of them. It books nothing: the match has no player behind it.
#pragma once

#include <functional>
#include <vector>

#include "history/MatchRecord.h"
#include "match/MatchShown.h"

namespace kv {

/// What happened, and what a screen would show then: tables, totals, hands, won sets.
using ReplayWatch = std::function<void(const MatchEvent& event, const MatchShown& shown)>;

/// Tells `watch` every event of the match in its order. False when the record is not that of a match: a move
/// that the rules do not let happen, or a result that does not follow; nothing is told from there on.
[[nodiscard]] bool PlayAgain(const MatchRecord& record, const ReplayWatch& watch = {});

struct ReplayStep {
  MatchEvent event;
  std::array<std::vector<CardCode>, 2> tables;  // by Seat, as all that follow
  std::array<RecordedHand, 2> hands;            // a played slot is empty
  event::Both totals{};
  event::Both setWins{};
};

/// Every step of the match as far as it can be played.
[[nodiscard]] std::vector<ReplayStep> StepsOf(const MatchRecord& record);

}  // namespace kv
