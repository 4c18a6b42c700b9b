// What the standard strategy would do in a position, without a match. The position stays as it is.
#pragma once

#include "ai/TurnMove.h"
#include "match/MatchPosition.h"

namespace kv {

[[nodiscard]] TurnMove StandardMove(const MatchPosition& position);

}  // namespace kv
