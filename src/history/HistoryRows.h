// The rows of the history as values. What a row holds is bytes from outside: it is checked, and never
// trusted.
#pragma once

#include <optional>

#include "history/MatchLine.h"
#include "history/MatchRecord.h"
#include "history/SqlStatement.h"

namespace kv {

inline constexpr const char* kLines =
    "SELECT "
    "id,time,version,mode,opponent,strategy,stake,deck,cards,outcome,style,own_sets,other_sets,before,after,"
    "imported FROM match ORDER BY time DESC, id DESC";
/// Of kLines.
[[nodiscard]] MatchLine LineIn(SqlStatement& row);

inline constexpr const char* kLoad =
    "SELECT time,version,mode,opponent,strategy,stake,deck,outcome,own_sets,other_sets,before,after,ending,"
    "given_up_by,winner,course FROM match WHERE id=?";
/// Of kLoad; nothing when it is no match.
[[nodiscard]] std::optional<MatchRecord> RecordIn(SqlStatement& row);

}  // namespace kv
