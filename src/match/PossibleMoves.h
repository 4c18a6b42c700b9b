// What the side to move can do in a position. It looks, and plays nothing.
#pragma once

#include <vector>

#include "ai/TurnMove.h"
#include "match/MatchPosition.h"

namespace kv {

/// The side's total once it has played `move`, by the rules of a real table.
[[nodiscard]] int TotalAfter(const MatchPosition& position, const TurnMove& move);

/// The moves worth weighing: ending and standing without a card, and every card of the hand with every sign,
/// each followed by an end and by a stand. Of two equal cards the first counts. Left out is what can be no
/// better than another move: a card that goes over 20, ending on 20 or nine cards once a card was played,
/// standing on 10 or less while the other side still moves, and drawing on when a stand wins the set. Over
/// 20, and with a full table, there is one way to close; the player stands on 20 by itself.
[[nodiscard]] std::vector<TurnMove> PossibleMoves(const MatchPosition& position);

}  // namespace kv
