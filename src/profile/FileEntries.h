// Which values a player file holds, in which order and since which version: one table for reading and
// writing. To store a new field, add its row in FileEntries.cpp. Knows nothing of scrambling and records.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "profile/PlayerFields.h"

namespace kv {

struct FieldRow;

/// One value of the file: a field, or one entry of a deck or table.
struct FileEntry {
  const FieldRow* row;    // from the table, never null
  int index;              // deck slot or table row
  int column;             // table column
  std::string marker;     // written in front of the value; empty or one character
  std::string keySuffix;  // what the key has beyond the PIN
};

/// The values that a file of this version holds, in file order.
[[nodiscard]] std::vector<FileEntry> EntriesOf(int versionNumber);

/// Converts `text` (Windows-1252) into the entry's place in `fields`; false, with that place unspecified,
/// when it does not convert.
[[nodiscard]] bool ReadEntry(PlayerFields& fields, const FileEntry& entry, std::string_view text);
/// The entry's value as text in Windows-1252.
[[nodiscard]] std::string WriteEntry(const PlayerFields& fields, const FileEntry& entry);

/// True for digits with an optional "-" in front, however many.
[[nodiscard]] bool IsNumeric(std::string_view text);
/// True for the codes that a side deck may hold.
[[nodiscard]] bool IsValidCardCode(std::string_view code);

}  // namespace kv
