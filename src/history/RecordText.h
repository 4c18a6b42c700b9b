// A record as a text that a person can read and write: a line for each turn. docs/history.md describes it.
// What is read is bytes from outside: everything is bounded and checked, and nothing of it is played.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "history/MatchRecord.h"

namespace kv {

inline constexpr std::size_t kMostRecordText = 1024 * 1024;  // bytes

/// UTF-8, lines ended by "\n".
[[nodiscard]] std::string FormatRecord(const MatchRecord& record);

/// Either the record, or the number of the line (from 1 on) that cannot be read and why.
struct ParsedRecord {
  std::optional<MatchRecord> record;
  int line = 0;
  std::string fault;
};

/// Of a whole text. A record that is read need not be that of a match: PlayAgain tells.
[[nodiscard]] ParsedRecord ParseRecord(std::string_view text);

}  // namespace kv
